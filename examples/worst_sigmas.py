"""Which satellites of a catalogue are known worst along the radius?

    worst_sigmas.py MESSAGES [HOW_MANY]
    worst_sigmas.py samples/catalogue.vcm 3

Takes the newest message of each satellite and lists those with the largest radial sigma.
"""

import sys

import pandas
import vcm


def worst(how_many: int) -> pandas.DataFrame:
    """The satellites with the largest radial sigma, the worst first."""
    columns = ["satNum", "intlDes", "epoch", "posSigmasU", "wtdRms"]
    frame = pandas.DataFrame(vcm.table(columns=columns))
    newest = frame.sort_values("epoch").drop_duplicates("satNum", keep="last")
    return newest.nlargest(how_many, "posSigmasU")


def main() -> None:
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    how_many = sys.argv[2] if len(sys.argv) == 3 else "10"
    if not how_many.isdecimal():
        sys.exit(f"{how_many!r} is no number of satellites")
    try:
        result = vcm.load(sys.argv[1])
    except vcm.FileError as error:
        sys.exit(str(error))
    print(worst(int(how_many)).to_string(index=False))
    print(f"{result.loaded} messages, {result.duplicate} duplicate, {result.bad} bad")


if __name__ == "__main__":
    main()
