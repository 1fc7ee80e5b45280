"""SP Vector/Covariance Messages from Python.

    import vcm

    vcm.load("samples/catalogue.vcm")
    for key in vcm.keys():
        record = vcm.get(key)
        print(record.satNum, record.epoch, record.posSigmas)

There is one store in a process; the functions work on it, from any thread. What the library writes
to its trace goes to the logger `vcm`. Every error is a VcmError.
"""

from .conversions import get_lines, to_arrays, to_lines, to_one_line, to_record
from .dates import to_datetime, to_days
from .errors import (
    DuplicateError,
    FileError,
    LibraryNotFoundError,
    NotFoundError,
    RefusedError,
    VcmError,
)
from .fields import FIELD_NAMES, get_field, get_field_text, set_field
from .files import LoadResult, load, save
from .mapping import Store, store
from .messages import (
    Order,
    add,
    clear,
    contains,
    count,
    find,
    get,
    get_arrays,
    info,
    key,
    keys,
    remove,
    update,
)
from .record import Arrays, Record
from .tables import table

__version__ = "1.0.0"

__all__ = [
    "Arrays",
    "DuplicateError",
    "FIELD_NAMES",
    "FileError",
    "LibraryNotFoundError",
    "LoadResult",
    "NotFoundError",
    "Order",
    "Record",
    "RefusedError",
    "Store",
    "VcmError",
    "add",
    "clear",
    "contains",
    "count",
    "find",
    "get",
    "get_arrays",
    "get_field",
    "get_field_text",
    "get_lines",
    "info",
    "key",
    "keys",
    "load",
    "remove",
    "save",
    "set_field",
    "store",
    "table",
    "to_arrays",
    "to_datetime",
    "to_days",
    "to_lines",
    "to_one_line",
    "to_record",
    "update",
]
