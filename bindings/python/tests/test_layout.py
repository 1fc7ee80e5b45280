"""What the package knows of the C interface, held against the header."""

import ctypes
import re

from conftest import ROOT
from vcm import FIELD_NAMES, Order, _layout, _library

HEADER = (ROOT / "include" / "vcm" / "Vcm.h").read_text()
DEFINES = re.findall(r"#define VCM_(\w+) +(\d+)(?: +/\*[*<]* *(.*?) *\*/)?$", HEADER, re.M)


def constants(prefix: str) -> dict[str, tuple[int, str]]:
    """Value and comment of the constants that begin so, lengths left out."""
    return {
        name.removeprefix(prefix): (int(value), comment)
        for name, value, comment in DEFINES
        if name.startswith(prefix) and not name.endswith("_LENGTH")
    }


def test_positions_and_lengths() -> None:
    places = {
        name: (at, int(text.split(":")[0])) for name, (at, text) in constants("CHAR_").items()
    }
    for name, (at, text) in constants("NUM_").items():
        last = re.match(r"to (\d+)", text)
        places[name] = (at, int(last[1]) - at + 1 if last else 1)
    known = _layout.NUMBERS | _layout.TEXTS
    assert {name.upper(): place for name, place in known.items()} == places
    for name, value, _ in DEFINES:
        assert getattr(_layout, name, int(value)) == int(value), name
    assert ", ".join(_layout.ELEMENTS) in re.sub(r"[\s*]+", " ", HEADER)
    assert {name: Order[name] for name in Order.__members__} == {
        name: value for name, (value, _) in constants("ORDER_").items()
    }


def test_fields_and_their_kinds() -> None:
    header = constants("FIELD_")
    assert [name.upper() for name in FIELD_NAMES] == list(header)
    for name, index in _layout.FIELDS.items():
        value, kind = header[name.upper()]
        assert index == value, name
        assert (name in _layout.INTEGERS) == bool(re.match(r"i\d", kind)), name
        assert (name in _layout.TEXTS) == kind.startswith("text"), name
        assert (name in _layout.DATES) == kind.startswith("date"), name


def test_functions_are_declared_as_in_the_header() -> None:
    plain = {"int32_t": ctypes.c_int32, "int64_t": ctypes.c_int64, "void": None}
    prototypes = re.findall(r"^VCM_API (\w+) (\w+)\(([^;]*)\) VCM_NOEXCEPT;", HEADER, re.MULTILINE)
    header = {name: (result, parameters.split(",")) for result, name, parameters in prototypes}
    for name, (result, arguments) in _library._FUNCTIONS.items():
        assert plain[header[name][0]] is result, name
        parameters = [text.strip() for text in header[name][1] if text.strip() != "void"]
        assert len(parameters) == len(arguments), name
        for parameter, argument in zip(parameters, arguments):
            by_address = "*" in parameter or "[" in parameter
            given = (
                (ctypes.c_void_p, ctypes.c_char_p) if by_address else (plain[parameter.split()[0]],)
            )
            assert argument in given, f"{name}: {parameter}"
