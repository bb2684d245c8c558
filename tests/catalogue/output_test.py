"""What holds for every product: the order of its rows, when it is written, and the command itself."""

import os
import shutil
import subprocess
import sys

from toy_catalogue import GENERATOR, ToyCatalogue

PRODUCTS = ("header", "sources", "reference", "exports")


class Output(ToyCatalogue):
    def test_the_exports_are_sorted_one_on_a_line(self):
        self.assertEqual("""\
KVTD481X2C_GetToneAuto
KVTD481X2C_GetToneCount
KVTD481X2C_GetToneEnabled
KVTD481X2C_GetToneLabel
KVTD481X2C_GetTonePitch
KVTD481X2C_GetTonePitchF0
KVTD481X2C_GetToneShape
KVTD481X2C_GetToneSource
KVTD481X2C_PlayTone
KVTD481X2C_SetToneEnabled
KVTD481X2C_SetToneLabel
KVTD481X2C_SetTonePitch
KVTD481X2C_SetTonePitchF0
KVTD481X2C_SetToneRange
KVTD481X2C_SetToneShape
KVTD481X2C_SetToneSource
KVTD481X2C_explain
""", self.product("exports"))

    def test_the_order_and_the_place_of_the_files_change_nothing(self):
        elsewhere = shutil.copytree(self.rows, self.folder / "elsewhere")
        for product in PRODUCTS:
            with self.subTest(product):
                first = self.product(product)
                out = self.folder / "again" / product
                rows = sorted(elsewhere.glob("*.toml"), reverse=True)
                self.assertEqual((0, ""), self.run_generator(product, out, rows=rows))
                again = out.read_text() if out.is_file() else {file.name: file.read_text() for file in out.iterdir()}
                self.assertEqual(first, again)

    def test_a_file_that_did_not_change_is_not_written(self):
        for product in PRODUCTS:
            self.product(product)
        files = [file for product in PRODUCTS for file in
                 ([self.folder / product] if (self.folder / product).is_file() else (self.folder / product).iterdir())]
        for file in files:
            os.utime(file, (1, 1))
        for product in PRODUCTS:
            self.product(product)
        self.assertEqual([], [file.name for file in files if file.stat().st_mtime != 1])

    def test_a_file_that_changed_is_written(self):
        self.product("header")
        os.utime(self.folder / "header", (1, 1))
        self.replace("tone.toml", "Pitch of the tone.", "Height of the tone.")
        self.assertIn("Height of the tone.", self.product("header"))
        self.assertNotEqual(1, (self.folder / "header").stat().st_mtime)

    def test_a_wrong_row_leaves_the_old_product_alone(self):
        before = self.product("header")
        self.replace("tone.toml", 'unit = "Hz"\n', "")
        self.assertEqual((1, "tone.toml: TONE_PITCH: no 'unit'\n"),
                         self.run_generator("header", self.folder / "header"))
        self.assertEqual(before, (self.folder / "header").read_text())

    def test_the_command_ends_with_1_and_one_sentence_for_a_wrong_row(self):
        self.replace("tone.toml", 'unit = "Hz"\n', "")
        done = subprocess.run([sys.executable, "-B", GENERATOR / "catalogue.py", "check", *self.rows.glob("*.toml")],
                              capture_output=True, text=True, timeout=60, check=False)
        self.assertEqual((1, "", "tone.toml: TONE_PITCH: no 'unit'\n"), (done.returncode, done.stdout, done.stderr))

    def test_the_command_is_silent_when_all_is_well(self):
        done = subprocess.run([sys.executable, "-B", GENERATOR / "catalogue.py", "exports", self.folder / "out",
                               *self.rows.glob("*.toml")], capture_output=True, text=True, timeout=60, check=False)
        self.assertEqual((0, "", ""), (done.returncode, done.stdout, done.stderr))
