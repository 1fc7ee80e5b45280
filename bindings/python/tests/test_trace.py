"""What the library says: to the logger, to several threads, under several hosts."""

import logging
import os
import random
import sys
import threading
from collections.abc import Callable
from concurrent.futures import ThreadPoolExecutor
from functools import partial
from pathlib import Path

import pytest
import vcm
from conftest import CATALOGUE, SAMPLES, message, run_python
from vcm import _locks, _trace


def side_by_side(*actions: Callable[[], None]) -> None:
    """Runs them in threads that take turns far more often than usual; raises the first error."""
    before = sys.getswitchinterval()
    sys.setswitchinterval(1e-6)
    with ThreadPoolExecutor(len(actions)) as pool:
        futures = [pool.submit(action) for action in actions]
    sys.setswitchinterval(before)
    for future in futures:
        future.result()


def test_lines_go_to_the_logger(caplog: pytest.LogCaptureFixture, tmp_path: Path) -> None:
    caplog.set_level(logging.INFO, "vcm")
    result = vcm.load(SAMPLES / "broken.vcm")
    told = [(record.levelno, record.getMessage()) for record in caplog.records]
    assert result.messages == tuple(text for level, text in told if level == logging.ERROR) != ()
    assert told[0][0] == told[-1][0] == logging.INFO and told[-1][1].startswith("Total VCMs =")
    caplog.clear()
    assert 5 not in vcm.store and not caplog.records
    caplog.set_level(logging.WARNING, "vcm")
    for name, text in {"empty": "", "good": "[\n" + message(5), "LF": "\n", "text": "text"}.items():
        (tmp_path / name).write_text(text)
        vcm.load(tmp_path / name)
    told_of = [f"{tmp_path}/{name}: no message in it" for name in ("LF", "text")]
    assert [record.getMessage() for record in caplog.records] == told_of


def test_threads_do_not_see_each_others_lines(tmp_path: Path) -> None:
    class Nosy(logging.Handler):
        """Asks the library about each line, with the handler's lock held."""

        def emit(self, record: logging.LogRecord) -> None:
            vcm.keys()

    def load(number: int) -> None:
        generator = random.Random(number)
        for i in range(10):
            good, twins, bad = (generator.randrange(1, 30) for _ in range(3))
            texts = [message(1000 * number + 30 * i + n) for n in range(good)]
            texts += [texts[0]] * twins + [message(9, "ECI POS", "ECI PIS")] * bad
            path = tmp_path / f"{number}-{i}"
            path.write_text("".join(texts))
            result = vcm.load(path)
            assert (result.loaded, result.duplicate, result.bad) == (good, twins, bad), path
            assert len(result.messages) == twins + bad, path

    def ask(first: int) -> None:
        for key in range(first, first + 800, 2):
            with pytest.raises(vcm.NotFoundError) as caught:
                vcm.get(key)
            assert len(caught.value.messages) == 1 and f" {key} " in str(caught.value), key

    handler = Nosy()
    logging.getLogger("vcm").addHandler(handler)
    try:
        side_by_side(*(partial(load, n) for n in (1, 2, 3)), partial(ask, 10), partial(ask, 5010))
    finally:
        logging.getLogger("vcm").removeHandler(handler)


def test_fields_set_by_several_threads_are_all_kept() -> None:
    key = vcm.add(message(1))

    def change(name: str) -> None:
        for value in range(4000):
            vcm.set_field(key, name, value)
            assert vcm.get_field(key, name) == value, name

    side_by_side(*(partial(change, name) for name in ("bTerm", "agom", "cmOffset", "avgAp")))


def test_a_handler_that_interrupts_a_listing_is_refused() -> None:
    """By then the array of the keys has its length."""

    def interrupt() -> None:
        for action in (vcm.keys, partial(vcm.add, message(1)), partial(vcm.load, CATALOGUE)):
            with pytest.raises(vcm.VcmError, match="interrupts"):
                action()

    _trace.call_holding(_locks.growing, interrupt)
    assert vcm.add(message(1)) in vcm.keys()


def test_a_load_leaves_the_interpreter_to_others(tmp_path: Path) -> None:
    """It waits for a pipe that this thread fills: for ever, if it held the interpreter."""
    pipe = tmp_path / "pipe"
    os.mkfifo(pipe)
    results: list[vcm.LoadResult] = []
    loading = threading.Thread(target=lambda: results.append(vcm.load(pipe)), daemon=True)
    loading.start()
    with open(pipe, "w") as stream:
        for satellite in range(1, 101):
            stream.write(message(satellite))
    loading.join()
    assert results == [vcm.LoadResult(100, 0, 0)]


def test_an_interrupt_of_a_load_is_raised_and_nothing_is_lost(tmp_path: Path) -> None:
    """It comes while the load waits for the pipe, and is seen in the sink."""
    pipe = tmp_path / "pipe"
    os.mkfifo(pipe)
    code = f"""
import fcntl, os, signal, termios, threading, vcm
def fill():
    text = open({str(CATALOGUE)!r}).read()
    with open({str(pipe)!r}, "w") as stream:
        stream.write(text[:400000])
        stream.flush()
        while any(fcntl.ioctl(stream, termios.FIONREAD, bytes(4))):
            pass
        for _ in range(200):
            signal.pthread_kill(threading.main_thread().ident, signal.SIGINT)
            os.sched_yield()
        stream.write(text[400000:])
threading.Thread(target=fill).start()
try:
    vcm.load({str(pipe)!r})
except KeyboardInterrupt:
    print(vcm.count())
"""
    assert run_python(code) == "300\n"


def test_signals_cut_no_save_short(tmp_path: Path) -> None:
    """They come while the save waits for a full pipe."""
    pipe = tmp_path / "pipe"
    os.mkfifo(pipe)
    code = f"""
import fcntl, os, signal, termios, threading, vcm
read = []
def drain():
    with open({str(pipe)!r}, "rb") as stream:
        held, before = bytes(4), None
        while held != before or not any(held):
            before, held = held, fcntl.ioctl(stream, termios.FIONREAD, held)
            for _ in range(200):
                signal.pthread_kill(threading.main_thread().ident, signal.SIGALRM)
                os.sched_yield()
        read.append(stream.read())
signal.signal(signal.SIGALRM, lambda *_: None)
vcm.load({str(CATALOGUE)!r})
reader = threading.Thread(target=drain)
reader.start()
vcm.save({str(pipe)!r})
reader.join()
vcm.save({str(tmp_path / "whole")!r})
print(read[0] == open({str(tmp_path / "whole")!r}, "rb").read())
"""
    assert run_python(code) == "True\n"


def test_interrupts_of_adds_leave_nothing_behind() -> None:
    """No lock that is held, and nothing for a later call to raise."""
    code = f"""
import signal, vcm
from vcm._locks import growing
came = 2
def tick(*_):
    global came
    came += 1
    if came <= 2: raise KeyboardInterrupt
def add_until_both_came():
    try:
        while came < 2:
            for text in {[message(1), message(1, "KM):", "KM:")]!r}:
                try: vcm.add(text)
                except vcm.VcmError: pass
    except KeyboardInterrupt:
        while came < 2: pass
vcm.count()
signal.signal(signal.SIGALRM, tick)
for _ in range(500):
    signal.setitimer(signal.ITIMER_REAL, 0.0003, 0.00005)
    try:
        came = 0
        add_until_both_came()
    except KeyboardInterrupt: pass
    signal.setitimer(signal.ITIMER_REAL, 0)
    assert not growing.locked()
    vcm.count()
"""
    assert run_python(code) == ""


def test_the_log_file_of_the_host_goes_on(tmp_path: Path) -> None:
    log = tmp_path / "log"
    code = f"import vcm\nprint(vcm.load({str(SAMPLES / 'broken.vcm')!r}).messages)\n4 in vcm.store"
    shown = run_python(code, HOST_TRACE_LOG=str(log))
    lines = [line.strip() for line in log.read_text().splitlines()]
    assert shown == f"{tuple(lines[1:-2])}\n" and "Total VCMs" in lines[-2] and " 4 " in lines[-1]


def test_a_host_without_a_sink() -> None:
    """Counts come from the store, errors have a text of the package's own."""
    code = f"""
import vcm._library
class Mute:
    def __init__(self, library): self.library = library
    def __getattr__(self, name):
        if name == 'hosttracesink': raise AttributeError(name)
        return getattr(self.library, name)
load = vcm._library.load
vcm._library.load = lambda: Mute(load())
print(vcm.load({str(SAMPLES / "broken.vcm")!r}), vcm.load({str(CATALOGUE)!r}).loaded)
for wrong in (lambda: vcm.get(4), lambda: vcm.add('x'), lambda: vcm.add(vcm.get(vcm.keys()[0]))):
    try: wrong()
    except vcm.VcmError as error: print(error, error.messages)
"""
    assert run_python(code).splitlines() == [
        "LoadResult(loaded=2, duplicate=-1, bad=-1, messages=()) 299",
        "no message of key 4 is stored ()",
        "the message is refused ()",
        "the same message is stored already ()",
    ]
