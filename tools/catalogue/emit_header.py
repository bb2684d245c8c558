"""Prints the public header: constants, prototypes and their doc comments, a section per room."""

import re

from functions import functions
from load import PREFIX
from output import listing, outside_code, paragraphs, wrap

HEAD = f"""\
/**
 * @file {PREFIX}.h
 * C interface of the IVI-C driver for TD481X2C RF signal generators.
 *
 * This file is printed from the catalogue by tools/catalogue. To change it, change the row in src (a .toml file) and
 * build; tools/catalogue/README.md tells the form of the rows.
 *
 * Every function returns a ViStatus: negative is failure, zero or positive is success. {PREFIX}_GetError gives the
 * text of a failure that the driver found itself. A session may be used from several threads; its calls follow one
 * another. The driver compares no value with a limit: the instrument judges, and its complaint comes back as
 * 0xBFFA0001 when {PREFIX}_ATTR_QUERY_INSTRUMENT_STATUS is on.
 */
#ifndef {PREFIX}_H
#define {PREFIX}_H

#include <visatype.h>

/** Marks what the library exports. */
#if defined(_WIN32)
#if defined({PREFIX}_BUILD)
#define {PREFIX}_API __declspec(dllexport)
#else
#define {PREFIX}_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define {PREFIX}_API __attribute__((visibility("default")))
#else
#define {PREFIX}_API
#endif

#ifdef __cplusplus
extern "C" {{
#endif
"""

FOOT = f"""
#ifdef __cplusplus
}}
#endif

#endif /* {PREFIX}_H */
"""

TYPE_TEXTS = {"boolean": "ViBoolean", "enum": "ViInt32, enumeration {enum}", "integer": "ViInt32", "real": "ViReal64",
              "session": "ViSession", "string": "ViString"}


def text(words):
    """A text in a doc comment: nothing in it is a command, a tag or a link for Doxygen."""
    return outside_code(words, lambda part: re.sub(r"[\\@>]|[<#%](?=\w)", lambda found: "\\" + found[0], part))


def comment(lines):
    return "\n".join(["/**", *(f" * {line}".rstrip() for line in lines), " */"])


def block(words, indent=""):
    return wrap(words, rest=indent)


def prose(words):
    """The lines of a row's text, an empty one before each paragraph."""
    return [line for paragraph in paragraphs(words)
            for line in ["", *(line for part in paragraph for line in block(text(part), "  " * part.startswith("- ")))]]


def short(words):
    """A comment of one sentence, on one line where it fits."""
    line = f"/** {words} */"
    return line if len(line) <= 120 else comment(block(words))


def describe(row):
    access = " and ".join(["read"] * row.readable + ["write"] * row.writable)
    unit = f", {row.unit}" if row.unit not in (None, "1") else ""
    return f"{row.brief} {TYPE_TEXTS[row.type].format(enum=row.enum)}{unit}, {access}."


def emit_constants(room, catalogue, printed):
    parts = [f"{short(text(describe(row)))}\n#define {row.macro} {row.id}" for row in room.attributes]
    for row in room.enums:
        fresh = [value for value in row.values if value.macro.startswith(PREFIX) and value.macro not in printed]
        printed.update(value.macro for value in fresh)
        if fresh:
            parts.append("\n".join([short(f"@name Values of {row.name}"), "/** @{ */"] +
                                   [define_value(value) for value in fresh] + ["/** @} */"]))
    parts += [f"{short(f'`{row.text}`')}\n#define {row.macro} ((ViStatus)0x{row.code:08X})" for row in room.errors]
    return parts


def define_value(value):
    word = f"On the wire: `{value.words[0]}`." if value.words else "Has no word on the wire."
    return f"/** {word} */\n#define {value.macro} {value.value}"


def emit_function(function):
    lines = [*block(text(function.brief)), *prose(function.detail), ""]
    width = max((len(parameter.name) for parameter in function.parameters), default=0)
    for parameter in function.parameters:
        head = f"@param {parameter.name.ljust(width)}  "
        lines += wrap(text(parameter.doc), first=head, rest=" " * len(head))
    lines += block(f"@return {function.success} or a negative status:" if function.statuses else
                   f"@return {function.success}.", "        ")
    for status in function.statuses:
        code = status[:12] if status.startswith("0x") else ""
        lines += [line for line in wrap(text(status[len(code):]), first=" " * 8 + code,
                                        rest=" " * (8 + len(code)))]
    if function.wire or function.simulated:
        lines += ["", *(block(text(function.wire)) if function.wire else []),
                  *(block(text(function.simulated)) if function.simulated else [])]
    if function.see:
        lines += block(f"@see {', '.join(function.see)}", "     ")
    head, arguments = function.prototype(f"{PREFIX}_API ", "_VI_FUNC ")
    return f"{comment(lines)}\n{listing(head + '(', arguments or ['void'], ');')}"


def emit_room(room, catalogue, printed):
    parts = [comment([f"@defgroup {room.stem} {text(room.title)}", *prose(room.about), "@{"])]
    parts += emit_constants(room, catalogue, printed)
    parts += [emit_function(function) for function in functions(room, catalogue)]
    return "\n" + "\n\n".join(parts + ["/** @} */"]) + "\n"


def emit_header(catalogue):
    printed = set()
    return HEAD + "".join(emit_room(room, catalogue, printed) for room in catalogue.rooms) + FOOT
