# SPDX-License-Identifier: GPL-2.0-or-later
"""Reads public keys and signatures in OpenPGP's format: what a user has to know of a key before it is trusted.

Nothing is verified here. That is rpm's work, and librepo's; neither tells what stands in a key that it has not
imported, and a file may hold several keys, of which one alone is wanted.
"""

from __future__ import annotations

import base64
import binascii
import contextlib
import dataclasses
from typing import Dict, Iterator, List, NamedTuple, Optional, Tuple

_BEGINS = (b"-----BEGIN PGP PUBLIC KEY BLOCK-----", b"-----BEGIN PGP SIGNATURE-----")
_ENDS = b"-----END PGP "
_SIGNATURE, _KEY, _USER, _SUBKEY = 2, 6, 13, 14
"""Kinds of packets."""
_DIRECT = 0x1F
_CERTIFIES = (0x10, 0x11, 0x12, 0x13, _DIRECT)
_BINDS, _REVOKES, _REVOKES_SUBKEY = 0x18, 0x20, 0x28
"""Kinds of signatures that a key puts on itself."""
_CREATED, _LIFETIME, _ISSUER, _ISSUER_FINGERPRINT = 2, 9, 16, 33
"""Kinds of subpackets of a signature."""


class Unreadable(Exception):
    """Data that is neither a key nor a signature."""


@dataclasses.dataclass
class Part:
    """A key of a certificate, the primary one or a subkey. Times are seconds since 1970, `expires` 0 for never."""

    fingerprint: str
    key_id: str
    created: int
    expires: int = 0
    revoked: bool = False


@dataclasses.dataclass
class Key:
    """A primary key with its subkeys. `data` is the whole, in the binary form, as a file of its own would have it."""

    user_id: str
    parts: List[Part]
    data: bytes

    @property
    def primary(self) -> Part:
        return self.parts[0]

    def part(self, key_id: str) -> Optional[Part]:
        """The key with this id or fingerprint."""
        wanted = key_id.upper()
        return next((part for part in self.parts if wanted in (part.key_id, part.fingerprint)), None)


class _Packet(NamedTuple):
    kind: int
    body: bytes
    whole: bytes


@dataclasses.dataclass
class _Signature:
    kind: int
    subpackets: Dict[int, bytes]

    @property
    def created(self) -> int:
        return int.from_bytes(self.subpackets.get(_CREATED, b""), "big")

    @property
    def issuers(self) -> List[str]:
        """By the fingerprint, the id, or both."""
        found = [self.subpackets[_ISSUER_FINGERPRINT][1:]] if _ISSUER_FINGERPRINT in self.subpackets else []
        found += [self.subpackets[_ISSUER]] if _ISSUER in self.subpackets else []
        return [issuer.hex().upper() for issuer in found]


def keys_in(data: bytes) -> List[Key]:
    """The keys of a file, armoured or not. What is no key, or one of a form that nobody uses any more, is left out.
    Unreadable for a file that is none of keys."""
    keys: List[Key] = []
    for block in _blocks(data):
        at_hand: List[_Packet] = []
        for packet in _packets(block):
            if packet.kind == _KEY:
                keys += _key(at_hand)
                at_hand = []
            at_hand.append(packet)
        keys += _key(at_hand)
    return keys


def issuers_of(data: bytes) -> List[str]:
    """Who has made the detached signatures, each by fingerprint or key id. Unreadable."""
    packets = [packet for block in _blocks(data) for packet in _packets(block)]
    signatures = [_signature(packet.body) for packet in packets if packet.kind == _SIGNATURE]
    return [issuer for signature in signatures if signature is not None for issuer in signature.issuers[:1]]


def armoured(data: bytes) -> bytes:
    """A key as text, which every program takes that reads keys."""
    crc = 0xB704CE
    for byte in data:
        crc ^= byte << 16
        for _bit in range(8):
            crc = crc << 1 ^ (0x1864CFB if crc & 0x800000 else 0)
    lines = base64.encodebytes(data) + b"=" + base64.b64encode((crc & 0xFFFFFF).to_bytes(3, "big")) + b"\n"
    return b"-----BEGIN PGP PUBLIC KEY BLOCK-----\n\n" + lines + b"-----END PGP PUBLIC KEY BLOCK-----\n"


def _blocks(data: bytes) -> List[bytes]:
    """The binary data of each armoured block, or the data itself."""
    if data[:1] and data[0] & 0x80 and data[:3] != b"\xef\xbb\xbf":
        return [data]
    blocks = list(_armoured_blocks(data))
    if not blocks:
        raise Unreadable("no block")
    return blocks


def _armoured_blocks(data: bytes) -> Iterator[bytes]:
    """Line by line: whoever has made the data, it takes as long as they are, and no longer."""
    body: Optional[List[bytes]] = None
    for line in map(bytes.strip, data.split(b"\n")):
        if line in _BEGINS:
            body = []
        elif body is not None and line.startswith(_ENDS):
            # What cannot be decoded is no block.
            with contextlib.suppress(binascii.Error):
                yield base64.b64decode(b"".join(body), validate=True)
            body = None
        elif body is not None and b":" not in line and not (len(line) == 5 and line.startswith(b"=")):
            # Neither a header nor the checksum.
            body.append(line)


def _packets(data: bytes) -> Iterator[_Packet]:
    at = 0
    while at < len(data):
        tag = data[at]
        if not tag & 0x80:
            raise Unreadable("no packet")
        if tag & 0x40:
            kind = tag & 0x3F
            length, start = _length(data, at + 1)
        else:
            kind = tag >> 2 & 0x0F
            size = 1 << (tag & 3)
            if size == 8:
                raise Unreadable("no length")
            start = at + 1 + size
            length = int.from_bytes(data[at + 1 : start], "big")
        if start + length > len(data):
            raise Unreadable("cut off")
        yield _Packet(kind, data[start : start + length], data[at : start + length])
        at = start + length


def _length(data: bytes, at: int) -> Tuple[int, int]:
    """A length of the new form, and where it ends."""
    first = data[at] if at < len(data) else 0
    if first < 192:
        return first, at + 1
    if first < 224:
        second = data[at + 1] if at + 1 < len(data) else 0
        return ((first - 192) << 8) + second + 192, at + 2
    if first == 255:
        return int.from_bytes(data[at + 1 : at + 5], "big"), at + 5
    raise Unreadable("in pieces")


def _key(packets: List[_Packet]) -> List[Key]:
    """The key that these packets make, none if they don't begin with one."""
    if not packets or packets[0].kind != _KEY:
        return []
    primary = _part(packets[0].body)
    if primary is None:
        return []
    parts, users, newest, part = [primary], [], -1, primary
    for packet in packets[1:]:
        if packet.kind == _USER:
            users.append(_shown(packet.body))
        elif packet.kind == _SUBKEY:
            subkey = _part(packet.body)
            # What is said of a subkey that is not understood concerns nobody.
            part = subkey or Part("", "", 0)
            if subkey is not None:
                parts.append(subkey)
            newest = -1
        elif packet.kind == _SIGNATURE:
            signature = _signature(packet.body)
            if signature is None or not {primary.fingerprint, primary.key_id}.intersection(signature.issuers):
                # What others say of the key.
                continue
            part.revoked |= signature.kind in (_REVOKES, _REVOKES_SUBKEY)
            binds = signature.kind in _CERTIFIES if part is primary else signature.kind == _BINDS
            # One about the key itself, apart from a user, may speak of something else.
            binds = binds and (signature.kind != _DIRECT or _LIFETIME in signature.subpackets)
            if binds and signature.created >= newest:
                newest = signature.created
                lifetime = int.from_bytes(signature.subpackets.get(_LIFETIME, b""), "big")
                part.expires = part.created + lifetime if lifetime else 0
    return [Key(users[0] if users else "", parts, b"".join(packet.whole for packet in packets))]


def _part(body: bytes) -> Optional[Part]:
    if len(body) < 6:
        raise Unreadable("cut off")
    import hashlib  # only here: with it come 2 MiB that few need

    version, created = body[0], int.from_bytes(body[1:5], "big")
    if version == 4:
        digest = hashlib.sha1(b"\x99" + len(body).to_bytes(2, "big") + body, usedforsecurity=False)
        fingerprint = digest.hexdigest().upper()
        return Part(fingerprint, fingerprint[-16:], created)
    if version in (5, 6):
        lead = b"\x9a" if version == 5 else b"\x9b"
        fingerprint = hashlib.sha256(lead + len(body).to_bytes(4, "big") + body).hexdigest().upper()
        return Part(fingerprint, fingerprint[:16], created)
    return None


def _signature(body: bytes) -> Optional[_Signature]:
    if len(body) < 6:
        raise Unreadable("cut off")
    if body[0] == 3 and len(body) >= 15:
        return _Signature(body[2], {_CREATED: body[3:7], _ISSUER: body[7:15]})
    if body[0] not in (4, 5, 6):
        return None
    size = 4 if body[0] == 6 else 2
    subpackets: Dict[int, bytes] = {}
    at = 4
    for _half in ("hashed", "unhashed"):
        end = at + size + int.from_bytes(body[at : at + size], "big")
        at += size
        if end > len(body):
            raise Unreadable("cut off")
        while at < end:
            length, at = _two_bytes(body, at) if 224 <= body[at] < 255 else _length(body, at)
            if length:
                # What is hashed comes first, and counts.
                subpackets.setdefault(body[at] & 0x7F, body[at + 1 : at + length])
            at += length
    return _Signature(body[1], subpackets)


def _two_bytes(body: bytes, at: int) -> Tuple[int, int]:
    """A length of two bytes, of which subpackets have more than packets."""
    second = body[at + 1] if at + 1 < len(body) else 0
    return ((body[at] - 192) << 8) + second + 192, at + 2


def _shown(user_id: bytes) -> str:
    """The text without what could change how the texts around it are shown."""
    text = user_id.decode("utf-8", "replace")
    return "".join(character if character.isprintable() else "\N{REPLACEMENT CHARACTER}" for character in text)
