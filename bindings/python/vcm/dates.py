"""Days since 1950 UTC, as the library counts them, and the dates of Python.

1950 January 1, 0 h is 1.0; every day has 86400 seconds.
"""

import re
from datetime import UTC, datetime, timedelta
from numbers import Real
from typing import TYPE_CHECKING, Any, TypeAlias

from . import _optional
from .errors import RefusedError

if TYPE_CHECKING:
    import numpy as np

_BASE = datetime(1949, 12, 31, tzinfo=UTC)
_DAY = timedelta(days=1)

_ISO = re.compile(r"(\d{4}-\d\d-\d\d|\d{4}-\d{3})(?:[T ](.+))?")

Date: TypeAlias = "datetime | np.datetime64 | str"
Moment: TypeAlias = "Date | float"


def to_datetime(days: float) -> datetime:
    """The date, in UTC, of a number of days since 1950, to the nearest microsecond.

    Raises RefusedError for a number outside the years 1 to 9999.
    """
    try:
        return _BASE + timedelta(days=float(days))
    except (OverflowError, ValueError):
        raise RefusedError(f"{days} days since 1950 are no date") from None


def to_days(date: Date) -> float:
    """The days since 1950 UTC of a date, to the nearest double.

    It may be a datetime, a numpy.datetime64 or a text in ISO 8601, with the day of the month or of
    the year: 2026-09-03T22:10:50.309Z, 2026-246T22:10:50.309Z, 2026-09-03. One without a zone is
    UTC. Raises RefusedError for what is none.
    """
    return (_utc(date) - _BASE) / _DAY


def epoch_text(moment: Moment) -> str:
    """A date, or days since 1950, as the library's text yyyydddhhmmss.sss; such a text is left.

    It is rounded to the millisecond, as the library rounds. Raises RefusedError as `to_datetime`
    does.
    """
    if isinstance(moment, str) and moment[4:5] != "-":
        return moment
    given: Any = moment
    is_number = isinstance(given, Real)  # numpy's among them
    date = to_datetime(given) if is_number else _utc(given)
    try:
        date += timedelta(microseconds=500)
    except OverflowError:
        raise RefusedError(f"{date} is beyond the calendar") from None
    return f"{date.year:04}{date:%j%H%M%S}.{date.microsecond // 1000:03}"


def _utc(date: Any) -> datetime:
    try:
        found: datetime = _read(date) if isinstance(date, str) else _optional.plain_date(date)
        if found == found:  # not so pandas' not-a-time
            return found.replace(tzinfo=UTC) if found.tzinfo is None else found.astimezone(UTC)
    except (AttributeError, OverflowError, ValueError):
        pass
    raise RefusedError(f"{date!r} is no datetime")


def _read(text: str) -> datetime:
    found = _ISO.fullmatch(text)
    if not found:
        raise ValueError(text)
    day, time = found.groups()
    date = datetime.strptime(day, "%Y-%j" if len(day) == len("2026-246") else "%Y-%m-%d").date()
    if date.year != int(day[:4]):  # the 366th of a year that has none
        raise ValueError(text)
    return datetime.fromisoformat(f"{date}T{time or '00'}")
