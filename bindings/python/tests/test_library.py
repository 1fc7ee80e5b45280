"""Where the library is looked for."""

import os
import shutil
import sysconfig
from pathlib import Path

import pytest
import vcm
from conftest import ROOT, run_python
from vcm import _trace

WHICH = """
import sys; sys.path.insert(0, {path!r})
import vcm; vcm.count()
print(next(line.split()[-1] for line in open('/proc/self/maps') if 'libvcm.so' in line))
"""


@pytest.mark.parametrize("folder", ["lib", "lib/" + (sysconfig.get_config_var("MULTIARCH") or "x")])
def test_beside_an_installed_package(tmp_path: Path, folder: str) -> None:
    packages = tmp_path / "lib" / "python3" / "dist-packages"
    shutil.copytree(ROOT / "bindings" / "python" / "vcm", packages / "vcm")
    library = tmp_path / folder / "libvcm.so.1"
    library.parent.mkdir(exist_ok=True)
    shutil.copy(os.path.realpath(_trace.library()._name), library)
    shown = run_python(WHICH.format(path=str(packages)), VCM_LIBRARY="", PYTHONPATH="")
    assert shown.strip() == str(library)


@pytest.mark.parametrize("wrong", ["/nowhere/libvcm.so", "libm.so.6"])
def test_a_library_that_is_none(wrong: str) -> None:
    shown = run_python(
        "import vcm\ntry: vcm.count()\nexcept vcm.LibraryNotFoundError as error: print(error)",
        VCM_LIBRARY=wrong,
    )
    assert "VCM_LIBRARY" in shown and wrong in shown


def test_what_the_library_says_of_itself() -> None:
    assert vcm.info().startswith("Vcm ")
