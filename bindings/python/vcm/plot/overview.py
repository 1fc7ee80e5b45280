"""The catalogue as a whole: where its satellites fly, and of when its messages are."""

from typing import Any

import numpy as np
from matplotlib import ticker  # type: ignore[import]
from matplotlib.lines import Line2D  # type: ignore[import]

from . import calendar
from .elements import Elements, Numbers, of_table
from .style import BLUE, GREY, VERMILION, annotate, leave_empty, prepare, styled

_MOST_MARKS = 500  # with more satellites, points are a cloud
_SUBS = ((100, (1.0, 2.0, 5.0)), (1000, (1.0, 3.0)))  # of a log axis, by how far it goes


def catalogue(table: Any, title: str, figure: Any) -> Any:
    """Inclination against altitude, and epochs over time beside it."""
    with styled():
        figure = prepare(figure, 9, 4.2)
        left, right = figure.subplots(1, 2, gridspec_kw={"width_ratios": (1.25, 1)})
        _draw_orbits(left, of_table(table))
        calendar.draw(right, table)
        annotate(figure, title, notes(table, orbits=True))
    return figure


def epochs(table: Any, title: str, figure: Any) -> Any:
    """Epochs over time alone."""
    with styled():
        figure = prepare(figure, 9, 3.6)
        calendar.draw(figure.subplots(), table)
        annotate(figure, title, notes(table, orbits=False))
    return figure


def notes(table: Any, orbits: bool) -> list[str]:
    """What has no place in the picture."""
    counts = {}
    if orbits:
        found = of_table(table)
        bound = ~(found.open | found.degenerate)
        counts["open orbits"] = found.open.sum()
        counts["degenerate states"] = found.degenerate.sum()
        counts["perigees below the surface"] = (bound & (found.perigee <= 0)).sum()
        counts["apogees below the surface"] = (bound & (found.apogee <= 0)).sum()
    counts["epochs that are no date"] = calendar.unknown(table)
    told = [f"{what} {count:,}" for what, count in counts.items() if count]
    return ["left out: " + ", ".join(told)] if told else []


def _draw_orbits(axes: Any, found: Elements) -> None:
    bound = ~(found.open | found.degenerate)
    inclination, perigee, apogee = (
        found.inclination[bound],
        found.perigee[bound],
        found.apogee[bound],
    )
    draw = _draw_marks if len(inclination) <= _MOST_MARKS else _draw_cloud
    draw(axes, inclination, perigee, apogee)
    altitudes = np.concatenate([perigee, apogee])
    altitudes = altitudes[altitudes > 0]
    if len(altitudes):
        _name_ends(axes, draw is _draw_cloud)
        _scale_altitudes(axes, altitudes)
    else:
        leave_empty(axes, "no closed orbits above the surface")
    top = 30 * np.ceil(max(90.0, inclination.max(initial=0.0)) / 30)
    axes.set(
        xlabel="altitude (km)",
        ylabel="inclination (°)",
        title="Orbits",
        ylim=(-0.02 * top, 1.02 * top),
    )
    axes.yaxis.set_major_locator(ticker.MultipleLocator(30))
    axes.grid(True)


def _name_ends(axes: Any, is_cloud: bool) -> None:
    handles = [
        Line2D([], [], color=BLUE, marker="o", ls="", ms=3.5, label="perigee"),
        Line2D(
            [], [], color=VERMILION, marker="s", ls="", ms=5, mfc="none", mew=0.9, label="apogee"
        ),
    ]
    if is_cloud:
        handles[1].set(marker="o", markersize=3.5, markerfacecolor=VERMILION)
    axes.legend(
        handles=handles,
        loc="lower right",
        bbox_to_anchor=(1.0, 1.0),
        ncols=2,
        borderaxespad=0.2,
        handletextpad=0.1,
        columnspacing=1.0,
    )


def _draw_marks(axes: Any, inclination: Numbers, perigee: Numbers, apogee: Numbers) -> None:
    """Each satellite by itself, its ends joined; both are seen where they fall together."""
    whole = perigee > 0
    axes.hlines(
        inclination[whole], perigee[whole], apogee[whole], GREY, lw=0.5, alpha=0.5, zorder=0.8
    )
    for altitude, look in (
        (
            apogee,
            {
                "s": 26,
                "marker": "s",
                "edgecolors": VERMILION,
                "facecolors": "none",
                "linewidths": 0.9,
            },
        ),
        (perigee, {"s": 8, "marker": "o", "color": BLUE}),
    ):
        axes.scatter(altitude[altitude > 0], inclination[altitude > 0], **look)


def _draw_cloud(axes: Any, inclination: Numbers, perigee: Numbers, apogee: Numbers) -> None:
    """All ends as small points: perigees and apogees mixed, so that neither hides the other."""
    altitude = np.column_stack([perigee, apogee]).ravel()
    inclination, colors = np.repeat(inclination, 2), np.tile([BLUE, VERMILION], len(perigee))
    drawn = altitude > 0
    thin = min(1.0, 5000 / len(perigee))
    axes.scatter(
        altitude[drawn],
        inclination[drawn],
        3 + 5 * thin,
        colors[drawn],
        alpha=max(0.06, 0.6 * thin),
        linewidths=0,
        rasterized=True,
    )


def _scale_altitudes(axes: Any, altitudes: Numbers) -> None:
    """A log axis where low and high orbits are together; ticks as numbers people read."""
    low, high = altitudes.min(), altitudes.max()
    if high > 8 * low:
        axes.set_xscale("log")
        subs = next((subs for ratio, subs in _SUBS if high < ratio * low), (1.0,))
        axes.xaxis.set_major_locator(ticker.LogLocator(subs=subs, numticks=6))
        axes.xaxis.set_minor_locator(ticker.NullLocator())
    else:
        # What differs less is beside one another to a reader.
        spare = max(0.0, max(10.0, 0.01 * high) - (high - low)) / 2
        margin = spare + 0.05 * (high - low)
        axes.set_xlim(low - margin, high + margin)
        axes.xaxis.set_major_locator(ticker.MaxNLocator("auto", steps=(1, 2, 5, 10)))
    axes.xaxis.set_major_formatter(ticker.FuncFormatter(lambda value, _: f"{value + 0.0:,.10g}"))
