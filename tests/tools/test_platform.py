# SPDX-License-Identifier: GPL-2.0-or-later
"""tools/platform takes no word that would lead it out of the folder of its folders."""
from __future__ import annotations

import subprocess
from pathlib import Path

import pytest

PLATFORM = Path(__file__).resolve().parents[2] / "tools/platform"


@pytest.mark.parametrize("removing", [[], ["--remove"]])
@pytest.mark.parametrize("suite", ["", ".", "..", "a/b", "/etc", "-x"])
def test_a_word_that_is_no_release_is_refused(tmp_path: Path, removing: list[str], suite: str) -> None:
    (tmp_path / "folders/kept").mkdir(parents=True)
    environment = {"PATH": "/usr/bin:/bin", "VEM_PLATFORMS": str(tmp_path / "folders")}
    done = subprocess.run(
        [PLATFORM, *removing, suite], env=environment, capture_output=True, text=True, check=False
    )
    assert done.returncode == 2 and "Usage" in done.stderr
    assert (tmp_path / "folders/kept").is_dir()


def test_removing_takes_the_folder_with_all_that_it_holds(tmp_path: Path) -> None:
    folder = tmp_path / "trixie"
    (folder / "some/where").mkdir(parents=True)
    (folder / "some/file").write_text("text")
    (tmp_path / "forky").mkdir()
    environment = {"PATH": "/usr/bin:/bin:/usr/sbin", "VEM_PLATFORMS": str(tmp_path)}
    for _ in range(2):
        subprocess.run([PLATFORM, "--remove", "trixie"], env=environment, check=True)
    assert [path.name for path in tmp_path.iterdir()] == ["forky"]


if __name__ == "__main__":
    raise SystemExit(pytest.main([__file__]))
