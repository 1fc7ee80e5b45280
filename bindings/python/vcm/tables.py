"""The store as one numpy structured array, a row for each message."""

import itertools
from collections.abc import Iterable, Iterator
from typing import TYPE_CHECKING, Any, NamedTuple

from . import _layout, messages
from ._encoding import checked
from ._refusals import unknown_name
from ._trace import call, errors, library, quietly
from .errors import NotFoundError, RefusedError
from .messages import Order

if TYPE_CHECKING:
    import numpy as np
    import numpy.typing as npt

_CHUNK = 256  # messages whose arrays fit the cache
_DATE = "M8[us]"


class _Column(NamedTuple):
    """A column: its type, and where it stands in the array form."""

    dtype: str
    position: int
    length: int = 1  # of a text


def _layout_columns() -> Iterator[tuple[str, _Column]]:
    for name, (first, length) in _layout.NUMBERS.items():
        if name in _layout.DATES:
            yield name, _Column(_DATE, first)
            yield name.removesuffix("Time") + "Days", _Column("f8", first)
        elif name in _layout.COMPONENTS:
            for i, component in enumerate(_layout.COMPONENTS[name]):
                yield name + component, _Column("f8", first + i)
        elif name == "covariance":
            for i, row in enumerate(_layout.ELEMENTS):
                for j, column in enumerate(_layout.ELEMENTS[: i + 1]):
                    yield f"cov_{row}_{column}", _Column("f8", first + i * (i + 1) // 2 + j)
        else:
            yield name, _Column("i4" if name in _layout.INTEGERS else "f8", first)
    for name, (first, length) in _layout.TEXTS.items():
        yield name, _Column(f"U{length}", first, length)


_COLUMNS = dict(_layout_columns())


def table(
    keys: Iterable[int] | None = None,
    order: Order = Order.SATELLITE,
    columns: Iterable[str] | str | None = None,
) -> "npt.NDArray[np.void]":
    """Stored messages as a numpy structured array of scalar columns: all, or those of `keys`.

    `pandas.DataFrame(vcm.table())` takes it as it is. The columns are `satKey` and the record's
    fields: vectors as eciPosX, posSigmasU and so on, `epoch` and `leapSecondTime` as datetime64[us]
    beside the exact `epochDays` and `leapSecondDays`, the covariance's lower triangle as cov_af_af,
    cov_ag_af, ... to cov_AGOM_AGOM. `columns` chooses some, in the order given, or one by its name.

    Messages that another thread removes meanwhile are left out of the whole store; of `keys` that
    are not stored, the first is told by NotFoundError. Raises RefusedError for a column that is
    none or comes twice, ImportError without numpy.
    """
    import numpy as np

    names = ["satKey", *_COLUMNS]
    chosen = names if columns is None else [columns] if isinstance(columns, str) else list(columns)
    for place, name in enumerate(chosen):
        if name not in names:
            raise unknown_name("column", name, names, "vcm.table().dtype")
        if name in chosen[:place]:
            raise RefusedError(f"the column {name} is chosen twice")
    dtypes = [(name, "i8" if name == "satKey" else _COLUMNS[name].dtype) for name in chosen]
    every = messages.keys(order) if keys is None else [checked(key, 64) for key in keys]
    result = np.zeros(len(every), dtype=dtypes)
    numbers = np.empty((_CHUNK, _layout.NUM_ARRAY_LENGTH))
    texts = np.empty((_CHUNK, _layout.CHAR_ARRAY_LENGTH), dtype=np.uint8)
    filled = 0
    for begin in range(0, len(every), _CHUNK):
        wanted = every[begin : begin + _CHUNK]
        if keys is None:
            codes = quietly(_retrieve, wanted, texts, numbers)
        else:
            codes, lines = call(_retrieve, wanted, texts, numbers)
            if any(codes):
                raise NotFoundError("a message is not stored", errors(lines)[:1])
        found = np.flatnonzero(np.array(codes) == 0)
        rows = result[filled : filled + len(found)]
        for name in chosen:
            if name == "satKey":
                rows[name] = np.array(wanted)[found]
            else:
                rows[name] = _values(_COLUMNS[name], numbers, texts)[found]
        filled += len(found)
    return result[:filled]


def _retrieve(keys: list[int], texts: Any, numbers: Any) -> list[int]:
    """Each message into its row of the two chunks; the library's codes."""
    retrieve = library().VcmRetrieveAllData
    text_rows = itertools.count(texts.ctypes.data, texts.strides[0])
    number_rows = itertools.count(numbers.ctypes.data, numbers.strides[0])
    return list(map(retrieve, keys, text_rows, number_rows))


def _values(column: _Column, numbers: Any, texts: Any) -> Any:
    """A column of the chunks."""
    if column.length > 1:
        return _strings(texts[:, column.position : column.position + column.length])
    values = numbers[:, column.position]
    return _dates(values) if column.dtype == _DATE else values


def _dates(days: Any) -> Any:
    """Days since 1950 as datetime64[us]; what is no date is not-a-time."""
    import numpy as np

    in_range = np.abs(days) < 1e8  # not-a-number is not
    safe = np.where(in_range, days, 0.0)
    whole = np.floor(safe)
    microseconds = whole.astype(np.int64) * 86_400_000_000
    microseconds += np.rint((safe - whole) * 86_400e6).astype(np.int64)
    dates = np.datetime64("1949-12-31", "us") + microseconds.astype("m8[us]")
    return np.where(in_range, dates, np.datetime64("NaT"))


def _strings(characters: Any) -> Any:
    """Rows of latin-1 characters as str; blanks at the end become the NULs that numpy cuts."""
    import numpy as np

    trailing = np.logical_and.accumulate((characters == ord(" "))[:, ::-1], axis=1)[:, ::-1]
    codes = np.where(trailing, 0, characters).astype(np.uint32)
    return codes.view(f"U{codes.shape[1]}")[:, 0]
