"""Python's texts and numbers as the library takes them."""

from .errors import NotFoundError, RefusedError


def encode(text: str) -> bytes:
    """A text in latin-1; RefusedError for characters that it does not have, and for NUL, which ends
    a text."""
    try:
        encoded = text.encode("latin-1")
    except UnicodeEncodeError as error:
        raise RefusedError(f"not latin-1: {error.object[error.start : error.end]!r}") from None
    if 0 in encoded:
        raise RefusedError("a NUL would end the text")
    return encoded


def checked(number: int, bits: int) -> int:
    """A key or satellite number; NotFoundError for one that its C type would cut to another."""
    if not -(1 << (bits - 1)) <= number < 1 << (bits - 1):
        raise NotFoundError(f"{number} has more than {bits} bits")
    return number
