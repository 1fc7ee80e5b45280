"""The catalogue as a whole: where its satellites fly, and of when its messages are."""

from typing import Any, NamedTuple

import numpy as np
import numpy.typing as npt
from matplotlib.dates import AutoDateLocator, ConciseDateFormatter  # type: ignore[import]
from matplotlib.ticker import FuncFormatter, LogLocator, MultipleLocator, NullLocator  # type: ignore[import]

from .elements import of_table
from .style import BLUE, GREEN, GREY, VERMILION, annotate, prepare, styled

_COUNTED_POINTS = 2000  # up to here points are joined and drawn one by one; above, as a cloud
_MOST_BARS = 60
_SPANS = {
    "hour": "h", "6 hours": "6h", "day": "D", "7 days": "7D", "month": "M", "year": "Y", "decade": "10Y",
}  # fmt: skip


def catalogue(table: Any, title: str, figure: Any) -> Any:
    """Inclination against altitude, and epochs over time beside it."""
    with styled():
        figure = prepare(figure, 9, 4.2)
        left, right = figure.subplots(1, 2, gridspec_kw={"width_ratios": (1.25, 1)})
        notes = _draw_orbits(left, table) + _draw_epochs(right, table)
        annotate(figure, title, notes)
    return figure


def epochs(table: Any, title: str, figure: Any) -> Any:
    """Epochs over time alone."""
    with styled():
        figure = prepare(figure, 9, 3.6)
        annotate(figure, title, _draw_epochs(figure.subplots(), table))
    return figure


def _draw_orbits(axes: Any, table: Any) -> list[str]:
    found = of_table(table)
    bound = ~(found.open | found.degenerate)
    counts = {
        "open orbit": found.open.sum(),
        "degenerate state": found.degenerate.sum(),
        "orbit wholly below the surface": (bound & (found.apogee <= 0)).sum(),
        "perigee below the surface": (bound & (found.perigee <= 0) & (found.apogee > 0)).sum(),
    }
    ends = [
        ("apogee", found.apogee, VERMILION, "s", 26),
        ("perigee", found.perigee, BLUE, "o", 7),
    ]
    many = len(bound) > _COUNTED_POINTS
    shown = bound & (found.perigee > 0)
    if not many:
        axes.hlines(found.inclination[shown], found.perigee[shown], found.apogee[shown], GREY, lw=0.4, alpha=0.4)
    for name, altitude, color, marker, size in ends:
        drawn = bound & (altitude > 0)
        if many:
            look = {"s": 2, "alpha": max(0.05, min(0.6, 5000 / len(bound))), "linewidths": 0, "color": color}
        else:
            filling = color if name == "perigee" else "none"  # both are seen where they fall together
            look = {"s": size, "edgecolors": color, "facecolors": filling, "linewidths": 0.8}
        axes.scatter(altitude[drawn], found.inclination[drawn], marker="o" if many else marker, label=name,
                     rasterized=many, **look)  # fmt: skip
    altitudes = np.concatenate([found.perigee[shown], found.apogee[shown]])
    _scale_altitudes(axes, altitudes)
    axes.set(xlabel="altitude (km)", ylabel="inclination (°)", title="Orbits", ylim=(-4, 184))
    axes.yaxis.set_major_locator(MultipleLocator(30))
    axes.grid(True)
    legend = axes.legend(loc="lower right", bbox_to_anchor=(1.0, 1.0), ncols=2, borderaxespad=0.2,
                         handletextpad=0.1, columnspacing=1.0)  # fmt: skip
    for handle in legend.legend_handles if hasattr(legend, "legend_handles") else legend.legendHandles:
        handle.set(alpha=1.0, sizes=[20 if many else handle.get_sizes()[0]])
    return _notes(counts)


def _scale_altitudes(axes: Any, altitudes: npt.NDArray[np.float64]) -> None:
    """A log axis where low and high orbits are together; ticks as numbers people read."""
    thousands = FuncFormatter(lambda value, _: f"{value:,.0f}")
    if len(altitudes) and altitudes.max() > 8 * altitudes.min():
        axes.set_xscale("log")
        axes.xaxis.set_major_locator(LogLocator(subs=(1.0, 2.0, 5.0)))
        axes.xaxis.set_minor_locator(NullLocator())
    axes.xaxis.set_major_formatter(thousands)


class _Bars(NamedTuple):
    """A histogram over spans of the calendar."""

    span: str
    edges: npt.NDArray[np.datetime64]
    counts: npt.NDArray[np.int64]


def _bars(dates: npt.NDArray[np.datetime64]) -> _Bars:
    """The finest spans that leave few enough bars."""
    for span, unit in _SPANS.items():
        indexes = dates.astype(f"M8[{unit}]").astype(np.int64)
        first, last = int(indexes.min()), int(indexes.max())
        if last - first < _MOST_BARS:
            break
    edges = np.arange(first, last + 2).astype(f"M8[{unit}]").astype("M8[us]")
    return _Bars(span, edges, np.bincount(indexes - first))


def _draw_epochs(axes: Any, table: Any) -> list[str]:
    dates = np.asarray(table["epoch"]).astype("M8[us]")
    known = (dates >= np.datetime64("0001-01-01")) & (dates < np.datetime64("9900-01-01"))
    if known.any():
        bars = _bars(dates[known])
        days = bars.edges.astype(np.int64) / 86400e6
        axes.bar(days[:-1], bars.counts, np.diff(days), align="edge", color=GREEN, edgecolor="white", lw=0.5)
        locator = AutoDateLocator(minticks=3, maxticks=7)
        axes.xaxis_date()
        axes.xaxis.set_major_locator(locator)
        axes.xaxis.set_major_formatter(ConciseDateFormatter(locator))
        axes.set_ylabel(f"messages per {bars.span}")
    axes.yaxis.get_major_locator().set_params(integer=True)
    axes.set(xlabel="epoch (UTC)", title="Epochs")
    axes.grid(True, axis="y")
    return _notes({"epoch that is no date": (~known).sum()})


def _notes(counts: dict[str, int]) -> list[str]:
    return [f"left out: {count:,} × {what}" for what, count in counts.items() if count]
