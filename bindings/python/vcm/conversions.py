"""Messages from one form into another. The store is not touched; any thread may call any of these.

Texts have latin-1 characters alone. Lines come with a newline at the end of each and without the
blanks before it.
"""

import ctypes

from . import _layout
from ._buffers import Buffers, Message
from ._encoding import checked, encode
from ._refusals import no_message
from ._trace import call, library
from .messages import require_found
from .record import Arrays, Record

_MULTI_LINE_BEGIN = "<>"


def to_one_line(message: Message) -> str:
    """A text in any form, a record or the array form as a one-line message.

    The form has no place for the leap-second time, and five columns for the satellite number: a
    larger one is asterisks. Raises RefusedError for a text that cannot be read.
    """
    buffer = ctypes.create_string_buffer(_layout.ONE_LINE_LENGTH)
    if isinstance(message, str):
        code, lines = call(library().VcmMultiLineTo1Line, encode(message), buffer)
        if code != 0:
            raise no_message(message, lines)
    else:
        arrays = Buffers.of(message)
        call(library().VcmArrayToVcm1Line, arrays.numbers, arrays.texts, buffer)
    return buffer.raw.decode("latin-1").rstrip(" ")


def to_lines(message: Message) -> str:
    """A text in any form, a record or the array form as a multi-line message.

    The leap-second time of a one-line message is 2049 365 23:59:59.999, which stands for an unknown
    one. Raises RefusedError for a text that cannot be read.
    """
    buffer = ctypes.create_string_buffer(_layout.TEXT_LENGTH)
    if isinstance(message, str) and not message.startswith(_MULTI_LINE_BEGIN):
        _, lines = call(library().Vcm1LineToMultiLine, encode(message), buffer)
        if not buffer.raw.strip():  # the library's only sign of a refusal
            raise no_message(message, lines)
    else:
        arrays = Buffers.of(message)
        call(library().VcmArrayToVcmLines, arrays.numbers, arrays.texts, buffer)
    return _lines_of(buffer.raw)


def to_arrays(message: Message) -> Arrays:
    """A message in any form as the array form. Raises RefusedError for one that cannot be read."""
    return Buffers.of(message).arrays()


def to_record(message: Message) -> Record:
    """A message in any form as a record. Raises RefusedError for one that cannot be read."""
    return Record.from_arrays(to_arrays(message))


def get_lines(satKey: int) -> str:
    """A stored message as lines. Raises NotFoundError."""
    buffer = ctypes.create_string_buffer(_layout.TEXT_LENGTH)
    code, lines = call(library().VcmGetLines, checked(satKey, 64), buffer)
    require_found(satKey, code, lines)
    return _lines_of(buffer.raw)


def _lines_of(raw: bytes) -> str:
    text = raw.decode("latin-1").rstrip(" ")
    lines = (text[i : i + _layout.LINE_WIDTH] for i in range(0, len(text), _layout.LINE_WIDTH))
    return "".join(line.rstrip(" ") + "\n" for line in lines)
