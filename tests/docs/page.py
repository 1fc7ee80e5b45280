"""What a Markdown page holds for its test: code blocks and links."""

import dataclasses
import re

# The mark in front of a block that does not run in the page's test; see docs/testing.md.
MARK = re.compile(r"<!-- (runs|from|slow): (.*) -->")
SUFFIXES = {
    "python": r"\.py",
    "c": r"\.c",
    "cpp": r"\.cpp",
    "fortran": r"\.f90",
    "cmake": r"(?:\.cmake|CMakeLists\.txt)",
}


@dataclasses.dataclass
class Block:
    language: str
    line: int  # of its first line of code, counted from 1
    code: str
    mark: tuple[str, str] | None
    file: str | None  # that the paragraph in front of it names
    expected: str | None = None  # output, from the text block behind it


def blocks(text):
    """The page's blocks in order. A text block is the output of the block before it in its section;
    others are pictures, which nothing is asked of."""
    found, paragraph, open_paragraph, code, can_show = [], [], False, None, False
    for number, line in enumerate(text.splitlines(), 1):
        fence = re.match(r"\s*```(.*)", line)
        if code is not None and fence:
            if code.language != "text":
                found.append(code)
            elif can_show:
                found[-1].expected = code.code
            can_show, code, paragraph = code.language != "text", None, []
        elif code is not None:
            code.code += line + "\n"
        elif fence:
            mark = MARK.fullmatch(paragraph[-1].strip()) if paragraph else None
            names = re.findall(rf"`([\w./-]*{SUFFIXES.get(fence[1], '$.')})`", "\n".join(paragraph))
            code = Block(
                fence[1].strip(),
                number + 1,
                "",
                mark and mark.groups(),
                names[-1] if names else None,
            )
        elif line.startswith("#"):
            can_show, paragraph = False, []
        elif line.strip():
            paragraph = [*paragraph, line] if open_paragraph else [line]
        open_paragraph = bool(line.strip())
    if code is not None:
        raise SyntaxError(f"the block of line {code.line} has no end")
    return found


def broken_links(page):
    """Files of the tree, and headings in them, that the page points to and that are not there."""
    prose = re.sub(r"(?ms)^```.*?^```$", "", page.read_text())
    for target in re.findall(r"\]\(([^)\s]+)", prose):
        name, _, anchor = target.partition("#")
        path = page.parent / name if name else page
        if "://" not in target and not (path.exists() and (not anchor or anchor in anchors(path))):
            yield target


def anchors(page):
    headings = re.findall(r"(?m)^#+ (.*)", page.read_text())
    return {re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-") for heading in headings}
