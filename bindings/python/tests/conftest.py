"""What the tests share: the samples, a message as text, and a fresh interpreter."""

import os
import subprocess
import sys
from collections.abc import Iterator
from math import inf, nan
from pathlib import Path
from typing import Any

import pytest
import vcm

ROOT = Path(__file__).resolve().parents[3]
SAMPLES = ROOT / "samples"
CATALOGUE = SAMPLES / "catalogue.vcm"
TEXTS = ["<> SP VECTOR" + block for block in CATALOGUE.read_text().split("<> SP VECTOR")[1:]]

# What fields of a record do not hold, with numpy or without.
UNFIT: dict[str, list[Any]] = {
    "lunarSolar": ["MAYBE", True, None], "intlDes": ["1989-021F", b"89021F"],
    "bTerm": ["x", None, [1], 10**400], "f10": [1.5, 2**31, -(2**40), nan, inf, "x", None],
    "eciPos": [5, None, (1, 2), (1, 2, "x"), [[1, 2, 3]] * 3],
    "covariance": [5, None, [1], [[1, 2], [3]], [[1, 2]], [[0] * 10] * 10, [[[1]]], [["x"]]],
}  # fmt: skip


@pytest.fixture(autouse=True)
def empty_store() -> Iterator[None]:
    vcm.clear()
    yield
    vcm.clear()


def message(satellite: int, changed: str = "", to: str = "") -> str:
    """The first message of the catalogue under another number, and with a text of it changed."""
    assert changed in TEXTS[0], changed
    text = TEXTS[0].replace("NUMBER:     1", f"NUMBER: {satellite:5}")
    return text.replace(changed, to) if changed else text


def run_python(code: str, **environment: str) -> str:
    """What a fresh interpreter prints that runs this code; the test fails if it fails."""
    command = [sys.executable, "-c", code]
    done = subprocess.run(
        command, env=os.environ | environment, capture_output=True, text=True, timeout=60, cwd=ROOT
    )
    assert done.returncode == 0, f"{code}\n{done.stderr}"
    return done.stdout
