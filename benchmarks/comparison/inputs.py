"""The files that the programs read: made from the samples once, and kept."""

import dataclasses
import pathlib

from programs import run

ROOT = pathlib.Path(__file__).resolve().parents[2]
DATA = ROOT / "build/benchmark/data"
GENERATOR = ROOT / "benchmarks/input/make_messages.cpp"
SAMPLES = {"lines": ROOT / "samples/catalogue.vcm", "one-line": ROOT / "samples/catalogue.one"}


@dataclasses.dataclass(frozen=True)
class Sizes:
    """Numbers of messages."""

    messages: int = 100_000  # in a file that is loaded and saved
    converted: int = 20_000
    many: int = 1_000_000
    some: int = 40_000
    few: int = 10_000
    fewest: int = 100

    def quick(self):
        return Sizes(messages=600, converted=300, many=3000, some=1000, few=500)

    def with_messages(self, messages):
        return dataclasses.replace(self, messages=messages, converted=min(self.converted, messages))


def messages(form, count):
    """The file of so many messages in a form."""
    path = DATA / f"{count}.{form}"
    newest = max(source.stat().st_mtime for source in (GENERATOR, SAMPLES[form]))
    if not path.exists() or path.stat().st_mtime < newest:
        DATA.mkdir(parents=True, exist_ok=True)
        # Its name says that it is complete.
        unfinished = path.with_name(path.name + ".unfinished")
        run("make_messages", form, SAMPLES[form], unfinished, count)
        unfinished.replace(path)
    return path


def scratch(name):
    """A file for output, not there yet: replacing a large one takes time."""
    path = DATA / name
    path.unlink(missing_ok=True)
    return path
