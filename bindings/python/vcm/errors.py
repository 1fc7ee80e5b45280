"""What the package raises. Every error carries the library's own messages where it wrote any."""

from collections.abc import Sequence


class VcmError(Exception):
    """The base of all errors of this package.

    `messages` holds the lines that the library wrote to its error trace during the call that
    failed; it is empty where the host keeps its trace to itself.
    """

    messages: tuple[str, ...] = ()

    def __init__(self, text: str, messages: Sequence[str] = ()) -> None:
        super().__init__("\n".join(messages) or text)
        self.messages = tuple(messages)

    def __str__(self) -> str:
        return str(self.args[0])  # KeyError would show it quoted


class LibraryNotFoundError(VcmError, OSError):
    """No libvcm could be loaded; the text says where it was looked for."""


class FileError(VcmError, OSError):
    """A file could not be opened, or is JSON; `errno` and `filename` say why and which."""

    def __init__(self, code: int, text: str, filename: str = "") -> None:
        OSError.__init__(self, code, text, filename)

    __str__ = OSError.__str__


class NotFoundError(VcmError, KeyError):
    """No message is stored under this key, or of this satellite."""


class RefusedError(VcmError, ValueError):
    """A text that is no message, or a value that the library refuses or would cut."""


class DuplicateError(VcmError):
    """The same message is stored already.

    `key` is the key it is stored under; None where the host keeps its trace to itself.
    """

    key: int | None = None
