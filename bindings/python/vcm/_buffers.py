"""Messages as the library's functions take them: two arrays."""

import ctypes
from array import array
from typing import TypeAlias

from . import _layout
from ._encoding import encode
from ._refusals import no_message
from ._trace import call, library
from .errors import RefusedError
from .record import Arrays, Record, whole

Message: TypeAlias = str | Record | Arrays


class Buffers:
    """The two arrays, for a function of the library to fill."""

    def __init__(self) -> None:
        self.numbers = (ctypes.c_double * _layout.NUM_ARRAY_LENGTH)()
        self.texts = (ctypes.c_char * _layout.CHAR_ARRAY_LENGTH)()

    @classmethod
    def of(cls, message: Message) -> "Buffers":
        """The two arrays with a message that the caller gave.

        Raises RefusedError for a text that cannot be read and for arrays of another length,
        TypeError for what is no message.
        """
        buffers = cls()
        if isinstance(message, str):
            read = library().VcmStringToArray
            code, lines = call(read, encode(message), buffers.numbers, buffers.texts)
            if code != 0:
                raise no_message(message, lines)
            return buffers
        numbers, texts = message.to_arrays() if isinstance(message, Record) else whole(message)
        try:
            buffers._view()[:] = memoryview(array("d", numbers))
        except (TypeError, ValueError) as error:
            raise RefusedError(f"the array form has 512 numbers: {error}") from None
        buffers.texts.raw = encode(texts)
        return buffers

    def arrays(self) -> Arrays:
        """What they hold."""
        return Arrays(self._view().tolist(), self.texts.raw.decode("latin-1"))

    def _view(self) -> memoryview:
        """The numbers without ctypes, which goes through them one by one."""
        return memoryview(self.numbers).cast("B").cast("d")
