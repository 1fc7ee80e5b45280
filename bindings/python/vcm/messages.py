"""The messages of the store: there is one store in a process, and these functions work on it.

Any thread may call any of them. Listing waits for `load` and `add` of other threads, and they for
one another: the library asks that nothing be added while keys are listed.
"""

import ctypes
import re
from array import array
from enum import IntEnum

from . import _layout, _trace
from ._buffers import Buffers, Message
from ._encoding import checked, encode
from ._locks import changing, growing
from ._refusals import no_message
from ._trace import Line, call, call_holding, errors, library
from .dates import Moment, epoch_text
from .errors import DuplicateError, NotFoundError, RefusedError
from .record import Arrays, Record

_NO_KEY = -1
_DUPLICATE = 0


class Order(IntEnum):
    """The orders of keys."""

    SATELLITE = 0
    """By satellite number, then epoch."""
    SATELLITE_REVERSE = 1
    """The same backwards."""
    LOADED = 2
    """In the order of loading."""
    KEY = 3
    """By key."""


def info() -> str:
    """The library's name, version and host."""
    buffer = ctypes.create_string_buffer(_layout.INFO_LENGTH)
    call(library().VcmGetInfo, buffer)
    return buffer.raw.decode("latin-1").rstrip()


def count() -> int:
    """The number of stored messages."""
    return call(library().VcmGetCount)[0]  # type: ignore[no-any-return]


def keys(order: Order = Order.SATELLITE) -> list[int]:
    """The keys of all stored messages. Raises RefusedError for an order that is none."""
    try:
        order = Order(order)
    except ValueError:
        raise RefusedError(f"{order!r} is no vcm.Order") from None
    found, _ = call_holding(growing, _keys, order)
    # What another thread removes meanwhile leaves its place as it is.
    return [key for key in found.tolist() if key != _NO_KEY]


def _keys(order: int) -> "array[int]":
    room: int = library().VcmGetCount()
    found = array("q", [_NO_KEY]) * room
    if room > 0:
        library().VcmGetLoaded(order, found.buffer_info()[0])
    return found


def find(satNum: int) -> int:
    """The key of a message of this satellite; of several, any of them.

    Raises NotFoundError.
    """
    found, lines = call(library().VcmGetSatKey, checked(satNum, 32))
    if found == _NO_KEY:
        raise NotFoundError(f"no message of satellite {satNum} is stored", errors(lines))
    return found  # type: ignore[no-any-return]


def key(satNum: int, epoch: Moment) -> int:
    """The key that a message of this satellite and epoch has; it need not be stored.

    `epoch` is a date as `to_days` takes it, days since 1950 UTC, or the library's text
    "YYYYDDDHHMMSS.SSS" or "YYDDD.DDDDDDDD". Raises RefusedError when the number or the epoch is
    none.
    """
    text = epoch_text(epoch)
    made, _ = call(library().VcmFieldsToSatKey, checked(satNum, 32, RefusedError), encode(text))
    if made == _NO_KEY:
        raise RefusedError(f"satellite {satNum} at {text} makes no key")
    return made  # type: ignore[no-any-return]


def get(satKey: int) -> Record:
    """The message of a key. Raises NotFoundError."""
    return Record.from_arrays(get_arrays(satKey))


def get_arrays(satKey: int) -> Arrays:
    """The message of a key, in the array form. Raises NotFoundError."""
    buffers = Buffers()
    code, lines = call(
        library().VcmRetrieveAllData, checked(satKey, 64), buffers.texts, buffers.numbers
    )
    require_found(satKey, code, lines)
    return buffers.arrays()


def contains(satKey: int) -> bool:
    """Whether a message of this key is stored. Nothing is logged."""
    buffer = ctypes.create_string_buffer(_layout.FIELD_VALUE_LENGTH)
    try:
        key = checked(satKey, 64)
    except NotFoundError:
        return False
    return bool(_trace.quietly(library().VcmGetField, key, 0, buffer) == 0)


def add(message: Message) -> int:
    """Adds a message, given as text (one-line or lines), as a record or in the array form.

    Returns its key. Raises DuplicateError, with the key of its twin, when the same message
    (satellite, epoch, ECI state, ballistic and radiation pressure coefficient) is stored already;
    RefusedError when the text cannot be read or a value is outside its limits. Messages of one
    satellite and epoch that differ are kept both: the later one gets the next free key.
    """
    if isinstance(message, str):
        text = encode(message)
        added, lines = call_holding(growing, library().VcmAddSatFrLines, text)
    else:
        buffers = Buffers.of(message)
        added, lines = call_holding(
            growing, library().VcmAddSatFrFields, buffers.texts, buffers.numbers
        )
    if added == _NO_KEY:
        raise no_message(message, lines)
    if added == _DUPLICATE:
        raise _duplicate(errors(lines))
    return added  # type: ignore[no-any-return]


def _duplicate(messages: list[str]) -> DuplicateError:
    error = DuplicateError("the same message is stored already", messages)
    if told := re.search(r"key +(-?\d+) found", str(error)):
        error.key = int(told[1])
    return error


def update(satKey: int, message: Message) -> None:
    """Replaces a stored message by one in any form, all but its satellite number and epoch.

    The stored message's common name and maneuver cards are lost. The new values are not held
    against limits, but a message that breaks one is not changed any more. Raises RefusedError for
    that and for a text that cannot be read, NotFoundError.
    """
    buffers = Buffers.of(message)
    replace = library().VcmUpdateSatFrFields
    code, lines = call_holding(
        changing, replace, checked(satKey, 64), buffers.texts, buffers.numbers
    )
    if code != 0 and contains(satKey):
        raise RefusedError(f"the message of key {satKey} is not to be changed", errors(lines))
    require_found(satKey, code, lines)


def remove(satKey: int) -> None:
    """Removes a message. Raises NotFoundError."""
    code, lines = call(library().VcmRemoveSat, checked(satKey, 64))
    require_found(satKey, code, lines)


def clear() -> None:
    """Removes all messages."""
    call(library().VcmRemoveAllSats)


def require_found(satKey: int, code: int, lines: list[Line]) -> None:
    """Raises NotFoundError where a function's code is not 0."""
    if code != 0:
        raise NotFoundError(f"no message of key {satKey} is stored", errors(lines))
