"""The rows of the table: what is divided by what, and what is wanted of it."""

import dataclasses
import statistics
from collections.abc import Callable


@dataclasses.dataclass(frozen=True)
class Row:
    work: str
    against: str
    # Measurements, and what is made of one round's values of them.
    measurements: tuple[str, ...]
    ratio: Callable[..., float]
    wanted: float
    at_most: bool = False


def faster(work, against, ours, peer, wanted):
    """How many times as fast ours is."""
    return Row(work, against, (ours, peer), lambda time, peer_time: peer_time / time, wanted)


def rows(sizes, pattern):
    n, converted = f"{sizes.messages:,}", f"{sizes.converted:,}"
    many, some, few = f"{sizes.many:,}", f"{sizes.some:,}", f"{sizes.few:,}"

    def of_stored(entry, count, name, wanted):
        return faster(
            f"`VcmGetField` {name}, {count} records",
            "map find and snprintf",
            f"{entry}/{name}",
            f"{entry}/map-{name}",
            wanted,
        )

    def listing(order, name):
        return faster(
            f"`VcmGetLoaded` order {order}, {many} keys",
            "walk of the map and sort",
            f"many/list-{name}",
            f"many/map-list-{name}",
            0.5,
        )

    def threads(entry, count):
        return faster(
            f"`VcmGetField` by two threads, {count} records",
            "one thread",
            f"{entry}/two-threads",
            f"{entry}/one-thread",
            1.3,
        )

    every = [
        faster(f"load {n} multi-line", "formatted reads", "lines/load", "formatted-lines/read", 30),
        faster(f"load {n} multi-line", "bare from_chars", "lines/load", "bare-lines/read", 2.5),
        faster(
            f"load {n} one-line", "formatted reads", "one-line/load", "formatted-one-line/read", 30
        ),
        faster(f"save {n}", "formatted writes", "lines/save", "formatted-lines/write", 40),
        faster(f"save {n}", "bare to_chars", "lines/save", "bare-lines/write", 3),
        faster(
            f"one-line to multi-line and back, {converted}",
            "internal reads and writes",
            "one-line/convert",
            "formatted-one-line/convert",
            30,
        ),
        faster(f"find a key of {many}", "map find", "find/find", "find/map-find", 1),
        of_stored("many", many, "eciPosX", 1.5),
        of_stored("many", many, "bDot", 1.5),
        of_stored("some", some, "eciPosX", 3),
        of_stored("some", some, "bDot", 3),
        listing(0, "satellite"),
        listing(1, "reverse"),
        listing(2, "loaded"),
        threads("many", many),
        threads("some", some),
        Row(
            f"load time per message, {many}",
            f"of {few}",
            ("load-many/load", "load-few/load"),
            lambda long, short: (long / sizes.many) / (short / sizes.few),
            1.5,
            at_most=True,
        ),
        Row(
            f"peak memory per message, {many}",
            "the record's size",
            ("load-many/peak-bytes", "load-fewest/peak-bytes", "load-many/record-bytes"),
            lambda peak, base, size: (peak - base) / (sizes.many - sizes.fewest) / size,
            1.15,
            at_most=True,
        ),
    ]
    return [row for row in every if pattern.search(f"{row.work} {row.against}")]


def show(chosen, measured):
    lines = [
        ("Work", "Against", "Ratio (median)", "Spread (min-max)", "Wanted"),
        ("---", "---", "---:", "---:", "---:"),
    ]
    for row in chosen:
        wanted = f"{'at most ' if row.at_most else ''}{row.wanted:g}"
        if all(name in measured for name in row.measurements):
            rounds = zip(*(measured[name] for name in row.measurements))
            ratios = [row.ratio(*values) for values in rounds]
            numbers = (f"{statistics.median(ratios):.2f}", f"{min(ratios):.2f}-{max(ratios):.2f}")
        else:
            numbers = ("gfortran is not installed", "")
        lines.append((row.work, row.against, *numbers, wanted))
    widths = [max(map(len, column)) for column in zip(*lines)]
    for line in lines:
        print("| " + " | ".join(cell.ljust(width) for cell, width in zip(line, widths)) + " |")


def show_times(measured):
    """What was measured, for whoever wonders about a ratio."""
    print()
    for name, values in sorted(measured.values.items()):
        print(f"{name:30} {statistics.median(values):.4g}")
