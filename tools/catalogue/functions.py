"""The exported functions, as the header and the reference both tell them: typed wrappers and operations."""

import re
from dataclasses import dataclass, field

from load import PREFIX
from output import literal

STATUS_CHECK = f"{PREFIX}_ATTR_QUERY_INSTRUMENT_STATUS"
UNKNOWN_HANDLE = "0xBFFA1190  Vi is not an open handle (no text is recorded)"
INSTRUMENT_ERROR = f"0xBFFA0001  the instrument reports an error; needs {STATUS_CHECK}"
VISA_STATUS = "a VISA status when the exchange fails"
HANDLE = f"Handle from {PREFIX}_InitWithOptions."
NO_SESSION = "VISA's status for a missing session"


@dataclass
class Parameter:
    name: str
    type: str
    doc: str

    @property
    def declaration(self):
        """`ViChar[256]` called Text is `ViChar Text[256]`."""
        base, bracket, count = self.type.partition("[")
        return f"{base} {self.name}{bracket}{count}"


@dataclass
class Function:
    name: str
    brief: str
    parameters: list
    statuses: list
    success: str = "VI_SUCCESS"
    detail: str = ""
    wire: str = ""
    simulated: str = ""
    see: list = field(default_factory=list)

    def prototype(self, export="", call=""):
        head = f"{export}ViStatus {call}{self.name}"
        return head, [parameter.declaration for parameter in self.parameters]


def functions(room, catalogue):
    result = [operation(row) for row in room.operations]
    for row in room.attributes:
        if row.export is not None:
            result += [getter(row, catalogue)] if row.readable else []
            result += [setter(row, catalogue)] if row.writable else []
    return sorted(result, key=lambda function: function.name)


def clause(text):
    """A sentence's text behind a colon: a small first letter, unless a name or an abbreviation begins it."""
    return text[0].lower() + text[1:] if text[1:2].islower() or text[1:2] == " " else text


def wire(text, *names):
    """A wire text as the analyser shows it, without the line feed, and with each value's name for its directive."""
    places = re.findall(r"%(?:0\.15lg|ld|s)", text)
    if len(places) == text.count("%") == len(names):
        for place, name in zip(places, names):
            text = text.replace(place, f"<{name}>", 1)
    return "`" + text.removesuffix("\n").replace("\n", "\\n") + "`"


def values(row, catalogue):
    if row.type == "boolean":
        return "VI_TRUE or VI_FALSE"
    names = [value.macro for value in catalogue.enum(row.enum).values]
    return names[0] if len(names) == 1 else ", ".join(names[:-1]) + " or " + names[-1]


def quantity(row):
    if row.unit is None:
        return ""
    return " A plain number." if row.unit == "1" else f" In {row.unit}."


def default(row, catalogue):
    """The value of a simulated read before any set, as the caller sees it."""
    if row.type == "boolean":
        return "VI_TRUE" if row.sim else "VI_FALSE"
    if row.type == "string":
        return f"the text {literal(row.sim)}" if row.sim else "the empty text"
    if row.type == "enum":
        number = row.sim or 0
        return next((value.macro for value in catalogue.enum(row.enum).values if value.value == number), str(number))
    return repr(float(row.sim or 0)) if row.type == "real" else str(row.sim or 0)


def simulated_read(row, catalogue):
    if row.frame == "cached" and row.writable:
        return f"nothing is sent; the value last stored, before that {default(row, catalogue)}"
    if row.frame in ("cached", "simulated") or row.sim is not None:
        return f"nothing is sent; {default(row, catalogue)}"
    if row.frame == "plain":
        return f"the exchange is tried all the same and ends in {NO_SESSION}"
    return f"as {PREFIX}_ATTR_{row.target}" if row.frame == "forward" else ""


def simulated_write(row):
    return {
        "cached": f"nothing is {'converted or ' if converted(row) else ''}sent; the value is stored",
        "simulated": "nothing is sent and nothing is stored",
        "plain": f"the exchange is tried all the same and ends in {NO_SESSION}",
        "forward": f"as {PREFIX}_ATTR_{row.target}",
    }.get(row.frame, "")


def capital(text, head):
    return f"{head}: {text}." if text else ""


def see(row, other, present):
    return ([f"{PREFIX}_{other}{row.export}"] if present else []) + [row.macro]


def converted(row):
    return row.map is not None and row.frame != "custom"


def getter(row, catalogue):
    null = f"Value is null (the text names {PREFIX}_GetAttribute{row.c_type} and AttributeValue)"
    success, size = "VI_SUCCESS", []
    if row.type == "string":
        null = "Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)"
        success = "VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly,"
        size = [Parameter("BufferSize", "ViInt32", "Bytes in Value. 0: returns 4096, which suffices for every text, "
                          "without a read. Negative: up to 4096 bytes are written.")]
        value = Parameter("Value", "ViChar[]", "Receives the text, terminated, cut to BufferSize. After a failure: "
                          f"what had arrived of it. Not touched, and may be null, when BufferSize is 0.")
    else:
        unchanged = ("unchanged, but where it came behind the reading" if row.frame == "custom" else
                     "unchanged, but for 0xBFFA0001, which is found after the reading")
        refused = f"{'0xFFFF' if row.type == 'boolean' else '-1'} with 0xBFFA0059, else " if converted(row) else ""
        choice = f" {values(row, catalogue)}." if row.type in ("boolean", "enum") else ""
        value = Parameter("Value", f"{row.c_type}*",
                          f"Receives the value.{quantity(row)}{choice} After a failure: {refused}{unchanged}.")
    sent = {"forward": f"Reads {PREFIX}_ATTR_{row.target}.", "custom": f"Read: {row.reads}"}
    return Function(
        name=f"{PREFIX}_Get{row.export}", brief=f"Reads {row.macro}: {clause(row.brief)}",
        parameters=[Parameter("Vi", "ViSession", HANDLE), *size, value],
        statuses=[f"0xBFFA0058  {null}", UNKNOWN_HANDLE]
        + (["0xBFFA0059  the answer is no word of a defined value"] if converted(row) else [])
        + [INSTRUMENT_ERROR, VISA_STATUS],
        success=success, detail=row.detail, wire=sent.get(row.frame) or f"Queries {wire(row.get)}.",
        simulated=capital(simulated_read(row, catalogue), "Simulated"), see=see(row, "Set", row.writable))


def setter(row, catalogue):
    judge = ""
    if row.type in ("real", "integer"):
        judge = "The driver checks no range." if row.frame == "custom" else (
            "Range: the instrument's; the driver checks none.")
    choice = f"{values(row, catalogue)[0].upper()}{values(row, catalogue)[1:]}." if row.map or row.enum else ""
    if row.type == "boolean":
        choice = "VI_TRUE or VI_FALSE."
    doc = f"The new value.{quantity(row)} {choice or judge}"
    if row.type == "string":
        doc = "The new text, terminated. It is sent as it stands; the driver checks and escapes nothing in it."
        if row.convert:
            doc = f"The new text, terminated. It passes through {row.convert} on its way out."
    sent = {"forward": f"Writes {PREFIX}_ATTR_{row.target}.", "custom": f"Write: {row.writes}"}
    return Function(
        name=f"{PREFIX}_Set{row.export}", brief=f"Writes {row.macro}: {clause(row.brief)}",
        parameters=[Parameter("Vi", "ViSession", HANDLE),
                    Parameter("Value", "ViConstString" if row.type == "string" else row.c_type, doc.strip())],
        statuses=[UNKNOWN_HANDLE]
        + (["0xBFFA0000  Value is no defined value, or one without a word; nothing is sent"] if converted(row) else [])
        + [INSTRUMENT_ERROR, VISA_STATUS],
        detail=row.detail, wire=sent.get(row.frame) or f"Sends {wire(row.set, 'Value')}.",
        simulated=capital(simulated_write(row), "Simulated"), see=see(row, "Get", row.readable))


def operation(row):
    talks = row.query or row.write or row.sends or row.sets
    common = [f"0xBFFA0058  one of {row.outputs} is null" if "," in row.outputs else
              f"0xBFFA0058  {row.outputs} is null"] if row.outputs else []
    common += [UNKNOWN_HANDLE] if row.vi else []
    common += [INSTRUMENT_ERROR] if talks else []
    told = {failure[:10] for failure in row.failures}
    statuses = [status for status in common if status[:10] not in told] + row.failures
    statuses += [VISA_STATUS] if talks and not any("VISA" in failure for failure in row.failures) else []
    arguments = [Parameter(argument.name, argument.type, argument_doc(argument, row, talks)) for argument in row.args]
    inputs = [argument.name for argument in row.args
              if not argument.type.endswith(("*", "]")) and not argument.name.endswith("BufferSize")]
    sent = [wire(text, *inputs) for text in [row.write, *row.sends] if text]
    steps = [f"Sends {', '.join(sent)}."] if sent else []
    steps += [f"Queries {wire(row.query, *inputs)}."] if row.query else []
    if row.sets:
        names = [f"{PREFIX}_ATTR_{name}" for name in row.sets]
        steps.append(f"Sets {', '.join(names)}{', in this order, up to the first failure' if len(names) > 1 else ''}.")
    return Function(
        name=row.function, brief=row.brief,
        parameters=[Parameter("Vi", "ViSession", HANDLE)] * row.vi + arguments, statuses=statuses,
        detail=row.detail, wire=" ".join(steps),
        simulated=f"Simulated: {clause(row.simulated)}" if row.simulated else "",
        see=[f"{PREFIX}_ATTR_{name}" for name in row.sets])


def argument_doc(argument, row, talks):
    """Every output says what it holds after a failure; where the row is silent on failures, it is the plain thing."""
    output = argument.type.endswith(("*", "]")) and not argument.type.startswith("const")
    if not output or "failure" in argument.doc + row.detail:
        return argument.doc
    return f"{argument.doc} After a failure: unchanged{', or what had arrived' if talks else ''}."
