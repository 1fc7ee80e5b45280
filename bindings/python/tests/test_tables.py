"""The table, held against the records; and records where there is no numpy."""

from typing import Any

import numpy as np
import pytest
import vcm
from conftest import CATALOGUE, SAMPLES, UNFIT, message, run_python


def columns_of(record: vcm.Record) -> dict[str, object]:
    """A record as the table should show it."""
    row: dict[str, object] = {"covMtxSize": record.covMtxSize}
    for name in record.__dataclass_fields__:
        value = getattr(record, name)
        if name.endswith(("Pos", "Vel", "Sigmas")):
            row |= zip((name + c for c in ("UVW" if "Sigmas" in name else "XYZ")), value)
        elif name != "covariance":
            row[name] = value
    for name in ("epoch", "leapSecondTime"):
        row[name] = np.datetime64(getattr(record, name).replace(tzinfo=None), "us")
    elements = ("af", "ag", "L", "n", "chi", "psi", "B", "Bdot", "AGOM")
    for i, element in enumerate(elements):
        for j in range(i + 1):
            known = i < record.covMtxSize
            row[f"cov_{element}_{elements[j]}"] = record.covariance[i][j] if known else 0.0
    return row


def test_each_row_is_its_record() -> None:
    vcm.load(SAMPLES / "features.vcm")
    vcm.load(CATALOGUE)
    odd = vcm.add(vcm.to_record(message(900)).replace(geoName="\xe9 g", intlDes="", f10=-5))
    table = vcm.table(order=vcm.Order.LOADED)
    assert table["satKey"].tolist() == vcm.keys(vcm.Order.LOADED) and table["satKey"][-1] == odd
    for row in table:
        expected = columns_of(vcm.get(int(row["satKey"])))
        assert {name: row[name] for name in table.dtype.names if name != "satKey"} == expected


def test_some_rows_and_columns(
    monkeypatch: pytest.MonkeyPatch, caplog: pytest.LogCaptureFixture
) -> None:
    vcm.load(CATALOGUE)
    keys = vcm.keys()[7::-1]
    table = vcm.table(keys, columns=["epochDays", "satKey"])
    assert table.dtype.names == ("epochDays", "satKey") and table["satKey"].tolist() == keys
    assert table["satKey"][0] in vcm.store and vcm.get(table["satKey"][0]) == vcm.get(keys[0])
    assert vcm.table(keys, columns="bTerm").dtype.names == ("bTerm",)
    wrong: dict[str, Any] = {
        "'nothing'; see": {"columns": ["nothing"]},
        "'EPOCHDAYS'; did you mean epochDays": {"columns": "EPOCHDAYS"},
        "f10 is chosen twice": {"columns": ["f10", "bTerm", "f10"]},
        "'key' is no vcm.Order": {"order": "key"},
    }
    for text, chosen in wrong.items():
        with pytest.raises(vcm.RefusedError, match=text):
            print(text, vcm.table(**chosen))
    caplog.clear()
    vcm.remove(keys[3])
    monkeypatch.setattr(vcm.messages, "keys", lambda order: keys)  # listed before the removal
    assert vcm.table()["satKey"].tolist() == keys[:3] + keys[4:] and not caplog.records
    vcm.clear()
    assert len(vcm.table()) == 0


def test_without_numpy_vectors_are_tuples() -> None:
    shown = run_python(
        f"""
import sys; sys.modules['numpy'] = None
from math import inf, nan
import vcm
vcm.load({str(CATALOGUE)!r})
record = vcm.get(vcm.find(13))
vcm.clear(); assert vcm.get(vcm.add(record)) == record == vcm.to_record(vcm.to_lines(record))
for name, values in {UNFIT!r}.items():
    for value in values:
        try: print(name, value, record.replace(**{{name: value}}))
        except vcm.RefusedError as error: assert name in str(error), error
print(record.eciPos, *record.covariance)
try: vcm.table()
except ImportError: print('no table')
"""
    )
    vcm.load(CATALOGUE)
    record = vcm.get(vcm.find(13))
    rows = [tuple(map(float, vector)) for vector in (record.eciPos, *record.covariance)]
    assert shown == " ".join(map(str, rows)) + "\nno table\n"
