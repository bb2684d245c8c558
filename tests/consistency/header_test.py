"""The public header: printed from the rows, and good for every language that includes it."""

import pathlib
import shutil
import tempfile
import unittest

import project

WARNINGS = ["-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wshadow", "-Wundef", "-Werror"]
FOLDERS = [word for folder in project.HEADER_FOLDERS for word in ("-I", str(folder))]

# A parameter that is missing, or that is none of the function's, is a warning too.
DOXYGEN = """
INPUT = {header}
INCLUDE_PATH = {include}
MACRO_EXPANSION = YES
EXPAND_ONLY_PREDEF = YES
PREDEFINED = KVTD481X2C_API= _VI_FUNC=
OUTPUT_DIRECTORY = {output}
GENERATE_HTML = NO
GENERATE_LATEX = NO
GENERATE_XML = YES
QUIET = YES
WARN_AS_ERROR = FAIL_ON_WARNINGS
"""


class PublicHeader(unittest.TestCase):
    def test_the_committed_header_is_what_the_rows_print(self):
        with tempfile.TemporaryDirectory() as folder:
            printed = pathlib.Path(folder, "KVTD481X2C.h")
            project.catalogue("header", printed)
            self.assertEqual(printed.read_text(encoding="utf-8"), project.text("inc/KVTD481X2C.h"),
                             "run: cmake --build --preset dev --target header")

    def test_the_committed_reference_is_what_the_rows_print(self):
        with tempfile.TemporaryDirectory() as folder:
            project.catalogue("reference", folder)
            printed = {page.name: page.read_text(encoding="utf-8") for page in pathlib.Path(folder).iterdir()}
            committed = {page.name: page.read_text(encoding="utf-8")
                         for page in (project.SOURCE / "docs" / "reference").iterdir()}
            self.assertEqual(printed, committed, "run: cmake --build --preset dev --target reference")

    def check(self, compilers, language, standards, flags):
        for compiler in compilers:
            for standard in standards:
                with self.subTest(compiler=compiler, standard=standard):
                    if not shutil.which(compiler):
                        self.skipTest(f"no {compiler} on this machine")
                    status, said = project.compile_only(
                        compiler, [f"-std={standard}", *WARNINGS, *flags, *FOLDERS],
                        "#include <KVTD481X2C.h>\n#include <KVTD481X2C.h>\n", language)
                    self.assertEqual((0, ""), (status, said))

    def test_it_compiles_alone_and_twice_in_c(self):
        self.check(["gcc", project.fact("clang") or "clang"], "c", ["c99", "c11", "c17"], ["-Wstrict-prototypes"])

    def test_it_compiles_alone_and_twice_in_cpp(self):
        self.check(["g++", project.fact("clangxx") or "clang++"], "c++", ["c++11", "c++17", "c++20"], [])

    def test_doxygen_reads_it_without_a_warning(self):
        if not shutil.which("doxygen"):
            self.skipTest("no doxygen on this machine")
        with tempfile.TemporaryDirectory() as folder:
            settings = pathlib.Path(folder, "Doxyfile")
            settings.write_text(DOXYGEN.format(header=project.SOURCE / "inc" / "KVTD481X2C.h",
                                               include=project.HEADER_FOLDERS[1], output=folder), encoding="utf-8")
            status, said = project.run("doxygen", settings)
            self.assertEqual((0, ""), (status, said))
            read = pathlib.Path(folder, "xml", "index.xml").read_text(encoding="utf-8")
            self.assertIn("<name>KVTD481X2C_InitWithOptions</name>", read)


if __name__ == "__main__":
    unittest.main()
