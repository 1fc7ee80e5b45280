"""The measured programs, which print a `name value` line for each measurement."""

import pathlib
import subprocess
import sys

PROGRAMS = pathlib.Path(__file__).resolve().parents[2] / "build/benchmark/benchmarks"


class Failure(Exception):
    """A program failed, or its result is not that of the others."""


def exists(program):
    return (PROGRAMS / program).exists()


def run(program, *arguments):
    """What the program printed: measurements and checks, each a dictionary of lists."""
    command = [str(PROGRAMS / program), *map(str, arguments)]
    print("  " + " ".join(pathlib.Path(word).name for word in command), file=sys.stderr)
    finished = subprocess.run(command, stdout=subprocess.PIPE, text=True, check=False)
    if finished.returncode != 0:
        raise Failure(f"{program} failed with {finished.returncode}")
    measurements, checks = {}, {}
    for line in finished.stdout.splitlines():
        *kind, name, value = line.split()
        (checks if kind else measurements).setdefault(name, []).append(float(value))
    return measurements, checks
