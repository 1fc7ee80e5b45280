"""The locks that messages are added, listed and changed under."""

import threading

from .errors import VcmError


class _Growth:
    """Held while messages are added, and while keys are listed into an array that was measured
    before.

    A signal handler or finalizer that runs in between, on the thread that holds it, can neither
    wait for it nor be let in.
    """

    def __init__(self) -> None:
        self._lock = threading.Lock()
        self._owner: int | None = None

    def __enter__(self) -> None:
        if self._owner == threading.get_ident():
            raise VcmError("a signal handler or finalizer interrupts vcm while it adds or lists")
        self._lock.acquire()
        self._owner = threading.get_ident()

    def __exit__(self, *_: object) -> None:
        self._owner = None
        self._lock.release()


growing = _Growth()

# Held while messages are changed: the library reads a message, changes a field and writes all of it
# back, and one thread's change could undo another's.
changing = threading.RLock()
