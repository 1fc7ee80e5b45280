"""Values of fields. What the library would cut, or take for 0, is refused with the field's name."""

from typing import Any

from . import _layout, _optional
from .errors import RefusedError

_INT32 = range(-(2**31), 2**31)
_NO_NUMBER = (TypeError, ValueError, OverflowError)


def integer(name: str, value: Any) -> int:
    """A whole number, which may be a float or a text."""
    try:
        number = int(value)
        if number in _INT32 and (number == value or isinstance(value, str)):
            return number
    except _NO_NUMBER:
        pass
    raise RefusedError(f"{value!r} is no value of {name}")


def real(name: str, value: Any) -> float:
    """A number, which may be a text."""
    try:
        return float(value)
    except _NO_NUMBER:
        raise RefusedError(f"{value!r} is no value of {name}") from None


def text(name: str, value: Any) -> str:
    """A text that its field has room for."""
    _, room = _layout.TEXTS[name]
    if isinstance(value, str) and len(value.rstrip(" ")) <= room:
        return value
    raise RefusedError(f"{name} is a text of at most {room} characters, which {value!r} is not")


def vector(name: str, value: Any) -> Any:
    """Three numbers as an array that may not be changed."""
    try:
        if len(numbers := _optional.vector(value)) == 3:
            return numbers
    except _NO_NUMBER:
        pass
    raise RefusedError(f"{name} is three numbers")


def matrix(name: str, value: Any) -> Any:
    """A square matrix that may not be changed."""
    most = len(_layout.ELEMENTS)
    try:
        n = len(rows := _optional.matrix(value))
        if n <= most and all(len(row) == n for row in rows):
            return rows
    except _NO_NUMBER:
        pass
    raise RefusedError(f"{name} is a square matrix of numbers, of at most {most} rows")
