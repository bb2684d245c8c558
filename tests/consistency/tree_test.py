"""The source tree: every folder is introduced, links lead somewhere, texts are clean."""

import os
import pathlib
import re
import unittest

import project

TEXTS = {".c", ".h", ".cpp", ".py", ".md", ".toml", ".cmake", ".txt", ".in", ".json", ".map", ".sh", ".yml", ""}
LINK = re.compile(r"\[[^\]]*\]\(([^)#\s]+)(?:#[^)]*)?\)")


def folders():
    return sorted({parent for path in project.files() for parent in path.parents if parent.name})


class SourceTree(unittest.TestCase):
    def test_every_folder_has_a_readme_or_is_introduced_by_the_next_one_above(self):
        readmes = {path.parent for path in project.files() if path.name == "README.md"}
        unknown = []
        for folder in folders():
            if folder in readmes:
                continue
            above = next(parent for parent in folder.parents if parent in readmes)
            words = project.text(above / "README.md")
            name = folder.relative_to(above).as_posix()
            if not re.search(rf"(?<![\w/]){re.escape(name)}(?!\w)", words):
                unknown.append(f"{folder} (not in {above / 'README.md'})")
        self.assertEqual([], unknown)

    def test_no_readme_is_long(self):
        long = [f"{path}: {count} lines" for path in project.files() if path.name == "README.md" and len(path.parts) > 1
                and path.parent != pathlib.Path("tools/catalogue") and (count := len(project.text(path).splitlines())) > 80]
        self.assertEqual([], long)

    def test_every_relative_link_in_a_page_leads_to_a_file(self):
        broken = []
        for path in (p for p in project.files() if p.suffix == ".md"):
            for target in LINK.findall(project.text(path)):
                if "://" not in target and not target.startswith("mailto:") and not (
                        project.SOURCE / path.parent / target).exists():
                    broken.append(f"{path}: {target}")
        self.assertEqual([], broken)

    def test_texts_have_no_tabs_no_trailing_blanks_and_end_with_one_line_feed(self):
        wrong = []
        for path in project.files():
            if path.suffix not in TEXTS or "data" in path.parts:
                continue
            words = project.text(path)
            for number, line in enumerate(words.split("\n"), 1):
                if "\t" in line or "\r" in line or line != line.rstrip():
                    wrong.append(f"{path}:{number}: tab, carriage return or trailing blank")
            if words and (not words.endswith("\n") or words.endswith("\n\n")):
                wrong.append(f"{path}: does not end with one line feed")
        self.assertEqual([], wrong)

    def test_nothing_is_left_for_later_without_being_said(self):
        marks = re.compile(r"\b(TO" r"DO|FIX" r"ME|X" r"XX|HA" r"CK)\b")
        wrong = [f"{path}: {found.group()}" for path in project.files()
                 if path.suffix in TEXTS and (found := marks.search(project.text(path)))]
        self.assertEqual([], wrong)

    def test_scripts_can_be_started(self):
        scripts = [path for path in project.files()
                   if path.parts[0] in {"script", ".ci", "examples"} and project.text(path).startswith("#!")]
        self.assertIn("script/demo", [path.as_posix() for path in scripts])
        self.assertEqual([], [str(path) for path in scripts if not os.access(project.SOURCE / path, os.X_OK)])


if __name__ == "__main__":
    unittest.main()
