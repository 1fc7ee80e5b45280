"""How many messages a second vcm.load, vcm.table and pandas.DataFrame take.

usage: PYTHONPATH=bindings/python python3 benchmarks/python/table.py [MESSAGES [FILE]]

FILE holds the messages, for instance one that make_messages wrote, and MESSAGES does not count.
Without it, those of the sample catalogue are added under numbers of their own.
"""

import sys
import time
from collections.abc import Callable
from pathlib import Path
from typing import Any

import pandas
import vcm

SAMPLE = Path(__file__).resolve().parents[2] / "samples" / "catalogue.vcm"


def timed(what: str, action: Callable[[], Any]) -> Any:
    begin = time.perf_counter()
    result = action()
    seconds = time.perf_counter() - begin
    messages = vcm.count()
    print(f"{what:24} {seconds:8.2f} s {messages / seconds:12,.0f} messages/s")
    return result


def add_messages(messages: int) -> None:
    vcm.load(SAMPLE)
    arrays = [vcm.get_arrays(key) for key in vcm.keys()]
    vcm.clear()
    for number in range(messages):
        numbers, texts = arrays[number % len(arrays)]
        vcm.add(vcm.Arrays([float(number + 1), *numbers[1:]], texts))


def main() -> None:
    messages = int(sys.argv[1]) if len(sys.argv) > 1 else 1_000_000
    if len(sys.argv) > 2:
        timed("vcm.load", lambda: vcm.load(sys.argv[2]))
    else:
        timed("vcm.add", lambda: add_messages(messages))
    timed("vcm.keys", vcm.keys)
    table = timed("vcm.table", vcm.table)
    timed("pandas.DataFrame", lambda: pandas.DataFrame(table))
    del table
    columns = ["satNum", "epoch", "posSigmasU", "posSigmasV", "posSigmasW"]
    timed("vcm.table of 5 columns", lambda: vcm.table(columns=columns))


if __name__ == "__main__":
    main()
