"""Reads the rows into plain objects and judges their shape: which keys a row has and of what kind each is.

What the values mean, and how rows fit one another, is check.py's.
"""

import re
import tomllib
from dataclasses import dataclass, field
from pathlib import Path

PREFIX = "KVTD481X2C"

# The C type that carries a value of each attribute type.
C_TYPES = {
    "boolean": "ViBoolean", "enum": "ViInt32", "integer": "ViInt32",
    "real": "ViReal64", "session": "ViSession", "string": "ViString",
}

KINDS = {str: "a text", int: "a whole number", bool: "true or false", list: "a list", dict: "a table"}


class RowError(Exception):
    """A wrong row, as the one sentence that is printed."""

    def __init__(self, file, row, sentence):
        super().__init__(f"{file}: {row}: {sentence}" if row else f"{file}: {sentence}")


@dataclass
class Row:
    file: str
    name: str

    def fail(self, sentence):
        raise RowError(self.file, self.name, sentence)


@dataclass
class Attribute(Row):
    id: int
    type: str
    frame: str
    brief: str
    get: str | None = None
    set: str | None = None
    export: str | None = None
    unit: str | None = None
    detail: str = ""
    sim: object = None
    then: str | None = None
    convert: str | None = None
    enum: str | None = None
    target: str | None = None
    access: str | None = None
    reads: str | None = None
    writes: str | None = None

    @property
    def macro(self):
        return f"{PREFIX}_ATTR_{self.name}"

    @property
    def constant(self):
        return "k" + camel(self.name)

    @property
    def c_type(self):
        return C_TYPES[self.type]

    @property
    def readable(self):
        return self.frame == "forward" or self.get is not None or "R" in (self.access or "")

    @property
    def writable(self):
        return self.frame == "forward" or self.set is not None or "W" in (self.access or "")

    @property
    def map(self):
        """The enumeration that translates the value, if one does."""
        return "BOOLEAN" if self.type == "boolean" and self.frame != "custom" else self.enum


@dataclass
class Value:
    name: str
    value: int
    words: list

    @property
    def macro(self):
        return self.name if self.name.startswith("VI_") else f"{PREFIX}_VAL_{self.name}"


@dataclass
class Enum(Row):
    converters: list
    values: list


@dataclass
class Error(Row):
    code: int
    text: str

    @property
    def macro(self):
        return f"{PREFIX}_{'ERROR' if self.code & 0x80000000 else 'WARN'}_{self.name}"

    @property
    def status(self):
        """The code as the signed 32-bit number that a ViStatus holds."""
        return self.code - 0x100000000 if self.code & 0x80000000 else self.code


@dataclass
class Argument:
    name: str
    type: str
    doc: str


@dataclass
class Operation(Row):
    brief: str
    detail: str = ""
    args: list = field(default_factory=list)
    vi: bool = True
    query: str | None = None
    scan: str | None = None
    write: str | None = None
    outputs: str | None = None
    sets: list = field(default_factory=list)
    sends: list = field(default_factory=list)
    simulated: str | None = None
    failures: list = field(default_factory=list)

    @property
    def function(self):
        return f"{PREFIX}_{self.name}"


@dataclass
class Room:
    """One file of rows; each kind of row in the order in which it is printed."""
    file: str
    stem: str
    title: str
    about: str
    attributes: list
    enums: list
    errors: list
    operations: list


@dataclass
class Catalogue:
    rooms: list

    def rows(self, kind):
        return [row for room in self.rooms for row in getattr(room, kind)]

    @property
    def attributes(self):
        return sorted(self.rows("attributes"), key=lambda row: row.id)

    @property
    def enums(self):
        return sorted(self.rows("enums"), key=lambda row: row.name)

    @property
    def errors(self):
        return sorted(self.rows("errors"), key=lambda row: row.status)

    @property
    def operations(self):
        return sorted(self.rows("operations"), key=lambda row: row.name)

    def enum(self, name):
        return next((row for row in self.rows("enums") if row.name == name), None)

    def attribute(self, name):
        return next((row for row in self.rows("attributes") if row.name == name), None)


# Key: kind, and "!" where the row cannot do without it. `sim` is judged with the attribute's type.
ATTRIBUTE = {"id": int, "type": str, "frame": str, "brief": str, "detail": str, "export": str, "unit": str}
WIRE = {"get": str, "set": str, "enum": str, "sim": object, "then": str, "convert": str}
FRAMES = {
    "cached": WIRE, "plain": WIRE, "simulated": WIRE,
    "forward": {"target": str},
    "custom": {"access": str, "reads": str, "writes": str, "enum": str, "sim": object},
}
ENUM = {"converters": list, "values": list}
VALUE = {"name": str, "value": int, "words": list}
ERROR = {"code": int, "text": str}
OPERATION = {
    "brief": str, "detail": str, "args": list, "vi": bool, "query": str, "scan": str, "write": str, "outputs": str,
    "sets": list, "sends": list, "simulated": str, "failures": list,
}
ARGUMENT = {"name": str, "type": str, "doc": str}
HEAD = {"title": str, "about": str, "attribute": dict, "enum": dict, "error": dict, "operation": dict}


def camel(name):
    return "".join(part[:1] + part[1:].lower() for part in name.split("_"))


def shape(file, row, fields, keys, required):
    """Fails on a key that is missing, unknown or of the wrong kind."""
    if not isinstance(fields, dict):
        raise RowError(file, row, "not a table")
    for key, value in fields.items():
        if key not in keys:
            raise RowError(file, row, f"unknown key '{key}'")
        kind = keys[key]
        if kind is not object and (not isinstance(value, kind) or kind is int and isinstance(value, bool)):
            raise RowError(file, row, f"'{key}' is not {KINDS[kind]}")
    for key in required:
        if key not in fields:
            raise RowError(file, row, f"no '{key}'")


def texts(file, row, fields, *keys):
    for key in keys:
        if not all(isinstance(text, str) for text in fields.get(key, [])):
            raise RowError(file, row, f"'{key}' is not a list of texts")


def load_attribute(file, name, fields):
    frame = fields.get("frame") if isinstance(fields, dict) else None
    if frame is not None and (not isinstance(frame, str) or frame not in FRAMES):
        raise RowError(file, name, f"'frame' is none of {', '.join(FRAMES)}")
    others = {key for keys in FRAMES.values() for key in keys} - set(FRAMES.get(frame, {}))
    for key in fields if isinstance(fields, dict) and frame else ():
        if key in others:
            raise RowError(file, name, f"'{key}' has no place in a {frame} row")
    shape(file, name, fields, ATTRIBUTE | FRAMES.get(frame, WIRE), ["id", "type", "frame", "brief"])
    return Attribute(file, name, **fields)


def load_enum(file, name, fields):
    shape(file, name, fields, ENUM, ["converters", "values"])
    texts(file, name, fields, "converters")
    values = []
    for position, value in enumerate(fields["values"], 1):
        row = f"{name}: value {position}"
        shape(file, row, value, VALUE, VALUE)
        texts(file, row, value, "words")
        values.append(Value(**value))
    return Enum(file, name, fields["converters"], values)


def load_error(file, name, fields):
    shape(file, name, fields, ERROR, ERROR)
    return Error(file, name, **fields)


def load_operation(file, name, fields):
    shape(file, name, fields, OPERATION, ["brief"])
    texts(file, name, fields, "sets", "sends", "failures")
    arguments = []
    for position, argument in enumerate(fields.get("args", []), 1):
        shape(file, f"{name}: argument {position}", argument, ARGUMENT, ARGUMENT)
        arguments.append(Argument(**argument))
    return Operation(file, name, **(fields | {"args": arguments}))


def load_room(path):
    file = path.name
    try:
        head = tomllib.loads(path.read_text(encoding="utf-8"))
    except (OSError, UnicodeDecodeError, tomllib.TOMLDecodeError) as error:
        raise RowError(file, "", getattr(error, "strerror", None) or str(error)) from error
    shape(file, "", head, HEAD, ["title"])
    for kind in ("attribute", "enum", "error", "operation"):
        for name in head.get(kind, {}):
            if not re.fullmatch(r"[A-Za-z][A-Za-z0-9_]*", name):
                raise RowError(file, name, "the name is no C identifier")
    rows = {kind: [load_row(file, name, fields) for name, fields in head.get(kind, {}).items()]
            for kind, load_row in (("attribute", load_attribute), ("enum", load_enum), ("error", load_error),
                                   ("operation", load_operation))}
    return Room(file, path.stem, head["title"], head.get("about", ""),
                sorted(rows["attribute"], key=lambda row: row.id), sorted(rows["enum"], key=lambda row: row.name),
                sorted(rows["error"], key=lambda row: row.status), sorted(rows["operation"], key=lambda row: row.name))


def load(paths):
    return Catalogue(sorted((load_room(Path(path)) for path in paths), key=lambda room: room.stem))
