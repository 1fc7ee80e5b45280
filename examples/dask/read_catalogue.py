#!/usr/bin/env python3
"""Reads many message files on many processes into one table.

Each file is a task. A worker loads it through the package and hands back the table of its messages; here
the tables become one, by satellite and epoch, in which a message that several files hold stands once.

It ends with 0 when all was fine, 1 when a file held something bad, 2 when one could not be opened or the table
not be made.
"""

import argparse
import os
import sys
from typing import Any

import numpy as np
import pandas
import vcm
from distributed import Client

# Messages that agree in these are one to the library, too.
SAME = ["satNum", "epochDays", "bTerm", "agom"]
SAME += [name + axis for name in ("eciPos", "eciVel") for axis in "XYZ"]


def read(path: str) -> tuple[vcm.LoadResult | str, Any]:
    """One task: what became of a file's messages, or why it was not opened, and their table.

    There is one store in a process, so a process must not run two of these at a time. What it holds is
    removed before, since a task that was broken off may have left something, and after, since a worker
    lives long.
    """
    vcm.clear()
    try:
        return vcm.load(path), vcm.table(order=vcm.Order.LOADED)
    except vcm.FileError as error:
        return str(error.strerror), None
    finally:
        vcm.clear()


def connect(scheduler: str | None, workers: int | None) -> Client:
    """A cluster that runs, by its address or the file that its scheduler wrote; or one of this machine."""
    if scheduler is None:
        # Processes of one thread each: the threads of one process would load into the same store.
        return Client(
            n_workers=workers, threads_per_worker=1, processes=True, dashboard_address=None
        )
    place = {"address": scheduler} if "://" in scheduler else {"scheduler_file": scheduler}
    client = Client(**place, timeout=60)
    client.wait_for_workers(workers or 1, timeout=60)
    if max(client.nthreads().values()) > 1:
        sys.exit("read_catalogue: workers have several threads; start them with --nthreads 1")
    return client


def one_table(shares: list[tuple[str, Any]]) -> tuple[Any, list[str]]:
    """One table of the files', with the file of each message; and a line for each that comes again."""
    every = np.concatenate([table for _, table in shares])
    origin = np.repeat([file for file, _ in shares], [len(table) for _, table in shares])
    same = pandas.DataFrame({name: every[name] for name in SAME})
    again = same.duplicated(keep="first").to_numpy()
    told = []
    if again.any():
        first = same.assign(row=np.arange(len(same))).groupby(SAME)["row"].transform("min")
        for row in np.flatnonzero(again):
            message = f"satellite {every['satNum'][row]} at {every['epoch'][row]}"
            told.append(f"{origin[row]}: {message} is in {origin[first[row]]} already")
    # The keys are those of stores that are gone.
    names = [name for name in every.dtype.names if name != "satKey"]
    table = np.empty(
        len(every), dtype=[("file", origin.dtype)] + [(name, every.dtype[name]) for name in names]
    )
    table["file"] = origin
    for name in names:
        table[name] = every[name]
    order = np.lexsort((every["epochDays"], every["satNum"]))
    return table[order[~again[order]]], told


def require_writable(path: str) -> None:
    """Raises OSError now for what would else be told after all the work."""
    is_new = not os.path.lexists(path)
    open(path, "ab").close()
    if is_new:
        os.remove(path)


def write(table: Any, path: str) -> None:
    if path.endswith(".npy"):
        np.save(path, table)
    else:
        pandas.DataFrame(table).to_csv(path, index=False)


def report(file: str, result: vcm.LoadResult | str) -> int:
    """Tells what became of a file; its exit code."""
    if isinstance(result, str):
        print(f"{file}: {result}", file=sys.stderr, flush=True)
        return 2
    counts = f"{result.loaded} loaded, {result.duplicate} duplicate, {result.bad} bad"
    print(f"{file}: {counts}", flush=True)
    for line in result.messages:
        print(f"{file}: {line}", file=sys.stderr, flush=True)
    # The same message twice is no fault.
    return int(bool(result.faults))


def number(text: str) -> int:
    if not (text.isdecimal() and int(text) > 0):
        raise argparse.ArgumentTypeError(f"{text!r} is no number from 1")
    return int(text)


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").partition("\n")[0])
    parser.add_argument("files", nargs="+", metavar="FILE")
    parser.add_argument(
        "--scheduler", help="address of a cluster's scheduler, or the file it wrote"
    )
    parser.add_argument(
        "--workers", type=number, help="processes to start, or of the cluster to wait for"
    )
    parser.add_argument("-o", "--output", metavar="TABLE", help="table.npy or table.csv")
    arguments = parser.parse_args()
    if not (arguments.output or ".npy").endswith((".npy", ".csv")):
        parser.error(f"{arguments.output} ends in neither .npy nor .csv")
    if arguments.output:
        require_writable(arguments.output)

    with connect(arguments.scheduler, arguments.workers) as client:
        # Workers may have another current directory.
        paths = [os.path.abspath(file) for file in arguments.files]
        shares = client.gather(client.map(read, paths, pure=False))
        workers = len(client.nthreads())

    status = max(report(file, result) for file, (result, _) in zip(arguments.files, shares))
    opened = [
        (file, table) for file, (_, table) in zip(arguments.files, shares) if table is not None
    ]
    if not opened:
        return status
    table, told = one_table(opened)
    for line in told:
        print(line, flush=True)
    print(f"{len(table)} messages of {len(opened)} files, read by {workers} processes")
    if arguments.output:
        write(table, arguments.output)
    return status


if __name__ == "__main__":
    try:
        sys.exit(main())
    except OSError as error:
        print(f"read_catalogue: {error}", file=sys.stderr)
        sys.exit(2)
