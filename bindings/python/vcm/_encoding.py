"""Python's texts and numbers as the library takes them."""

import operator
from typing import SupportsIndex

from .errors import NotFoundError, RefusedError, VcmError


def encode(text: str) -> bytes:
    """A text in latin-1; RefusedError for characters that it does not have, and for NUL, which
    would end the text.
    """
    try:
        encoded = text.encode("latin-1")
    except UnicodeEncodeError as error:
        raise RefusedError(f"not latin-1: {error.object[error.start : error.end]!r}") from None
    if 0 in encoded:
        raise RefusedError("a NUL would end the text")
    return encoded


def checked(number: SupportsIndex, bits: int, error: type[VcmError] = NotFoundError) -> int:
    """A key or satellite number, which may be one of numpy's integers.

    Raises the error for one that its C type would cut to another.
    """
    value = operator.index(number)
    if not -(1 << (bits - 1)) <= value < 1 << (bits - 1):
        raise error(f"{value} has more than {bits} bits")
    return value
