"""Shapes and tilts of orbits, from position and velocity.

They are osculating two-body elements: those of the ellipse that a satellite would follow from its
epoch on if the Earth were a point and nothing else pulled. The forces of a real orbit change them
all the time: near the Earth the altitudes swing by some ten kilometres within a revolution. The
state is the ECI (true of date) one, so that the inclination is against the true equator of date.
"""

from dataclasses import dataclass
from typing import Any

import numpy as np
import numpy.typing as npt

EARTH_GM = 398600.4418  # km3/s2
EARTH_RADIUS = 6378.137  # km, equatorial

Numbers = npt.NDArray[np.float64]


@dataclass(frozen=True)
class Elements:
    """Elements of many orbits; not-a-number where a state has none."""

    inclination: Numbers  # degrees, 0 to 180
    perigee: Numbers  # altitude above the equatorial radius, km
    apogee: Numbers  # infinite on an open orbit

    @property
    def degenerate(self) -> npt.NDArray[np.bool_]:
        """No orbit: the state is not finite, or moves along the radius or not at all."""
        return np.isnan(self.perigee)

    @property
    def open(self) -> npt.NDArray[np.bool_]:
        """A parabola or hyperbola."""
        return np.isinf(self.apogee)


def elements(position: npt.ArrayLike, velocity: npt.ArrayLike) -> Elements:
    """The elements of states (n x 3, km and km/s)."""
    r, v = (np.asarray(each, dtype=np.float64).reshape(-1, 3) for each in (position, velocity))
    with np.errstate(all="ignore"):  # what is not finite comes out as not-a-number
        distance, speed = _length(r), _length(v)
        momentum = np.cross(r, v)
        h = _length(momentum)
        is_orbit = np.isfinite(h) & (h > 1e-9 * distance * speed)
        # The energy form would lose half the digits on near-circular orbits.
        e = _length(np.cross(v, momentum) / EARTH_GM - r / distance[:, None])
        semi_latus_rectum = h * h / EARTH_GM
        closed = speed * speed * distance < 2.0 * EARTH_GM
        perigee = semi_latus_rectum / (1.0 + e) - EARTH_RADIUS
        apogee = np.where(closed, semi_latus_rectum / (1.0 - e) - EARTH_RADIUS, np.inf)
        inclination = np.degrees(
            np.arctan2(np.hypot(momentum[:, 0], momentum[:, 1]), momentum[:, 2])
        )
    return Elements(*(np.where(is_orbit, each, np.nan) for each in (inclination, perigee, apogee)))


def of_table(table: Any) -> Elements:
    """The elements of each row of `vcm.table()`, or of a frame made of it."""
    position, velocity = (
        np.column_stack([np.asarray(table[name + axis]) for axis in "XYZ"])
        for name in ("eciPos", "eciVel")
    )
    return elements(position, velocity)


def _length(vectors: Numbers) -> Numbers:
    return np.asarray(np.sqrt(np.einsum("ij,ij->i", vectors, vectors)))
