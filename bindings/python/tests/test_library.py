"""Where the library is looked for."""

import os
import re
import shutil
import sysconfig
from pathlib import Path

import pytest
import vcm
from conftest import ROOT, run_python


@pytest.mark.parametrize("folder", ["lib", f"lib/{sysconfig.get_config_var('MULTIARCH')}"])
def test_beside_an_installed_package(tmp_path: Path, folder: str) -> None:
    packages = tmp_path / "lib" / "python3" / "dist-packages"
    shutil.copytree(ROOT / "bindings" / "python" / "vcm", packages / "vcm")
    library = tmp_path / folder / "libvcm.so.1"
    library.parent.mkdir(exist_ok=True)
    shutil.copy(os.path.realpath(os.environ["VCM_LIBRARY"]), library)
    code = "import vcm; vcm.count(); print(open('/proc/self/maps').read())"
    assert f" {library}\n" in run_python(code, VCM_LIBRARY="", PYTHONPATH=str(packages))


@pytest.mark.parametrize("wrong", ["/nowhere/libvcm.so", "libm.so.6"])
def test_a_library_that_is_none(monkeypatch: pytest.MonkeyPatch, wrong: str) -> None:
    monkeypatch.setenv("VCM_LIBRARY", wrong)
    with pytest.raises(vcm.LibraryNotFoundError, match=f"VCM_LIBRARY.*\n.*{wrong}"):
        vcm._library.load()


def test_the_package_has_the_version_of_the_library() -> None:
    project = re.search(r"project\(Vcm VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text())
    assert project and vcm.__version__ == project[1] in vcm.info()
