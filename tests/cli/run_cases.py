"""Runs the vcm program on the cases of the .toml files beside this one.

    run_cases.py PROGRAM SAMPLES_DIRECTORY [WORD...]

With WORDs, only cases whose name contains one of them. A case says

  args                 arguments; {long} stands for 513 characters
  files                input files by name: a list of pieces
  stdin                a file's name, or pieces that are given through a pipe
  stdin_ends_after     a text: the pipe ends when it has been shown on the terminal
  stdin_ends_after_s   seconds: the pipe ends then
  terminal             columns: standard output and error are a terminal, shown as stdout
  stdout_to            a file that standard output goes to; "closed pipe" has no reader
  file_size_limit      bytes that a file may grow to
  exit                 exit code, 0 if not given
  stdout, stderr       what is written: the whole text, or texts that it holds in this order; nothing
                       if not given
  results              input files that change and files that are new, afterwards: a list of pieces

A piece of a file is a text, or a table: {sample = FILE} for a whole sample; {message = N} for the Nth
message of the catalogue, with `form = "one"` its one-line form, with `replace` changes to its text.
"""

import fcntl
import os
import pathlib
import pty
import resource
import struct
import subprocess
import sys
import tempfile
import termios
import threading
import time
import tomllib

HEADER = "<> SP VECTOR/COVARIANCE MESSAGE - V2.0\n"
TIME_LIMIT = 60


class Pieces:
    def __init__(self, samples):
        self.samples = samples
        multi_line = self.sample("catalogue.vcm").split(HEADER)
        self.messages = {
            "multi": [HEADER + text for text in multi_line[1:]],
            "one": self.sample("catalogue.one").splitlines(keepends=True),
        }

    def sample(self, name):
        return (self.samples / name).read_bytes().decode("latin-1")

    def text(self, pieces):
        return "".join(self.piece(piece) for piece in pieces)

    def piece(self, piece):
        if isinstance(piece, str):
            return piece
        if "sample" in piece:
            return self.sample(piece["sample"])
        text = self.messages[piece.get("form", "multi")][piece["message"] - 1]
        for old, new in piece.get("replace", {}).items():
            assert old in text, f"nothing to replace: {old}"
            text = text.replace(old, new, 1)
        return text


def open_terminal(columns):
    master, slave = pty.openpty()
    fcntl.ioctl(slave, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
    return master, slave


def output_of(case, directory):
    """Where the case's standard output goes, and what is to be read from the other end."""
    if "terminal" in case:
        return open_terminal(case["terminal"])[::-1]
    if case.get("stdout_to") == "closed pipe":
        reader, writer = os.pipe()
        os.close(reader)
        return writer, None
    if "stdout_to" in case:
        return os.open(directory / case["stdout_to"], os.O_WRONLY | os.O_CREAT, 0o644), None
    reader, writer = os.pipe()
    return writer, reader


def read_all(descriptor, shown):
    while True:
        try:
            block = os.read(descriptor, 65536)
        except OSError:  # how a terminal ends
            block = b""
        if not block:
            return
        shown.extend(block)


def feed(case, process, shown, pieces):
    text = case.get("stdin")
    if not isinstance(text, list):
        return
    process.stdin.write(pieces.text(text).encode("latin-1"))
    process.stdin.flush()
    if "stdin_ends_after" in case:
        deadline = time.monotonic() + TIME_LIMIT
        while case["stdin_ends_after"].encode() not in shown and time.monotonic() < deadline:
            time.sleep(0.01)
    time.sleep(case.get("stdin_ends_after_s", 0))
    process.stdin.close()


def run(program, case, directory, pieces):
    output, reader = output_of(case, directory)
    stdin = case.get("stdin")
    limit = case.get("file_size_limit")
    process = subprocess.Popen(
        [program, *(arg.replace("{long}", "x" * 513) for arg in case["args"])],
        cwd=directory,
        stdin=(directory / stdin).open("rb") if isinstance(stdin, str)
        else subprocess.PIPE if stdin else subprocess.DEVNULL,
        stdout=output,
        stderr=output if "terminal" in case else subprocess.PIPE,
        preexec_fn=limit and (lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))))
    os.close(output)
    shown, errors = bytearray(), bytearray()
    threads = [threading.Thread(target=read_all, args=(descriptor, text))
               for descriptor, text in ((reader, shown),
                                        (process.stderr and process.stderr.fileno(), errors))
               if descriptor is not None]
    for thread in threads:
        thread.start()
    feed(case, process, shown, pieces)
    code = process.wait(TIME_LIMIT)
    for thread in threads:
        thread.join()
    return code, shown.decode("latin-1").replace("\r\n", "\n"), errors.decode("latin-1")


def difference(what, expected, actual):
    if isinstance(expected, list):
        position = 0
        for text in expected:
            found = actual.find(text, position)
            if found < 0:
                return [f"{what} lacks {text!r}, or not in this order:\n{actual[:4000]}"]
            position = found + len(text)
        return []
    if expected == actual:
        return []
    return [f"{what} should be\n{expected[:4000]}\nand is\n{actual[:4000]}"]


def check_files(case, directory, pieces):
    problems = []
    expected = case.get("files", {}) | case.get("results", {})
    actual = {path.name: path.read_bytes().decode("latin-1") for path in directory.iterdir()}
    for name in expected.keys() | actual.keys():
        if name not in actual or name not in expected:
            problems.append(f"{name} is {'missing' if name in expected else 'left over'}")
        else:
            problems += difference(name, pieces.text(expected[name]), actual[name])
    return problems


def problems_of(program, case, pieces):
    with tempfile.TemporaryDirectory() as name:
        directory = pathlib.Path(name)
        for file, content in case.get("files", {}).items():
            (directory / file).write_bytes(pieces.text(content).encode("latin-1"))
        code, output, errors = run(program, case, directory, pieces)
        problems = [] if code == case.get("exit", 0) else [f"exit code {code}"]
        problems += difference("stdout", case.get("stdout", ""), output)
        problems += difference("stderr", case.get("stderr", ""), errors)
        return problems + check_files(case, directory, pieces)


def main():
    program, samples, *words = sys.argv[1:]
    pieces = Pieces(pathlib.Path(samples))
    total = failed = 0
    for path in sorted(pathlib.Path(__file__).parent.glob("*.toml")):
        for case in tomllib.loads(path.read_text())["case"]:
            if words and not any(word in case["name"] for word in words):
                continue
            total += 1
            problems = problems_of(program, case, pieces)
            if problems:
                failed += 1
                print(f"FAILED {path.name}: {case['name']}", *problems, "", sep="\n")
    print(f"{total} cases, {failed} failed")
    return 1 if failed or not total else 0


if __name__ == "__main__":
    sys.exit(main())
