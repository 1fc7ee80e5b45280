"""numpy, where it is installed: vectors and matrices are its arrays then, and tuples otherwise."""

import importlib.util
from collections.abc import Iterable
from typing import TYPE_CHECKING, Any

if TYPE_CHECKING:
    import numpy as np
    import numpy.typing as npt

    Array = npt.NDArray[np.float64]

HAS_NUMPY = importlib.util.find_spec("numpy") is not None


def vector(values: Iterable[float]) -> Any:
    """Numbers as an array that may not be changed."""
    return _array(tuple(map(float, values)))


def matrix(rows: Iterable[Iterable[float]]) -> Any:
    """Rows of numbers as a matrix that may not be changed."""
    return _array(tuple(tuple(map(float, row)) for row in rows))


def _array(values: tuple[Any, ...]) -> Any:
    if not HAS_NUMPY:
        return values
    import numpy as np

    result = np.array(values, dtype=np.float64)
    result.setflags(write=False)
    return result
