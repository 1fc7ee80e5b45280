"""Days since 1950 UTC, as the library counts them, and the dates of Python.

1950 January 1, 0 h is 1.0; every day has 86400 seconds.
"""

from datetime import UTC, datetime, timedelta
from typing import TypeAlias

from .errors import RefusedError

_BASE = datetime(1949, 12, 31, tzinfo=UTC)
_DAY = timedelta(days=1)

Moment: TypeAlias = datetime | float | str


def to_datetime(days: float) -> datetime:
    """The date, in UTC, of a number of days since 1950, to the nearest microsecond.

    Raises RefusedError for a number outside the years 1 to 9999.
    """
    try:
        return _BASE + timedelta(days=days)
    except (OverflowError, ValueError):
        raise RefusedError(f"{days} days since 1950 are no date") from None


def to_days(date: datetime) -> float:
    """The days since 1950 UTC of a date, to the nearest double; one without a zone is UTC."""
    return (_utc(date) - _BASE) / _DAY


def epoch_text(moment: Moment) -> str:
    """A date, or days since 1950, as the library's text yyyydddhhmmss.sss; a text is left as it is.

    It is rounded to the millisecond, as the library rounds. Raises RefusedError as `to_datetime`
    does.
    """
    if isinstance(moment, str):
        return moment
    date = _utc(moment) if isinstance(moment, datetime) else to_datetime(moment)
    try:
        date += timedelta(microseconds=500)
    except OverflowError:
        raise RefusedError(f"{date} is beyond the calendar") from None
    return f"{date.year:04}{date:%j%H%M%S}.{date.microsecond // 1000:03}"


def _utc(date: datetime) -> datetime:
    return date.replace(tzinfo=UTC) if date.tzinfo is None else date.astimezone(UTC)
