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


@pytest.mark.parametrize(
    "error, messages",
    [
        (vcm.RefusedError, ["", "hello", "<>", TEXTS[0][:900], "\0", "€"]),
        (vcm.RefusedError, [([13.0], ""), ([0] * 513, " " * 512), (["x"] * 512, " " * 512)]),
        (
            TypeError,
            [None, 5, b"x", (5, " " * 512), ([0] * 512, b" " * 512), [[0] * 512, " " * 512]],
        ),
    ],
)
def test_what_is_no_message(error: type[Exception], messages: list[Any]) -> None:
    key = vcm.add(TEXTS[0])
    stored = vcm.get_arrays(key)
    convert = [vcm.to_lines, vcm.to_one_line, vcm.to_arrays, vcm.to_record]
    for message in messages:
        for take in (*convert, vcm.add, partial(vcm.update, key)):
            with pytest.raises(error):
                print(take, message, take(message))
    assert vcm.get_arrays(key) == stored and vcm.keys() == [key]
    with pytest.raises(vcm.RefusedError, match="vcm convert"):
        vcm.add(' [{"satNum": 5}]')
