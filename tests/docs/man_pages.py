"""Manual pages are well formed, and vcm.3 declares what the header does.

    man_pages.py HEADER PAGE...
"""

import pathlib
import re
import subprocess
import sys


def declared(header):
    """Type, name and arguments of each export."""
    found = re.findall(r"VCM_API (\w+) (\w+)\(([^;]*)\) VCM_NOEXCEPT;", header)
    return {f"{result} {name}({' '.join(arguments.split())})" for result, name, arguments in found}


def in_synopsis(page):
    synopsis = page.partition(".Sh SYNOPSIS")[2].partition(".Sh DESCRIPTION")[0]
    found = re.findall(r'\.Ft (.*)\n\.F[no] (\w+)((?: "[^"\n]*"|\n\.Fa "[^"\n]*")*)', synopsis)
    quoted = re.compile('"([^"]*)"')
    return {
        f"{result} {name}({', '.join(quoted.findall(arguments))})"
        for result, name, arguments in found
    }


def main():
    header, *pages = map(pathlib.Path, sys.argv[1:])
    lint = subprocess.run(["mandoc", "-Tlint", *pages], stdout=subprocess.PIPE, text=True).stdout
    # Pages that they refer to need not be installed here.
    problems = [line for line in lint.splitlines() if "referenced manual not found" not in line]
    [interface] = [page.read_text() for page in pages if page.name == "vcm.3"]
    wanted, shown = declared(header.read_text()), in_synopsis(interface)
    problems += [f"vcm.3 lacks: {missing}" for missing in sorted(wanted - shown)]
    problems += [
        f"vcm.3 declares what the header does not: {wrong}" for wrong in sorted(shown - wanted)
    ]
    print(*problems, sep="\n", end="\n" if problems else "")
    return 1 if problems or not wanted else 0


if __name__ == "__main__":
    sys.exit(main())
