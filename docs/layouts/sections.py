"""Puts generated sections into a page, or says whether they are in it as they are printed.

    sections.py PAGE            standard input: sections, each between its marker and the end marker
    sections.py --check PAGE    exit code 1 and the differences when the page has others
"""

import difflib
import pathlib
import re
import sys

SECTION = re.compile(r"<!-- generated: (.*) -->\n(?:.*\n)*?<!-- end -->\n")


def main():
    *check, page = map(str, sys.argv[1:])
    old = pathlib.Path(page).read_text()
    printed = {match[1]: match[0] for match in SECTION.finditer(sys.stdin.read())}
    # What either lacks is worth a complaint: a section that nobody prints, one that no page shows.
    shown = {match[1] for match in SECTION.finditer(old)}
    new = SECTION.sub(lambda match: printed.get(match[1], ""), old)
    wrong = [f"{page}: no section {name}" for name in sorted(printed.keys() ^ shown)]
    if check:
        wrong += difflib.unified_diff(old.splitlines(), new.splitlines(), "page", "printed", lineterm="")
    else:
        pathlib.Path(page).write_text(new)
    print(*wrong, sep="\n", end="\n" if wrong else "")
    return 1 if wrong or not printed else 0


if __name__ == "__main__":
    sys.exit(main())
