"""Calls into the library, with what it wrote to its trace.

The bundled host hands each line of its trace log to one sink, on the thread that wrote it and with
the trace log locked. The sink here only puts the line into a list of its thread; when the call is
over, the calling thread passes the lines on to the logger `vcm`. So no handler of the application
ever runs under the host's lock, and each call knows which lines are its own.

No deadlock can come of the host's lock and the interpreter's: the sink waits for the interpreter
lock while it holds the host's, but nobody waits for the host's while holding the interpreter's,
since every call into the library releases the interpreter lock first (ctypes.CDLL). What is left is
a signal handler or a finalizer that runs in the middle of the sink, on its thread: a call of the
library from there is refused.

HOST_TRACE_LOG goes on working: a sink of one's own switches the host's file off, so this one writes
each line to that file as well.
"""

import atexit
import ctypes
import logging
import os
import sys
import threading
from collections.abc import Callable, Sequence
from contextlib import AbstractContextManager, nullcontext, suppress
from typing import Any, NamedTuple, ParamSpec, TypeVar

from . import _library
from ._locks import growing
from .errors import VcmError

P = ParamSpec("P")
T = TypeVar("T")

logger = logging.getLogger("vcm")
logger.addHandler(logging.NullHandler())  # without a handler of the application's, nothing is shown


class Line(NamedTuple):
    """One line of the trace."""

    is_error: bool
    text: str


class _Thread(threading.local):
    lines: list[Line] | None = None  # of the call that runs; None: lines of others, not for us
    in_sink = False
    grows = False  # it holds the lock `growing`
    raised: BaseException | None = None  # in the sink


_thread = _Thread()
_Sink = ctypes.CFUNCTYPE(None, ctypes.c_int32, ctypes.c_void_p, ctypes.c_int32, ctypes.c_void_p)


def _trace_file() -> int | None:
    """The descriptor of the file that HOST_TRACE_LOG names, as the host would open it."""
    name = os.environ.get("HOST_TRACE_LOG")
    if not name:
        return None
    if name == "-":
        return 2
    with suppress(OSError):
        return os.open(name, os.O_WRONLY | os.O_CREAT | os.O_APPEND | os.O_CLOEXEC, 0o666)
    return None


def _make_sink() -> Any:
    file = _trace_file()

    def receive(is_error: int, text: int, length: int, _context: object) -> None:
        _thread.in_sink = True
        try:
            line = ctypes.string_at(text, length).rstrip(b" ")
            if file is not None:
                with suppress(OSError):  # what a full disk refuses is lost, as with the host
                    os.write(file, line + b"\n")
            if _thread.lines is not None:
                _thread.lines.append(Line(is_error != 0, line.strip().decode("latin-1")))
        except BaseException as error:  # of a signal handler; nothing may leave a sink
            _thread.raised = error
        finally:
            _thread.in_sink = False

    former = sys.unraisablehook

    def hook(unraisable: "sys.UnraisableHookArgs") -> None:
        """What a signal handler raises on the way into `receive` cannot be caught there.

        A program that replaces this hook without calling it loses such an exception.
        """
        trace = unraisable.exc_traceback
        if trace is not None and trace.tb_frame.f_code is receive.__code__:
            _thread.raised = unraisable.exc_value
        else:
            former(unraisable)

    sys.unraisablehook = hook
    return _Sink(receive)


_NO_LOCK: AbstractContextManager[None] = nullcontext()
_loading = threading.RLock()
_loaded: ctypes.CDLL | None = None
_sink: Any = None  # kept alive for as long as the host may call it


def library() -> ctypes.CDLL:
    """The library, loaded and listened to from the first use on.

    Raises LibraryNotFoundError. The functions are called through `call`.
    """
    global _loaded, _sink
    if _loaded is not None:
        return _loaded
    with _loading:
        if _loaded is None:
            loaded = _library.load()
            # A host without this function keeps its trace to itself.
            with suppress(AttributeError):
                set_sink = loaded.hosttracesink
                set_sink.argtypes, set_sink.restype = (_Sink, ctypes.c_void_p), None
                _sink = _make_sink()
                set_sink(_sink, None)
                # Threads may still be in the library when there is no interpreter left.
                atexit.register(set_sink, _Sink(0), None)
            loaded.VcmInit()
            _loaded = loaded
        return _loaded


def call(function: Callable[P, T], *args: P.args, **kwargs: P.kwargs) -> tuple[T, list[Line]]:
    """Calls a function of the library, or one that calls several, and logs what it wrote.

    Returns its result and this thread's lines of the trace.
    """
    return call_holding(_NO_LOCK, function, *args, **kwargs)


def call_holding(
    lock: AbstractContextManager[object],
    function: Callable[P, T],
    *args: P.args,
    **kwargs: P.kwargs,
) -> tuple[T, list[Line]]:
    """As `call`, with a lock held; it is given back before the logging.

    A handler of the application may be waiting for it, in another thread that holds the handler's
    lock.
    """
    if lock is growing and _thread.grows:
        raise VcmError("a signal handler or finalizer interrupts vcm while it adds or lists")
    with lock:
        outer, _thread.grows = _thread.grows, _thread.grows or lock is growing
        try:
            result, lines = _listened(function, *args, **kwargs)
        finally:
            _thread.grows = outer
    for line in lines:
        logger.log(logging.ERROR if line.is_error else logging.INFO, "%s", line.text)
    return result, lines


def quietly(function: Callable[P, T], *args: P.args, **kwargs: P.kwargs) -> T:
    """As `call`, for a question whose answer may be no: nothing is logged."""
    return _listened(function, *args, **kwargs)[0]


def _listened(function: Callable[P, T], *args: P.args, **kwargs: P.kwargs) -> tuple[T, list[Line]]:
    if _thread.in_sink:
        raise VcmError("vcm is called from a signal handler or finalizer within its own trace sink")
    lines: list[Line] = []
    outer, _thread.lines = _thread.lines, lines
    try:
        result = function(*args, **kwargs)
    finally:
        _thread.lines = outer
        raised, _thread.raised = _thread.raised, None
    if raised is not None:
        raise raised
    return result, lines


def errors(lines: Sequence[Line]) -> list[str]:
    """The texts of the error lines."""
    return [line.text for line in lines if line.is_error]
