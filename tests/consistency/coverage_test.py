"""Every attribute and every exported operation is spoken of by a test of the driver."""

import pathlib
import re
import tempfile
import tomllib
import unittest

import project


def rows(kind):
    found = {}
    for path in project.ROWS:
        found |= tomllib.loads(pathlib.Path(path).read_text(encoding="utf-8")).get(kind, {})
    return found


def words_of_the_tests():
    """All words of the driver's tests. The macros' stems stand for the names that they make."""
    words = set()
    for path in project.files():
        if path.as_posix().startswith("tests/driver/") and path.suffix in {".cpp", ".h"}:
            words |= set(re.findall(r"\w+", project.text(path)))
    return words


class Coverage(unittest.TestCase):
    def test_every_attribute_is_in_a_test_of_the_driver(self):
        words = words_of_the_tests()
        missing = [name for name in rows("attribute") if not {name, "KVTD481X2C_ATTR_" + name} & words]
        self.assertEqual([], missing)

    def test_every_operation_is_in_a_test_of_the_driver(self):
        words = words_of_the_tests()
        missing = [name for name in rows("operation") if not {name, "KVTD481X2C_" + name} & words]
        self.assertEqual([], missing)

    def test_every_typed_function_is_in_a_test_of_the_driver(self):
        words = words_of_the_tests()
        missing = [row["export"] for row in rows("attribute").values() if "export" in row
                   and not {row["export"], "KVTD481X2C_Get" + row["export"], "KVTD481X2C_Set" + row["export"]} & words]
        self.assertEqual([], missing)

    def test_every_attribute_and_operation_has_its_place_in_the_reference(self):
        with tempfile.TemporaryDirectory() as folder:
            project.catalogue("reference", folder)
            words = {word for page in pathlib.Path(folder).glob("*.md") if page.name != "index.md"
                     for word in re.findall(r"`(\w+)`", page.read_text(encoding="utf-8"))}
        listed = ["KVTD481X2C_ATTR_" + name for name in rows("attribute")]
        self.assertGreater(len(listed), 200)
        self.assertEqual([], [name for name in listed if name not in words])


if __name__ == "__main__":
    unittest.main()
