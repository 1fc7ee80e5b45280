"""The look that all pictures share, and how they are written."""

import io
import textwrap
from pathlib import Path
from typing import Any

import matplotlib  # type: ignore[import]
from matplotlib.figure import Figure  # type: ignore[import]
from matplotlib.ticker import NullLocator  # type: ignore[import]

# Colours that colour-blind readers tell apart (Okabe and Ito).
BLUE, VERMILION, GREEN, GREY = "#0072B2", "#D55E00", "#009E73", "#666666"

# Sizes are for a width of nine inches, which is about that of a page on a screen.
STYLE: dict[str, Any] = {
    "font.size": 10,
    "axes.titlesize": 11,
    "axes.titlelocation": "left",
    "axes.spines.top": False,
    "axes.spines.right": False,
    "axes.axisbelow": True,
    "grid.color": "#dddddd",
    "grid.linewidth": 0.6,
    "legend.frameon": False,
    "mathtext.fontset": "dejavusans",
}

# Nothing in a file tells when and with what it was made: the same data give the same bytes.
_METADATA: dict[str, dict[str, None]] = {
    ".png": {"Software": None},
    ".svg": {"Creator": None, "Date": None},
    ".pdf": {"Creator": None, "Producer": None, "CreationDate": None},
}


def styled() -> Any:
    """A context in which artists come out in this style."""
    return matplotlib.rc_context(STYLE)


def prepare(figure: Any, width: float, height: float) -> Any:
    """The figure given, or else a new one of this size that needs no display; laid out."""
    if figure is None:
        figure = Figure(figsize=(width, height))
    figure.set_layout_engine("constrained")
    return figure


def annotate(figure: Any, title: str, notes: list[str]) -> None:
    """Puts the title above, and below what a reader must know."""
    if title:
        text = _wrap(title, figure, 7)
        figure.suptitle(text, fontsize=12, fontweight="bold", parse_math=False)
    if notes:
        figure.supxlabel(_wrap("; ".join(notes), figure, 12), fontsize=9, color=GREY)


def _wrap(text: str, figure: Any, letters: int) -> str:
    """In lines that fit into the figure; an inch takes so many letters."""
    width = max(1, int(figure.get_figwidth() * letters))
    return "\n".join(textwrap.fill(line, width) for line in text.splitlines())


def leave_empty(axes: Any, why: str) -> None:
    """Says in a picture without data why there is none."""
    axes.xaxis.set_major_locator(NullLocator())
    axes.text(0.5, 0.5, why, transform=axes.transAxes, ha="center", color=GREY)


def save(figure: Any, path: str, dpi: int) -> None:
    """Writes a picture; the file's ending (.png, .svg, .pdf) names its kind. Raises OSError."""
    ending = Path(path).suffix.lower()
    picture = io.BytesIO()
    with matplotlib.rc_context({"svg.hashsalt": "vcm", "svg.fonttype": "path", "pdf.fonttype": 42}):
        figure.savefig(picture, format=ending[1:], dpi=dpi, metadata=_METADATA[ending])
    Path(path).write_bytes(picture.getvalue())
