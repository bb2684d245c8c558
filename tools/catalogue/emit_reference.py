"""Prints the Markdown reference: an index, and a page for each room."""

import re

from functions import default, functions, simulated_read, simulated_write
from load import PREFIX
from output import literal, outside_code, paragraphs

ACCESS = {(True, True): "read and write", (True, False): "read only", (False, True): "write only"}


def cell(text):
    return text.replace("|", "\\|")


def code(text):
    """A wire text with its line feed spelt out, so that a search for what the row says finds it."""
    return f"`{literal(text)[1:-1]}`"


def table(head, rows):
    if not rows:
        return []
    lines = [f"| {' | '.join(head)} |", "|" + "---|" * len(head)]
    return ["\n".join(lines + [f"| {' | '.join(cell(field) for field in row)} |" for row in rows])]


def prose(text):
    """Texts of the rows are plain: nothing in them reads as markup. An underscore inside a name never does."""
    return outside_code(text, lambda part: re.sub(r"[\\*<\[]|\b_|_\b", lambda found: "\\" + found[0], part))


def body(text):
    return ["\n".join(prose(line) for line in lines) for lines in paragraphs(text)]


def attribute_facts(row, catalogue, pages):
    facts = [("Attribute", f"`{row.macro}`"), ("Id", str(row.id)),
             ("Type", f"`{row.c_type}`"), ("Access", ACCESS[row.readable, row.writable])]
    if row.unit is not None:
        facts.append(("Unit", "none (a plain number)" if row.unit == "1" else prose(row.unit)))
    if row.type == "boolean":
        facts.append(("Values", "`VI_TRUE`, `VI_FALSE`"))
    if row.enum is not None:
        names = ", ".join(f"`{value.macro}` ({value.value})" for value in catalogue.enum(row.enum).values)
        facts.append(("Values", f"[{row.enum}]({pages[row.enum]}): {names}"))
    if row.frame == "forward":
        facts.append(("Passed on to", f"`{PREFIX}_ATTR_{row.target}`"))
    for head, sent, told in (("Read", row.get, row.reads), ("Write", row.set, row.writes)):
        if sent or told:
            facts.append((head, code(sent) if sent else prose(told)))
    for head, step in (("Behind a good write", row.then), ("Conversion on its way out", row.convert)):
        if step:
            facts.append((head, f"`{step}`"))
    for head, told in (("Simulated read", row.readable and simulated_read(row, catalogue)),
                       ("Simulated write", row.writable and simulated_write(row))):
        if told:
            facts.append((head, prose(told)))
    if row.export is not None:
        names = [f"`{PREFIX}_Get{row.export}`"] * row.readable + [f"`{PREFIX}_Set{row.export}`"] * row.writable
        facts.append(("Typed exports", ", ".join(names)))
    return facts


def attribute_section(row, catalogue, pages):
    return [f"### {row.name}", prose(row.brief), *body(row.detail),
            *table(("", ""), attribute_facts(row, catalogue, pages))]


def enum_section(row):
    users = {"response": "answers are read with it", "command": "values are sent with it",
             "name": "it names values in error texts"}
    rows = [(f"`{value.macro}`", str(value.value), ", ".join(f"`{word}`" for word in value.words) or "none")
            for value in row.values]
    uses = "; ".join(users[converter] for converter in row.converters)
    return [f"### {row.name}", *([uses[0].upper() + uses[1:] + "."] if uses else []),
            *table(("Defined value", "Number", "Words"), rows)]


def function_section(function):
    head, arguments = function.prototype()
    prototype = f"{head}({', '.join(arguments) or 'void'});"
    statuses = [(f"`{status[:10]}`", prose(status[12:])) if status.startswith("0x") else ("", prose(status))
                for status in function.statuses]
    parameters = [(f"`{parameter.name}`", prose(parameter.doc)) for parameter in function.parameters]
    return [f"### {function.name}", f"```c\n{prototype}\n```", prose(function.brief),
            *body(function.detail), *table(("Parameter", "Meaning"), parameters),
            f"Returns {prose(function.success)}{' or a negative status:' if statuses else '.'}",
            *table(("Status", "When"), statuses),
            *(prose(text) for text in (function.wire, function.simulated) if text),
            *([f"See {', '.join(f'`{name}`' for name in function.see)}."] if function.see else [])]


def room_page(room, catalogue, pages):
    parts = [f"# {room.title}", *body(room.about)]
    if room.attributes:
        parts.append("## Attributes")
        parts += [part for row in room.attributes for part in attribute_section(row, catalogue, pages)]
    if room.enums:
        parts.append("## Enumerations")
        parts += [part for row in room.enums for part in enum_section(row)]
    if room.errors:
        parts.append("## Status codes")
        parts += table(("Status", "Constant", "Text"),
                       [(f"`0x{row.code:08X}`", f"`{row.macro}`", prose(row.text)) for row in room.errors])
    exported = functions(room, catalogue)
    if exported:
        parts.append("## Functions")
        parts += [part for function in exported for part in function_section(function)]
    return "\n\n".join(parts) + "\n"


def index_page(catalogue):
    rooms = [(f"[{room.title}]({room.stem}.md)", prose(next(iter(paragraphs(room.about)), [""])[0]))
             for room in catalogue.rooms]
    places = {row.name: room.stem for room in catalogue.rooms for row in room.attributes}
    attributes = [(f"[{row.name}]({places[row.name]}.md#{row.name.lower()})", str(row.id), f"`{row.c_type}`",
                   ACCESS[row.readable, row.writable])
                  for row in sorted(catalogue.attributes, key=lambda row: row.name)]
    exported = sorted((function.name, room.stem) for room in catalogue.rooms for function in functions(room, catalogue))
    return "\n\n".join(
        ["# Reference", "Printed from the rows of the catalogue; a page for each room.",
         *table(("Page", "Subject"), rooms),
         "## Attributes by name", *table(("Attribute", "Id", "Type", "Access"), attributes),
         "## Functions by name",
         *table(("Function",), [(f"[{name}]({stem}.md#{name.lower()})",) for name, stem in exported])]) + "\n"


def emit_reference(catalogue):
    """File name: text, of every page."""
    pages = {row.name: f"{room.stem}.md#{row.name.lower()}" for room in catalogue.rooms for row in room.enums}
    return {"index.md": index_page(catalogue)} | {
        f"{room.stem}.md": room_page(room, catalogue, pages) for room in catalogue.rooms}
