# SPDX-License-Identifier: GPL-2.0-or-later
"""The differences that are meant: one table. Whatever no rule explains is a fault.

A rule never says that something may differ. It says what the helper package is to do instead: the same as the command
line does when it is asked in another way, or what the rule's own function looks at in full.
"""

from __future__ import annotations

import fnmatch
import re
from pathlib import Path
from typing import Callable, Dict, List, NamedTuple, Optional, Sequence, Set, Tuple
from urllib.parse import urlsplit

import rpm

from case import Case, name_of
from commands import BACKEND, COMMANDS
from pool import Package
from sides import Applied, Asked, Ran, planned
from state import State
from vemyum import choice, openpgp


class Outcome(NamedTuple):
    """Both sides of a case. States are what was there before, and what each side has left."""

    case: Case
    applied: Applied
    ran: Ran
    before: State
    ours: State
    theirs: State
    differences: Dict[str, List[str]]
    """By kind: "outcome" and those of the states; lines with - are ours, with + theirs. None of them is empty."""


Again = Callable[[Asked], Outcome]
"""Has the command line carry out the wish once more, asked otherwise."""


class Rule(NamedTuple):
    name: str
    reason: str
    concerns: Callable[[Outcome], bool]
    """Whether the case is one of those that the rule speaks of."""
    ask: Optional[Callable[[Case, Asked], Asked]] = None
    """How else the command line is asked then, which leaves no difference."""
    explains: Optional[Callable[[Outcome, Again], Set[str]]] = None
    """Without another way to ask: the kinds of differences that the rule explains, each as a whole."""
    of: Sequence[str] = choice.BACKENDS
    """Which command lines it speaks of."""


def _marks_updates(outcome: Outcome) -> bool:
    return bool(outcome.applied.wish.updates)


def _removes_excluded(outcome: Outcome) -> bool:
    patterns = outcome.case.main.get("excludepkgs", "").split()
    return any(fnmatch.fnmatchcase(name, pattern) for name in outcome.applied.wish.removes for pattern in patterns)


def _scriptlet_failed(outcome: Outcome) -> bool:
    return _LATE in outcome.ran.words and _LATE in outcome.applied.refused


def _told_as_done(outcome: Outcome, _again: Again) -> Set[str]:
    return {"outcome"} if outcome.ran.status == 0 else set()


def _fewer_keys(outcome: Outcome) -> bool:
    lines = outcome.differences.get("keys", [])
    return bool(lines) and all(line.startswith("+") for line in lines)


def _both_refused(outcome: Outcome, _again: Again) -> Set[str]:
    return {"keys"} if outcome.ours == outcome.before and outcome.ran.status != 0 else set()


def _both_began(outcome: Outcome, _again: Again) -> Set[str]:
    """Whether it comes to its end is another question: the keys are imported before."""
    return {"keys"} if outcome.ours != outcome.before and "packages" not in outcome.differences else set()


def _refuses_mixture(outcome: Outcome) -> bool:
    wish = outcome.applied.wish
    mixed = bool(wish.removes) and bool(wish.installs or wish.updates)
    return mixed and bool(outcome.applied.refused) and outcome.ours == outcome.before


def _installs_by_policy(outcome: Outcome) -> bool:
    wish = outcome.applied.wish
    return outcome.case.main.get("multilib_policy") == "all" and bool(wish.installs or wish.updates)


def _pushed_out(outcome: Outcome, again: Again) -> Set[str]:
    """Whether the command line wants more removed than the marks, and than what goes with them. It may stumble over a
    signature or a file later, which nobody gets to see here."""
    alone = again(Asked(removals_only=True)).ran
    return set(outcome.differences) if planned(outcome.ran, "Removing") - planned(alone, "Removing") else set()


def _lacks_keys(outcome: Outcome) -> bool:
    return outcome.ours == outcome.before and bool(_LACKS_A_KEY.search(outcome.applied.refused))


def _named_elsewhere(outcome: Outcome, _again: Again) -> Set[str]:
    """Whether the command line has imported a key that is missing here, which none of the repositories names whose
    packages it has signed."""
    imported = {line[1:].partition("-")[0] for line in outcome.differences.get("keys", []) if line.startswith("+")}
    places: Dict[str, Set[str]] = {}
    for issuer, locations in _LACKS_A_KEY.findall(outcome.applied.refused):
        places.setdefault(issuer, set()).update(one for one in locations.split(", ") if one.startswith("file:"))
    for issuer, files in places.items():
        keys = [key for file in files for key in openpgp.keys_in(Path(urlsplit(file).path).read_bytes())]
        # Releases of rpm call a key by the end of its fingerprint, or by all of it.
        here = any(name.endswith(issuer[-8:].lower()) for name in imported)
        if here and not any(key.part(issuer) for key in keys):
            return set(outcome.differences)
    return set()


def _needs_files(outcome: Outcome) -> bool:
    texts = (package.text for offered in outcome.case.repositories for package in offered.packages)
    return any(re.search(r"(?m)^(Requires|Recommends|Conflicts|Supplements):.*/usr/", text) for text in texts)


def _refuses_by_order(outcome: Outcome) -> bool:
    began = not outcome.applied.refused or outcome.ours != outcome.before
    return began and any(sign in outcome.ran.words for sign in COMMANDS.LACKS_SIGNATURE)


def _knowing_all_keys(case: Case, asked: Asked) -> Asked:
    """So that the first package in the command line's order may have a key that another one brings."""
    if BACKEND == choice.DNF4:
        return asked._replace(once_more=True)
    repositories = [repository for repository in case.repositories if repository.enabled]
    keys = dict.fromkeys(key for one in repositories for key in one.options.get("gpgkey", "").split())
    options = [f"--setopt={one.id}.gpgkey={' '.join(keys)}" for one in repositories]
    return asked._replace(options=(*asked.options, *options))


def _other_repositories(outcome: Outcome) -> bool:
    """Whether nothing but the repositories is another that the packages are noted to be from."""
    lines = [re.sub(r"'from_repo', '[^']*'", "", line) for line in outcome.differences.get("reasons", [])]
    ours, theirs = ({line[1:] for line in lines if line.startswith(sign)} for sign in "-+")
    return set(outcome.differences) == {"reasons"} and ours == theirs


_LATE = "Error in POSTIN scriptlet"
_LACKS_A_KEY = re.compile(r"ublic key for .*\n    key: .*\b([0-9a-fA-F]{16,64})\n    gpgkey of repository \S+: (.*)")

RULES = (
    Rule(
        "a scriptlet that fails behind an installation is told as a failure",
        "dnf writes a line about it and succeeds; the package is in, but may not work, which nobody is to find out by "
        "chance.",
        _scriptlet_failed,
        explains=_told_as_done,
        of=(choice.DNF4,),
    ),
    Rule(
        "a mark for removal pushes nothing else out",
        '"dnf shell" lets whatever is in the way of an installation go as soon as anything at all is to be removed; so '
        'does "dnf5 do" with --allowerasing, without which it keeps what needs a package that is to go. Here a package '
        "goes because it is marked, or because it needs one that goes; else the installation is refused, as it is "
        "without the other mark.",
        _refuses_mixture,
        explains=_pushed_out,
    ),
    Rule(
        "an apply that is refused imports no key",
        "dnf imports the keys of some packages before it finds that others are not signed. Here nothing is changed.",
        _fewer_keys,
        explains=_both_refused,
    ),
    Rule(
        "only a key that signs a package is imported",
        "Once dnf lacks a key, it imports all that the repository names. Here each is asked for, and those that no "
        "package wants are not.",
        _fewer_keys,
        explains=_both_began,
    ),
    Rule(
        "a missing key comes from a repository with a package that it has signed",
        "dnf looks at one package after the other. All keys that the repository of one names let in whatever comes "
        "behind it, from any repository.",
        _lacks_keys,
        explains=_named_elsewhere,
    ),
    Rule(
        "no package depends on its place among others",
        "dnf refuses a package whose repository doesn't name the key, though the key comes with a package behind it; "
        "asked once more, it takes both. dnf5 never gets to the one behind. Here all are looked at first.",
        _refuses_by_order,
        _knowing_all_keys,
    ),
    Rule(
        "a marked update is insisted upon",
        '"dnf upgrade" of a version leaves it out where anything is in the way, says so in passing, and may even '
        'update to another version; it shuns some that can be had. "dnf install" of the same version takes it, or '
        "says why not.",
        _marks_updates,
        lambda _case, asked: asked._replace(insisting=True),
    ),
    Rule(
        "a row is one version for one architecture",
        'With multilib_policy=all "dnf install" of a version takes a package that replaces it instead where that is '
        "easier. Here the marked version comes, or nothing.",
        _installs_by_policy,
        lambda _case, asked: asked._replace(options=(*asked.options, "--setopt=multilib_policy=best")),
    ),
    Rule(
        "an excluded package can be removed",
        "What excludepkgs names can't be removed by dnf, which acts as if it weren't installed. The table shows it, "
        "and it can be removed like any other.",
        _removes_excluded,
        lambda _case, asked: asked._replace(options=(*asked.options, *COMMANDS.WITHOUT_EXCLUDES)),
    ),
    Rule(
        "a file that a package needs is found in any package",
        "dnf5 doesn't read which files the packages of repositories have, unless the configuration says so, and then "
        "finds nothing that provides one. Here that is read, as dnf does.",
        _needs_files,
        lambda _case, asked: asked._replace(options=(*asked.options, "--setopt=optional_metadata_types=filelists")),
        of=(choice.DNF5,),
    ),
    Rule(
        "of equal repositories the first one counts",
        "dnf5 reads repositories in the order in which they happen to arrive, and takes a package that several have "
        "from the one that came first. From its cache it reads them in the order of the configuration, as it is done "
        "here always.",
        _other_repositories,
        lambda _case, asked: asked._replace(from_cache=True),
        of=(choice.DNF5,),
    ),
)

_OURS = [rule for rule in RULES if BACKEND in rule.of]


def explanation(outcome: Outcome, again: Again) -> Tuple[str, Outcome]:
    """The names of the rules that explain the differences of a case, empty where something is left; and the outcome
    that comes nearest."""
    asked = Asked()
    names: List[str] = []
    nearest = outcome
    while True:
        left = set(nearest.differences)
        explaining: List[str] = []
        for rule in _OURS:
            explained = left & rule.explains(nearest, again) if rule.explains and rule.concerns(nearest) else set()
            if explained:
                left -= explained
                explaining.append(rule.name)
        if not left:
            return " + ".join([*names, *explaining]), nearest
        rest = [rule for rule in _OURS if rule.ask is not None and rule.name not in names and rule.concerns(nearest)]
        if not rest:
            return "", nearest
        names.append(rest[0].name)
        asked = rest[0].ask(outcome.case, asked) if rest[0].ask is not None else asked
        nearest = again(asked)
        if not nearest.differences:
            return " + ".join(names), nearest


Would = Callable[[Sequence[str]], Ran]
"""Has the command line carry out these arguments in a copy of the root. It may stumble over a signature or a scriptlet
behind its plan, which are no matter of the table."""


class ReadingRule(NamedTuple):
    """A line of what the table leaves out, or shows in addition, that is meant to differ."""

    name: str
    reason: str
    explains: Optional[Callable[[Case, State, str, Would], bool]] = None
    """Whether it explains this line; the state is that of the root."""
    ask: Optional[Callable[[Case, State], Sequence[str]]] = None
    """Options with which the lists of the command line are to be the same; none where the rule isn't concerned."""
    of: Sequence[str] = choice.BACKENDS
    """Which command lines it speaks of."""


def _other_vendor(case: Case, there: State, line: str, would: Would) -> bool:
    sign_and_kind, nevra = line.split()[:2]
    kind = sign_and_kind[1:]
    if case.main.get("allow_vendor_change") != "0" or kind not in ("update", "replacing"):
        return False
    name = name_of(nevra)
    if line.startswith("+"):
        # "install" takes another vendor's update beside a package that replaces what it would update.
        asked = ["upgrade", "--best", name] if kind == "update" else ["install", nevra]
        return _changes_vendor(case, there, nevra) and nevra not in _brought(would(asked))
    # One that "dnf list" leaves out in favour of what the solver must refuse.
    rivals = {package.nevra for offered in case.repositories for package in offered.packages if package.name == name}
    refused = [
        rival
        for rival in sorted(rivals - {nevra})
        if _changes_vendor(case, there, rival) and rival not in _brought(would(["install", rival]))
    ]
    options = ["--allowerasing", *(f"--exclude={rival}" for rival in refused)]
    if nevra in _brought(would(["upgrade", "--best", *options, name])):
        return True
    # What other packages are in the way of is an update all the same: the table doesn't ask for dependencies.
    skipped = planned(would(["upgrade", "--setopt=best=0", *options, name]), "Skipping")
    return nevra in skipped and not _changes_vendor(case, there, nevra)


def _brought(ran: Ran) -> Set[str]:
    return planned(ran, "Installing", "Upgrading")


def _changes_vendor(case: Case, there: State, nevra: str) -> bool:
    """Whether it would take the place of a package of another vendor, for all that is known without versions."""
    packages = {package.nevra: package for package in case.pool.packages}
    package = packages[nevra]
    gives_way = {package.name, *re.findall(r"(?m)^Obsoletes: *(\S+)", package.text)}
    olds = [packages[installed] for installed in there["packages"] if packages[installed].name in gives_way]
    return any(old.vendor != package.vendor for old in olds)


def _as_locked(case: Case, there: State) -> List[str]:
    """Excludes what the locks keep out: of repositories, so that what is installed stays."""
    if not case.locks:
        return []
    names = {lock.name for lock in case.locks}
    known = [package for package in case.pool.packages if package.nevra in there["packages"]]
    known += [package for offered in case.repositories if offered.enabled for package in offered.packages]
    held = [package for package in known if any(lock.allows(package) for lock in case.locks)]
    options = []
    for repository in case.repositories:
        hidden = [
            package.nevra
            for package in repository.packages
            if (package.name in names and package not in held) or any(_replaces(package, one) for one in held)
        ]
        excludes = [*repository.options.get("excludepkgs", "").split(), *hidden]
        options.append(f"--setopt={repository.id}.excludepkgs={','.join(excludes)}")
    return options


def _replaces(package: Package, other: Package) -> bool:
    for name, operator, text in re.findall(r"(?m)^Obsoletes: *(\S+)(?: +([<=>]+) +(\S+))?$", package.text):
        if name != other.name or name == package.name:
            continue
        if not operator:
            return True
        epoch, _, rest = text.rpartition(":")
        version, _, release = rest.partition("-")
        # Without a release any of them is meant.
        there = (str(other.epoch), other.version, other.release if release else "")
        if {-1: "<", 0: "=", 1: ">"}[rpm.labelCompare(there, (epoch or "0", version, release))] in operator:
            return True
    return False


READING_RULES = (
    ReadingRule(
        "what a lock keeps out is not offered",
        '"dnf5 list" takes no notice of locked versions; "dnf5 upgrade" and "dnf5 install" do. The table shows what '
        "can be had.",
        ask=_as_locked,
        of=(choice.DNF5,),
    ),
    ReadingRule(
        "what the solver must refuse is not offered",
        'With allow_vendor_change=0, "dnf list" tells updates that come from another vendor, or replace a package of '
        'another vendor; neither "dnf upgrade" nor "dnf install" takes them. The table shows what "dnf upgrade" takes.',
        _other_vendor,
    ),
)


Compare = Callable[[Sequence[str]], List[str]]
"""What differs where the lists of the command line are asked for with these options."""


def unexplained(case: Case, there: State, compare: Compare, would: Would) -> Tuple[List[str], Set[str]]:
    """What differs in the table without a rule that explains it, and the rules that explain the rest."""
    names: Set[str] = set()
    rules = [rule for rule in READING_RULES if BACKEND in rule.of]
    lines = compare([])
    for rule in rules:
        options = rule.ask(case, there) if rule.ask is not None and lines else []
        if options:
            lines = compare(options)
            names.add(rule.name)
    left: List[str] = []
    for line in lines:
        explaining = (rule for rule in rules if rule.explains and rule.explains(case, there, line, would))
        rule = next(explaining, None)
        if rule is None:
            left.append(line)
        else:
            names.add(rule.name)
    return left, names
