"""What `cmake --install` leaves is complete: a stranger's program finds it by find_package and by pkg-config."""

import os
import pathlib
import tempfile
import unittest

import project

CONSUMER = project.SOURCE / "tests/consistency/consumer"


class InstalledTree(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.work = pathlib.Path(folder.name)
        cls.prefix = cls.work / "prefix"
        cls.succeed("cmake", "--install", project.BUILD, "--prefix", cls.prefix)

    @staticmethod
    def succeed(*command, **options):
        status, said = project.run(*command, **options)
        if status != 0:
            raise AssertionError(" ".join(str(word) for word in command) + "\n" + said)
        return said

    def installed(self, name):
        found = list(self.prefix.rglob(name))
        self.assertEqual(1, len(found), f"{name}: {found}")
        return found[0]

    def test_a_cmake_project_finds_the_driver_and_calls_it(self):
        build = self.work / "by_cmake"
        self.succeed("cmake", "-S", CONSUMER, "-B", build, "-G", "Ninja", f"-DCMAKE_PREFIX_PATH={self.prefix}",
                     f"-DCMAKE_C_COMPILER={project.fact('c_compiler')}", f"-DCMAKE_C_FLAGS={project.fact('c_flags')}")
        self.succeed("cmake", "--build", build)
        self.assertIn("TD48172C", self.succeed(build / "consumer"))
        self.assertIn("VISA", self.succeed(build / "visa_consumer"))

    def test_a_compiler_line_from_pkg_config_finds_the_driver_and_calls_it(self):
        if not project.fact("pkg_config"):
            self.skipTest("no pkg-config on this machine")
        folder = self.installed("KVTD481X2C.pc").parent
        flags = self.succeed(project.fact("pkg_config"), "--cflags", "--libs", "KVTD481X2C",
                             env={**os.environ, "PKG_CONFIG_PATH": str(folder)}).split()
        program = self.work / "by_pkg_config"
        self.succeed(project.fact("c_compiler"), *project.fact("c_flags").split(), "-std=c99", CONSUMER / "main.c",
                     "-o", program, *flags)
        self.assertIn("TD48172C", self.succeed(program, env={**os.environ, "LD_LIBRARY_PATH": str(folder.parent)}))

    def test_another_major_version_is_not_taken_for_this_one(self):
        status, said = project.run("cmake", "-S", CONSUMER, "-B", self.work / "too_new", "-G", "Ninja",
                                   f"-DCMAKE_PREFIX_PATH={self.prefix}", "-DWANTED=2.0",
                                   f"-DCMAKE_C_COMPILER={project.fact('c_compiler')}")
        self.assertNotEqual(0, status)
        self.assertIn("version: 1.0.0", said)

    def test_nothing_installed_remembers_where_it_was_built(self):
        for name in ("KVTD481X2CTargets.cmake", "KVTD481X2CConfig.cmake", "KVTD481X2C.pc"):
            words = self.installed(name).read_text(encoding="utf-8")
            self.assertNotIn(str(project.SOURCE), words, name)
            self.assertNotIn(str(self.prefix), words, name)
        library = self.installed("libKVTD481X2C.so")
        said = self.succeed(project.fact("readelf"), "--dynamic", "--wide", library)
        self.assertIn("Library runpath: [$ORIGIN", said)
        self.assertNotIn(str(project.BUILD), said)

    def test_program_headers_and_reference_are_there(self):
        self.assertTrue(os.access(self.installed("td481x2c-instrument"), os.X_OK))
        folder = self.installed("KVTD481X2C.h").parent
        self.assertTrue((folder / "visatype.h").is_file())
        self.assertEqual([], list(self.prefix.rglob("Tvr.h")), "the runtime's headers are nobody's business")
        self.assertIn("frequency.md", {page.name for page in self.installed("reference").iterdir()})

    def test_the_master_store_is_offered_apart_and_an_existing_one_stays(self):
        self.assertEqual([], list(self.prefix.rglob("IviConfigurationStore.xml")))
        root = self.work / "root"
        install = ["cmake", "--install", project.BUILD, "--component", "master_store"]
        self.succeed(*install, env={**os.environ, "DESTDIR": str(root)})
        (store,) = root.rglob("IviConfigurationStore.xml")
        self.assertIn("<Name>KVTD481X2C</Name>", store.read_text(encoding="utf-8"))
        store.write_text("somebody's own", encoding="utf-8")
        self.succeed(*install, env={**os.environ, "DESTDIR": str(root)})
        self.assertEqual("somebody's own", store.read_text(encoding="utf-8"))


if __name__ == "__main__":
    unittest.main()
