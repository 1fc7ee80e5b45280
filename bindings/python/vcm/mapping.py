"""The store as a mapping, for those who would rather write `vcm.store[key]`."""

from collections.abc import Iterator, Mapping
from typing import SupportsIndex

from . import messages
from ._buffers import Message
from .record import Record


class Store(Mapping[int, Record]):
    """The stored messages by key, in the order of satellite number and epoch.

    There is one store in a process; this is a view of it. A key that is not stored raises
    NotFoundError, which is a KeyError; assigning replaces a message that is stored, as `vcm.update`
    does, and never adds one.
    """

    def __len__(self) -> int:
        return messages.count()

    def __iter__(self) -> Iterator[int]:
        return iter(messages.keys())

    def __contains__(self, satKey: object) -> bool:
        return isinstance(satKey, SupportsIndex) and messages.contains(satKey.__index__())

    def __getitem__(self, satKey: int) -> Record:
        return messages.get(satKey)

    def __setitem__(self, satKey: int, message: Message) -> None:
        messages.update(satKey, message)

    def __delitem__(self, satKey: int) -> None:
        messages.remove(satKey)

    def __repr__(self) -> str:
        return f"<vcm.store of {len(self)} messages>"


store = Store()
"""The one store."""
