"""Single fields of stored messages, named as in the C interface: bTerm, eciPosX, leapSecondTime."""

import ctypes
import math
import operator
from datetime import datetime
from typing import Any

from . import _layout
from ._encoding import checked, encode
from ._locks import changing
from ._trace import call, call_holding, errors, library
from .dates import Moment, epoch_text, to_datetime
from .errors import NotFoundError, RefusedError
from .messages import contains, get_arrays, require_found

FIELD_NAMES: tuple[str, ...] = tuple(_layout.FIELDS)
"""The names of the single fields."""

_INT32 = range(-(2**31), 2**31)


def get_field(satKey: int, name: str) -> int | float | str | datetime:
    """One field of a stored message, exactly as in its record.

    Raises NotFoundError, and RefusedError for a name that is none of FIELD_NAMES.
    """
    _index(name)
    numbers, texts = get_arrays(satKey)
    if name in _layout.TEXTS:
        first, length = _layout.TEXTS[name]
        return texts[first : first + length].rstrip()
    vector, component = name[:-1], name[-1:]
    if vector in _layout.COMPONENTS:
        return numbers[_layout.NUMBERS[vector][0] + _layout.COMPONENTS[vector].index(component)]
    value = numbers[_layout.NUMBERS[name][0]]
    if name in _layout.DATES:
        return to_datetime(value)
    return int(value) if name in _layout.INTEGERS else value


def get_field_text(satKey: int, name: str) -> str:
    """One field as the library writes it: 0.001124730000000, or 2028206120431.384 for a date.

    Raises as `get_field`.
    """
    buffer = ctypes.create_string_buffer(_layout.FIELD_VALUE_LENGTH)
    code, lines = call(library().VcmGetField, checked(satKey, 64), _index(name), buffer)
    require_found(satKey, code, lines)
    return buffer.raw.decode("latin-1").rstrip()


def set_field(satKey: int, name: str, value: Moment) -> None:
    """Changes one field of a stored message; satellite number and epoch may not be changed.

    A number may be given as text. A text longer than its field is cut. The leap-second time is a
    date, days since 1950 UTC or a text yyyydddhhmmss.sss, and is kept to the millisecond. Of
    several threads that set fields of one message, no change is lost. Raises NotFoundError, and
    RefusedError for a name that is none of FIELD_NAMES or a value that does not fit.
    """
    text = _value_text(name, value)
    change = library().VcmSetField
    code, lines = call_holding(changing, change, checked(satKey, 64), _index(name), encode(text))
    if code != 0:
        error = RefusedError if contains(satKey) else NotFoundError
        raise error(f"{name} of key {satKey} is not set", errors(lines))


def _index(name: str) -> int:
    if name not in _layout.FIELDS:
        raise RefusedError(f"no field is named {name!r}; the fields are {', '.join(FIELD_NAMES)}")
    return _layout.FIELDS[name]


def _value_text(name: str, value: Moment) -> str:
    """A value as the library reads it. What it would take for 0, it does not get to see."""
    if name in _layout.TEXTS or name in ("satNum", "epoch"):  # the latter are for it to refuse
        return str(value)
    if name in _layout.DATES:
        return epoch_text(value)
    given: Any = value
    try:
        if name not in _layout.INTEGERS:
            if math.isfinite(number := float(given)):
                return repr(number)
        elif (number := int(given) if isinstance(given, str) else operator.index(given)) in _INT32:
            return repr(number)
    except (TypeError, ValueError):
        pass
    raise RefusedError(f"{value!r} is no value of {name}")
