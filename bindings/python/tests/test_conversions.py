"""Texts, records and arrays into one another."""

import re
from functools import partial
from typing import Any

import pytest
import vcm
from conftest import CATALOGUE, SAMPLES, TEXTS


def without(pattern: str, text: str) -> str:
    """The text with blanks for what one of its forms leaves out."""
    return re.sub(pattern, lambda found: " " * len(found[0]), text).rstrip()


def test_every_form_says_the_same() -> None:
    vcm.load(CATALOGUE)
    one_liners = (SAMPLES / "catalogue.one").read_text().splitlines()
    for key, lines, one_line in zip(vcm.keys(vcm.Order.LOADED), TEXTS, one_liners, strict=True):
        record = vcm.get(key)
        assert lines == vcm.get_lines(key) == vcm.to_lines(lines) == vcm.to_lines(record)
        assert lines == vcm.to_lines(record.to_arrays()) and record == vcm.to_record(lines)
        assert vcm.to_one_line(one_line) == one_line.rstrip()
        assert without(r"OBJECT \d+", one_line) == vcm.to_one_line(lines) == vcm.to_one_line(record)
        leap_second = r"LEAP SECOND TIME.*"
        assert without(leap_second, lines) == without(leap_second, vcm.to_lines(one_line))
        unknown = vcm.to_record(one_line).leapSecondTime
        assert record.replace(leapSecondTime=unknown) == vcm.to_record(one_line)


def test_what_is_no_message() -> None:
    key = vcm.add(TEXTS[0])
    stored, blanks, json = vcm.get_arrays(key), " " * 512, ' [{"satNum": 5}]'
    refused: list[Any] = ["", "hello", "<>", TEXTS[0][:900], "\0", "€", json]
    refused += [([13.0], ""), ([0] * 513, blanks), (["x"] * 512, blanks)]
    others: list[Any] = [None, 5, b"x", (5, blanks), ([0] * 512, b" " * 512), [[0] * 512, blanks]]
    convert = [vcm.to_lines, vcm.to_one_line, vcm.to_arrays, vcm.to_record]
    for wrong in refused + others:
        for take in (*convert, vcm.add, partial(vcm.update, key)):
            with pytest.raises(vcm.RefusedError if wrong in refused else TypeError) as caught:
                print(take, wrong, take(wrong))
            assert ("vcm convert" in str(caught.value)) == (wrong == json), (take, wrong)
    assert vcm.get_arrays(key) == stored and vcm.keys() == [key]
