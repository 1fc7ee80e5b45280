"""Finds libvcm and declares its functions.

The library is loaded as `ctypes.CDLL`, which releases the interpreter lock for the length of each
call; the trace sink (see `_trace`) depends on that.
"""

import ctypes
import os
import sysconfig
from collections.abc import Iterator
from pathlib import Path

from .errors import LibraryNotFoundError

FILE_NAME = "libvcm.so.1"

_key, _code, _bytes, _out = (ctypes.c_int64, ctypes.c_int32, ctypes.c_char_p, ctypes.c_void_p)

# Result and arguments. Arrays are addresses: of a ctypes array, or a plain integer.
_FUNCTIONS = {
    "VcmInit": (_code, ()),
    "VcmGetInfo": (None, (_out,)),
    "VcmGetCount": (_code, ()),
    "VcmGetLoaded": (None, (_code, _out)),
    "VcmRemoveSat": (_code, (_key,)),
    "VcmRemoveAllSats": (_code, ()),
    "VcmGetSatKey": (_key, (_code,)),
    "VcmFieldsToSatKey": (_key, (_code, _bytes)),
    "VcmLoadFile": (_code, (_bytes,)),
    "VcmSaveFile": (_code, (_bytes, _code)),
    "VcmAddSatFrLines": (_key, (_bytes,)),
    "VcmAddSatFrFields": (_key, (_out, _out)),
    "VcmMultiLineTo1Line": (_code, (_bytes, _out)),
    "Vcm1LineToMultiLine": (_code, (_bytes, _out)),
    "VcmGetLines": (_code, (_key, _out)),
    "VcmGetField": (_code, (_key, _code, _out)),
    "VcmSetField": (_code, (_key, _code, _bytes)),
    "VcmRetrieveAllData": (_code, (_key, _out, _out)),
    "VcmUpdateSatFrFields": (_code, (_key, _out, _out)),
    "VcmStringToArray": (_code, (_bytes, _out, _out)),
    "VcmArrayToVcm1Line": (_code, (_out, _out, _out)),
    "VcmArrayToVcmLines": (_code, (_out, _out, _out)),
}


def _candidates() -> Iterator[str]:
    """Where the library may be, the likeliest first; a bare name is for the system's own search."""
    package = Path(__file__).resolve().parent
    for folder in package.parents:
        # PREFIX/lib/python3/dist-packages/vcm, or one folder deeper with a versioned python.
        if folder.name in ("lib", "lib64"):
            multiarch = sysconfig.get_config_var("MULTIARCH")
            for place in (folder, folder / multiarch if multiarch else folder):
                if (place / FILE_NAME).exists():
                    yield str(place / FILE_NAME)
    yield FILE_NAME
    checkout = package.parents[2] if len(package.parents) > 2 else package
    if (checkout / "include" / "vcm" / "Vcm.h").exists():
        for build in ("quickstart", "release"):
            yield str(checkout / "build" / build / "src" / FILE_NAME)


def load() -> ctypes.CDLL:
    """Loads libvcm and declares its functions.

    The environment variable VCM_LIBRARY names the library and, where it is set, nothing else is
    tried. Raises LibraryNotFoundError with everything that was tried.
    """
    chosen = os.environ.get("VCM_LIBRARY")
    tried = []
    for name in [chosen] if chosen else _candidates():
        try:
            library = ctypes.CDLL(name)
            for function, (result, arguments) in _FUNCTIONS.items():
                declared = getattr(library, function)
                declared.restype, declared.argtypes = result, arguments
            return library
        except (OSError, AttributeError) as error:  # the second: it is some other library
            tried.append(f"  {name}: {error}")
    hint = "VCM_LIBRARY names it" if chosen else "set VCM_LIBRARY to its path; tried here"
    raise LibraryNotFoundError(f"libvcm cannot be loaded ({hint}):\n" + "\n".join(tried))
