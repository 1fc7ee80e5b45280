"""numpy, where it is installed: vectors and matrices are its arrays then, and tuples otherwise."""

from collections.abc import Sequence
from typing import TYPE_CHECKING, Any, TypeAlias

try:
    import numpy as np
except ImportError:
    HAS_NUMPY = False
else:
    HAS_NUMPY = True

if TYPE_CHECKING:
    import numpy.typing as npt

    Array: TypeAlias = npt.NDArray[np.float64]
else:
    Array = Any


def vector(values: Sequence[float] | Array) -> Any:
    """Numbers as an array that may not be changed."""
    return _read_only(values, 1) if HAS_NUMPY else tuple(map(float, values))


def matrix(rows: Sequence[Sequence[float]] | Array) -> Any:
    """Rows of numbers as a matrix that may not be changed."""
    if HAS_NUMPY:
        return _read_only(rows, 2)
    return tuple(tuple(map(float, row)) for row in rows)


def plain_date(date: Any) -> Any:
    """A date of numpy's as one of Python's; any other as it is."""
    if HAS_NUMPY and isinstance(date, np.datetime64):
        return date.astype("M8[us]").item()
    return date


def _read_only(values: Any, dimensions: int) -> Array:
    result = np.array(values, dtype=np.float64)
    if result.ndim != dimensions and len(result) > 0:
        raise ValueError(f"not of {dimensions} dimensions")
    result.setflags(write=False)
    return result
