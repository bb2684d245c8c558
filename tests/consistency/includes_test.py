"""Which room may include which: from src to inc/ivic to the published headers, and nothing between programs."""

import re
import unittest

import project

PUBLISHED = ["platform/visa/include", "platform/ivi/include"]
# Folders that an include of a room may lead to, beside the folder of the file that includes.
ROOMS = {
    "inc/ivic": ["inc/ivic", *PUBLISHED],
    "src": ["src", "inc", "inc/ivic", *PUBLISHED],
    "platform/visa": ["platform/visa", *PUBLISHED],
    "platform/ivi": ["platform/ivi", *PUBLISHED],
    "instrument": ["instrument"],
    "examples": ["inc"],
}
PRINTED = {"error_codes.h", "enums.h", "handlers.h", "operations.h"}
OPERATING_SYSTEM = re.compile(r"(sys|linux|arpa|netinet|net|asm)/|windows|winsock|unistd\.h|pthread|poll\.h|dlfcn|fcntl")
INCLUDE = re.compile(r'^\s*#\s*include\s*([<"][^>"]+)[>"]', re.MULTILINE)


def sources(room):
    return [path for path in project.files()
            if path.as_posix().startswith(room + "/") and path.suffix in {".h", ".c", ".cpp"}]


def all_headers():
    return {path.as_posix() for path in project.files() if path.suffix == ".h"}


def includes(path):
    """Pairs of a name and whether it is looked for among the system's headers first."""
    return [(found[1:], found[0] == "<") for found in INCLUDE.findall(project.text(path))]


def leads_within(path, name, roots):
    """Whether an include of `name` in the file `path` finds a header in its own folder or under one of `roots`."""
    own = path.parent.as_posix()
    headers = all_headers()
    return any(f"{root}/{name}" in headers for root in roots) or (
        f"{own}/{name}" in headers and any(own == root or own.startswith(root + "/") for root in roots))


class Includes(unittest.TestCase):
    def test_every_include_stays_within_what_its_room_may_see(self):
        headers = all_headers()
        wrong = []
        for room, roots in ROOMS.items():
            self.assertTrue(sources(room), room)
            for path in sources(room):
                for name, system in includes(path):
                    if leads_within(path, name, roots) or (name in PRINTED and room in {"src", "inc/ivic"}):
                        continue
                    # In <> only what we publish can be meant: <limits.h> is not the limits.h of some room.
                    ours = {f"{folder}/{name}" for folder in ["inc", *PUBLISHED]} & headers if system else {
                        header for header in headers if header == name or header.endswith("/" + name)}
                    if ours:
                        wrong.append(f"{path}: {name}")
        self.assertEqual([], wrong)

    def test_the_driver_meets_the_operating_system_in_one_file(self):
        wrong = [f"{path}: {name}" for room in ("inc/ivic", "src") for path in sources(room)
                 for name, _ in includes(path)
                 if OPERATING_SYSTEM.match(name) and path.as_posix() != "inc/ivic/Ticks.cpp"]
        self.assertEqual([], wrong)

    def test_the_runtime_names_no_attribute_and_no_command_of_the_instrument(self):
        named = re.compile(r'KVTD481X2C_(ATTR|VAL)_|":[A-Z]{3,}')
        wrong = [f"{path}: {found.group()}" for path in sources("inc/ivic")
                 if (found := named.search(project.text(path)))]
        self.assertEqual([], wrong)


if __name__ == "__main__":
    unittest.main()
