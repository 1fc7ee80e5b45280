"""One message, as a record of typed fields, and its array form."""

import dataclasses
from collections.abc import Callable, Sequence, Sized
from dataclasses import dataclass
from datetime import datetime
from typing import Any, NamedTuple

from . import _layout, _values
from ._optional import Array
from .dates import to_datetime, to_days
from .errors import RefusedError

_ZERO: Any = (0.0, 0.0, 0.0)  # made an array when a record is made, as the next
_NONE: Any = ()


class Arrays(NamedTuple):
    """A message in the array form of the C interface: 512 numbers and 512 characters."""

    numbers: Sequence[float]
    texts: str


def whole(message: object) -> Arrays:
    """A message that has to be in the array form; RefusedError where that has another length."""
    match message:
        case (numbers, str(texts)) if isinstance(message, tuple) and isinstance(numbers, Sized):
            if len(numbers) != _layout.NUM_ARRAY_LENGTH or len(texts) != _layout.CHAR_ARRAY_LENGTH:
                raise RefusedError("the array form has 512 numbers and 512 characters")
            return Arrays(numbers, texts)  # type: ignore[arg-type]
    raise TypeError(f"a message is a text, a Record or Arrays, not {type(message).__name__}")


@dataclass(frozen=True, eq=False, kw_only=True)
class Record:
    """One message. It is not bound to the store: changing what is stored takes `vcm.update`.

    Fields are named as in the C interface. Vectors and the covariance are numpy arrays that may not
    be written, or tuples where numpy is not installed; any sequence may be given for them. The
    covariance is the symmetric n x n matrix of the equinoctial elements af, ag, L, n, chi, psi, B,
    Bdot, AGOM; of one that is given, the lower triangle counts. `epochDays` and `leapSecondDays`
    are the library's own days since 1950 UTC; `epoch` and `leapSecondTime` the same as dates. A
    common name and maneuver cards are left out. Raises RefusedError for a value that its field does
    not take: a text that is too long, a fraction in an integer, anything that is no number.

    Units: positions km, velocities km/s, and so their sigmas (U, V, W); bTerm and agom m2/kg, bDot
    m2/kg-s, edr W/kg, thrustAccel m/s2, cmOffset m; taiMinusUtc, ut1MinusUtc and initStepSize s,
    ut1Rate ms/day, polarMotionX and polarMotionY arcsec.
    """

    satNum: int = 0
    intlDes: str = ""
    epochDays: float = 0.0
    epochRev: int = 0
    j2kPos: Array = _ZERO
    j2kVel: Array = _ZERO
    eciPos: Array = _ZERO
    eciVel: Array = _ZERO
    efgPos: Array = _ZERO
    efgVel: Array = _ZERO
    geoName: str = ""
    geoZonals: int = 0
    geoTesserals: int = 0
    dragModel: str = ""
    lunarSolar: str = ""
    radPress: str = ""
    earthTides: str = ""
    intrackThrust: str = ""
    bTerm: float = 0.0
    bDot: float = 0.0
    agom: float = 0.0
    edr: float = 0.0
    thrustAccel: float = 0.0
    cmOffset: float = 0.0
    f10: int = 0
    avgF10: int = 0
    avgAp: float = 0.0
    taiMinusUtc: float = 0.0
    ut1MinusUtc: float = 0.0
    ut1Rate: float = 0.0
    polarMotionX: float = 0.0
    polarMotionY: float = 0.0
    nutationTerms: int = 0
    leapSecondDays: float = 0.0
    integMode: str = ""
    coordSys: str = ""
    partials: str = ""
    stepMode: str = ""
    fixedStep: str = ""
    stepSelection: str = ""
    initStepSize: float = 0.0
    errorControl: float = 0.0
    posSigmas: Array = _ZERO
    velSigmas: Array = _ZERO
    wtdRms: float = 0.0
    covariance: Array = _NONE

    def __post_init__(self) -> None:
        for name, checked in _CHECKS:
            object.__setattr__(self, name, checked(name, getattr(self, name)))

    @property
    def epoch(self) -> datetime:
        """The epoch, UTC, to the microsecond; RefusedError outside the years 1 to 9999."""
        return to_datetime(self.epochDays)

    @property
    def leapSecondTime(self) -> datetime:
        """The time-constant leap second time, as `epoch`."""
        return to_datetime(self.leapSecondDays)

    @property
    def covMtxSize(self) -> int:
        """The covariance's dimension, 0 where there is none."""
        return len(self.covariance)

    def replace(self, **changes: Any) -> "Record":
        """The same record with some fields changed, dates as `to_days` takes them."""
        for name in _layout.DATES & changes.keys():
            changes[_DAYS[name]] = to_days(changes.pop(name))
        return dataclasses.replace(self, **changes)

    def __eq__(self, other: object) -> bool:
        if not isinstance(other, Record):
            return NotImplemented
        return self.to_arrays() == other.to_arrays()

    def to_arrays(self) -> Arrays:
        """The record in the array form."""
        numbers = [0.0] * _layout.NUM_ARRAY_LENGTH
        for name, (first, length) in _layout.NUMBERS.items():
            if name == "covariance":
                triangle = [
                    self.covariance[i][j] for i in range(self.covMtxSize) for j in range(i + 1)
                ]
                numbers[first : first + len(triangle)] = map(float, triangle)
            elif length > 1:
                numbers[first : first + length] = map(float, getattr(self, name))
            else:
                numbers[first] = float(getattr(self, _DAYS.get(name, name)))
        texts = [" "] * _layout.CHAR_ARRAY_LENGTH
        for name, (first, length) in _layout.TEXTS.items():
            texts[first : first + length] = getattr(self, name)[:length].ljust(length)
        return Arrays(numbers, "".join(texts))

    @classmethod
    def from_arrays(cls, arrays: "Arrays | tuple[Sequence[float], str]") -> "Record":
        """The record of a message in the array form."""
        numbers, texts = whole(arrays)
        fields: dict[str, Any] = {}
        for name, (first, length) in _layout.NUMBERS.items():
            if name == "covariance":
                fields[name] = _square(numbers, first)
            elif length > 1:
                fields[name] = numbers[first : first + length]
            elif name != "covMtxSize":
                fields[_DAYS.get(name, name)] = numbers[first]
        for name, (first, length) in _layout.TEXTS.items():
            fields[name] = texts[first : first + length].rstrip()
        return cls(**fields)


_DAYS = {"epoch": "epochDays", "leapSecondTime": "leapSecondDays"}

_BY_DEFAULT: dict[type, Callable[[str, Any], Any]]
_BY_DEFAULT = {int: _values.integer, float: _values.real, str: _values.text}
_CHECKS = [
    (field.name, _BY_DEFAULT.get(type(field.default), _values.vector))
    for field in dataclasses.fields(Record)
    if field.name != "covariance"
]
_CHECKS.append(("covariance", _values.matrix))


def _square(numbers: Sequence[float], first: int) -> list[list[float]]:
    """Both triangles of the covariance, from the rows of the lower one."""
    size = _values.integer("covMtxSize", numbers[_layout.NUMBERS["covMtxSize"][0]])
    n = max(0, min(size, len(_layout.ELEMENTS)))
    triangle = numbers[first : first + n * (n + 1) // 2]
    return [[triangle[place] for place in row[:n]] for row in _PLACES[:n]]


# Of each element of the covariance, its place in the lower triangle.
_PLACES = [
    [max(i, j) * (max(i, j) + 1) // 2 + min(i, j) for j in range(len(_layout.ELEMENTS))]
    for i in range(len(_layout.ELEMENTS))
]
