"""One satellite's covariance, and how well its position and velocity are known."""

from typing import Any

import numpy as np

from .._layout import ELEMENTS
from ..record import Record
from .correlations import correlations, faults
from .style import BLUE, GREY, VERMILION, annotate, prepare, styled

# Of the elements, in the order of the covariance.
_SYMBOLS = ("$a_f$", "$a_g$", "$L$", "$n$", r"$\chi$", r"$\psi$", "$B$", r"$\dot{B}$", "AGOM")


def notes(record: Record) -> list[str]:
    """What is wrong with the covariance of a record."""
    return faults(correlations(record.covariance), ELEMENTS)


def covariance(record: Record, title: str, figure: Any) -> Any:
    """The correlation map, with the sigmas of position and velocity beside it."""
    if record.covMtxSize == 0:
        raise ValueError("the message has no covariance")
    with styled():
        figure = prepare(figure, 9, 5.2)
        grid = figure.add_gridspec(2, 2, width_ratios=(2.1, 1))
        _draw_map(figure, figure.add_subplot(grid[:, 0]), correlations(record.covariance))
        upper, lower = (figure.add_subplot(grid[row, 1]) for row in range(2))
        _draw_sigmas(upper, record.posSigmas, "UVW", ("km", "m"), BLUE)
        upper.set_title("Position sigmas")
        _draw_sigmas(lower, record.velSigmas, ("UD", "VD", "WD"), ("km/s", "m/s"), VERMILION)
        lower.set_title("Velocity sigmas")
        annotate(figure, title, notes(record))
    return figure


def _draw_map(figure: Any, axes: Any, matrix: Any) -> None:
    n = len(matrix)
    axes.set_facecolor("#eeeeee")  # seen where there is no correlation
    image = axes.imshow(matrix, cmap="RdBu_r", vmin=-1.0, vmax=1.0)
    for i, j in np.ndindex(n, n):
        value = matrix[i, j]
        color = "white" if abs(value) > 0.6 else "black"
        axes.text(j, i, _number(value), ha="center", va="center", fontsize=9, color=color)
    axes.set_xticks(range(n), _SYMBOLS[:n])
    axes.set_yticks(range(n), _SYMBOLS[:n])
    axes.set_xticks(np.arange(1, n) - 0.5, minor=True)
    axes.set_yticks(np.arange(1, n) - 0.5, minor=True)
    axes.grid(which="minor", color="white", linewidth=1.0)
    axes.tick_params(which="both", length=0)
    axes.tick_params(top=True, labeltop=True, bottom=False, labelbottom=False)
    axes.spines[:].set_visible(False)
    bar = figure.colorbar(image, ax=axes, shrink=0.8, aspect=30, ticks=np.linspace(-1, 1, 5))
    bar.set_label("correlation")
    bar.outline.set_visible(False)


def _number(correlation: float) -> str:
    if np.isnan(correlation):
        return "–"
    text = f"{correlation:.2f}"
    if abs(correlation) > 1.005:
        text = "> 1" if correlation > 0 else "< -1"
    return text.replace("-0.00", "0.00").replace("-", "\N{MINUS SIGN}")


def _draw_sigmas(axes: Any, values: Any, names: Any, units: tuple[str, str], color: str) -> None:
    """Bars with their values, in the smaller unit where all fall below one of the larger."""
    values = np.asarray(values)
    is_small = not (np.abs(values) >= 1.0).any()
    if is_small:
        values = values * 1000.0
    directions = ("radial", "in-track", "cross-track")
    labels = [f"{name}\n{direction}" for name, direction in zip(names, directions)]
    bars = axes.bar(labels, values, 0.6, color=color)
    axes.bar_label(bars, [f"{value:.3g}" for value in values], padding=2, fontsize=9)
    axes.set_ylabel(units[is_small])
    axes.margins(y=0.15)
    axes.set_ylim(bottom=min(0.0, np.nanmin(values, initial=0.0)))
    axes.tick_params(axis="x", length=0)
    axes.spines["bottom"].set_color(GREY)
