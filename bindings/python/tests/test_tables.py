"""The table, held against the records."""

import subprocess
import sys

import numpy as np
import pytest
import vcm
from conftest import CATALOGUE, SAMPLES, message


def test_each_row_is_its_record() -> None:
    vcm.load(SAMPLES / "features.vcm")
    vcm.load(CATALOGUE)
    table = vcm.table(order=vcm.Order.LOADED)
    assert table["satKey"].tolist() == vcm.keys(vcm.Order.LOADED)
    components = {name + c: (name, i) for name in dir(vcm.Record) for cs in ("XYZ", "UVW")
                  for i, c in enumerate(cs)}  # fmt: skip
    elements = ["af", "ag", "L", "n", "chi", "psi", "B", "Bdot", "AGOM"]
    unseen = set(vcm.Record.__dataclass_fields__) - {"covariance"}
    for row in table:
        record = vcm.get(int(row["satKey"]))
        for name in table.dtype.names[1:]:
            if name.startswith("cov_"):
                i, j = (elements.index(element) for element in name.split("_")[1:])
                n = record.covMtxSize
                expected = record.covariance[i][j] if max(i, j) < n else 0.0
            elif name in ("epoch", "leapSecondTime"):
                expected = np.datetime64(getattr(record, name).replace(tzinfo=None), "us")
            elif name in components and hasattr(record, components[name][0]):
                vector, i = components[name]
                expected = getattr(record, vector)[i]
                unseen.discard(vector)
            else:
                expected = getattr(record, name)
            assert row[name] == expected, (row["satKey"], name)
            unseen.discard(name)
    assert not unseen and sum(name.startswith("cov_") for name in table.dtype.names) == 45


def test_choices() -> None:
    vcm.load(CATALOGUE)
    keys = vcm.keys()[7::-1]
    table = vcm.table(keys, columns=["epochDays", "satKey"])
    assert table.dtype.names == ("epochDays", "satKey") and table["satKey"].tolist() == keys
    with pytest.raises(vcm.NotFoundError, match=" 4 in"):
        vcm.table([*keys, 4])
    with pytest.raises(vcm.RefusedError, match="nothing"):
        vcm.table(columns=["nothing"])
    vcm.clear()
    assert len(vcm.table()) == 0


def test_odd_values() -> None:
    key = vcm.add(message(1))
    record = vcm.get(key).replace(leapSecondDays=float("nan"), geoName="\xe9 g", intlDes="", f10=-5)
    vcm.update(key, record)
    row = vcm.table([key])[0]
    assert row["geoName"] == "\xe9 g" and row["intlDes"] == "" and row["f10"] == -5
    assert row["leapSecondTime"] == np.datetime64(vcm.get(key).leapSecondTime.replace(tzinfo=None))


def test_pandas_takes_it() -> None:
    pandas = pytest.importorskip("pandas")
    vcm.load(CATALOGUE)
    frame = pandas.DataFrame(vcm.table())
    assert len(frame) == 300 and frame["epoch"].dt.year.between(1957, 2056).all()
    assert frame["posSigmasU"].sum() == pytest.approx(
        sum(r.posSigmas[0] for r in vcm.store.values())
    )


def test_without_numpy_vectors_are_tuples() -> None:
    code = f"""
import sys; sys.modules['numpy'] = None
import vcm
vcm.load({str(CATALOGUE)!r})
record = vcm.get(vcm.find(13))
vcm.clear(); assert vcm.get(vcm.add(record)) == record == vcm.to_record(vcm.to_lines(record))
n = record.covMtxSize
print(record.eciPos, n, all(record.covariance[i][j] == record.covariance[j][i] for i in range(n) for j in range(n)))
try: vcm.table()
except ImportError: print('no table')
"""
    done = subprocess.run([sys.executable, "-c", code], capture_output=True, text=True)
    vcm.load(CATALOGUE)
    record = vcm.get(vcm.find(13))
    position = tuple(map(float, record.eciPos))
    assert done.stdout == f"{position} {record.covMtxSize} True\nno table\n", done.stderr
