"""How the libraries are linked: no way in that the tool chain could have closed."""

import unittest

import project

LIBRARIES = [library for library in (project.fact("driver"), project.fact("visa"), project.fact("ivi")) if library]


def ask(*command):
    status, said = project.run(*command)
    if status != 0:
        raise AssertionError(said)
    return said


class Hardening(unittest.TestCase):
    def each(self):
        for library in LIBRARIES:
            with self.subTest(library=library):
                yield library

    def test_no_stack_is_executable_and_no_text_is_rewritten(self):
        for library in self.each():
            stack = [line for line in ask(project.fact("readelf"), "--segments", "--wide", library).splitlines()
                     if "GNU_STACK" in line]
            self.assertEqual(1, len(stack))
            self.assertNotIn("E", stack[0].split()[6])
            self.assertNotIn("TEXTREL", ask(project.fact("readelf"), "--dynamic", library))

    @unittest.skipUnless("_FORTIFY_SOURCE" in project.fact("c_flags"), "a build for development")
    def test_a_release_binds_all_at_once_and_protects_what_it_bound(self):
        for library in self.each():
            self.assertIn("BIND_NOW", ask(project.fact("readelf"), "--dynamic", library))
            self.assertIn("GNU_RELRO", ask(project.fact("readelf"), "--segments", "--wide", library))

    @unittest.skipUnless("_FORTIFY_SOURCE" in project.fact("c_flags"), "a build for development")
    def test_a_release_guards_its_stack_and_its_formatted_texts(self):
        for library in self.each():
            wanted = ask(project.fact("nm"), "--dynamic", "--undefined-only", library)
            self.assertIn("__stack_chk_fail", wanted)
            self.assertNotRegex(wanted, r" (v?snprintf|v?sprintf|fprintf)@")


if __name__ == "__main__":
    unittest.main()
