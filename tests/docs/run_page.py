"""Runs the code blocks of a Markdown page, as docs/testing.md says.

    run_page.py SOURCE_TREE BUILD_TREE PREFIX PAGE      PAGE relative to SOURCE_TREE
"""

import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

from page import blocks, broken_links

TIME_LIMIT = 300
COMPILE = (
    "cc -std=c99 -pedantic -Wall -Wextra -Wno-unused -Werror blocks-of-page.c -o blocks-of-page"
    " $(pkg-config --cflags --libs vcm) -lm && ./blocks-of-page"
)
FRAME = """#include <inttypes.h>
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <vcm/Vcm.h>
int main(void) {{
VcmInit();
{}return 0;
}}
"""
LAST_BLOCK = "---- the last block ----"


def environment(prefix):
    """Of somebody who installed the library there."""

    def before(name, *values):
        return os.pathsep.join([*map(str, values), *filter(None, [os.environ.get(name)])])

    libraries = [prefix / "lib", *(prefix / "lib").glob("*-linux-*")]
    return os.environ | {
        "PATH": before("PATH", prefix / "bin", pathlib.Path(sys.executable).parent),
        "LD_LIBRARY_PATH": before("LD_LIBRARY_PATH", *libraries),
        "PKG_CONFIG_PATH": before("PKG_CONFIG_PATH", *(path / "pkgconfig" for path in libraries)),
        "CMAKE_PREFIX_PATH": before("CMAKE_PREFIX_PATH", prefix),
        "PYTHONPATH": before("PYTHONPATH", prefix / "lib/python3/dist-packages"),
        "PYTHONDONTWRITEBYTECODE": "1",
        "LC_ALL": "C.UTF-8",
        "VCM_PAGE_PREFIX": str(prefix),
    }


class Session:
    """What the blocks of a page share: the directory, Python's names, the C blocks so far."""

    def __init__(self):
        self.names, self.c_blocks, self.written = {"__name__": "__main__"}, "", {}

    def sh(self, code):
        self.written = {
            name: line
            for name, line in self.written.items()
            if name not in code and str(pathlib.Path(name).parent) not in code.split()
        }
        process = subprocess.run(
            ["bash", "-euo", "pipefail", "-c", code],
            text=True,
            errors="replace",
            stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT,
            timeout=TIME_LIMIT,
        )
        return process.stdout, process.returncode and f"exit code {process.returncode}"

    def python(self, code):
        """In this process, whose output goes to a file meanwhile: that of C functions, too."""
        sys.stdout.flush()
        kept, error = os.dup(1), None
        with tempfile.TemporaryFile() as output:
            os.dup2(output.fileno(), 1)
            try:
                exec(compile(code, "block", "exec"), self.names)
            except BaseException as problem:  # an exit, too, would end the test with success
                error = repr(problem)
            finally:
                sys.stdout.flush()
                os.dup2(kept, 1)
                os.close(kept)
            output.seek(0)
            return output.read().decode(errors="replace"), error

    def c(self, code):
        """C blocks without a file make up one program: it is run anew with each that is added."""
        program = FRAME.format(self.c_blocks + f'puts("{LAST_BLOCK}");\n' + code)
        pathlib.Path("blocks-of-page.c").write_text(program)
        self.c_blocks += code
        output, error = self.sh(COMPILE)
        return output.partition(LAST_BLOCK + "\n")[2] if not error else output, error

    def run(self, block):
        """Its output, and what is wrong."""
        if block.file:
            path = pathlib.Path(block.file)
            if path.exists():
                return "", f"{path} is a file of the tree: name the block's own"
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(block.code)
            self.written[block.file] = block.line
            return "", None
        ways = {"sh": self.sh, "bash": self.sh, "python": self.python, "c": self.c}
        if block.language not in ways:
            return "", f'a block of language "{block.language}" is neither run nor a named file'
        return ways[block.language](block.code)


def wrong_with_mark(source, kind, value, code):
    """Why a marked block may not stay unrun; empty when it may."""
    lines = [line.split("  #")[0].strip() for line in code.splitlines() if line.strip()]
    if kind != "slow":  # the named file has each of its lines, with more behind or not
        text = (source / value).read_text() if (source / value).is_file() else ""
        there = [re.sub(r"^\s*(step )?", "", line) + " " for line in text.splitlines()]
        plain = [line.removeprefix("sudo ") + " " for line in lines]
        return [
            f"{value} lacks: {line}"
            for line in plain
            if not any(map(lambda t: t.startswith(line), there))
        ]
    wrong = []
    for program, *arguments in filter(
        None, map(lambda line: shlex.split(line, comments=True), lines)
    ):
        path = source / program
        if not os.access(path, os.X_OK):
            wrong.append(f"{program} is no program of this tree")
            continue
        how = (
            [path, "--help"]
            if "python" in path.read_text().partition("\n")[0]
            else ["bash", "-n", path]
        )
        check = subprocess.run(how, capture_output=True, text=True, stdin=subprocess.DEVNULL)
        known = check.stdout + path.read_text()
        known += "".join(
            main.read_text()
            for main in source.glob(f"{path.parent.name}/*/__main__.py")
            if str(main.parent.relative_to(source)) in known
        )
        wrong += [check.stderr] if check.returncode else []
        wrong += [
            f"{program} does not know {option}"
            for option in arguments
            if option.startswith("-") and option.partition("=")[0] not in known
        ]
    return wrong


def shows(expected, output):
    """Whether the output is as expected; a line of three points stands for any lines. Blanks at the
    ends of lines do not count."""

    def trimmed(text):
        return "".join(line.rstrip() + "\n" for line in text.splitlines())

    pattern = "(?:.*\n)*?".join(map(re.escape, re.split(r"(?m)^\.\.\.\n", trimmed(expected))))
    return re.fullmatch(pattern, trimmed(output)) is not None


def run(source, build, page):
    text = (source / page).read_text()
    problems = [
        f"{page}: links to {target}, which is not there" for target in broken_links(source / page)
    ]
    if page in ("docs/README.md", "examples/README.md"):  # lists what is beside it
        problems += [
            f"{page}: {path.name} is not listed"
            for path in (source / page).parent.iterdir()
            if path.suffix in (".md", ".c", ".cpp", ".f90", ".py")
            and path.name not in text
            and path.name != "README.md"
        ]
    with tempfile.TemporaryDirectory() as directory:
        checkout = pathlib.Path(directory, "libvcm")
        shutil.copytree(
            source, checkout, ignore=shutil.ignore_patterns("build", ".git", "__pycache__")
        )
        (checkout / "build").mkdir()
        (checkout / "build/release").symlink_to(build)
        os.chdir(checkout)
        session = Session()
        for block in blocks(text):
            where = f"{page}:{block.line}"
            if block.mark:
                problems += [
                    f"{where}: {what}" for what in wrong_with_mark(source, *block.mark, block.code)
                ]
                continue
            output, error = session.run(block)
            if error:
                problems.append(f"{where}: {error}\n{block.code}{output}")
            elif block.expected is not None and not shows(block.expected, output):
                problems.append(f"{where}: expected\n{block.expected}but got\n{output}")
        problems += [
            f"{page}:{line}: no later block uses {name}" for name, line in session.written.items()
        ]
        os.chdir("/")
    return problems


def main():
    source, build, prefix = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    if os.environ.get("VCM_PAGE_PREFIX") != str(
        prefix
    ):  # the loader reads its variables at the start
        os.execve(sys.executable, [sys.executable, *sys.argv], environment(prefix))
    problems = run(source, build, sys.argv[4])
    print(*problems, sep="\n", end="\n" if problems else "")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
