"""SP Vector/Covariance Messages from Python.

    import vcm

    vcm.load("samples/catalogue.vcm")
    for key in vcm.keys():
        record = vcm.get(key)
        print(record.satNum, record.epoch, record.posSigmas)

There is one store in a process; the functions work on it, from any thread. What the library writes to its
trace goes to the logger `vcm`. Every error is a VcmError.
"""

from .dates import to_datetime, to_days
from .errors import (
    DuplicateError,
    FileError,
    LibraryNotFoundError,
    NotFoundError,
    RefusedError,
    VcmError,
)
from .files import LoadResult, load, save
from .messages import Order, add, clear, count, find, get, get_arrays, key, keys, remove, update
from .record import Arrays, Record
from .tables import table

__all__ = [
    "Arrays",
    "DuplicateError",
    "FileError",
    "LibraryNotFoundError",
    "LoadResult",
    "NotFoundError",
    "Order",
    "Record",
    "RefusedError",
    "VcmError",
    "add",
    "clear",
    "count",
    "find",
    "get",
    "get_arrays",
    "key",
    "keys",
    "load",
    "remove",
    "save",
    "table",
    "to_datetime",
    "to_days",
    "update",
]
