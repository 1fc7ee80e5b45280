"""Texts, records and arrays into one another."""

import re

import vcm
from conftest import CATALOGUE, SAMPLES


def without_leap_second_time(text: str) -> str:
    return "\n".join(line for line in text.splitlines() if "LEAP SECOND" not in line)


def without_common_name(one_line: str) -> str:
    return re.sub(r"OBJECT \d+", lambda name: " " * len(name[0]), one_line).rstrip()


def test_every_form_says_the_same() -> None:
    vcm.load(CATALOGUE)
    one_liners = (SAMPLES / "catalogue.one").read_text().splitlines()
    file = CATALOGUE.read_text().split("<> SP VECTOR")[1:]
    for key, one_line, block in zip(vcm.keys(vcm.Order.LOADED), one_liners, file, strict=True):
        lines = "<> SP VECTOR" + block
        record = vcm.get(key)
        assert vcm.get_lines(key) == vcm.to_lines(lines) == vcm.to_lines(record) == lines
        assert vcm.to_lines(record.to_arrays()) == lines and vcm.to_record(lines) == record
        assert vcm.to_one_line(lines) == vcm.to_one_line(record) == without_common_name(one_line)
        assert vcm.to_one_line(one_line) == one_line.rstrip()
        assert without_leap_second_time(vcm.to_lines(one_line)) == without_leap_second_time(lines)
        assert vcm.to_record(one_line) == record.replace(
            leapSecondTime=vcm.to_record(one_line).leapSecondTime
        )


def test_what_is_no_message() -> None:
    for text in ("", "hello", "<>", "<> SP VECTOR/COVARIANCE MESSAGE - V2.0", "\0", "€"):
        for convert in (vcm.to_lines, vcm.to_one_line, vcm.to_arrays, vcm.to_record):
            try:
                assert not convert(text), (convert.__name__, text)
            except vcm.RefusedError:
                pass
