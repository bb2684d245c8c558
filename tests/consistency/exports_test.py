"""What the libraries export: the driver exactly its functions, the components their published families."""

import pathlib
import tempfile
import unittest

import project


def exported(library):
    """Names of the dynamic symbols that a library defines, without the name of its version."""
    status, said = project.run(project.fact("nm"), "--dynamic", "--defined-only", library)
    if status != 0:
        raise AssertionError(said)
    symbols = [line.split()[1:] for line in said.splitlines()]
    return {name.split("@")[0] for kind, name in symbols if kind != "A"}


class ExportedSymbols(unittest.TestCase):
    def test_the_driver_exports_every_function_of_the_rows_and_nothing_else(self):
        with tempfile.TemporaryDirectory() as folder:
            listed = pathlib.Path(folder, "exports")
            project.catalogue("exports", listed)
            expected = set(listed.read_text(encoding="utf-8").split())
        self.assertGreater(len(expected), 400)
        found = exported(project.fact("driver"))
        self.assertEqual((set(), set()), (expected - found, found - expected), "(missing, too many)")

    def test_the_embedded_visa_exports_operations_of_visa_alone(self):
        if not project.fact("visa"):
            self.skipTest("built with a vendor's VISA")
        found = exported(project.fact("visa"))
        self.assertEqual(set(), {name for name in found if not name.startswith("vi")})
        self.assertLessEqual({"viOpenDefaultRM", "viOpen", "viClose", "viGetAttribute", "viSetAttribute", "viPrintf",
                              "viQueryf", "viRead", "viWrite"}, found)

    def test_the_embedded_ivi_components_export_their_operations_alone(self):
        found = exported(project.fact("ivi"))
        self.assertEqual(set(), {name for name in found if not name.startswith(("IviSession_", "IviConfig_"))})
        self.assertLessEqual({"IviSession_New", "IviSession_Lock", "IviConfig_Initialize", "IviConfig_Deserialize"},
                             found)

    def test_the_driver_needs_no_library_but_the_components_and_the_languages(self):
        _, said = project.run(project.fact("readelf"), "--dynamic", "--wide", project.fact("driver"))
        needed = {line.split("[")[1].rstrip("]") for line in said.splitlines() if "(NEEDED)" in line}
        plain = {name for name in needed
                 if not name.startswith(("libstdc++.", "libm.", "libgcc_s.", "libc.", "ld-linux", "libasan.",
                                         "libubsan.", "libtsan."))}
        if project.fact("visa"):
            self.assertEqual({"libtvrivi.so", "libtvrvisa.so"}, {name.split(".so")[0] + ".so" for name in plain})
        self.assertIn("KVTD481X2C.so.1]", "".join(line for line in said.splitlines() if "(SONAME)" in line))


if __name__ == "__main__":
    unittest.main()
