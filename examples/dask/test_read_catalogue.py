"""The table of many processes is that of one, on a cluster of its own and on one that runs already."""

import subprocess
import sys
from collections.abc import Iterator
from pathlib import Path

import numpy as np
import pytest
import vcm

HERE = Path(__file__).resolve().parent
SAMPLES = HERE.parents[1] / "samples"
START = "<> SP VECTOR"
LIMIT = 200  # seconds; nothing comes near it


@pytest.fixture(scope="module")
def folder(tmp_path_factory: pytest.TempPathFactory) -> Path:
    """The catalogue in parts, of which two overlap, and the broken messages."""
    folder = tmp_path_factory.mktemp("messages")
    messages = (SAMPLES / "catalogue.vcm").read_text().split(START)[1:]
    for name, begin, end in (("a", 0, 90), ("b", 90, 200), ("c", 197, 300)):
        text = "".join(START + message for message in messages[begin:end])
        (folder / f"{name}.vcm").write_text(text)
    (folder / "broken.vcm").write_text((SAMPLES / "broken.vcm").read_text())
    return folder


@pytest.fixture
def cluster(folder: Path) -> Iterator[str]:
    """A scheduler and two workers as they run on several machines, on ports that are free."""
    programs = [["scheduler", "--port=0"], ["worker", "--nworkers=2", "--nthreads=1"]]
    common = ["--scheduler-file=cluster.json", "--no-dashboard"]
    running = []
    try:
        for program, *options in programs:
            command = [sys.executable, "-m", f"distributed.cli.dask_{program}", *common, *options]
            running.append(subprocess.Popen(command, cwd=folder, stderr=subprocess.DEVNULL))
        yield "cluster.json"
    finally:
        for process in reversed(running):
            process.terminate()
            process.wait(LIMIT)


def run(folder: Path, *arguments: str) -> subprocess.CompletedProcess[str]:
    command = [sys.executable, HERE / "read_catalogue.py", *arguments, "--workers=2"]
    return subprocess.run(command, cwd=folder, capture_output=True, text=True, timeout=LIMIT)


def check(folder: Path, *options: str) -> None:
    names = ["c.vcm", "a.vcm", "broken.vcm", "b.vcm"]
    done = run(folder, *names, "-o", "table.npy", *options)
    assert done.returncode == 1, done.stdout + done.stderr
    vcm.clear()
    results = {name: vcm.load(folder / name) for name in names}
    expected, table = vcm.table(), np.load(folder / "table.npy")
    columns = [name for name in expected.dtype.names or () if name != "satKey"]
    assert table[columns].tolist() == expected[columns].tolist(), done.stdout
    assert {row["satNum"] for row in table if row["file"] == "c.vcm"} == set(range(198, 301))
    for line in results["broken.vcm"].messages:
        assert f"broken.vcm: {line}\n" in done.stderr
    again = [line for line in done.stdout.splitlines() if line.endswith("already")]
    assert [line.split(" at ")[0] for line in again] == [
        f"{file}: satellite {satellite}"
        for file, satellite in (("broken.vcm", 1), ("b.vcm", 198), ("b.vcm", 199), ("b.vcm", 200))
    ]
    assert done.stdout.endswith("301 messages of 4 files, read by 2 processes\n")


def test_a_cluster_of_its_own(folder: Path) -> None:
    check(folder)


def test_a_cluster_that_runs(folder: Path, cluster: str) -> None:
    check(folder, "--scheduler", cluster)


@pytest.mark.parametrize("option", ["--workers=0", "--output=absent/table.csv"])
def test_what_cannot_be_done_is_told_before_the_work(folder: Path, option: str) -> None:
    done = run(folder, "a.vcm", option)
    assert (done.returncode, done.stdout) == (2, "") and "Traceback" not in done.stderr, done.stderr
    assert f"'{option.partition('=')[2]}'" in done.stderr


def test_a_file_that_is_absent(folder: Path) -> None:
    done = run(folder, "a.vcm", "absent.vcm", "-o", "part.csv")
    assert (done.returncode, done.stderr) == (2, "absent.vcm: No such file or directory\n")
    assert len((folder / "part.csv").read_text().splitlines()) == 1 + 90
