"""Pictures: elements of known orbits, figures that hold what the data say, the command."""

import os

import numpy as np
import pytest
import vcm
from conftest import CATALOGUE, SAMPLES, run_python

matplotlib = pytest.importorskip("matplotlib")
import vcm.plot
from vcm.__main__ import main
from vcm.plot.elements import EARTH_GM, EARTH_RADIUS, elements


def other_end(r: float, v: float) -> float:
    return 2.0 / (2.0 / r - v * v / EARTH_GM) - r


ORBITS = [  # position, velocity; inclination, distances at perigee and apogee
    ((42164, 0, 0), (0, (EARTH_GM / 42164) ** 0.5, 0), (0, 42164, 42164)),
    ((0, 0, 7000), (8.5, 0, 0), (90, 7000, other_end(7000, 8.5))),
    ((0, 2e4, 0), (-1.5 * 3**0.5, 0, 1.5), (30, other_end(2e4, 3), 2e4)),
    ((7000, 0, 0), (0, -11.0, 0), (180, 7000, np.inf)),
    ((7000, 0, 0), (1.0, 0, 0), (np.nan,) * 3),
    ((0, 0, 0), (0, 7.5, 0), (np.nan,) * 3),
    ((np.nan, 0, 0), (0, 7.5, 0), (np.nan,) * 3),
]


def test_elements_of_known_orbits() -> None:
    found = elements(*([orbit[i] for orbit in ORBITS] for i in range(2)))
    expected = np.transpose([orbit[2] for orbit in ORBITS])
    assert found.inclination == pytest.approx(expected[0], abs=1e-12, nan_ok=True)
    assert found.perigee + EARTH_RADIUS == pytest.approx(expected[1], nan_ok=True)
    assert found.apogee + EARTH_RADIUS == pytest.approx(expected[2], nan_ok=True)
    assert found.open.tolist() == [False] * 3 + [True] + [False] * 3
    assert found.degenerate.tolist() == [False] * 4 + [True] * 3


@pytest.mark.parametrize("copies", [1, 3])  # marks, and a cloud
def test_catalogue_shows_every_message_or_tells_of_it(copies: int) -> None:
    vcm.load(CATALOGUE)
    table = np.tile(vcm.table(), copies)
    for axis in "XYZ":
        table["eciVel" + axis][:3] *= (5.0, 0.6, 0.0)  # open, striking the Earth, at rest
    table["epoch"][3] = np.datetime64("NaT")
    figure = vcm.plot.catalogue(table)
    orbits, epochs = figure.axes
    clouds = [np.asarray(each.get_offsets()) for each in orbits.collections]
    points = np.concatenate([each for each in clouds if len(each) > 1])
    assert len(points) == 2 * (len(table) - 2) - 1 and (points[:, 0] > 0).all()
    assert (orbits.get_xlabel(), orbits.get_xscale()) == ("altitude (km)", "log")
    assert any(each.get_rasterized() for each in orbits.collections) == (copies > 1)
    years, counts = np.unique(np.delete(table["epoch"], 3).astype("M8[Y]"), return_counts=True)
    starts = [matplotlib.dates.num2date(bar.get_x()).date() for bar in epochs.patches]
    assert starts == years.astype("M8[D]").tolist()
    assert [bar.get_height() for bar in epochs.patches] == counts.tolist()
    assert epochs.get_ylabel() == "messages per year"
    assert figure._supxlabel.get_text() == (
        "left out: open orbits 1, degenerate states 1, perigees below the surface 1, epochs that are no date 1"
    )  # fmt: skip


AXES = [  # altitudes of perigee and apogee, epochs; ticks of altitudes in view, date in the corner
    ((1127.9, 1128.1), ["2026-09-03T22:10"], "1,124 1,126 1,128 1,130 1,132", "2026-Sep-03"),
    ((22, 7e8), ["2026-12-10", "2026-12-31"], "100 10,000 1,000,000 100,000,000", "2026-Dec"),
    ((0.05, 29), ["2026-07-31", "2026-12-30"], "0.1 0.3 1 3 10 30", "2026"),
    ((250, np.inf), ["2026-09-03T23:10", "2026-09-04T00:50"], "", "2026-Sep-04"),
]


@pytest.mark.parametrize(("ends", "epochs", "ticks", "corner"), AXES)
@pytest.mark.parametrize("title", ["of some words " * 20, "a_file_name" * 25])
def test_axes_and_titles_are_whole(ends, epochs, ticks, corner, title) -> None:  # type: ignore[no-untyped-def]
    table = np.zeros(len(epochs), vcm.table().dtype)
    near, far = np.array(ends) + EARTH_RADIUS
    table["eciPosX"], table["eciVelY"] = near, np.sqrt(2 * EARTH_GM / (near + near**2 / far))
    table["epoch"] = epochs
    figure = vcm.plot.catalogue(table, title=title)
    figure.draw_without_rendering()
    (orbits, dates), above = figure.axes, figure._suptitle.get_window_extent()
    low, high = orbits.get_xlim()
    shown = [each for each in orbits.get_xticklabels() if low <= each.get_position()[0] <= high]
    assert " ".join(each.get_text() for each in shown) == ticks
    said = [each.get_text() for each in orbits.texts]
    assert said == ["no closed orbits above the surface"] * (orbits.get_legend() is None)
    assert dates.xaxis.get_offset_text().get_text() == corner
    assert figure._suptitle.get_text().split() == title.split() or " " not in title
    assert above.x0 >= 0 and above.y0 > orbits.bbox.y1 and (above.max <= figure.bbox.max).all()


def test_covariance_is_drawn_as_correlations() -> None:
    vcm.load(SAMPLES / "covariance.vcm")
    record = vcm.get(vcm.find(90411))
    for n in range(9, 5, -1):
        figure = vcm.plot.covariance(record.replace(covariance=record.covariance[:n, :n]))
        shown = np.asarray(figure.axes[0].images[0].get_array())
        assert shown.shape == (n, n) and (shown == shown.T).all() and (np.diag(shown) == 1).all()
        sigmas = np.sqrt(np.diag(record.covariance))[:n]
        assert shown * np.outer(sigmas, sigmas) == pytest.approx(record.covariance[:n, :n])
    sigmas = [("m", record.posSigmas), ("m/s", record.velSigmas)]
    for axes, (unit, expected) in zip(figure.axes[-2:], sigmas):
        assert axes.get_ylabel() == unit
        assert [bar.get_height() for bar in axes.patches] == pytest.approx(expected * 1000)
    broken = record.covariance.copy()
    broken[2, 2], broken[0, 1], broken[1, 0] = -1.0, 1.0, 1.0
    figure = vcm.plot.covariance(record.replace(covariance=broken))
    assert np.ma.getmaskarray(figure.axes[0].images[0].get_array()).sum() == 17
    assert figure._supxlabel.get_text() == "no positive variance of L; 1 correlation beyond ±1"


COMMANDS = [  # arguments; exit code, what is said, how the picture begins
    ("catalogue.vcm -o P.png", 0, "", b"\x89PNG"),
    ("- -k epochs -o P.pdf", 0, "", b"%PDF"),
    ("covariance.vcm -s 90411 --title a$b$c -o P.svg", 0, "", b"<?xml"),
    ("/dev/null broken.vcm catalogue.vcm -o P.png", 1, "@ 'ECI POS'", b"\x89PNG"),
    ("broken.vcm -o P.png", 1, "@ 'ECI POS'", b"\x89PNG"),
    ("catalogue.vcm -s 1 -o P.png", 0, "no positive variance of af, ag, Bdot, AGOM", b"\x89PNG"),
    ("catalogue.vcm -s 22550596187185 -o P.png", 0, "satellite 1: no positive", b"\x89PNG"),
    ("catalogue.vcm -s 99999999999999999999 -o P.png", 1, "no message of key 9999999", b""),
    ("catalogue.vcm -s -1 -o P.png", 2, "'-1' is no satellite number and no key", b""),
    ("features.vcm -s 2 -o P.png", 1, "satellite 2 has no covariance", b""),
    ("catalogue.vcm -s 999 -o P.png", 1, "catalogue.vcm: no message of satellite 999", b""),
    ("/dev/null -o P.png", 1, "/dev/null: no messages", b""),
    ("catalogue.vcm absent.vcm -o P.png", 2, "absent.vcm: No such file", b""),
    ("catalogue.vcm -o absent/P.png", 2, "absent/P.png: No such file", b""),
    ("catalogue.vcm -o P.gif", 2, "ends in none of .png, .svg, .pdf", b""),
    ("catalogue.vcm -k covariance -o P.png", 2, "--satellite and --kind covariance", b""),
    ("catalogue.vcm", 2, "no window", b""),
]


@pytest.mark.parametrize(("arguments", "code", "told", "begin"), COMMANDS)
def test_command(arguments, code, told, begin, tmp_path, capsys, monkeypatch) -> None:  # type: ignore[no-untyped-def]
    monkeypatch.chdir(tmp_path)
    for sample in SAMPLES.iterdir():
        (tmp_path / sample.name).symlink_to(sample)
    with open("catalogue.vcm") as given:
        os.dup2(given.fileno(), 0)
    matplotlib.use("agg")  # opens no window
    pictures = []
    for _ in range(2):
        vcm.clear()
        try:
            ended = main(["plot", *arguments.split()])
        except SystemExit as usage:
            ended = usage.code
        said = capsys.readouterr().err
        pictures.append(b"".join(path.read_bytes() for path in tmp_path.glob("P.*")))
        assert ended == code and told in said and bool(told) == bool(said), said
    assert pictures[0] == pictures[1] and pictures[0].startswith(begin)
    assert bool(pictures[0]) == bool(begin)


def test_without_matplotlib() -> None:
    code = (
        "import sys; sys.modules['matplotlib'] = None; sys.stderr = sys.stdout; import vcm.__main__"
    )
    said = run_python(
        f"{code}; print(vcm.__main__.main(['plot', {str(CATALOGUE)!r}, '-o', 'P.png']))"
    )
    assert "plot needs matplotlib" in said and said.endswith("\n2\n")
