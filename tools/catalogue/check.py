"""Judges rows by their meaning and by each other. Fails on the first wrong one, with a sentence."""

import re

from load import C_TYPES, RowError

BANDS = (1050, 1150, 1250)  # inherent, instrument specific, class
DIRECTIVES = {"boolean": "%s", "enum": "%s", "integer": "%ld", "real": "%0.15lg", "string": "%s"}
CONVERTERS = ("response", "command", "name")
ARGUMENT_TYPE = re.compile(
    r"(?:const )?(?:ViAttr|ViBoolean|ViByte|ViChar|ViConstString|ViInt16|ViInt32|ViInt64|ViReal64|ViRsrc|ViSession"
    r"|ViStatus|ViString|ViUInt16|ViUInt32|ViUInt64)(?:\*|\[\d*\])?")
IDENTIFIER = re.compile(r"[A-Za-z_][A-Za-z0-9_]*")
STATUS = re.compile(r"(0x[0-9A-F]{8})  \S")


def check(catalogue):
    once(catalogue.rooms, lambda room: room.stem, lambda room: RowError(room.file, "", "a second file of this name"))
    check_uniqueness(catalogue)
    check_constants(catalogue)
    for row in catalogue.rows("enums"):
        check_enum(row)
    for row in catalogue.rows("errors"):
        check_error(row)
    for row in catalogue.attributes:
        check_attribute(row, catalogue)
    for row in catalogue.rows("operations"):
        check_operation(row, catalogue)


def once(rows, key, complaint):
    seen = set()
    for row in rows:
        if key(row) in seen:
            raise complaint(row)
        seen.add(key(row))


def check_uniqueness(catalogue):
    def repeated(what):
        return lambda row: RowError(row.file, row.name, what(row))

    once(catalogue.attributes, lambda row: row.name, repeated(lambda row: "a second attribute of this name"))
    once(catalogue.attributes, lambda row: row.id, repeated(lambda row: f"a second attribute with the id {row.id}"))
    once(catalogue.attributes, lambda row: row.constant,
         repeated(lambda row: f"a second attribute whose constant is {row.constant}"))
    once(catalogue.rows("enums"), lambda row: row.name, repeated(lambda row: "a second enumeration of this name"))
    once(catalogue.rows("errors"), lambda row: row.name, repeated(lambda row: "a second error of this name"))
    once(catalogue.rows("errors"), lambda row: row.code,
         repeated(lambda row: f"a second error with the code 0x{row.code:08X}"))
    exports = [(row, name) for row in catalogue.attributes + catalogue.operations for name in exported_names(row)]
    once(exports, lambda export: export[1],
         lambda export: RowError(export[0].file, export[0].name, f"a second export {export[1]}"))


def exported_names(row):
    if hasattr(row, "function"):
        return [row.function]
    if row.export is None:
        return []
    directions = (("Get", row.readable), ("Set", row.writable))
    return [f"KVTD481X2C_{direction}{row.export}" for direction, present in directions if present]


def check_constants(catalogue):
    numbers = {}
    for row in catalogue.rows("enums"):
        for value in row.values:
            number, file = numbers.setdefault(value.macro, (value.value, row.file))
            if number != value.value:
                row.fail(f"{value.macro} is {value.value} here and {number} in {file}")


def check_text(row, **texts):
    """Texts stand in C comments, Markdown tables and C literals."""
    for key, text in texts.items():
        if text is None:
            continue
        if not text.strip():
            row.fail(f"'{key}' is empty")
        if not text.isascii():
            row.fail(f"'{key}' has a character that is not ASCII")
        if "*/" in text or "/*" in text:
            row.fail(f"'{key}' would open or close a C comment")


def check_attribute(row, catalogue):
    check_text(row, brief=row.brief, unit=row.unit, reads=row.reads, writes=row.writes, detail=row.detail or None)
    if row.type not in C_TYPES:
        row.fail(f"'type' is none of {', '.join(C_TYPES)}")
    if row.id // 1000 not in BANDS:
        row.fail(f"the id {row.id} is in none of the bands 1050xxx, 1150xxx, 1250xxx")
    if row.type == "real" and row.unit is None:
        row.fail("no 'unit'")
    if row.unit is not None and row.type not in ("real", "integer"):
        row.fail(f"a row of type {row.type} has no 'unit'")
    for key in ("export", "then", "convert"):
        name = getattr(row, key)
        if name is not None and not IDENTIFIER.fullmatch(name):
            row.fail(f"'{key}' is no C identifier")
    if row.frame == "forward":
        check_forward(row, catalogue)
    elif row.frame == "custom":
        check_custom(row)
    else:
        check_wire(row)
    check_map(row, catalogue)
    if row.sim is not None:
        check_sim(row)


def check_sim(row):
    kinds = {"boolean": bool, "enum": int, "integer": int, "real": (int, float), "session": int, "string": str}
    whole = isinstance(row.sim, bool)
    if not isinstance(row.sim, kinds[row.type]) or whole != (row.type == "boolean"):
        row.fail(f"'sim' does not fit the type {row.type}")
    if row.frame == "plain":
        row.fail("a plain row makes its VISA call in a simulated session too and has no 'sim'")
    if not row.readable:
        row.fail("'sim' in a row that is not read")


def check_forward(row, catalogue):
    if row.target is None:
        row.fail("no 'target'")
    if row.type != "real":
        row.fail("a forward row is of type real")
    target = catalogue.attribute(row.target)
    if target is None:
        row.fail(f"the target {row.target} is no attribute")
    if target.type != "real" or target.frame == "forward" or not (target.readable and target.writable):
        row.fail(f"the target {row.target} is not a real attribute of its own, read and written")


def check_custom(row):
    if row.access is None:
        row.fail("no 'access'")
    if row.access not in ("RW", "R", "W"):
        row.fail("'access' is none of RW, R, W")
    for key, present in (("reads", row.readable), ("writes", row.writable)):
        if present and getattr(row, key) is None:
            row.fail(f"no '{key}'")
        if not present and getattr(row, key) is not None:
            row.fail(f"'{key}' in a row whose access is {row.access}")


def check_wire(row):
    if row.type == "session":
        row.fail("a session row is custom")
    if row.get is None and row.set is None:
        row.fail("neither 'get' nor 'set'")
    for key in ("get", "set"):
        check_text(row, **{key: getattr(row, key)})
    if row.get is not None:
        if not row.get.endswith("?\n"):
            row.fail("'get' does not end in \"?\\n\"")
        if "%" in row.get:
            row.fail("'get' has a format directive")
    if row.set is not None:
        if not row.set.endswith("\n"):
            row.fail("'set' does not end in \"\\n\"")
        wanted = DIRECTIVES[row.type]
        if directives(row.set) != [wanted]:
            row.fail(f"the one directive of 'set' in a row of type {row.type} is {wanted}")
    for key, types in (("then", ("real", "boolean")), ("convert", ("string",))):
        if getattr(row, key) is None:
            continue
        if row.type not in types:
            row.fail(f"'{key}' in a row of type {row.type}")
        if row.set is None:
            row.fail(f"'{key}' in a row that is not written")


def directives(text):
    return re.findall(r"%[^a-zA-Z%]*(?:hh|h|ll|l|L|q|j|z|t)?[a-zA-Z\[%]|%$", text)


def check_map(row, catalogue):
    if row.type == "enum" and row.enum is None:
        row.fail("no 'enum'")
    if row.enum is not None and row.type != "enum":
        row.fail(f"'enum' in a row of type {row.type}")
    if row.map is None:
        return
    values = catalogue.enum(row.map)
    if values is None:
        row.fail(f"the enumeration {row.map} is not known")
    if row.frame == "custom":
        return
    for converter, wire in (("response", row.get), ("command", row.set)):
        if wire is not None and converter not in values.converters:
            row.fail(f"the enumeration {row.map} has no {converter} converter")


def check_enum(row):
    for converter in row.converters:
        if converter not in CONVERTERS:
            row.fail(f"the converter '{converter}' is none of {', '.join(CONVERTERS)}")
    if not row.values:
        row.fail("no values")
    once(row.values, lambda value: value.name, lambda value: RowError(row.file, row.name, f"{value.name} stands twice"))
    numbers = [value.value for value in row.values]
    if row.name == "BOOLEAN":
        if [value.name for value in row.values] != ["VI_TRUE", "VI_FALSE"] or numbers != [1, 0]:
            row.fail("the values of BOOLEAN are VI_TRUE, 1, and VI_FALSE, 0, in this order")
    elif numbers != sorted(set(numbers)):
        row.fail("the values do not ascend")
    for value in row.values:
        if not IDENTIFIER.fullmatch(value.name):
            row.fail(f"the value name '{value.name}' is no C identifier")
        for word in value.words:
            check_text(row, words=word)
            if word != word.strip() or "," in word:
                row.fail(f"the word '{word}' has a comma, or a blank at one end")


def check_error(row):
    check_text(row, text=row.text)
    if not 0xBFFA0000 <= row.code <= 0xBFFAFFFF and not 0x3FFA0000 <= row.code <= 0x3FFAFFFF:
        row.fail(f"the code 0x{row.code:X} is outside 0xBFFA0000 to 0xBFFAFFFF and 0x3FFA0000 to 0x3FFAFFFF")


def check_operation(row, catalogue):
    check_text(row, brief=row.brief, detail=row.detail or None, query=row.query, scan=row.scan, write=row.write,
               outputs=row.outputs, simulated=row.simulated)
    for argument in row.args:
        check_text(row, doc=argument.doc)
        if not IDENTIFIER.fullmatch(argument.name):
            row.fail(f"the argument name '{argument.name}' is no C identifier")
        if not ARGUMENT_TYPE.fullmatch(argument.type):
            row.fail(f"the type '{argument.type}' of the argument {argument.name} is not known")
    once([argument.name for argument in row.args] + (["Vi"] if row.vi else []), lambda name: name,
         lambda name: RowError(row.file, row.name, f"a second argument {name}"))
    for key in ("query", "write"):
        if getattr(row, key) is not None and not getattr(row, key).endswith("\n"):
            row.fail(f"'{key}' does not end in \"\\n\"")
    if row.scan is not None and row.query is None:
        row.fail("'scan' without 'query'")
    for name in row.sets:
        if catalogue.attribute(name) is None:
            row.fail(f"'sets' names {name}, which is no attribute")
    for text in row.sends:
        check_text(row, sends=text)
    codes = {error.code for error in catalogue.rows("errors")}
    for failure in row.failures:
        check_text(row, failures=failure)
        status = STATUS.match(failure)
        if failure.startswith("0x") and not status:
            row.fail(f"the failure '{failure}' is not a code of eight digits, two blanks and a text")
        if status and int(status[1], 16) >> 16 == 0xBFFA and int(status[1], 16) not in codes:
            row.fail(f"the failure {status[1]} is no error of the catalogue")
