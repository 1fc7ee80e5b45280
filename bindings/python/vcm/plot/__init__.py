"""Pictures of messages: `python3 -m vcm plot`, and the same as functions.

    import vcm.plot

    vcm.load("samples/catalogue.vcm")
    vcm.plot.catalogue(vcm.table()).savefig("catalogue.png")

They need numpy and matplotlib (Debian: python3-matplotlib), and no display: a figure is made
without pyplot. Each draws into the `figure` that is given, or else makes one, and returns it.
"""

from typing import TYPE_CHECKING, Any

from ..record import Record
from .command import add_arguments, run

if TYPE_CHECKING:
    from matplotlib.figure import Figure  # type: ignore[import]

__all__ = ["add_arguments", "catalogue", "covariance", "epochs", "run"]

# matplotlib is imported when a picture is drawn, so that `--help` does without.


def catalogue(table: Any, *, title: str = "", figure: "Figure | None" = None) -> "Figure":
    """Inclination against the altitudes of perigee and apogee, and beside it epochs over time.

    `table` is of `vcm.table()`, or a frame made of it; needed are the columns epoch, eciPosX to Z
    and eciVelX to Z. What has no place in the picture, open orbits and the like, is told below it.
    """
    from . import overview

    return overview.catalogue(table, title, figure)


def epochs(table: Any, *, title: str = "", figure: "Figure | None" = None) -> "Figure":
    """How many messages are of which time; of the table's columns, `epoch` is needed."""
    from . import overview

    return overview.epochs(table, title, figure)


def covariance(record: Record, *, title: str = "", figure: "Figure | None" = None) -> "Figure":
    """The correlations of a record's covariance, and beside them its position and velocity sigmas.

    Raises ValueError for a record without a covariance. What is no correlation, because a variance
    is not positive, stays grey and is told below.
    """
    from . import uncertainty

    return uncertainty.covariance(record, title, figure)
