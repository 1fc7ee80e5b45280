"""Of when the messages are: their number by spans of the calendar."""

from typing import Any, NamedTuple

import numpy as np
import numpy.typing as npt
from matplotlib.dates import AutoDateLocator, ConciseDateFormatter, date2num  # type: ignore[import]

from .elements import Numbers
from .style import GREEN, leave_empty

_MOST_BARS = 60
_SPANS = {
    "hour": "h",
    "6 hours": "6h",
    "day": "D",
    "7 days": "7D",
    "month": "M",
    "year": "Y",
    "decade": "10Y",
}


class _Bars(NamedTuple):
    """A histogram over spans of the calendar."""

    span: str
    edges: Numbers  # in days, as matplotlib counts them
    counts: npt.NDArray[np.int64]


def _bars(dates: npt.NDArray[np.datetime64]) -> _Bars:
    """The finest spans that leave few enough bars."""
    for span, unit in _SPANS.items():
        indexes = dates.astype(f"M8[{unit}]").astype(np.int64)
        first, last = int(indexes.min()), int(indexes.max())
        if last - first < _MOST_BARS:
            break
    edges = np.arange(first, last + 2).astype(f"M8[{unit}]").astype("M8[us]")
    return _Bars(span, edges.astype(np.int64) / 86400e6, np.bincount(indexes - first))


class _DateFormatter(ConciseDateFormatter):  # type: ignore[misc]
    """Tells in its corner of when the last message is; that of the last tick may be a day later."""

    def __init__(self, locator: AutoDateLocator, last: float) -> None:
        super().__init__(locator)
        self._last = last

    def format_ticks(self, values: Any) -> Any:
        labels = super().format_ticks(values)
        # The corner is what the last call makes of it.
        super().format_ticks([each for each in values if each <= self._last] or values)
        return labels


def unknown(table: Any) -> int:
    """How many messages have an epoch that is no date."""
    return int((~_known(_dates(table))).sum())


def _dates(table: Any) -> npt.NDArray[np.datetime64]:
    return np.asarray(table["epoch"]).astype("M8[us]")


def _known(dates: npt.NDArray[np.datetime64]) -> npt.NDArray[np.bool_]:
    """Those that a calendar's axis can show."""
    return (dates >= np.datetime64("0010-01-01")) & (dates < np.datetime64("9900-01-01"))


def draw(axes: Any, table: Any) -> None:
    """Bars of the messages by epoch."""
    dates = _dates(table)
    dates = dates[_known(dates)]
    if len(dates):
        span, edges, counts = _bars(dates)
        axes.bar(
            edges[:-1], counts, np.diff(edges), align="edge", color=GREEN, edgecolor="white", lw=0.5
        )
        margin = max(0.03 * (edges[-1] - edges[0]), edges[1] - edges[0])
        axes.set_xlim(edges[0] - margin, edges[-1] + margin)
        locator = AutoDateLocator(minticks=3, maxticks=7)
        axes.xaxis_date()
        axes.xaxis.set_major_locator(locator)
        axes.xaxis.set_major_formatter(_DateFormatter(locator, date2num(dates.max())))
        axes.set_ylabel(f"messages per {span}")
    else:
        leave_empty(axes, "no epochs that are a date")
    axes.yaxis.get_major_locator().set_params(integer=True)
    axes.set(xlabel="epoch (UTC)", title="Epochs")
    axes.grid(True, axis="y")
