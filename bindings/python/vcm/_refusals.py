"""What is said of texts and files that hold no message. JSON is the program's to read."""

import os
from collections.abc import Sequence
from pathlib import Path

from ._trace import Line, errors
from .errors import RefusedError


def is_json(beginning: str) -> bool:
    """Whether what begins so would be JSON, if it is no message."""
    return beginning.lstrip()[:1] in ("[", "{")


def use_of_json(name: str | os.PathLike[str] = "messages.json") -> str:
    """How the messages of a file of JSON are read."""
    made = Path(name).with_suffix(".vcm")
    return f"JSON is read by the program: vcm convert {os.fspath(name)} -o {made}"


def no_message(message: object, lines: Sequence[Line]) -> RefusedError:
    """The error for a message, a text or another form, that the library refused with these lines."""
    error = RefusedError("the message is refused", errors(lines))
    if isinstance(message, str) and is_json(message):
        error.args = (use_of_json(),)
    return error
