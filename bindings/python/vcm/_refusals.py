"""What is said of texts and files that hold no message, and of names that are none."""

import os
from collections.abc import Iterable, Sequence
from difflib import get_close_matches

from ._trace import Line, errors
from .errors import RefusedError


def is_json(beginning: str) -> bool:
    """Whether what begins so would be JSON, if it is no message."""
    return beginning.lstrip()[:1] in ("[", "{")


def use_of_json(name: str | os.PathLike[str] = "messages.json") -> str:
    """How the messages of a file of JSON are read."""
    name = os.fspath(name)
    return f"JSON is read by the program: vcm convert {name} -o {name.removesuffix('.json')}.vcm"


def no_message(message: object, lines: Sequence[Line]) -> RefusedError:
    """The error for a message, a text or another form, that the library refused with these lines."""
    error = RefusedError("the message is refused", errors(lines))
    if isinstance(message, str) and is_json(message):
        error.args = (use_of_json(),)
    return error


def unknown_name(kind: str, name: object, names: Iterable[str], listed: str) -> RefusedError:
    """The error for a name that is none of these: with those like it, or where they are listed."""
    by_lower = {known.lower(): known for known in names}
    close = [by_lower[like] for like in get_close_matches(str(name).lower(), by_lower)]
    hint = f"did you mean {' or '.join(close)}?" if close else f"see {listed}"
    return RefusedError(f"no {kind} is named {name!r}; {hint}")
