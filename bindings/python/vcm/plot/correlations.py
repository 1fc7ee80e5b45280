"""Correlations of a covariance."""

import numpy as np
import numpy.typing as npt

from .elements import Numbers


def correlations(covariance: npt.ArrayLike) -> Numbers:
    """The correlation matrix; not-a-number in rows and columns whose variance is not positive."""
    matrix = np.asarray(covariance, dtype=np.float64)
    variances = np.diag(matrix)
    sigmas = np.sqrt(np.where(variances > 0, variances, np.nan))
    result = matrix / np.outer(sigmas, sigmas)
    np.fill_diagonal(result, np.where(np.isnan(sigmas), np.nan, 1.0))
    return np.asarray(result)


def faults(matrix: Numbers, names: tuple[str, ...]) -> list[str]:
    """What keeps these correlations from being those of a covariance, if anything does."""
    without = [name for name, value in zip(names, np.diag(matrix)) if np.isnan(value)]
    found = [f"no positive variance of {', '.join(without)}"] if without else []
    if (beyond := int((np.abs(np.tril(matrix, -1)) > 1.0 + 1e-9).sum())) > 0:
        found.append(f"{beyond} correlation{'s' * (beyond > 1)} beyond ±1")
    return found
