"""`python3 -m vcm plot`.

It ends as the program `vcm` does: with 0 when all was fine, 1 when something in the input was bad,
2 for wrong usage or a file that cannot be opened. What is good is drawn all the same.
"""

import argparse
import sys
from collections.abc import Callable
from pathlib import Path
from typing import Any

from .. import errors, files, messages, tables
from ..dates import to_datetime

_FINE, _BAD_INPUT, _FAILED = 0, 1, 2
_ENDINGS = (".png", ".svg", ".pdf")
_LARGEST_NUMBER = 999_999_999  # of a satellite; beyond are keys
_COLUMNS = ("epoch", *(f"{name}{axis}" for name in ("eciPos", "eciVel") for axis in "XYZ"))


class _Failure(Exception):
    def __init__(self, code: int, text: str) -> None:
        super().__init__(text)
        self.code = code


def add_arguments(parser: argparse.ArgumentParser) -> None:
    """The arguments of `plot`."""
    parser.description = (
        "Draws the messages of files: inclinations, altitudes and epochs of all,"
        " or the covariance of one satellite."
    )
    parser.add_argument(
        "files",
        metavar="FILE",
        nargs="+",
        type=lambda text: "/dev/stdin" if text == "-" else text,
        help="the messages, in lines or one-line; - is standard input",
    )
    parser.add_argument(
        "-o",
        "--output",
        metavar="PICTURE",
        type=_picture,
        help="the picture, .png, .svg or .pdf; without it a window opens",
    )
    parser.add_argument(
        "-s",
        "--satellite",
        metavar="NUMBER",
        type=_number,
        help="the satellite whose covariance is drawn, of its newest message,"
        " or the key of a message",
    )
    parser.add_argument(
        "-k",
        "--kind",
        choices=("catalogue", "epochs", "covariance"),
        help="what is drawn; otherwise covariance with --satellite, else catalogue",
    )
    parser.add_argument("--title", help="what stands above the picture")
    parser.add_argument("--dpi", type=_dpi, default=150, help="dots per inch, 150 if not given")
    parser.set_defaults(usage_error=parser.error)


def run(arguments: argparse.Namespace) -> int:
    """Draws the picture; the exit status."""
    kind = arguments.kind or ("catalogue" if arguments.satellite is None else "covariance")
    if (kind == "covariance") != (arguments.satellite is not None):
        arguments.usage_error("--satellite and --kind covariance belong together")
    try:
        status = max([_load(file) for file in arguments.files])
        if messages.count() == 0:
            raise _Failure(_BAD_INPUT, f"{_place(arguments)}: no messages to draw")
        if kind == "covariance":
            draw = _covariance(arguments)
        else:
            draw = _table(arguments, kind)
        _show(draw, arguments)
    except _Failure as failure:
        _tell(str(failure))
        return failure.code
    except ImportError as error:
        _tell(f"plot needs matplotlib and numpy (Debian: python3-matplotlib): {error}")
        return _FAILED
    return status


def _load(path: str) -> int:
    try:
        result = files.load(path)
    except errors.FileError as error:
        raise _Failure(_FAILED, f"{error.filename}: {error.strerror}") from None
    except errors.LibraryNotFoundError as error:
        raise _Failure(_FAILED, str(error)) from None
    for line in result.messages:
        print(line, file=sys.stderr)
    # That a message stands there twice does not make it bad.
    return _BAD_INPUT if result.faults else _FINE


def _table(arguments: argparse.Namespace, kind: str) -> Callable[[Any], Any]:
    from . import overview

    table = tables.table(columns=_COLUMNS)
    for note in overview.notes(table, orbits=kind == "catalogue"):
        _tell(f"{_place(arguments)}: {note}")
    plural = "s" * (len(table) != 1)
    title = _title(arguments, f"{Path(_place(arguments)).name}: {len(table):,} message{plural}")
    picture = overview.catalogue if kind == "catalogue" else overview.epochs
    return lambda figure: picture(table, title, figure)


def _covariance(arguments: argparse.Namespace) -> Callable[[Any], Any]:
    from . import uncertainty

    number, place = arguments.satellite, _place(arguments)
    column, kind = ("satNum", "satellite") if number <= _LARGEST_NUMBER else ("satKey", "key")
    every = tables.table(columns=("satNum", "epochDays", "satKey"))
    own = every[every[column] == number]
    if len(own) == 0:
        raise _Failure(_BAD_INPUT, f"{place}: no message of {kind} {number}")
    newest = own[own["epochDays"].argmax()]
    record = messages.get(int(newest["satKey"]))
    satellite = record.satNum
    epoch = to_datetime(record.epochDays).isoformat(" ", "milliseconds").removesuffix("+00:00")
    if record.covMtxSize == 0:
        raise _Failure(_BAD_INPUT, f"{place}: satellite {satellite} has no covariance at {epoch}")
    several = [f"drawn is the newest of {len(own)} messages"] if len(own) > 1 else []
    for note in several + uncertainty.notes(record):
        _tell(f"{place}: satellite {satellite}: {note}")
    designator = f" ({record.intlDes})" if record.intlDes else ""
    title = _title(arguments, f"Satellite {satellite}{designator}, {epoch} UTC")
    return lambda figure: uncertainty.covariance(record, title, figure)


def _place(arguments: argparse.Namespace) -> str:
    names = arguments.files
    return str(names[0]) if len(names) == 1 else f"{len(names)} files"


def _title(arguments: argparse.Namespace, usual: str) -> str:
    return usual if arguments.title is None else str(arguments.title)


def _show(draw: Callable[[Any], Any], arguments: argparse.Namespace) -> None:
    if arguments.output:
        from . import style

        try:
            style.save(draw(None), arguments.output, arguments.dpi)
        except OSError as error:
            raise _Failure(_FAILED, f"{arguments.output}: {error.strerror}") from None
        return
    from matplotlib import pyplot  # type: ignore[import]

    try:
        figure = pyplot.figure()
        is_window = figure.canvas.required_interactive_framework is not None
    except ImportError:  # of the backend that was asked for
        is_window = False
    if not is_window:
        raise _Failure(_FAILED, "no window can be opened here; -o PICTURE writes a file")
    draw(figure)
    pyplot.show()


def _picture(text: str) -> str:
    if Path(text).suffix.lower() not in _ENDINGS:
        raise argparse.ArgumentTypeError(f"{text!r} ends in none of {', '.join(_ENDINGS)}")
    return text


def _number(text: str) -> int:
    if not text.isdecimal():
        raise argparse.ArgumentTypeError(f"{text!r} is no satellite number and no key")
    return int(text)


def _dpi(text: str) -> int:
    if not (text.isdecimal() and 10 <= int(text) <= 2400):
        raise argparse.ArgumentTypeError(f"{text!r} is no number from 10 to 2400")
    return int(text)


def _tell(text: str) -> None:
    print(f"vcm: {text}", file=sys.stderr)
