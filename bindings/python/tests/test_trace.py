"""What the library says, in several threads and under several hosts."""

import logging
import os
import random
import sys
import threading
from pathlib import Path

import pytest
import vcm
from conftest import CATALOGUE, SAMPLES, message, run_python


def in_threads(*actions: object) -> None:
    """Runs them side by side, switching threads far more often than usual; the first error is
    raised."""
    errors: list[BaseException] = []

    def guarded(action: object) -> None:
        try:
            action()  # type: ignore[operator]
        except BaseException as error:
            errors.append(error)

    before = sys.getswitchinterval()
    sys.setswitchinterval(1e-6)
    threads = [threading.Thread(target=guarded, args=[action]) for action in actions]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    sys.setswitchinterval(before)
    if errors:
        raise errors[0]


def test_lines_go_to_the_logger(caplog: pytest.LogCaptureFixture) -> None:
    caplog.set_level(logging.INFO, "vcm")
    result = vcm.load(SAMPLES / "broken.vcm")
    told = {level: [r.getMessage() for r in caplog.records if r.levelno == level]
            for level in (logging.INFO, logging.ERROR)}  # fmt: skip
    assert tuple(told[logging.ERROR]) == result.messages != ()
    assert told[logging.INFO][-1].startswith("Total VCMs =") and len(told[logging.INFO]) == 2
    caplog.clear()
    assert 5 not in vcm.store and not caplog.records


def test_threads_do_not_see_each_others_lines(tmp_path: Path) -> None:
    class Nosy(logging.Handler):
        """Calls the library for each line: handlers run outside of the host's lock."""

        def emit(self, record: logging.LogRecord) -> None:
            vcm.keys()

    broken = message(9).replace("ECI POS", "ECI PIS")

    def load(number: int) -> None:
        generator = random.Random(number)
        for i in range(10):
            good, twins, bad = (generator.randrange(1, 30) for _ in range(3))
            texts = [message(1000 * number + 30 * i + n) for n in range(good)]
            path = tmp_path / f"{number}-{i}.vcm"
            path.write_text("".join(texts + [texts[0]] * twins + [broken] * bad))
            result = vcm.load(path)
            assert (result.loaded, result.duplicate, result.bad) == (good, twins, bad), path
            assert len(result.messages) == twins + bad, path

    def ask(number: int) -> None:
        for key in range(number, number + 400):
            with pytest.raises(vcm.NotFoundError) as caught:
                vcm.get(key * 2 + 10)
            assert len(caught.value.messages) == 1 and f" {key * 2 + 10} " in str(caught.value), key
            assert len(vcm.keys()) <= vcm.count()

    handler = Nosy(logging.DEBUG)
    logging.getLogger("vcm").addHandler(handler)
    try:
        in_threads(
            *(lambda n=n: load(n) for n in (1, 2, 3)), *(lambda n=n: ask(n) for n in (1000, 2000))
        )
    finally:
        logging.getLogger("vcm").removeHandler(handler)


def test_fields_set_by_several_threads_are_all_kept() -> None:
    key = vcm.add(message(1))
    names = ("bTerm", "agom", "cmOffset", "avgAp")

    def change(name: str) -> None:
        for value in range(300):
            vcm.set_field(key, name, value)
            assert vcm.get_field(key, name) == value, name

    in_threads(*(lambda name=name: change(name) for name in names))


def test_a_load_leaves_the_interpreter_to_others(tmp_path: Path) -> None:
    """The load waits for a pipe that this thread fills: it would wait for ever with the interpreter
    held."""
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


LOAD = f"import vcm; print(vcm.load({str(SAMPLES / 'broken.vcm')!r}), vcm.load('{CATALOGUE}').loaded)\n"


def test_the_log_file_of_the_host_goes_on(tmp_path: Path) -> None:
    log = tmp_path / "log"
    shown = run_python("import logging; logging.basicConfig(level=20, format='%(message)s')\n" + LOAD
                       + "try: vcm.get(4)\nexcept KeyError: pass\n", HOST_TRACE_LOG=str(log))  # fmt: skip
    lines = [line.strip() for line in log.read_text().splitlines()]
    assert "Total VCMs =" in lines[-2] and " 4 in" in lines[-1] and "bad=4" in shown


def test_a_host_without_a_sink() -> None:
    """Counts come from the store, errors have a text of the package's own."""
    code = (
        """
import vcm._library
class Mute:
    def __init__(self, library): self.library = library
    def __getattr__(self, name):
        if name == 'hosttracesink': raise AttributeError(name)
        return getattr(self.library, name)
load = vcm._library.load
vcm._library.load = lambda: Mute(load())
"""
        + LOAD
        + """
for wrong in (lambda: vcm.get(4), lambda: vcm.add('x'), lambda: vcm.add(vcm.get(vcm.keys()[0]))):
    try: wrong()
    except vcm.VcmError as error: print(error, error.messages)
"""
    )
    assert run_python(code).splitlines() == [
        "LoadResult(loaded=2, duplicate=-1, bad=-1, messages=()) 299",
        "no message of key 4 is stored ()",
        "the message is refused ()",
        "the same message is stored already ()",
    ]
