"""Runs the programs of the comparison and prints the table: see benchmarks/README.md."""

import argparse
import re
import sys

import runs
import table
from inputs import Sizes
from programs import Failure


def pattern(text):
    try:
        return re.compile(text, re.IGNORECASE)
    except re.error as error:
        raise argparse.ArgumentTypeError(f"{text!r}: {error}") from error


def arguments():
    parser = argparse.ArgumentParser(prog="benchmarks/compare", description=__doc__)
    sizes = Sizes()
    parser.add_argument(
        "--rounds", type=int, default=5, help="how often everything runs (default %(default)s)"
    )
    parser.add_argument(
        "--messages",
        type=int,
        default=sizes.messages,
        help="messages in a file that is loaded and saved (default %(default)s)",
    )
    parser.add_argument(
        "--only",
        metavar="PATTERN",
        type=pattern,
        default="",
        help="only rows in which this regular expression is found",
    )
    parser.add_argument(
        "--quick",
        action="store_true",
        help="few messages, one round: shows that everything works, and no more",
    )
    parser.add_argument(
        "--times",
        action="store_true",
        help="also the medians of what the ratios are made of, in seconds and bytes",
    )
    given = parser.parse_args()
    if given.quick:
        given.rounds = 1
        given.messages = min(given.messages, sizes.quick().messages)
    # Above this the store's order is no longer that of the numbers, in which the peers write.
    if not 1 <= given.messages < 2**19 or given.rounds < 1:
        parser.error("rounds and messages: at least 1; messages: below 524288")
    return given


def main():
    given = arguments()
    sizes = Sizes().quick() if given.quick else Sizes()
    sizes = sizes.with_messages(given.messages)
    rows = table.rows(sizes, given.only)
    if not rows:
        sys.exit(f"No row has {given.only.pattern!r} in it.")
    try:
        measured = runs.measure(rows, sizes, given.rounds)
    except Failure as failure:
        sys.exit(f"benchmarks/compare: {failure}")
    table.show(rows, measured)
    if given.times:
        table.show_times(measured)


main()
