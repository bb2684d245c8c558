"""Prints the C++ of the library that follows from the rows alone: one function here for one file there."""

from load import C_TYPES, PREFIX, camel
from output import GENERATED, function_body, listing, literal

ROW_TYPES = {"boolean": "BooleanRow", "enum": "EnumRow", "integer": "IntegerRow", "real": "RealRow",
             "string": "TextRow"}


def emit_sources(catalogue):
    """File name: text, of everything that is printed for the library."""
    files = {
        "handlers.h": handlers_header(catalogue), "operations.h": operations_header(catalogue),
        "registry.cpp": registry_source(catalogue), "exports.cpp": exports_source(catalogue),
        "enums.h": enums_header(catalogue), "enums.cpp": enums_source(catalogue),
        "error_codes.h": error_codes_header(catalogue), "error_table.cpp": error_table_source(catalogue),
    }
    return files | {f"{room.stem}_rows.cpp": rows_source(room) for room in catalogue.rooms if room.attributes}


def value_type(row):
    """The type of a value that is passed in."""
    return "ViConstString" if row.type == "string" else row.c_type


def get_handler(row, names=False):
    value = "ViInt32 size, ViChar* value" if row.type == "string" else f"{row.c_type}* value"
    return f"ViStatus {PREFIX}_get_{row.name}(ViSession vi, ViConstString{' selector' * names}, {value})"


def set_handler(row, names=False):
    value = f"{value_type(row)} value"
    return f"ViStatus {PREFIX}_set_{row.name}(ViSession vi, ViConstString{' selector' * names}, {value})"


def handlers_header(catalogue):
    lines = []
    for row in catalogue.attributes:
        lines += [f"{get_handler(row, True)};"] * row.readable + [f"{set_handler(row, True)};"] * row.writable
    steps = sorted({f"ViStatus {row.then}(ViSession vi, {value_type(row)} value, ViStatus status);"
                    for row in catalogue.attributes if row.then})
    conversions = sorted({f"std::string {row.convert}(ViConstString text);"
                          for row in catalogue.attributes if row.convert})
    parts = ["\n".join(lines)]
    if steps:
        parts.append("// Steps behind a good write, written by hand.\n" + "\n".join(steps))
    if conversions:
        parts.append("// Conversions of a text on its way out, written by hand.\n" + "\n".join(conversions))
    string = "#include <string>\n\n" if conversions else ""
    return (f"{GENERATED}#pragma once\n\n{string}#include \"{PREFIX}.h\"\n\n"
            "// Read and write handlers of all attributes.\n" + "\n\n".join(parts) + "\n")


def constant(row):
    """The fields of a row's constant, in the order of its type in the runtime."""
    if row.frame == "forward":
        return "ForwardRow", [f"{PREFIX}_ATTR_{row.target}"]
    if row.type == "boolean":
        own = ["VI_TRUE" if row.sim else "VI_FALSE", row.then or "nullptr"]
    elif row.type == "enum":
        own = [str(row.sim or 0), f"&maps::{camel(row.enum)}"]
    elif row.type == "integer":
        own = [str(row.sim or 0)]
    elif row.type == "real":
        own = [repr(float(row.sim or 0)), row.then or "nullptr"]
    else:
        own = [literal(row.sim or ""), row.convert or "nullptr"]
    return ROW_TYPES[row.type], [f"tvr::Frame::{row.frame.capitalize()}", literal(row.get), literal(row.set), *own]


def rows_source(room):
    rows = [row for row in room.attributes if row.frame != "custom"]
    if not rows:
        return f"{GENERATED}// The attributes of this room are all written by hand.\n"
    constants, handlers = [], []
    for row in rows:
        kind, fields = constant(row)
        constants.append(listing(f"constexpr tvr::{kind} {row.constant}{{",
                                 [row.macro, literal(row.macro), *fields], "};"))
        value = "size, value" if row.type == "string" else "value"
        if row.readable:
            handlers.append(function_body(get_handler(row), f"return tvr::GetValue({row.constant}, vi, {value});"))
        if row.writable:
            handlers.append(function_body(set_handler(row), f"return tvr::SetValue({row.constant}, vi, value);"))
    return (f"{GENERATED}#include \"Tvr.h\"\n#include \"enums.h\"\n#include \"handlers.h\"\n\nnamespace {{\n\n"
            + "\n".join(constants) + "\n\n}  // namespace\n\n" + "\n".join(handlers) + "\n")


def operations_header(catalogue):
    lines = [listing(f"constexpr Operation k{row.name[0].upper()}{row.name[1:]}{{",
                     [literal(text) for text in (row.function, row.outputs, row.write, row.query, row.scan)], "};")
             for row in catalogue.operations]
    return (f"{GENERATED}// Name, outputs, write, query, scan.\n#pragma once\n\n#include \"Operation.h\"\n\n"
            "namespace tvr::operation {\n\n" + "\n".join(lines) + "\n\n}  // namespace tvr::operation\n")


def registry_source(catalogue):
    rows = catalogue.attributes
    ids = "\n".join(f"    {row.macro}," for row in rows)
    adds = "\n".join(
        listing(f"  registry.Add<{row.c_type}>(",
                [row.macro, literal(row.macro), f"{PREFIX}_get_{row.name}" if row.readable else "nullptr",
                 f"{PREFIX}_set_{row.name}" if row.writable else "nullptr"], ");") for row in rows)
    return f"""{GENERATED}#include "Registry.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "handlers.h"

namespace {{

constexpr ViAttr kIds[] = {{
{ids}
}};
static_assert(std::adjacent_find(std::begin(kIds), std::end(kIds), std::greater_equal<>()) == std::end(kIds),
              "ids ascend and none stands twice");

}}  // namespace

void tvr::RegisterAttributes(AttributeRegistry& registry) {{
{adds}
}}
"""


def exports_source(catalogue):
    lines = []
    for row in catalogue.attributes:
        if row.export is None:
            continue
        text = row.type == "string"
        head = f"extern \"C\" ViStatus _VI_FUNC {PREFIX}_"
        if row.readable:
            value = "ViInt32 BufferSize, ViChar Value[]" if text else f"{row.c_type}* Value"
            passed = "BufferSize, Value" if text else "Value"
            lines.append(function_body(
                f"{head}Get{row.export}(ViSession Vi, {value})",
                f"return {PREFIX}_GetAttribute{row.c_type}(Vi, VI_NULL, {row.macro}, {passed});"))
        if row.writable:
            lines.append(function_body(f"{head}Set{row.export}(ViSession Vi, {value_type(row)} Value)",
                                       f"return tvr::SetAttribute<{row.c_type}>(Vi, nullptr, {row.macro}, Value);"))
    return f"{GENERATED}#include \"{PREFIX}.h\"\n#include \"Tvr.h\"\n\n" + "\n\n".join(lines) + "\n"


def enums_header(catalogue):
    lines = [f"const tvr::EnumMap& {camel(row.name)}();" for row in catalogue.enums]
    return (f"{GENERATED}#pragma once\n\n#include \"EnumMap.h\"\n\nnamespace maps {{\n\n" + "\n".join(lines)
            + "\n\n}  // namespace maps\n")


def enums_source(catalogue):
    maps = []
    for row in catalogue.enums:
        declared = [] if row.name == "BOOLEAN" else [
            f"      {{{literal(value.macro)}, {value.value}, \"!!!\", \"!!!\"}}," for value in row.values]
        real = [f"      {{{literal(value.macro)}, {value.value}, {literal(', '.join(value.words))}, \"\"}},"
                for value in row.values if value.words]
        maps.append(f"const tvr::EnumMap& {camel(row.name)}() {{\n  static const tvr::EnumMap map{{\n"
                    + "\n".join(declared + real) + "\n  };\n  return map;\n}")
    return (f"{GENERATED}// A map names every value in rows marked \"!!!\", which concern no model, and then gives the "
            "words.\n#include \"enums.h\"\n\nnamespace maps {\n\n" + "\n\n".join(maps) + "\n\n}  // namespace maps\n")


def error_codes_header(catalogue):
    lines = [f"constexpr ViStatus k{camel(row.name)} = static_cast<ViStatus>(0x{row.code:08X});"
             for row in catalogue.errors]
    return (f"{GENERATED}#pragma once\n\n#include <visatype.h>\n\nnamespace tvr::error {{\n\n" + "\n".join(lines)
            + "\n\n}  // namespace tvr::error\n")


def error_table_source(catalogue):
    rows = "\n".join(f"    {{tvr::error::k{camel(row.name)}, {literal(row.text)}}}," for row in catalogue.errors)
    return f"""{GENERATED}#include "Errors.h"

#include <algorithm>
#include <iterator>

namespace {{

struct ErrorText {{
  ViStatus code;
  const char* text;
}};

constexpr bool Before(const ErrorText& left, const ErrorText& right) {{ return left.code < right.code; }}

constexpr ErrorText kErrorTexts[] = {{
{rows}
}};
static_assert(std::is_sorted(std::begin(kErrorTexts), std::end(kErrorTexts), Before), "found by halving");

}}  // namespace

const char* tvr::LookupErrorText(ViStatus code) {{
  const auto* const found =
      std::lower_bound(std::begin(kErrorTexts), std::end(kErrorTexts), ErrorText{{code, nullptr}}, Before);
  return found != std::end(kErrorTexts) && found->code == code ? found->text : nullptr;
}}
"""
