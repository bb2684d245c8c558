"""The public header: literal snippets of the toy's, and what compilers and doxygen say of the whole."""

import os
import subprocess
import unittest

from toy_catalogue import ToyCatalogue

GETTER = """\
/**
 * Reads KVTD481X2C_ATTR_TONE_SHAPE: shape of the tone.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  Receives the value. KVTD481X2C_VAL_SHAPE_SINE, KVTD481X2C_VAL_SHAPE_NONE or KVTD481X2C_VAL_SHAPE_LIST.
 *               After a failure: -1 with 0xBFFA0059, else unchanged, but for 0xBFFA0001, which is found after the
 *               reading.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  Value is null (the text names KVTD481X2C_GetAttributeViInt32 and AttributeValue)
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0059  the answer is no word of a defined value
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Queries `:TONE:SHAP?`.
 * Simulated: nothing is sent; the value last stored, before that KVTD481X2C_VAL_SHAPE_SINE.
 * @see KVTD481X2C_SetToneShape, KVTD481X2C_ATTR_TONE_SHAPE
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_GetToneShape(ViSession Vi, ViInt32* Value);
"""

SETTER = """\
/**
 * Writes KVTD481X2C_ATTR_TONE_PITCH: pitch of the tone.
 *
 * It follows the \\<scale\\> of the \\#1 room.
 *
 * @param Vi     Handle from KVTD481X2C_InitWithOptions.
 * @param Value  The new value. In Hz. Range: the instrument's; the driver checks none.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         a VISA status when the exchange fails
 *
 * Sends `:TONE:PITC <Value> HZ`.
 * Simulated: nothing is sent; the value is stored.
 * @see KVTD481X2C_GetTonePitch, KVTD481X2C_ATTR_TONE_PITCH
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_SetTonePitch(ViSession Vi, ViReal64 Value);
"""

TEXT_GETTER = """\
 * @param BufferSize  Bytes in Value. 0: returns 4096, which suffices for every text, without a read. Negative: up to
 *                    4096 bytes are written.
 * @param Value       Receives the text, terminated, cut to BufferSize. After a failure: what had arrived of it. Not
 *                    touched, and may be null, when BufferSize is 0.
 * @return VI_SUCCESS, 4096 when the text was cut or fills BufferSize exactly, or a negative status:
 *         0xBFFA0058  Value is null and BufferSize is not 0 (the text names AttributeValueBufferSize)
"""

OPERATION = """\
/**
 * Plays a tone and tells how long it took.
 *
 * A longer text.
 *
 * @param Vi                Handle from KVTD481X2C_InitWithOptions.
 * @param Name              Name of the tone.
 * @param Samples           Samples of the tone.
 * @param Duration          Time it took, in s. After a failure: unchanged, or what had arrived.
 * @param ReportBufferSize  Bytes in Report.
 * @param Report            What was played. After a failure: empty.
 * @return VI_SUCCESS or a negative status:
 *         0xBFFA0058  one of Duration, Report is null
 *         0xBFFA1190  Vi is not an open handle (no text is recorded)
 *         0xBFFA0001  the instrument reports an error; needs KVTD481X2C_ATTR_QUERY_INSTRUMENT_STATUS
 *         0xBFFA0010  Name is not known
 *         a VISA status when the exchange fails
 *
 * Sends `*OPC?`. Queries `:TONE:PLAY? "<Name>"`. Sets KVTD481X2C_ATTR_TONE_PITCH, KVTD481X2C_ATTR_TONE_LEVEL, in this
 * order, up to the first failure.
 * Simulated: returns 0 and sends nothing.
 * @see KVTD481X2C_ATTR_TONE_PITCH, KVTD481X2C_ATTR_TONE_LEVEL
 */
KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_PlayTone(ViSession Vi, ViConstString Name, const ViReal64* Samples,
                                                     ViReal64* Duration, ViInt32 ReportBufferSize, ViChar Report[]);
"""

CALLER = """\
#include "KVTD481X2C.h"
int main(void) {
  ViReal64 pitch = 0.0;
  if (KVTD481X2C_GetTonePitch(0, &pitch) == KVTD481X2C_ERROR_NULL_POINTER) return KVTD481X2C_VAL_SHAPE_LIST;
  return KVTD481X2C_SetToneLabel(0, "label") < KVTD481X2C_WARN_NO_RESET;
}
"""

DOXYFILE = """\
INPUT = KVTD481X2C.h
QUIET = YES
WARN_NO_PARAMDOC = YES
MACRO_EXPANSION = YES
PREDEFINED = KVTD481X2C_API= _VI_FUNC=
HAVE_DOT = NO
GENERATE_LATEX = NO
"""


class Header(ToyCatalogue):
    def setUp(self):
        super().setUp()
        self.header = self.product("header")

    def test_a_getter_says_what_its_output_holds_and_what_it_asks(self):
        self.assertIn(GETTER, self.header)

    def test_a_setter_says_its_unit_and_what_it_sends(self):
        self.assertIn(SETTER, self.header)

    def test_a_text_getter_says_how_its_buffer_size_is_read(self):
        self.assertIn(TEXT_GETTER, self.header)

    def test_an_operation_names_its_arguments_in_the_text_it_sends(self):
        self.assertIn(OPERATION, self.header)

    def test_a_failure_of_the_row_takes_the_place_of_the_common_one(self):
        self.append("codes.toml", '[error.STATUS]\ncode = 0xBFFA0001\ntext = "x"\n')
        self.replace("tone.toml", '["0xBFFA0010  Name is not known"]', '["0xBFFA0001  never: nothing is asked"]')
        play = self.product("header").split("Plays a tone")[1].split("*/")[0]
        self.assertIn(" *         0xBFFA0001  never: nothing is asked\n", play)
        self.assertEqual(1, play.count("0xBFFA0001"))

    def test_an_output_on_whose_failure_the_row_is_silent_is_unchanged(self):
        self.assertIn(" * @param Text  Receives the text. After a failure: unchanged.\n", self.header)

    def test_a_refused_boolean_is_the_sixteen_bits_of_minus_one(self):
        self.assertIn("VI_TRUE or VI_FALSE. After a failure: 0xFFFF with 0xBFFA0059", self.header)

    def test_an_operation_without_a_session_has_no_handle(self):
        self.assertIn("KVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_explain(ViChar Text[256]);\n", self.header)

    def test_an_operation_that_fails_in_no_way_says_only_success(self):
        self.assertIn(" * @return VI_SUCCESS.\n */\nKVTD481X2C_API ViStatus _VI_FUNC KVTD481X2C_explain(", self.header)

    def test_an_attribute_stands_with_type_unit_and_access(self):
        self.assertIn("/** Pitch of the tone. ViReal64, Hz, read and write. */\n"
                      "#define KVTD481X2C_ATTR_TONE_PITCH 1150001\n", self.header)
        self.assertIn("/** Range of the tone. ViInt32, enumeration SHAPE, write. */\n", self.header)

    def test_a_value_stands_with_its_word_or_the_lack_of_one(self):
        self.assertIn("/** On the wire: `LIST`. */\n#define KVTD481X2C_VAL_SHAPE_LIST 2\n", self.header)
        self.assertIn("/** Has no word on the wire. */\n#define KVTD481X2C_VAL_SHAPE_NONE 1\n", self.header)

    def test_a_value_of_two_maps_is_defined_once(self):
        self.assertEqual(1, self.header.count("#define KVTD481X2C_VAL_SHAPE_SINE "))

    def test_true_and_false_are_not_defined_again(self):
        self.assertNotIn("#define VI_TRUE", self.header)

    def test_a_positive_code_is_a_warning(self):
        self.assertIn("#define KVTD481X2C_ERROR_NULL_POINTER ((ViStatus)0xBFFA0058)\n", self.header)
        self.assertIn("#define KVTD481X2C_WARN_NO_RESET ((ViStatus)0x3FFA0066)\n", self.header)

    def test_no_line_is_longer_than_the_house_allows(self):
        self.assertEqual([], [line for line in self.header.splitlines() if len(line) > 120])


class HeaderInUse(ToyCatalogue):
    def setUp(self):
        super().setUp()
        (self.folder / "KVTD481X2C.h").write_text(self.product("header"))

    def quiet(self, *command):
        done = subprocess.run([*command], cwd=self.folder, capture_output=True, text=True, timeout=60, check=False)
        self.assertEqual((0, ""), (done.returncode, done.stdout + done.stderr))

    def compile(self, compiler, language, standard):
        (self.folder / "caller").write_text(CALLER)
        self.quiet(compiler, "-x", language, f"-std={standard}", "-fsyntax-only", "-Wall", "-Wextra", "-Wpedantic",
                   "-Wconversion", "-Wshadow", "-Werror", f"-I{os.environ['KVTD_INCLUDE']}", "-I.", "caller")

    @unittest.skipUnless(os.environ.get("KVTD_CC"), "CTest names the compiler")
    def test_a_c99_program_calls_through_it(self):
        self.compile(os.environ["KVTD_CC"], "c", "c99")

    @unittest.skipUnless(os.environ.get("KVTD_CXX"), "CTest names the compiler")
    def test_a_cpp_program_calls_through_it(self):
        for standard in ("c++98", "c++20"):
            with self.subTest(standard):
                self.compile(os.environ["KVTD_CXX"], "c++", standard)

    @unittest.skipUnless(os.environ.get("KVTD_DOXYGEN"), "doxygen is not installed")
    def test_doxygen_has_no_complaint(self):
        (self.folder / "Doxyfile").write_text(DOXYFILE)
        self.quiet(os.environ["KVTD_DOXYGEN"], "Doxyfile")
