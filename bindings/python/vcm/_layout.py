"""Where things stand in the C interface: the constants of Vcm.h that the package needs.

Names are those of the C interface, written as its functions' parameters are: the constant of a name
is the name in capitals. A test holds this module against the header.
"""

from typing import Final

INFO_LENGTH: Final = 128
FILE_NAME_LENGTH: Final = 512
TEXT_LENGTH: Final = 4000
ONE_LINE_LENGTH: Final = 1500
FIELD_VALUE_LENGTH: Final = 512
CHAR_ARRAY_LENGTH: Final = 512
NUM_ARRAY_LENGTH: Final = 512

# A line of a multi-line message.
LINE_WIDTH: Final = 80

# Of each number: its first position, counted from 0, and how many there are.
NUMBERS: Final[dict[str, tuple[int, int]]] = {
    "satNum": (0, 1), "epoch": (1, 1), "epochRev": (2, 1),
    "j2kPos": (3, 3), "j2kVel": (6, 3), "eciPos": (9, 3), "eciVel": (12, 3),
    "efgPos": (15, 3), "efgVel": (18, 3),
    "geoZonals": (21, 1), "geoTesserals": (22, 1),
    "bTerm": (23, 1), "bDot": (24, 1), "agom": (25, 1), "edr": (26, 1),
    "thrustAccel": (27, 1), "cmOffset": (28, 1),
    "f10": (29, 1), "avgF10": (30, 1), "avgAp": (31, 1),
    "taiMinusUtc": (32, 1), "ut1MinusUtc": (33, 1), "ut1Rate": (34, 1),
    "polarMotionX": (35, 1), "polarMotionY": (36, 1), "nutationTerms": (37, 1),
    "leapSecondTime": (38, 1), "initStepSize": (39, 1), "errorControl": (40, 1),
    "posSigmas": (41, 3), "velSigmas": (44, 3), "covMtxSize": (47, 1), "wtdRms": (48, 1),
    "covariance": (100, 45),
}  # fmt: skip

# Of each text: its first position, counted from 0, and its length.
TEXTS: Final[dict[str, tuple[int, int]]] = {
    "intlDes": (0, 8), "geoName": (33, 6), "dragModel": (39, 12),
    "lunarSolar": (51, 3), "radPress": (54, 3), "earthTides": (57, 3), "intrackThrust": (60, 3),
    "integMode": (63, 6), "coordSys": (69, 5), "partials": (74, 8), "stepMode": (82, 4),
    "fixedStep": (86, 3), "stepSelection": (89, 6),
}  # fmt: skip

# Numbers that are integers in a message, and those that are dates.
INTEGERS: Final = frozenset(
    "satNum epochRev geoZonals geoTesserals f10 avgF10 nutationTerms covMtxSize".split()
)
DATES: Final = frozenset(("epoch", "leapSecondTime"))

# What the three components of a vector are called: axes, or radial, in-track and cross-track.
COMPONENTS: Final = {
    name: "UVW" if name.endswith("Sigmas") else "XYZ"
    for name, (_, length) in NUMBERS.items()
    if length == 3
}

# The covariance's rows and columns.
ELEMENTS: Final = ("af", "ag", "L", "n", "chi", "psi", "B", "Bdot", "AGOM")

# The indexes of single fields.
FIELDS: Final[dict[str, int]] = {
    name: index
    for index, name in enumerate(
        (
            "satNum intlDes epoch epochRev eciPosX eciPosY eciPosZ eciVelX eciVelY eciVelZ geoName"
            " geoZonals geoTesserals dragModel lunarSolar radPress earthTides intrackThrust bTerm"
            " agom thrustAccel cmOffset f10 avgF10 avgAp taiMinusUtc ut1MinusUtc ut1Rate"
            " polarMotionX polarMotionY nutationTerms leapSecondTime integMode partials stepMode"
            " fixedStep stepSelection initStepSize errorControl wtdRms bDot edr"
        ).split(),
        start=1,
    )
}
