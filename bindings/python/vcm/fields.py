"""Single fields of stored messages, named as in the C interface: bTerm, eciPosX, leapSecondTime."""

import ctypes
import math
from datetime import datetime

from . import _layout, _values
from ._encoding import checked, encode
from ._locks import changing
from ._refusals import unknown_name
from ._trace import call, call_holding, errors, library
from .dates import Moment, epoch_text, to_datetime
from .errors import NotFoundError, RefusedError
from .messages import contains, get_arrays, require_found

FIELD_NAMES: tuple[str, ...] = tuple(_layout.FIELDS)
"""The names of the single fields."""


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

    A number may be given as text. The leap-second time is a date as `to_days` takes it, days since
    1950 UTC or a text yyyydddhhmmss.sss, and is kept to the millisecond. Of several threads that
    set fields of one message, no change is lost. Raises NotFoundError, and RefusedError for a name
    that is none of FIELD_NAMES or a value that does not fit, such as a text longer than its field.
    """
    text = _value_text(name, value)
    change = library().VcmSetField
    code, lines = call_holding(changing, change, checked(satKey, 64), _index(name), encode(text))
    if code != 0:
        error = RefusedError if contains(satKey) else NotFoundError
        raise error(f"{name} of key {satKey} is not set", errors(lines))


def _index(name: str) -> int:
    if name not in _layout.FIELDS:
        raise unknown_name("field", name, FIELD_NAMES, "vcm.FIELD_NAMES")
    return _layout.FIELDS[name]


def _value_text(name: str, value: Moment) -> str:
    """A value as the library reads it. What it would take for 0, it does not get to see."""
    if name in ("satNum", "epoch"):  # for it to refuse
        return str(value)
    if name in _layout.TEXTS:
        return _values.text(name, value)
    if name in _layout.DATES:
        return epoch_text(value)
    if name in _layout.INTEGERS:
        return repr(_values.integer(name, value))
    if not math.isfinite(number := _values.real(name, value)):
        raise RefusedError(f"{value!r} is no value of {name}")
    return repr(number)
