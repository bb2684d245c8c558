"""The binary interface: what the first release has stays as it is; later releases add to it."""

import shutil
import subprocess
import tempfile
import unittest

import project

# Made from a debug build by:
#   abidw --exported-interfaces-only --no-corpus-path --no-comp-dir-path --no-show-locs --no-elf-needed LIBRARY
BASE = project.SOURCE / "tests/consistency/abi/libKVTD481X2C.so.1.abi"


def compare(base, library):
    return project.run("abidiff", "--no-added-syms", "--exported-interfaces-only", base, library)


@unittest.skipUnless(shutil.which("abidiff"), "no abidiff on this machine")
class BinaryInterface(unittest.TestCase):
    def test_nothing_of_the_first_release_has_changed(self):
        self.assertEqual((0, ""), compare(BASE, project.fact("driver")))

    def test_a_parameter_of_another_width_would_be_found(self):
        header = "ViStatus KVTD481X2C_SetFrequency(ViSession vi, {} value) {{ (void)vi; (void)value; return 0; }}\n"
        with tempfile.TemporaryDirectory() as folder:
            libraries = []
            for number, kind in enumerate(("ViReal64", "ViInt32")):
                library = f"{folder}/{number}.so"
                subprocess.run(["cc", "-g", "-shared", "-fPIC", "-x", "c", "-", "-o", library, "-I",
                                project.HEADER_FOLDERS[1]], input="#include <visatype.h>\n" + header.format(kind),
                               text=True, check=True)
                libraries.append(library)
            status, said = compare(*libraries)
        self.assertNotEqual(0, status)
        self.assertIn("KVTD481X2C_SetFrequency", said)


if __name__ == "__main__":
    unittest.main()
