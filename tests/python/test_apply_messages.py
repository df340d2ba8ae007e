# SPDX-License-Identifier: GPL-2.0-or-later
"""What the two processes of an apply say to each other, and how it travels."""

from __future__ import annotations

import json
import socket
import threading
from typing import Any, Iterator, List, Tuple

import pytest
from vemyum.apply import messages
from vemyum.apply.channel import Channel
from vemyum.sections import RepositorySection

CHANGE = messages.Change("install", True, "lamp", "noarch", "0", "1.1", "1", "base", -1)

DETAIL = messages.Detail(
    "upgrade", "lamp", "noarch", "1.0-1", "1.1-1", "base", 6000, "required", ["lone"], 2, ["wick"], ["unchecked"], "ab12"
)

ONE_OF_EACH: List[Any] = [
    messages.Request(
        messages.PROTOCOL,
        [RepositorySection("base", {"name": "Base $releasever", "enabled": "0"}, True)],
        [messages.Wish("base", "lamp", "noarch", "1.1-1")],
        ["/srv/lamp.rpm"],
        [messages.Wish("@System", "lone", "noarch", "1:2-3")],
        [messages.Past("undo", 12, False)],
        7,
        "/etc/yum.conf",
        "vem --enablerepo=extra",
        "install lamp-1.1-1.noarch",
    ),
    messages.Answer(True),
    messages.Leave(True),
    messages.Hello(messages.PROTOCOL),
    messages.Log(2, "a line\n"),
    messages.WarningLog(1, "skipped"),
    messages.ErrorLog(0, "caf\xe9 \udce9 \0"),
    messages.Output('"quoted"\n'),
    messages.ErrorOutput(""),
    messages.Solving(),
    messages.Obstacles(["lamp-1.0-1.noarch is gone"]),
    messages.Plan([CHANGE], ["lamp:1"], [1 << 40], [DETAIL], -(1 << 40)),
    messages.KeyWanted("file:///key", "base", "lamp, lone", "An <owner>", "ABCD", "CD", 1, 1 << 40, True),
    messages.FileStarted("lamp.rpm", 6000),
    messages.FileProgress(0),
    messages.FileEnded(6000),
    messages.TransactionStarts(False),
    messages.Event("lamp", 10, 1, 2, 3, 4),
    messages.Script("lamp"),
    messages.Begun(messages.PROTOCOL, 1, 2, 3, [CHANGE]),
    messages.Ended("failed", "why", -1),
]


@pytest.mark.parametrize("message", ONE_OF_EACH, ids=lambda message: type(message).__name__)
def test_every_message_is_one_line_and_comes_back_as_it_was(message: Any) -> None:
    line = messages.to_line(message)
    assert line.count(b"\n") == 1 and line.endswith(b"\n") and line.isascii()
    assert json.loads(line)["is"] == type(message).__name__
    assert messages.from_line(line) == message


def test_there_is_a_test_for_every_message() -> None:
    assert {type(message).__name__ for message in ONE_OF_EACH} == set(messages._KINDS)


@pytest.mark.parametrize(
    "line",
    [
        b"",
        b"\n",
        b"no json\n",
        b'{"is":"Answer","confirmed":true}',
        b'{"is":"Answer","confirmed":1}\n',
        b'{"is":"Answer","confirmed":null}\n',
        b'{"is":"Answer"}\n',
        b'{"is":"Answer","confirmed":true,"more":1}\n',
        b'{"is":"Nothing"}\n',
        b'{"is":["Answer"],"confirmed":true}\n',
        b'{"confirmed":true}\n',
        b"[]\n",
        b"7\n",
        b'{"is":"Hello","protocol":true}\n',
        b'{"is":"Log","level":0,"text":7}\n',
        b'{"is":"Plan","changes":{},"streams":[],"downloads":[],"details":[],"growth":0}\n',
        b'{"is":"Plan","changes":[7],"streams":[],"downloads":[],"details":[],"growth":0}\n',
        b'{"is":"Plan","changes":[],"streams":[],"downloads":["1"],"details":[],"growth":0}\n',
        b'{"is":"Plan","changes":[],"streams":[],"downloads":[],"details":[{"action":"install"}],"growth":0}\n',
        b"[" * 100000 + b"\n",
        b"\xff\xfe\n",
    ],
)
def test_anything_else_is_refused_and_quoted(line: bytes) -> None:
    with pytest.raises(messages.ProtocolError) as caught:
        messages.from_line(line)
    assert len(str(caught.value)) < 1000


# The channel -----------------------------------------------------------------------------------------------


@pytest.fixture
def ends() -> Iterator[Tuple[Channel, Channel]]:
    one, other = (Channel(end) for end in socket.socketpair())
    yield one, other
    one.close()
    other.close()


def test_messages_arrive_in_order(ends: Tuple[Channel, Channel]) -> None:
    for message in ONE_OF_EACH:
        ends[0].send(message)
    assert [ends[1].receive() for _ in ONE_OF_EACH] == ONE_OF_EACH


def test_sender_never_waits_and_drops_what_is_unimportant(ends: Tuple[Channel, Channel]) -> None:
    """Nobody reads meanwhile: a transaction must not wait for a window that stands still."""
    long = messages.Output("x" * 10000)
    for number in range(200):
        ends[0].send(long)
        ends[0].send(messages.FileProgress(number), unimportant=True)
    last = messages.Ended("done", "", 1)
    ends[0].send(last)
    flusher = threading.Thread(target=ends[0].flush)
    flusher.start()
    got: List[Any] = []
    while not got or got[-1] != last:
        got.append(ends[1].receive())
    flusher.join()
    assert got.count(long) == 200
    assert len(got) < 300


def test_nobody_at_the_other_end_is_noticed_and_no_error(ends: Tuple[Channel, Channel]) -> None:
    ends[1].close()
    ends[0].send(messages.Solving())
    ends[0].send(messages.Solving())
    ends[0].flush()
    assert ends[0].gone
    assert ends[0].receive() is None


def test_end_in_the_middle_of_a_line_is_an_end() -> None:
    raw, end = socket.socketpair()
    channel = Channel(end)
    raw.sendall(messages.to_line(messages.Solving()) + b'{"is":"Sol')
    raw.close()
    assert channel.receive() == messages.Solving()
    assert channel.receive() is None
    channel.close()
