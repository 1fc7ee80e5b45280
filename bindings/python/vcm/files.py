"""Loading and saving files."""

import errno
import os
import re
from contextlib import suppress
from dataclasses import dataclass

from . import _layout
from ._locks import growing
from ._refusals import is_json, use_of_json
from ._trace import Line, call, call_holding, errors, library, logger
from .errors import FileError

_TOTALS = re.compile(r"Total VCMs = *\d+, Loaded = *(\d+), Dup = *(\d+), Bad = *(\d+)")

_DUPLICATE = "AddRecToMem: Duplicated"


@dataclass(frozen=True)
class LoadResult:
    """What became of a file's messages.

    `messages` are the library's lines about those that are duplicates, cannot be read or break a
    limit; `faults` leaves out the duplicates. They tell whether all was well, and not `bad`: as in
    the library's own totals, a multi-line message that breaks a limit is counted nowhere. Where the
    host keeps its trace to itself, both are empty and `duplicate` and `bad` are -1.
    """

    loaded: int
    duplicate: int
    bad: int
    messages: tuple[str, ...] = ()

    @property
    def faults(self) -> tuple[str, ...]:
        """The messages about anything but duplicates."""
        return tuple(line for line in self.messages if not line.startswith(_DUPLICATE))


_NOTHING = LoadResult(0, 0, 0)


def load(path: str | os.PathLike[str]) -> LoadResult:
    """Loads every good message of a file, and of the files that its directive cards name.

    One thread loads at a time, others run on. Raises FileError when a file cannot be opened; what
    was loaded before a directive card named such a file stays loaded. A regular file without any
    message is a FileError when it is JSON, which `vcm convert` reads, and a warning on the logger
    when it is anything else but empty.
    """
    name = _file_name(path)
    (code, growth), lines = call_holding(growing, _load, name)
    _require_opened(path, code, lines)
    totals = [found for line in lines if (found := _TOTALS.fullmatch(line.text))]
    if not totals:
        return LoadResult(max(0, growth), -1, -1)
    loaded, duplicate, bad = (sum(int(found[i]) for found in totals) for i in (1, 2, 3))
    result = LoadResult(loaded, duplicate, bad, tuple(errors(lines)))
    if result == _NOTHING and (beginning := _beginning(name)):
        if is_json(beginning):
            raise FileError(errno.EINVAL, use_of_json(path), os.fspath(path))
        logger.warning("%s: no message in it", os.fspath(path))
    return result


def _beginning(name: bytes) -> str:
    """What a regular file begins with; nothing for any other."""
    with suppress(OSError):
        if os.path.isfile(name):
            with open(name, "rb") as file:
                return file.read(4096).decode("latin-1")
    return ""


def _load(name: bytes) -> tuple[int, int]:
    """The library's code, and by how much the store has grown."""
    before = library().VcmGetCount()
    return library().VcmLoadFile(name), library().VcmGetCount() - before


def save(path: str | os.PathLike[str], append: bool = False) -> None:
    """Saves every stored message as a multi-line message, ascending by key.

    `append` keeps what the file holds. Raises FileError when the file cannot be opened. What a full
    disk does not take is not reported.
    """
    code, lines = call(library().VcmSaveFile, _file_name(path), int(append))
    _require_opened(path, code, lines)


def _file_name(path: str | os.PathLike[str]) -> bytes:
    """The name as the library takes it; FileError for one that it would take for another."""
    name = os.fsencode(path)
    if len(name) > _layout.FILE_NAME_LENGTH:
        raise FileError(errno.ENAMETOOLONG, os.strerror(errno.ENAMETOOLONG), str(path))
    blanks = name != name.strip(b" \t\r\n")
    if blanks or b"\0" in name:
        what = "blanks around it" if blanks else "a NUL in it"
        raise FileError(errno.EINVAL, f"The library takes no name with {what}", str(path))
    return name


def _require_opened(path: str | os.PathLike[str], code: int, lines: list[Line]) -> None:
    if code != 0:
        error = FileError(code, "\n".join(errors(lines)) or os.strerror(code), os.fspath(path))
        error.messages = tuple(errors(lines))
        raise error
