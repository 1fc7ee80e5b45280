"""Which programs run with what, and in which turns."""

import dataclasses
import itertools
import sys
from collections.abc import Callable

import inputs
from programs import Failure, exists, run


@dataclasses.dataclass(frozen=True)
class Contest:
    """Programs that do the same work. Each has a name, and arguments made anew for each run."""

    entries: dict[str, tuple[str, Callable[[], tuple]]]
    # Entries whose output files must hold the same text, trailing blanks aside.
    same_output: tuple[str, ...] = ()
    # The program itself goes through the rounds.
    in_process: bool = False


def contests(sizes, rounds):
    def files(form, name, *more):
        def arguments():
            output = inputs.scratch(f"{name}-{form}.out")
            return (form, inputs.messages(form, sizes.messages), output, *more)

        return arguments

    def lookups(count):
        return lambda: (inputs.messages("lines", count), rounds)

    def load(count):
        return lambda: ("load", inputs.messages("lines", count))

    return [
        Contest(
            {
                "lines": ("message_files", files("lines", "ours")),
                "bare-lines": ("bare_numbers", lambda: files("lines", "bare")()[1:]),
                "formatted-lines": ("formatted_io", files("lines", "formatted", sizes.messages)),
            },
            same_output=("lines", "formatted-lines"),
        ),
        Contest(
            {
                "one-line": ("message_files", files("one-line", "ours", sizes.converted)),
                "formatted-one-line": (
                    "formatted_io",
                    files("one-line", "formatted", sizes.messages, sizes.converted),
                ),
            },
            same_output=("one-line", "formatted-one-line"),
        ),
        Contest({"find": ("find_records", lookups(sizes.many))}, in_process=True),
        Contest({"many": ("stored_messages", lookups(sizes.many))}, in_process=True),
        Contest({"some": ("stored_messages", lookups(sizes.some))}, in_process=True),
        Contest({"load-many": ("message_files", load(sizes.many))}),
        Contest({"load-few": ("message_files", load(sizes.few))}),
        Contest({"load-fewest": ("message_files", load(sizes.fewest))}),
    ]


def same_texts(paths):
    with open(paths[0], encoding="ascii") as one, open(paths[1], encoding="ascii") as other:
        pairs = itertools.zip_longest(one, other, fillvalue="no line")
        for number, (line, twin) in enumerate(pairs, 1):
            if line.rstrip() != twin.rstrip():
                raise Failure(f"{paths[0].name} and {paths[1].name} differ in line {number}")


class Measured:
    """The measurements `entry/name`, one value for each round."""

    def __init__(self):
        self.values = {}

    def add(self, entry, measurements):
        for name, values in measurements.items():
            self.values.setdefault(f"{entry}/{name}", []).extend(values)

    def __getitem__(self, name):
        return self.values[name]

    def __contains__(self, name):
        return name in self.values


def measure(rows, sizes, rounds):
    """Runs the entries that the rows need, a warm-up first, all entries in turns."""
    needed = {name.split("/")[0] for row in rows for name in row.measurements}
    measured = Measured()
    chosen = []
    for contest in contests(sizes, rounds):
        entries = {e: p for e, p in contest.entries.items() if e in needed and exists(p[0])}
        chosen.append(dataclasses.replace(contest, entries=entries))
    for number in range(rounds + 1):
        print("Warm-up" if number == 0 else f"Round {number} of {rounds}", file=sys.stderr)
        for contest in chosen:
            if contest.in_process and number > 0:
                continue
            play(contest, measured, keep=number > 0 or contest.in_process, compare=number == 0)
    return measured


def play(contest, measured, keep, compare):
    """Runs every entry of a contest once."""
    all_checks, outputs = [], []
    for entry, (program, arguments) in contest.entries.items():
        given = arguments()
        measurements, checks = run(program, *given)
        all_checks.append(checks)
        if entry in contest.same_output:
            outputs.append(given[2])
        if keep:
            measured.add(entry, measurements)
    if any(checks != all_checks[0] for checks in all_checks):
        raise Failure(f"{', '.join(contest.entries)} do not agree: {all_checks}")
    if compare and len(outputs) == 2:
        same_texts(outputs)
