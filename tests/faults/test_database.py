# SPDX-License-Identifier: GPL-2.0-or-later
"""The rpm database damaged, gone or changed by others: nothing is built on what is left of it."""
from __future__ import annotations

import contextlib
import sqlite3

import pytest

from desk import AFTER, BEFORE, QUESTION, Desk
from rpmestate import DB_PATH, Estate

GONE = "{} is no longer installed. Please refresh the list of packages.\nError applying changes"
NO_LONGER = "it lists no packages, though it did before. If that is right, start anew."


class Database:
    """The rpm database of a site, which can be damaged and mended."""

    def __init__(self, site: Estate) -> None:
        self.file = site.root / DB_PATH.lstrip("/") / "rpmdb.sqlite"
        with contextlib.closing(sqlite3.connect(self.file)) as connection:
            connection.execute("PRAGMA wal_checkpoint=TRUNCATE")
        self.whole = self.file.read_bytes()

    def replace(self, content: bytes) -> None:
        self.remove()
        self.file.write_bytes(content)

    def remove(self) -> None:
        for file in self.file.parent.glob(self.file.name + "*"):
            file.unlink()

    def lose_a_page(self) -> None:
        """The page on which the table of packages begins; the index of their names stays."""
        self.replace(self.whole[:4096] + bytes(4096) + self.whole[2 * 4096 :])

    def mend(self) -> None:
        self.replace(self.whole)


@pytest.fixture
def database(desk: Desk) -> Database:
    return Database(desk.site)


def cannot(site: Estate, what: str) -> str:
    return f"The rpm database of {site.root} cannot be {what}: "


def short(site: Estate) -> str:
    return (
        cannot(site, "used") + "packages are installed that it no longer lists (fleet-lamp, fleet-match, fleet-shell). "
        "It is damaged."
    )


def test_damaged_before_the_start(desk: Desk, database: Database) -> None:
    database.replace(b"no database " * 1000)
    desk.open()
    told = desk.told().splitlines()
    assert told[0].startswith(cannot(desk.site, "read")) and told[-1] == "Unable to initialize"
    # What rpm says of it, each line once.
    assert any("not a database" in line for line in told[1:-1]) and len(set(told)) == len(told)
    assert desk.program.row_count() == 0

    database.lose_a_page()
    desk.refresh()
    assert desk.told() == short(desk.site) + "\nUnable to collect installed and available packages"
    assert desk.program.row_count() == 0

    database.mend()
    desk.refresh()
    assert desk.untold().names() == ["fleet-lamp"]
    desk.sound(*BEFORE)


def test_damaged_after_the_table_was_filled(desk: Desk, database: Database) -> None:
    """Nobody is asked, nothing is begun, and no new database is made in the place of the old one."""
    desk.mark("fleet-lamp")
    damages = (
        (database.lose_a_page, short(desk.site)),
        (lambda: database.replace(b"no database " * 1000), cannot(desk.site, "read")),
        (lambda: database.replace(database.whole[:5000]), cannot(desk.site, "read")),
        (database.remove, cannot(desk.site, "used") + NO_LONGER),
    )
    for damage, words in damages:
        damage()
        desk.program.press("Apply Actions")
        told = desk.told().splitlines()
        # Before or behind it may stand what rpm says.
        assert any(line.startswith(words) for line in told) and told[-1] == "Error applying changes"
        if damage != database.remove:
            database.mend()
    # What was removed is not taken for an empty system by the next look either.
    desk.refresh()
    assert desk.told().splitlines()[0] == cannot(desk.site, "used") + NO_LONGER
    database.mend()
    desk.refresh()
    desk.untold()
    desk.sound(*BEFORE)
    desk.mark("fleet-lamp")
    desk.apply()
    desk.untold()
    desk.sound(*AFTER)


def test_changed_between_the_question_and_its_answer(desk: Desk, fleet: Estate) -> None:
    """What was asked for is gone, or done already: nothing is begun."""
    desk.mark("fleet-lamp", "fleet-match")
    desk.program.press("Apply Actions")
    question = desk.program.window(QUESTION)
    desk.site.rpm("--erase", "fleet-match")
    desk.program.press("OK", question)
    assert desk.told() == GONE.format("fleet-match-1.0-1.noarch")
    desk.sound(*without_match(BEFORE))

    desk.refresh()
    desk.untold()
    desk.mark("fleet-lamp")
    desk.program.press("Apply Actions")
    question = desk.program.window(QUESTION)
    desk.site.install(list((fleet.repos_dir / "harbour").glob("fleet-lamp-1.1-*")))
    desk.program.press("OK", question)
    assert desk.told() == GONE.format("fleet-lamp-1.0-1.noarch")
    desk.sound(*without_match(AFTER))

    desk.refresh()
    desk.untold().choose("View Updatable")
    assert desk.program.row_count() == 0
    desk.mark("fleet-oil")
    desk.apply()
    desk.untold()
    desk.sound(*without_match(AFTER), "fleet-oil-1.0-1.noarch")


def without_match(packages: tuple[str, ...]) -> list[str]:
    return [package for package in packages if not package.startswith("fleet-match")]


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
