"""What the tests share: this build's facts, the source tree, and compilers that are asked a question."""

import functools
import json
import os
import pathlib
import subprocess
import sys

_FACTS = json.loads(pathlib.Path(os.environ["KVTD_CONSISTENCY"]).read_text(encoding="utf-8"))
SOURCE = pathlib.Path(_FACTS["source"])
BUILD = pathlib.Path(_FACTS["build"])
ROWS = _FACTS["rows"]
HEADER_FOLDERS = [SOURCE / "inc", SOURCE / "platform/visa/include"]

_NOT_OURS = {"build", "install", "__pycache__"}


def fact(name):
    return _FACTS[name]


@functools.cache
def files():
    """All files of the source tree, relative to it: what is built, and hidden folders but .ci, left out."""
    found = []
    for folder, folders, names in os.walk(SOURCE):
        folders[:] = sorted(f for f in folders if f not in _NOT_OURS and (f == ".ci" or not f.startswith(".")))
        found += [pathlib.Path(folder, name).relative_to(SOURCE) for name in sorted(names)]
    return found


def text(path):
    return (SOURCE / path).read_text(encoding="utf-8")


def run(*command, **options):
    """Runs a command to its end, which must come soon; gives its status and all it said."""
    done = subprocess.run([str(word) for word in command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, timeout=240, check=False, **options)
    return done.returncode, done.stdout


def catalogue(command, out):
    status, said = run(sys.executable, "-B", SOURCE / "tools/catalogue/catalogue.py", command, out, *ROWS)
    if status != 0:
        raise AssertionError(said)


def compile_only(compiler, flags, code, language):
    """Status and words of a compiler that reads `code` and writes nothing."""
    done = subprocess.run([compiler, *flags, "-fsyntax-only", "-x", language, "-"], input=code, text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=120, check=False)
    return done.returncode, done.stdout
