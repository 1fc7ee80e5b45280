"""The store from Python: loading, listing, records, adding, changing."""

import errno
import math
import pickle
from datetime import datetime, timedelta, timezone
from pathlib import Path

import pytest
import vcm
from conftest import CATALOGUE, SAMPLES, Plain, message, plain_messages


def lower_triangle(record: vcm.Record) -> list[float]:
    return [record.covariance[i][j] for i in range(record.covMtxSize) for j in range(i + 1)]


def test_records_hold_what_the_lines_say() -> None:
    assert vcm.load(CATALOGUE) == vcm.LoadResult(300, 0, 0)
    told = plain_messages(CATALOGUE.read_text())
    records = [vcm.get(key) for key in vcm.keys(vcm.Order.LOADED)]
    assert len(told) == len(records) == 300
    for lines, record in zip(told, records):
        assert [record.satNum] == lines.numbers("SATELLITE NUMBER:")[:1]
        assert record.epoch == lines.epoch
        assert list(record.eciPos) == lines.numbers("ECI POS (KM):")
        assert list(record.velSigmas) == lines.numbers("UD,VD,WD SIGMAS (KM/S):")
        assert [record.bTerm, record.bDot] == coefficients(lines)
        assert lower_triangle(record) == lines.triangle
        assert record.covMtxSize == 0 or (record.covariance == record.covariance.T).all()


def coefficients(lines: Plain) -> list[float]:
    return [lines.numbers("COEF (M2/KG):")[0], lines.numbers("BDOT (M2/KG-S):")[0]]


@pytest.mark.parametrize(
    ("order", "expected"),
    [
        (vcm.Order.SATELLITE, lambda r: (r.satNum, r.epochDays)),
        (vcm.Order.SATELLITE_REVERSE, lambda r: (-r.satNum, -r.epochDays)),
    ],
)
def test_orders(order: vcm.Order, expected: object) -> None:
    vcm.load(CATALOGUE)
    records = [vcm.get(key) for key in vcm.keys(order)]
    assert records == sorted(records, key=expected)  # type: ignore[arg-type]
    assert vcm.keys(vcm.Order.KEY) == sorted(vcm.keys(order))


def test_counts_are_those_of_this_load(tmp_path: Path) -> None:
    (tmp_path / "named.vcm").write_text(message(7) + message(8))
    (tmp_path / "directives.vcm").write_text(
        f"VCMFIL = {tmp_path}/named.vcm\n{message(7)}{message(9)}"
    )
    for path, loaded, duplicate, bad in [
        (SAMPLES / "broken.vcm", 2, 1, 4),
        (SAMPLES / "broken.vcm", 0, 3, 4),
        (SAMPLES / "catalogue.one", 299, 1, 0),
        (tmp_path / "directives.vcm", 3, 1, 0),
    ]:
        result = vcm.load(path)
        assert (result.loaded, result.duplicate, result.bad) == (loaded, duplicate, bad), path
        assert sum("Duplicated" in line for line in result.messages) == duplicate, path


def test_files_that_cannot_be_opened(tmp_path: Path) -> None:
    (tmp_path / "directives.vcm").write_text("VCMFIL = no-such-file\n")
    for path, code, text in [
        (tmp_path / "missing", errno.ENOENT, "No such file"),
        (tmp_path, errno.EISDIR, "directory"),
        (tmp_path / ("x" * 600), errno.ENAMETOOLONG, "too long"),
        (str(tmp_path / "blank "), errno.EINVAL, "blanks"),
        (tmp_path / "directives.vcm", errno.ENOENT, 'Unable to open file "no-such-file"'),
    ]:
        with pytest.raises(vcm.FileError, match=text) as caught:
            vcm.load(path)
        assert caught.value.errno == code and caught.value.filename == str(path)
    with pytest.raises(vcm.FileError):
        vcm.save(tmp_path / "missing" / "file.vcm")


def test_records_go_back_as_they_came() -> None:
    vcm.load(SAMPLES / "features.vcm")
    vcm.load(CATALOGUE)
    keys = vcm.keys(vcm.Order.LOADED)
    records = [vcm.get(key) for key in keys]
    vcm.clear()
    assert [vcm.add(record) for record in records] == keys
    assert [vcm.get(key) for key in keys] == records
    with pytest.raises(vcm.DuplicateError, match="Duplicated") as caught:
        vcm.add(records[5].to_arrays())
    assert pickle.loads(pickle.dumps(caught.value)).key == keys[5]


def test_adding_and_changing(tmp_path: Path) -> None:
    key = vcm.add(message(5))
    record = vcm.get(key)
    assert key == vcm.find(5) == vcm.key(5, record.epoch) == vcm.key(5, record.epochDays)
    assert key == vcm.key(5, record.epoch.astimezone(timezone(timedelta(hours=-7))))
    square = [[i + j for j in range(6)] for i in range(6)]
    changed = record.replace(
        bTerm=0.0125, covariance=square, leapSecondTime=datetime(2017, 1, 1), satNum=6
    )
    vcm.update(key, changed)
    assert vcm.get(key) == changed.replace(satNum=5)
    vcm.save(tmp_path / "saved.vcm")
    vcm.save(tmp_path / "saved.vcm", append=True)
    vcm.clear()
    assert vcm.load(tmp_path / "saved.vcm") == vcm.LoadResult(1, 1, 0, (vcm_duplicate(key),))
    assert list(map(list, vcm.get(key).covariance)) == square
    vcm.remove(key)
    assert vcm.count() == 0 and vcm.keys() == []
    for refused in (message(5, " 1234.1234567890"), "", "hello", "€", message(5)[:900]):
        with pytest.raises(vcm.RefusedError):
            vcm.add(refused)
    for wrong in (dict(eciPos=(1, 2)), dict(covariance=[[1, 2]]), dict(covariance=[[0] * 10] * 10)):
        with pytest.raises(vcm.RefusedError):
            record.replace(**wrong)


def vcm_duplicate(key: int) -> str:
    return f"AddRecToMem: Duplicated record/key {key:19} found."


def test_what_is_not_there() -> None:
    key = vcm.add(message(5))
    record = vcm.get(key)
    for unknown in (key + 2, 0, -1, key + 2**64, 2**63, -(2**70)):
        assert unknown not in vcm.store, unknown
        for action in (vcm.get, vcm.remove, vcm.get_lines, lambda k: vcm.update(k, record),
                       lambda k: vcm.set_field(k, "f10", 1), lambda k: vcm.get_field_text(k, "f10")):  # fmt: skip
            with pytest.raises(vcm.NotFoundError):
                action(unknown)
    for satellite in (6, -1, 2**32 + 5):
        with pytest.raises(KeyError):
            vcm.find(satellite)
    for satellite, epoch in [(5, "yesterday"), (5, math.nan), (-5, record.epoch), (5, 1e12)]:
        with pytest.raises(vcm.RefusedError):
            vcm.key(satellite, epoch)
    assert vcm.keys() == [key]


def test_fields() -> None:
    key = vcm.add(message(5))
    for name in vcm.FIELD_NAMES:
        value = vcm.get_field(key, name)
        vector, component = name[:-1], name[-1:]
        whole = getattr(vcm.get(key), vector if hasattr(vcm.Record, vector) else name)
        assert value == (whole if vector == "" or whole is value or not hasattr(whole, "shape")
                         else whole["XYZ".index(component)]), name  # fmt: skip
        if name not in ("satNum", "epoch"):
            vcm.set_field(key, name, value)  # what was read may be set, and changes nothing
            assert vcm.get_field(key, name) == value, name
    for name, value in [("bTerm", 1 / 3), ("bDot", 1e-300), ("f10", 77), ("f10", "78"), ("geoName", "WGS"),
                        ("leapSecondTime", datetime(2017, 1, 1, tzinfo=timezone.utc))]:  # fmt: skip
        vcm.set_field(key, name, value)
        assert str(vcm.get_field(key, name)) == str(value)
    assert vcm.get_field_text(key, "leapSecondTime") == "2017001000000.000"
    before = vcm.get(key)
    for name, wrong in [("bTerm", math.nan), ("bTerm", "x"), ("f10", 1.5), ("f10", 2**31), ("satNum", 1),
                        ("epoch", before.epoch), ("leapSecondTime", "soon"), ("eciVelX", 5000),
                        ("posSigmas", 1)]:  # fmt: skip
        with pytest.raises(vcm.RefusedError):
            vcm.set_field(key, name, wrong)
    assert vcm.get(key) == before


def test_the_store_is_a_mapping() -> None:
    vcm.load(SAMPLES / "features.vcm")
    assert list(vcm.store) == vcm.keys() and len(vcm.store) == vcm.count() > 3
    key, record = next(iter(vcm.store.items()))
    vcm.store[key] = record.replace(f10=99)
    assert vcm.store[key].f10 == 99 and key in vcm.store
    del vcm.store[key]
    assert vcm.store.get(key) is None
