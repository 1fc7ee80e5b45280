"""What the package knows of the C interface, held against the header."""

import ctypes
import re

from conftest import ROOT
from vcm import FIELD_NAMES, Order, _layout, _library

HEADER = (ROOT / "include" / "vcm" / "Vcm.h").read_text()
CONSTANTS = {
    name: (int(value), comment)
    for name, value, comment in re.findall(
        r"#define VCM_(\w+) +(\d+)(?: +/\*[*<]* *(.*?) *\*/)?$", HEADER, re.MULTILINE
    )
}


def constants(prefix: str) -> dict[str, tuple[int, str]]:
    return {
        name.removeprefix(prefix): value
        for name, value in CONSTANTS.items()
        if name.startswith(prefix) and not name.endswith("_LENGTH")
    }


def capitals(table: dict[str, tuple[int, int]]) -> dict[str, tuple[int, int]]:
    return {name.upper(): value for name, value in table.items()}


def test_positions_and_lengths() -> None:
    def length(position: int, comment: str) -> int:
        last = re.match(r"to (\d+)", comment)
        return int(last[1]) - position + 1 if last else 1

    numbers = {name: (at, length(at, text)) for name, (at, text) in constants("NUM_").items()}
    assert capitals(_layout.NUMBERS) == numbers
    texts = {name: (at, int(text.split(":")[0])) for name, (at, text) in constants("CHAR_").items()}
    assert capitals(_layout.TEXTS) == texts
    for name in (name for name in vars(_layout) if name.endswith("_LENGTH")):
        assert getattr(_layout, name) == CONSTANTS[name][0], name
    assert ", ".join(_layout.ELEMENTS) in re.sub(r"[\s*]+", " ", HEADER)
    assert {order.name: int(order) for order in Order} == {
        name: value for name, (value, _) in constants("ORDER_").items()
    }


def test_fields_and_their_kinds() -> None:
    header = constants("FIELD_")
    assert {name.upper(): i for name, i in _layout.FIELDS.items()} == {
        name: index for name, (index, _) in header.items()
    }
    for name in FIELD_NAMES:
        kind = header[name.upper()][1]
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
