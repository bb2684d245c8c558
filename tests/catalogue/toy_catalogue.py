"""The toy's rows, and the generator run on them in a folder of its own."""

import contextlib
import io
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

TOY = Path(__file__).resolve().parent / "toy"
GENERATOR = TOY.parents[2] / "tools" / "catalogue"
sys.path.insert(0, str(GENERATOR))

from catalogue import main  # noqa: E402  (found on the path just added)


class ToyCatalogue(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.rows = self.folder / "rows"
        shutil.copytree(TOY, self.rows)

    def replace(self, file, old, new):
        text = (self.rows / file).read_text()
        self.assertIn(old, text, "the toy does not have the text to be replaced")
        (self.rows / file).write_text(text.replace(old, new, 1))

    def append(self, file, text):
        with (self.rows / file).open("a") as rows:
            rows.write(text)

    def run_generator(self, *arguments, rows=None):
        """The exit code and what was said on standard error."""
        said = io.StringIO()
        with contextlib.redirect_stderr(said):
            code = main([*map(str, arguments), *map(str, rows or sorted(self.rows.glob("*.toml")))])
        return code, said.getvalue()

    def product(self, name):
        """The text of a product that is one file, or the texts of its files by name."""
        out = self.folder / name
        self.assertEqual((0, ""), self.run_generator(name, out))
        return out.read_text() if out.is_file() else {file.name: file.read_text() for file in out.iterdir()}
