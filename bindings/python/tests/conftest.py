"""What the tests share: the samples, one message as text, and a plain reading of a sample's
lines."""

import re
import subprocess
import sys
from collections.abc import Iterator
from dataclasses import dataclass, field
from datetime import UTC, datetime
from pathlib import Path

import pytest
import vcm

ROOT = Path(__file__).resolve().parents[3]
SAMPLES = ROOT / "samples"
CATALOGUE = SAMPLES / "catalogue.vcm"


@pytest.fixture(autouse=True)
def empty_store() -> Iterator[None]:
    vcm.clear()
    yield
    vcm.clear()


@dataclass
class Plain:
    """A few fields of a message, as its lines show them to any reader."""

    lines: list[str]
    triangle: list[float] = field(default_factory=list)

    def numbers(self, label: str) -> list[float]:
        text = next(line for line in self.lines if label in line).split(label)[1]
        return [float(word) for word in re.findall(r"[-+]?\d*\.\d+(?:E[-+]\d+)?|\b\d+", text)]

    @property
    def epoch(self) -> datetime:
        line = next(line for line in self.lines if "EPOCH TIME" in line)
        year, day, time = re.findall(r"(\d{4}) (\d{3}) \(.*\) (\S+)", line)[0]
        return datetime.strptime(f"{year} {day} {time}", "%Y %j %H:%M:%S.%f").replace(tzinfo=UTC)


def plain_messages(text: str) -> list[Plain]:
    found = []
    for block in text.split("<> SP VECTOR")[1:]:
        head, _, tail = block.partition("COVARIANCE MATRIX")
        values = [float(word) for word in re.findall(r"[-+]?0?\.\d{5}E[-+]\d\d", tail)[1:]]
        found.append(
            Plain((head + "COVARIANCE MATRIX" + tail.splitlines()[0]).splitlines(), values)
        )
    return found


def message(satellite: int, velocity: str = " 2.903596202111") -> str:
    """The first message of the catalogue under another number."""
    text = "<> SP VECTOR" + CATALOGUE.read_text().split("<> SP VECTOR")[1]
    text = text.replace("SATELLITE NUMBER:     1", f"SATELLITE NUMBER: {satellite:5}")
    assert velocity.strip() in text.replace(" 2.903596202111", velocity), velocity
    return text.replace(" 2.903596202111", velocity)


def run_python(code: str, **environment: str) -> str:
    """What a fresh interpreter prints that runs this code; the test fails if it fails."""
    import os

    done = subprocess.run(
        [sys.executable, "-c", code],
        env=os.environ | environment,
        capture_output=True,
        text=True,
        timeout=60,
        cwd=ROOT,
    )
    assert done.returncode == 0, f"{code}\n{done.stderr}"
    return done.stdout
