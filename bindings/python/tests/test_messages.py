"""The store from Python: loading, listing, records, adding, changing."""

import errno
import math
import pickle
import re
from collections.abc import Callable
from datetime import UTC, datetime, timedelta, timezone
from functools import partial
from pathlib import Path
from typing import Any

import numpy as np
import pandas
import pytest
import vcm
from conftest import CATALOGUE, SAMPLES, TEXTS, UNFIT, message


def plain_reading(text: str) -> list[Any]:
    """A few fields of a message, as its lines show them to any reader."""
    fields = re.search(
        r"NUMBER: *(\d+) .*UTC\): (\d{4} \d{3}) \(.*?\) (\S+) .*ECI POS \(KM\):([^<]*)"
        r".*BALLISTIC COEF.*?: (.{13}) BDOT.*?: *(\S+).*UD,VD,WD SIGMAS \(KM/S\):([^<]*)"
        r".*\( \dx \d\) WTD RMS: (.{13})(.*)",
        text.replace("\n", " "),
    )
    assert fields, text
    number, day, time, position, b_term, b_dot, sigmas, rms, triangle = fields.groups()
    return [
        int(number),
        datetime.strptime(f"{day} {time}", "%Y %j %H:%M:%S.%f").replace(tzinfo=UTC),
        *map(float, (*position.split(), b_term, b_dot, *sigmas.split(), rms)),
        *(float(value) for value in re.findall(r"[-+]?\d?\.\d{5}E[-+]\d\d", triangle)),
    ]


def test_records_hold_what_the_lines_say() -> None:
    assert vcm.load(CATALOGUE) == vcm.LoadResult(300, 0, 0)
    keys = vcm.keys(vcm.Order.LOADED)
    for text, r in zip(TEXTS, map(vcm.get, keys), strict=True):
        told = [r.satNum, r.epoch, *r.eciPos, r.bTerm, r.bDot, *r.velSigmas, r.wtdRms]
        told += [r.covariance[i][j] for i in range(r.covMtxSize) for j in range(i + 1)]
        assert told == plain_reading(text)
        assert r.covMtxSize == 0 or (r.covariance == r.covariance.T).all()
    ascending = sorted(keys, key=lambda key: (vcm.get(key).satNum, vcm.get(key).epoch))
    assert vcm.keys() == ascending == vcm.keys(vcm.Order.SATELLITE_REVERSE)[::-1]
    assert vcm.keys(vcm.Order.KEY) == sorted(keys)


def test_counts_are_those_of_this_load(tmp_path: Path) -> None:
    (tmp_path / "named").write_text(message(7) + message(8))
    (tmp_path / "directives").write_text(f"VCMFIL = {tmp_path}/named\n{message(7)}{message(9)}")
    (tmp_path / "beyond").write_text(message(5, "2.903596202111", "9999.596202111"))
    for path, loaded, duplicate, bad, faults in [
        (SAMPLES / "broken.vcm", 2, 1, 4, 6),
        (SAMPLES / "broken.vcm", 0, 3, 4, 6),
        (SAMPLES / "catalogue.one", 299, 1, 0, 0),
        (tmp_path / "directives", 3, 1, 0, 0),
        (tmp_path / "beyond", 0, 0, 0, 1),
    ]:
        result = vcm.load(path)
        assert (result.loaded, result.duplicate, result.bad) == (loaded, duplicate, bad), path
        assert len(result.faults) == faults == len(result.messages) - duplicate, path


def test_files_that_cannot_be_loaded(tmp_path: Path) -> None:
    (tmp_path / "directives").write_text("VCMFIL = no-such-file\n")
    (tmp_path / "c.json").write_text(' \n[{"satNum": 5}]\n')
    for path, code, text in [
        (tmp_path / "missing", errno.ENOENT, "No such file"),
        (tmp_path, errno.EISDIR, "directory"),
        (f"{tmp_path}{'/.' * 300}/directives", errno.ENAMETOOLONG, "too long"),
        (tmp_path / "blank ", errno.EINVAL, "blanks"),
        (f"{tmp_path}/a\0b", errno.EINVAL, "NUL"),
        (tmp_path / "directives", errno.ENOENT, 'Unable to open file "no-such-file"'),
        (tmp_path / "c.json", errno.EINVAL, f"vcm convert {tmp_path}/c.json -o {tmp_path}/c.vcm"),
    ]:
        with pytest.raises(vcm.FileError, match=text) as caught:
            vcm.load(path)
        assert caught.value.errno == code and caught.value.filename == str(path)
    with pytest.raises(vcm.FileError):
        vcm.save(tmp_path / "missing" / "file")


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
    assert key == vcm.key(5, record.epoch - timedelta(microseconds=400))
    noon = datetime(2024, 2, 29, 12, tzinfo=UTC)
    assert vcm.key(5, np.int64(25000)) == vcm.key(5, 25000)
    for date in (noon, np.datetime64("2024-02-29T12"), "2024-060T12:00Z", "2024-02-29 14+02:00"):
        moved = record.replace(epoch=date, leapSecondTime=date)
        assert moved.epoch == noon == moved.leapSecondTime, date
        assert vcm.key(5, date) == vcm.key(5, noon) == vcm.key(5, "2024060120000.000"), date
    no_dates = ["2025-366", "2024-02-30", "2024-1", "2024-01-01+02:00", "2024060120000.000"]
    for wrong in (*no_dates, None, 5.0, np.datetime64("NaT"), pandas.NaT):
        with pytest.raises(vcm.RefusedError, match="no datetime"):
            print(record.replace(epoch=wrong).epoch)
    with pytest.raises(ValueError):
        record.eciPos[0] = 1
    square = [[i + j for j in range(6)] for i in range(6)]
    changed = record.replace(bTerm=0.5, covariance=square, leapSecondTime=datetime(2017, 1, 1))
    vcm.update(key, vcm.to_lines(changed))
    assert vcm.get(key) == changed
    vcm.store[key] = changed.replace(satNum=6)  # which stays as it is
    assert vcm.get(key) == changed
    vcm.save(tmp_path / "saved")
    vcm.save(tmp_path / "saved", append=True)
    del vcm.store[key]
    assert vcm.keys() == [] and vcm.store.get(key) is None
    assert vcm.load(tmp_path / "saved").duplicate == 1 and list(vcm.store.values()) == [changed]
    for beyond in (message(5, "2.903596202111", "9999.596202111"), message(5) + "\0"):
        with pytest.raises(vcm.RefusedError):
            vcm.add(beyond)


@pytest.mark.parametrize("name, values", UNFIT.items())
def test_records_refuse_what_their_fields_cannot_hold(name: str, values: list[Any]) -> None:
    for value in values:
        with pytest.raises(vcm.RefusedError, match=name):
            print(value, vcm.to_record(TEXTS[0]).replace(**{name: value}))


def test_what_is_not_there() -> None:
    key = vcm.add(message(5))
    record = vcm.get(key)
    actions: list[Callable[[int], object]]
    actions = [vcm.get, vcm.remove, vcm.get_lines, lambda unknown: vcm.update(unknown, record)]
    actions += [lambda unknown: vcm.find(unknown + 1), lambda unknown: vcm.table([key, unknown])]
    actions += [
        partial(vcm.get_field_text, name="f10"),
        partial(vcm.set_field, name="f10", value=1),
    ]
    for unknown in (key + 2, 0, -1, key + 2**64, 2**32 + 4, 2**63, -(2**70)):
        assert unknown not in vcm.store, unknown
        for action in actions:
            with pytest.raises(KeyError):
                print(action, unknown, action(unknown))
    beyond = [(-5, record.epoch), (2**32, 1e4), (5, 1e12), (5, math.nan)]
    for satellite, epoch in [*beyond, (5, "yesterday"), (5, "2026-13-01"), (5, None)]:
        with pytest.raises(vcm.RefusedError):
            print(satellite, epoch, vcm.key(satellite, epoch))
    assert vcm.keys() == [key]


def test_fields() -> None:
    key = vcm.add(message(5))
    record = vcm.get(key)
    for name in vcm.FIELD_NAMES:
        vector, axis = name[:-1], "XYZ".find(name[-1])
        if axis >= 0 and not hasattr(record, name):
            expected = getattr(record, vector)[axis]
        else:
            expected = getattr(record, name)
        assert vcm.get_field(key, name) == expected, name
        if name not in ("satNum", "epoch"):
            vcm.set_field(key, name, expected)
    assert vcm.get(key) == record  # each field was set to what it was
    for name, value, text in [
        ("bTerm", 1 / 3, "0.333333333333333"),
        ("bDot", 1e-99, "1.0000000000000000E-099"),
        ("f10", "78", "78"),
        ("geoName", "WGS-84   ", "WGS-84"),
        ("leapSecondTime", datetime(2017, 1, 1), "2017001000000.000"),
        ("leapSecondTime", "2018001000000.000", "2018001000000.000"),
    ]:
        vcm.set_field(key, name, value)
        assert vcm.get_field_text(key, name) == text
    assert vcm.get(key).bTerm == 1 / 3
    record = vcm.get(key)
    for name, value in {"bTerm": math.nan, "agom": "x", "f10": 1.5, "avgF10": 2**31, "satNum": 1,
                        "epoch": record.epoch, "leapSecondTime": "soon", "eciVelX": 5000,
                        "eciPos": 1, "lunarSolar": "MAYBE", "radPress": True}.items():  # fmt: skip
        with pytest.raises(vcm.RefusedError):
            vcm.set_field(key, name, value)
    assert vcm.get(key) == record
