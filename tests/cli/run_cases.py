"""Runs the vcm program on the cases of cases.txt.

    run_cases.py PROGRAM SAMPLES_DIRECTORY [WORD...]

With WORDs, only cases whose title contains one of them. A case is a title and, indented by two columns,
commands and what they show. Commands run one by one in bash, in a directory that is the case's own:

  $ COMMAND       not on a terminal
  80$ COMMAND     with standard input, output and error on a terminal of 80 columns. Once progress
                  is at a stop, enter is pressed. A return without a new line is shown as \\r, an
                  escape as \\e.

A command shows its standard output, then its standard error with "! " before each line, then its exit
code in brackets unless it is 0. "..." stands for any text. Commands may use

  vcm             the program
  message N       the Nth message of the catalogue; one N, its one-line form
  $samples        the directory of the samples
"""

import difflib
import os
import pathlib
import pty
import re
import subprocess
import sys
import tempfile
import termios

TIME_LIMIT = 60
PRELUDE = """
set -o pipefail
vcm() { "$program" "$@"; }
message() { awk -v n="$1" '/^<> SP VECTOR/ { ++k } k == n' "$samples/catalogue.vcm"; }
one() { sed -n "$1p" "$samples/catalogue.one"; }
"""


def on_terminal(columns, start):
    """Output and exit code of the process that `start` starts on a terminal."""
    master, slave = pty.openpty()
    termios.tcsetwinsize(slave, (24, columns))
    modes = termios.tcgetattr(slave)
    modes[3] &= ~termios.ECHO
    termios.tcsetattr(slave, termios.TCSANOW, modes)
    process = start(stdin=slave, stdout=slave, stderr=slave)
    os.close(slave)
    shown, entered = b"", False
    while True:
        try:
            shown += os.read(master, 65536)
        except OSError:  # how a terminal ends
            os.close(master)
            return (
                shown.replace(b"\r\n", b"\n").replace(b"\r", rb"\r").replace(b"\x1b", rb"\e"),
                process.wait(),
            )
        if not entered and re.search(rb"(\r[^\r]* messages, )[^\r]*\1", shown):
            entered = bool(os.write(master, b"\n"))


def shown_by(prompt, command, directory, environment):
    def start(**streams):
        return subprocess.Popen(
            ["timeout", str(TIME_LIMIT), "bash", "-c", PRELUDE + command],
            cwd=directory,
            env=environment,
            **streams,
        )

    if prompt:
        output, code = on_terminal(int(prompt), start)
        errors = b""
    else:
        process = start(stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        output, errors = process.communicate()
        code = process.returncode
    output += b"" if output.endswith(b"\n") or not output else b" (no end of line)\n"
    return (
        output.decode("latin-1")
        + re.sub("(?m)^(?=.)", "! ", errors.decode("latin-1"))
        + (f"[{code}]\n" if code else "")
    )


def cases(text):
    """Title and lines of each case; comments and empty lines end one."""
    for block in re.findall(r"^[^\s#].*\n(?:  .*\n)+", text, re.M):
        title, *lines = block.splitlines()
        yield title, [line[2:] for line in lines]


def run(lines, environment):
    with tempfile.TemporaryDirectory() as directory:
        shown = ""
        for line in lines:
            if command := re.fullmatch(r"(\d*)\$ (.*)", line):
                shown += line + "\n" + shown_by(*command.groups(), directory, environment)
    return shown


def main():
    program, samples, *words = sys.argv[1:]
    environment = os.environ | {
        "LC_ALL": "C",
        "program": str(pathlib.Path(program).resolve()),
        "samples": str(pathlib.Path(samples).resolve()),
    }
    total = failed = 0
    for title, lines in cases(pathlib.Path(__file__).with_name("cases.txt").read_text()):
        if words and not any(word in title for word in words):
            continue
        total += 1
        expected = "".join(line + "\n" for line in lines)
        shown = run(lines, environment)
        if not re.fullmatch(".*".join(map(re.escape, expected.split("..."))), shown, re.S):
            failed += 1
            print(f"FAILED {title}", *difflib.ndiff(lines, shown.splitlines()), "", sep="\n")
    print(f"{total} cases, {failed} failed")
    return 1 if failed or not total else 0


if __name__ == "__main__":
    sys.exit(main())
