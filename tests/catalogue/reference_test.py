"""The Markdown reference: literal snippets of the toy's pages."""

from toy_catalogue import ToyCatalogue

ATTRIBUTE = """\
### TONE_PITCH

Pitch of the tone.

It follows the \\<scale> of the #1 room.

|  |  |
|---|---|
| Attribute | `KVTD481X2C_ATTR_TONE_PITCH` |
| Id | 1150001 |
| Type | `ViReal64` |
| Access | read and write |
| Unit | Hz |
| Read | `:TONE:PITC?\\n` |
| Write | `:TONE:PITC %0.15lg HZ\\n` |
| Behind a good write | `StampPitch` |
| Simulated read | nothing is sent; the value last stored, before that 440.0 |
| Simulated write | nothing is sent; the value is stored |
| Typed exports | `KVTD481X2C_GetTonePitch`, `KVTD481X2C_SetTonePitch` |
"""

FUNCTION = """\
### KVTD481X2C_SetToneShape

```c
ViStatus KVTD481X2C_SetToneShape(ViSession Vi, ViInt32 Value);
```

Writes KVTD481X2C_ATTR_TONE_SHAPE: shape of the tone.

| Parameter | Meaning |
|---|---|
| `Vi` | Handle from KVTD481X2C_InitWithOptions. |
| `Value` | The new value. KVTD481X2C_VAL_SHAPE_SINE, KVTD481X2C_VAL_SHAPE_NONE or KVTD481X2C_VAL_SHAPE_LIST. |

Returns VI_SUCCESS or a negative status:

| Status | When |
|---|---|
| `0xBFFA1190` | Vi is not an open handle (no text is recorded) |
| `0xBFFA0000` | Value is no defined value, or one without a word; nothing is sent |
| `0xBFFA0001` | the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS |
|  | a VISA status when the exchange fails |

Sends `:TONE:SHAP <Value>`.

Simulated: nothing is converted or sent; the value is stored.

See `KVTD481X2C_GetToneShape`, `KVTD481X2C_ATTR_TONE_SHAPE`.
"""


class Reference(ToyCatalogue):
    def setUp(self):
        super().setUp()
        self.pages = self.product("reference")

    def test_every_room_has_a_page(self):
        self.assertEqual({"index.md", "codes.md", "tone.md", "words.md"}, set(self.pages))

    def test_an_attribute_stands_with_its_facts(self):
        self.assertIn(ATTRIBUTE, self.pages["tone.md"])

    def test_an_enumeration_is_linked_and_its_values_listed(self):
        self.assertIn("| Values | [SHAPE](words.md#shape): `KVTD481X2C_VAL_SHAPE_SINE` (0), "
                      "`KVTD481X2C_VAL_SHAPE_NONE` (1), `KVTD481X2C_VAL_SHAPE_LIST` (2) |\n", self.pages["tone.md"])

    def test_a_custom_attribute_tells_what_its_handlers_do(self):
        self.assertIn("| Read | Reads whether the tone is external. |\n| Write | Refuses EXTERNAL. |\n",
                      self.pages["tone.md"])

    def test_a_forward_attribute_names_its_target(self):
        self.assertIn("| Passed on to | `KVTD481X2C_ATTR_TONE_LEVEL` |\n", self.pages["tone.md"])

    def test_a_function_stands_with_parameters_and_statuses(self):
        self.assertIn(FUNCTION, self.pages["tone.md"])

    def test_the_words_of_a_map_are_listed(self):
        self.assertIn("| Defined value | Number | Words |\n|---|---|---|\n"
                      "| `KVTD481X2C_VAL_SHAPE_SINE` | 0 | `SINusoid`, `SIN` |\n"
                      "| `KVTD481X2C_VAL_SHAPE_NONE` | 1 | none |\n", self.pages["words.md"])

    def test_a_status_stands_with_its_text(self):
        self.assertIn("| `0x3FFA0066` | `KVTD481X2C_WARN_NO_RESET` | Reset is not supported by this instrument. |\n",
                      self.pages["codes.md"])

    def test_the_index_leads_to_every_attribute_and_function(self):
        self.assertIn("| [TONE_AUTO](tone.md#tone_auto) | 1150006 | `ViBoolean` | read only |\n",
                      self.pages["index.md"])
        self.assertIn("| [KVTD481X2C_explain](tone.md#kvtd481x2c_explain) |\n", self.pages["index.md"])
        self.assertIn("| [Tone](tone.md) | The tone of the toy: two attributes of every frame. |\n",
                      self.pages["index.md"])

    def test_a_bar_does_not_end_its_cell(self):
        self.replace("tone.toml", '"Refuses EXTERNAL."', '"Refuses a|b."')
        self.assertIn("| Write | Refuses a\\|b. |\n", self.product("reference")["tone.md"])

    def test_the_lines_of_a_paragraph_are_joined(self):
        self.replace("tone.toml", "attributes of every frame.", "attributes\nof every frame.")
        self.assertIn("\nThe tone of the toy: two attributes of every frame.\n", self.product("reference")["tone.md"])

    def test_items_of_a_list_stay_together(self):
        self.assertIn("\n\n- the first half is sent\n- the second half is by hand\n\n", self.pages["tone.md"])
