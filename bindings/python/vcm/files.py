"""Loading and saving files."""

import errno
import os
import re
from dataclasses import dataclass

from . import _layout
from ._trace import Line, call, call_holding, errors, library
from .errors import FileError
from .messages import growing

_TOTALS = re.compile(r"Total VCMs = *\d+, Loaded = *(\d+), Dup = *(\d+), Bad = *(\d+)")


@dataclass(frozen=True)
class LoadResult:
    """What became of a file's messages.

    `messages` are the library's lines about those that are duplicates, cannot be read or break a
    limit. As in the library's own totals, a multi-line message that breaks a limit is counted
    nowhere. Where the host keeps its trace to itself, `messages` is empty and `duplicate` and `bad`
    are -1.
    """

    loaded: int
    duplicate: int
    bad: int
    messages: tuple[str, ...] = ()


def load(path: str | os.PathLike[str]) -> LoadResult:
    """Loads every good message of a file, and of the files that its directive cards name.

    One thread loads at a time, others run on. Raises FileError when a file cannot be opened; what
    was loaded before a directive card named such a file stays loaded.
    """
    name = _file_name(path)
    (code, growth), lines = call_holding(growing, _load, name)
    _require_opened(path, code, lines)
    totals = [found for line in lines if (found := _TOTALS.fullmatch(line.text))]
    if not totals:
        return LoadResult(max(0, growth), -1, -1)
    loaded, duplicate, bad = (sum(int(found[i]) for found in totals) for i in (1, 2, 3))
    return LoadResult(loaded, duplicate, bad, tuple(errors(lines)))


def _load(name: bytes) -> tuple[int, int]:
    """The library's code, and by how much the store has grown."""
    before = library().VcmGetCount()
    return library().VcmLoadFile(name), library().VcmGetCount() - before


def save(path: str | os.PathLike[str], append: bool = False) -> None:
    """Saves every stored message as a multi-line message, ascending by key.

    `append` keeps what the file holds. Raises FileError when the file cannot be opened. What a full disk does not take is not reported.
    """
    code, lines = call(library().VcmSaveFile, _file_name(path), int(append))
    _require_opened(path, code, lines)


def _file_name(path: str | os.PathLike[str]) -> bytes:
    """The name as the library takes it; FileError for one that it would take for another."""
    name = os.fsencode(path)
    if len(name) > _layout.FILE_NAME_LENGTH:
        raise FileError(errno.ENAMETOOLONG, os.strerror(errno.ENAMETOOLONG), str(path))
    if b"\0" in name or name != name.strip(b" \t\r\n"):
        raise FileError(errno.EINVAL, "The library takes no name with blanks around it", str(path))
    return name


def _require_opened(path: str | os.PathLike[str], code: int, lines: list[Line]) -> None:
    if code != 0:
        error = FileError(code, "\n".join(errors(lines)) or os.strerror(code), os.fspath(path))
        error.messages = tuple(errors(lines))
        raise error
