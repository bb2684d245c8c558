"""Texts as C and C++ write them, and files that are written only when they changed."""

import json
import re
import textwrap
from pathlib import Path

WIDTH = 120
GENERATED = "// Printed by tools/catalogue from the .toml rows in src; change the row.\n"


def literal(text):
    """A C string literal; JSON escapes the characters that a checked text can hold as C does."""
    return "nullptr" if text is None else json.dumps(text)


def outside_code(text, escape):
    """The text with `escape` applied to what stands outside of backticks."""
    return "".join(part if part.startswith("`") else escape(part) for part in re.split(r"(`[^`]*`)", text))


def write(path, text):
    path = Path(path)
    if path.is_file() and path.read_bytes() == text.encode():
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(text.encode())


def paragraphs(text):
    """The paragraphs of a row's text: lists of one line, or of a line for each item where it is a list."""
    result = []
    for paragraph in re.split(r"\n\s*\n", text.strip()):
        lines = []
        for line in map(str.strip, paragraph.splitlines()):
            if lines and not line.startswith("- "):
                lines[-1] += " " + line
            else:
                lines.append(line)
        result.append(lines)
    return [lines for lines in result if lines]


def wrap(text, first="", rest="", width=WIDTH - len(" * ")):
    return textwrap.wrap(text, width, initial_indent=first, subsequent_indent=rest, break_long_words=False,
                         break_on_hyphens=False)


def listing(head, items, tail):
    """`head` with an open bracket, the items, `tail`: broken between items and aligned behind the bracket."""
    lines = [head + items[0]]
    for position, item in enumerate(items[1:], 2):
        behind = tail if position == len(items) else ","
        if len(lines[-1]) + len(", ") + len(item) + len(behind) > WIDTH:
            lines[-1] += ","
            lines.append(" " * len(head) + item)
        else:
            lines[-1] += ", " + item
    return "\n".join(lines) + tail


def function_body(head, statement):
    line = f"{head} {{ {statement} }}"
    return line if len(line) <= WIDTH else f"{head} {{\n  {statement}\n}}"
