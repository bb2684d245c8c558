"""One wrong row at a time. The sentence names the file and the row, and says what is wrong."""

from toy_catalogue import ToyCatalogue


class Check(ToyCatalogue):
    def refuses(self, sentence):
        self.assertEqual((1, sentence + "\n"), self.run_generator("check"))

    def refuses_with(self, file, old, new, sentence):
        self.replace(file, old, new)
        self.refuses(sentence)


class WholeFiles(Check):
    def test_the_toy_passes(self):
        self.assertEqual((0, ""), self.run_generator("check"))

    def test_a_file_that_is_missing_is_named(self):
        self.assertEqual((1, "away.toml: No such file or directory\n"),
                         self.run_generator("check", rows=[self.rows / "away.toml"]))

    def test_wrong_toml_is_named_with_its_place(self):
        self.replace("codes.toml", 'title = "Codes"', "title =")
        self.refuses("codes.toml: Invalid value (at line 1, column 8)")

    def test_bytes_that_are_no_text_are_refused(self):
        (self.rows / "codes.toml").write_bytes(b'title = "\xff"\n')
        code, said = self.run_generator("check")
        self.assertEqual(1, code)
        self.assertTrue(said.startswith("codes.toml: 'utf-8' codec can't decode"), said)

    def test_a_file_has_a_title(self):
        self.refuses_with("codes.toml", 'title = "Codes"\n', "", "codes.toml: no 'title'")

    def test_a_table_of_an_unknown_kind_is_refused(self):
        self.append("codes.toml", "[errors.X]\n")
        self.refuses("codes.toml: unknown key 'errors'")

    def test_two_files_of_one_name_are_refused(self):
        (self.rows / "second").mkdir()
        (self.rows / "second" / "codes.toml").write_text('title = "Again"\n')
        self.assertEqual((1, "codes.toml: a second file of this name\n"),
                         self.run_generator("check", rows=sorted(self.rows.rglob("*.toml"))))

    def test_a_row_that_is_no_table_is_refused(self):
        self.append("words.toml", "[attribute]\nTONE = 3\n")
        self.refuses("words.toml: TONE: not a table")

    def test_a_name_is_a_c_identifier(self):
        self.append("words.toml", '[error."NO PLACE"]\ncode = 0xBFFA0001\ntext = "x"\n')
        self.refuses("words.toml: NO PLACE: the name is no C identifier")


class Attributes(Check):
    def test_a_row_has_an_id(self):
        self.refuses_with("tone.toml", "id = 1150003\n", "", "tone.toml: TONE_COUNT: no 'id'")

    def test_a_row_has_a_brief(self):
        self.refuses_with("tone.toml", 'brief = "Shape of the tone."\n', "", "tone.toml: TONE_SHAPE: no 'brief'")

    def test_an_unknown_key_is_refused(self):
        self.refuses_with("tone.toml", "id = 1150003\n", "id = 1150003\nbreif = \"x\"\n",
                          "tone.toml: TONE_COUNT: unknown key 'breif'")

    def test_an_id_is_a_number(self):
        self.refuses_with("tone.toml", "id = 1150003", 'id = "1150003"',
                          "tone.toml: TONE_COUNT: 'id' is not a whole number")

    def test_an_id_is_no_truth_value(self):
        self.refuses_with("tone.toml", "id = 1150003", "id = true", "tone.toml: TONE_COUNT: 'id' is not a whole number")

    def test_an_id_lies_in_a_band(self):
        self.refuses_with("tone.toml", "id = 1150003", "id = 1350003",
                          "tone.toml: TONE_COUNT: the id 1350003 is in none of the bands 1050xxx, 1150xxx, 1250xxx")

    def test_a_type_is_known(self):
        self.refuses_with("tone.toml", 'type = "integer"', 'type = "whole"',
                          "tone.toml: TONE_COUNT: 'type' is none of boolean, enum, integer, real, session, string")

    def test_a_frame_is_known(self):
        self.refuses_with("tone.toml", 'frame = "forward"', 'frame = "backward"',
                          "tone.toml: TONE_PITCH_F0: 'frame' is none of cached, plain, simulated, forward, custom")

    def test_a_real_has_a_unit(self):
        self.refuses_with("tone.toml", 'unit = "Hz"\n', "", "tone.toml: TONE_PITCH: no 'unit'")

    def test_a_text_has_no_unit(self):
        self.refuses_with("tone.toml", 'sim = "a ', 'unit = "Hz"\nsim = "a ',
                          "tone.toml: TONE_LABEL: a row of type string has no 'unit'")

    def test_an_export_is_a_c_identifier(self):
        self.refuses_with("tone.toml", 'export = "ToneCount"', 'export = "Tone Count"',
                          "tone.toml: TONE_COUNT: 'export' is no C identifier")

    def test_a_brief_says_something(self):
        self.refuses_with("tone.toml", '"Shape of the tone."', '" "', "tone.toml: TONE_SHAPE: 'brief' is empty")

    def test_a_text_cannot_close_the_comment_it_is_printed_in(self):
        self.refuses_with("tone.toml", '"Shape of the tone."', '"Shape of any */ tone."',
                          "tone.toml: TONE_SHAPE: 'brief' would open or close a C comment")

    def test_a_text_is_ascii(self):
        self.refuses_with("tone.toml", 'unit = "tones"', 'unit = "\u00b0"',
                          "tone.toml: TONE_COUNT: 'unit' has a character that is not ASCII")

    def test_a_name_stands_once_across_files(self):
        self.append("words.toml", '[attribute.TONE_COUNT]\nid = 1150050\ntype = "integer"\nframe = "cached"\n'
                                  'get = ":X?\\n"\nbrief = "x"\n')
        self.refuses("words.toml: TONE_COUNT: a second attribute of this name")

    def test_an_id_stands_once(self):
        self.refuses_with("tone.toml", "id = 1150003", "id = 1150002",
                          "tone.toml: TONE_COUNT: a second attribute with the id 1150002")

    def test_two_names_do_not_share_a_constant(self):
        self.refuses_with("tone.toml", "[attribute.TONE_COUNT]", "[attribute.TONE__LABEL]",
                          "tone.toml: TONE__LABEL: a second attribute whose constant is kToneLabel")

    def test_an_export_stands_once(self):
        self.refuses_with("tone.toml", 'export = "ToneCount"', 'export = "ToneLabel"',
                          "tone.toml: TONE_COUNT: a second export KVTD481X2C_GetToneLabel")

    def test_an_operation_does_not_take_the_name_of_a_typed_export(self):
        self.refuses_with("tone.toml", "[operation.explain]", "[operation.SetToneLabel]",
                          "tone.toml: SetToneLabel: a second export KVTD481X2C_SetToneLabel")


class WireTexts(Check):
    def test_a_row_is_read_or_written(self):
        self.refuses_with("tone.toml", 'get = ":TONE:COUN?\\n"\n', "",
                          "tone.toml: TONE_COUNT: neither 'get' nor 'set'")

    def test_a_read_ends_in_a_question_and_a_line_feed(self):
        self.refuses_with("tone.toml", 'get = ":TONE:COUN?\\n"', 'get = ":TONE:COUN?"',
                          "tone.toml: TONE_COUNT: 'get' does not end in \"?\\n\"")

    def test_a_read_has_no_directive(self):
        self.refuses_with("tone.toml", 'get = ":TONE:COUN?\\n"', 'get = ":TONE:COUN%d?\\n"',
                          "tone.toml: TONE_COUNT: 'get' has a format directive")

    def test_a_write_ends_in_a_line_feed(self):
        self.refuses_with("tone.toml", "%0.15lg HZ\\n", "%0.15lg HZ",
                          "tone.toml: TONE_PITCH: 'set' does not end in \"\\n\"")

    def test_a_real_is_not_written_as_a_text(self):
        self.refuses_with("tone.toml", ":PITC %0.15lg HZ", ":PITC %s HZ",
                          "tone.toml: TONE_PITCH: the one directive of 'set' in a row of type real is %0.15lg")

    def test_a_real_is_not_written_with_fewer_digits(self):
        self.refuses_with("tone.toml", ":PITC %0.15lg HZ", ":PITC %lg HZ",
                          "tone.toml: TONE_PITCH: the one directive of 'set' in a row of type real is %0.15lg")

    def test_a_write_without_a_directive_is_refused(self):
        self.refuses_with("tone.toml", ":STAT %s", ":STAT 1",
                          "tone.toml: TONE_ENABLED: the one directive of 'set' in a row of type boolean is %s")

    def test_a_write_with_two_directives_is_refused(self):
        self.refuses_with("tone.toml", ":SHAP %s", ":SHAP %s,%s",
                          "tone.toml: TONE_SHAPE: the one directive of 'set' in a row of type enum is %s")

    def test_a_percent_that_begins_nothing_is_refused(self):
        self.refuses_with("tone.toml", ":SHAP %s\\n", ":SHAP %s %\\n",
                          "tone.toml: TONE_SHAPE: the one directive of 'set' in a row of type enum is %s")

    def test_a_session_is_written_by_hand(self):
        self.refuses_with("tone.toml", 'type = "integer"\nframe = "cached"', 'type = "session"\nframe = "cached"',
                          "tone.toml: TONE_COUNT: a row of type session has no 'unit'")
        self.replace("tone.toml", 'unit = "tones"\n', "")
        self.refuses("tone.toml: TONE_COUNT: a session row is custom")

    def test_a_step_stands_behind_a_write(self):
        self.refuses_with("tone.toml", 'set = ":TONE:STAT %s\\n"\n', "",
                          "tone.toml: TONE_ENABLED: 'then' in a row that is not written")

    def test_a_step_takes_a_real_or_a_boolean(self):
        self.refuses_with("tone.toml", 'export = "ToneCount"', 'then = "Count"',
                          "tone.toml: TONE_COUNT: 'then' in a row of type integer")

    def test_a_conversion_takes_a_text(self):
        self.refuses_with("tone.toml", 'then = "StampPitch"', 'convert = "QuoteList"',
                          "tone.toml: TONE_PITCH: 'convert' in a row of type real")

    def test_a_simulated_value_fits_its_type(self):
        for old, new, row in (("sim = 440", 'sim = "440"', "TONE_PITCH: 'sim' does not fit the type real"),
                              ("sim = 3", "sim = 3.0", "TONE_COUNT: 'sim' does not fit the type integer"),
                              ("sim = 3", "sim = true", "TONE_COUNT: 'sim' does not fit the type integer"),
                              ("sim = true", "sim = 1", "TONE_AUTO: 'sim' does not fit the type boolean")):
            with self.subTest(new):
                self.replace("tone.toml", old, new)
                self.refuses(f"tone.toml: {row}")
                self.replace("tone.toml", new, old)

    def test_a_plain_row_simulates_nothing(self):
        self.refuses_with("tone.toml", 'brief = "Level of the tone."', 'brief = "Level."\nsim = 1.0',
                          "tone.toml: TONE_LEVEL: a plain row makes its VISA call in a simulated session too and has "
                          "no 'sim'")

    def test_a_row_that_is_not_read_has_no_simulated_value(self):
        self.refuses_with("tone.toml", 'brief = "Range of the tone."', 'brief = "Range."\nsim = 1',
                          "tone.toml: TONE_RANGE: 'sim' in a row that is not read")


class Frames(Check):
    def test_a_forward_row_has_a_target(self):
        self.refuses_with("tone.toml", 'target = "TONE_PITCH"\n', "", "tone.toml: TONE_PITCH_F0: no 'target'")

    def test_the_target_is_an_attribute(self):
        self.refuses_with("tone.toml", 'target = "TONE_PITCH"', 'target = "TONE_COLOUR"',
                          "tone.toml: TONE_PITCH_F0: the target TONE_COLOUR is no attribute")

    def test_the_target_is_real(self):
        self.refuses_with("tone.toml", 'target = "TONE_PITCH"', 'target = "TONE_LABEL"',
                          "tone.toml: TONE_PITCH_F0: the target TONE_LABEL is not a real attribute of its own, read "
                          "and written")

    def test_a_forward_row_does_not_lead_to_another(self):
        self.refuses_with("tone.toml", 'target = "TONE_PITCH"', 'target = "TONE_DEPTH"',
                          "tone.toml: TONE_PITCH_F0: the target TONE_DEPTH is not a real attribute of its own, read "
                          "and written")

    def test_a_forward_row_is_real(self):
        self.refuses_with("tone.toml", 'type = "real"\nframe = "forward"', 'type = "integer"\nframe = "forward"',
                          "tone.toml: TONE_PITCH_F0: a forward row is of type real")

    def test_a_forward_row_has_no_wire_text(self):
        self.refuses_with("tone.toml", 'target = "TONE_PITCH"', 'get = ":X?\\n"',
                          "tone.toml: TONE_PITCH_F0: 'get' has no place in a forward row")

    def test_a_custom_row_has_no_wire_text(self):
        self.refuses_with("tone.toml", 'access = "RW"', 'access = "RW"\nset = ":X %s\\n"',
                          "tone.toml: TONE_SOURCE: 'set' has no place in a custom row")

    def test_a_cached_row_has_no_access(self):
        self.refuses_with("tone.toml", "sim = 440", 'access = "RW"',
                          "tone.toml: TONE_PITCH: 'access' has no place in a cached row")

    def test_a_custom_row_says_its_access(self):
        self.refuses_with("tone.toml", 'access = "RW"\n', "", "tone.toml: TONE_SOURCE: no 'access'")

    def test_an_access_is_known(self):
        self.refuses_with("tone.toml", 'access = "RW"', 'access = "RO"',
                          "tone.toml: TONE_SOURCE: 'access' is none of RW, R, W")

    def test_a_custom_row_says_what_its_write_does(self):
        self.refuses_with("tone.toml", 'writes = "Refuses EXTERNAL."\n', "", "tone.toml: TONE_SOURCE: no 'writes'")

    def test_a_custom_row_that_is_only_read_does_not_say_what_its_write_does(self):
        self.refuses_with("tone.toml", 'access = "RW"', 'access = "R"',
                          "tone.toml: TONE_SOURCE: 'writes' in a row whose access is R")


class Enumerations(Check):
    def test_an_enum_row_names_its_map(self):
        self.refuses_with("tone.toml", 'enum = "SHAPE"\n', "", "tone.toml: TONE_SHAPE: no 'enum'")

    def test_the_map_is_known(self):
        self.refuses_with("tone.toml", 'enum = "SHAPE"', 'enum = "FORM"',
                          "tone.toml: TONE_SHAPE: the enumeration FORM is not known")

    def test_an_integer_has_no_map(self):
        self.refuses_with("tone.toml", 'export = "ToneCount"', 'enum = "SHAPE"',
                          "tone.toml: TONE_COUNT: 'enum' in a row of type integer")

    def test_a_boolean_needs_the_map_boolean(self):
        self.refuses_with("words.toml", "[enum.BOOLEAN]", "[enum.TRUTH]",
                          "words.toml: TRUTH: the values do not ascend")
        self.replace("words.toml", '  { name = "VI_FALSE", value = 0, words = ["0", "OFF"] },\n', "")
        self.refuses("tone.toml: TONE_AUTO: the enumeration BOOLEAN is not known")

    def test_a_map_that_is_read_with_has_a_response_converter(self):
        self.refuses_with("words.toml", '["response", "command"]', '["command"]',
                          "tone.toml: TONE_SHAPE: the enumeration SHAPE has no response converter")

    def test_a_map_that_is_written_with_has_a_command_converter(self):
        self.refuses_with("words.toml", '["response", "command"]', '["response"]',
                          "tone.toml: TONE_SHAPE: the enumeration SHAPE has no command converter")

    def test_a_converter_is_known(self):
        self.refuses_with("words.toml", '["name"]', '["title"]',
                          "words.toml: SOURCE: the converter 'title' is none of response, command, name")

    def test_a_map_has_values(self):
        self.append("words.toml", "[enum.VOID]\nconverters = []\nvalues = []\n")
        self.refuses("words.toml: VOID: no values")

    def test_a_value_has_words_or_says_that_it_has_none(self):
        self.refuses_with("words.toml", ", words = []", "", "words.toml: SHAPE: value 2: no 'words'")

    def test_words_are_texts(self):
        self.refuses_with("words.toml", '["LIST"]', "[3]", "words.toml: SHAPE: value 3: 'words' is not a list of texts")

    def test_a_name_has_one_number_in_all_maps(self):
        self.refuses_with("words.toml", '{ name = "SOURCE_EXTERNAL", value = 1', '{ name = "SHAPE_LIST", value = 1',
                          "words.toml: SOURCE: KVTD481X2C_VAL_SHAPE_LIST is 1 here and 2 in words.toml")

    def test_values_ascend(self):
        self.refuses_with("words.toml", "value = 2", "value = 1", "words.toml: SHAPE: the values do not ascend")

    def test_a_value_stands_once_in_a_map(self):
        self.refuses_with("words.toml", '{ name = "SHAPE_LIST", value = 2', '{ name = "SHAPE_NONE", value = 1',
                          "words.toml: SHAPE: SHAPE_NONE stands twice")

    def test_a_value_name_is_a_c_identifier(self):
        self.refuses_with("words.toml", '"SHAPE_LIST"', '"SHAPE-LIST"',
                          "words.toml: SHAPE: the value name 'SHAPE-LIST' is no C identifier")

    def test_true_stands_before_false(self):
        self.refuses_with("words.toml", '"VI_TRUE", value = 1', '"VI_TRUE", value = 2',
                          "words.toml: BOOLEAN: the values of BOOLEAN are VI_TRUE, 1, and VI_FALSE, 0, in this order")

    def test_a_word_has_no_comma(self):
        self.refuses_with("words.toml", '"LIST"]', '"LIST,L"]',
                          "words.toml: SHAPE: the word 'LIST,L' has a comma, or a blank at one end")

    def test_a_word_has_no_blank_at_its_end(self):
        self.refuses_with("words.toml", '"LIST"]', '"LIST "]',
                          "words.toml: SHAPE: the word 'LIST ' has a comma, or a blank at one end")


class Errors(Check):
    def test_a_code_lies_in_the_drivers_range(self):
        self.refuses_with("codes.toml", "code = 0xBFFA0010", "code = 0xBFFF0010",
                          "codes.toml: INVALID_VALUE: the code 0xBFFF0010 is outside 0xBFFA0000 to 0xBFFAFFFF and "
                          "0x3FFA0000 to 0x3FFAFFFF")

    def test_a_code_stands_once(self):
        self.refuses_with("codes.toml", "code = 0xBFFA0010", "code = 0xBFFA0058",
                          "codes.toml: INVALID_VALUE: a second error with the code 0xBFFA0058")

    def test_a_name_stands_once_across_files(self):
        self.append("words.toml", '[error.NO_RESET]\ncode = 0x3FFA0067\ntext = "x"\n')
        self.refuses("words.toml: NO_RESET: a second error of this name")


class Operations(Check):
    def test_an_argument_type_is_known(self):
        self.refuses_with("tone.toml", 'type = "ViReal64*"', 'type = "double*"',
                          "tone.toml: PlayTone: the type 'double*' of the argument Duration is not known")

    def test_an_argument_name_is_a_c_identifier(self):
        self.refuses_with("tone.toml", 'name = "Duration"', 'name = "Dura tion"',
                          "tone.toml: PlayTone: the argument name 'Dura tion' is no C identifier")

    def test_an_argument_is_described(self):
        self.refuses_with("tone.toml", ', doc = "Name of the tone."', "", "tone.toml: PlayTone: argument 1: no 'doc'")

    def test_an_argument_stands_once(self):
        self.refuses_with("tone.toml", 'name = "Samples"', 'name = "Name"',
                          "tone.toml: PlayTone: a second argument Name")

    def test_the_handle_is_not_named_again(self):
        self.refuses_with("tone.toml", 'name = "Samples"', 'name = "Vi"', "tone.toml: PlayTone: a second argument Vi")

    def test_a_query_ends_in_a_line_feed(self):
        self.refuses_with("tone.toml", 'PLAY? \\"%s\\"\\n"', 'PLAY? \\"%s\\""',
                          "tone.toml: PlayTone: 'query' does not end in \"\\n\"")

    def test_a_scan_needs_a_query(self):
        self.refuses_with("tone.toml", 'query = ":TONE:PLAY? \\"%s\\"\\n"\n', "",
                          "tone.toml: PlayTone: 'scan' without 'query'")

    def test_what_it_sets_is_an_attribute(self):
        self.refuses_with("tone.toml", '"TONE_PITCH", "TONE_LEVEL"]', '"TONE_PITCH", "LEVEL"]',
                          "tone.toml: PlayTone: 'sets' names LEVEL, which is no attribute")

    def test_a_failure_begins_with_its_code(self):
        self.refuses_with("tone.toml", "0xBFFA0010  Name", "0xBFFA0010 Name",
                          "tone.toml: PlayTone: the failure '0xBFFA0010 Name is not known' is not a code of eight "
                          "digits, two blanks and a text")

    def test_a_failure_is_an_error_of_the_catalogue(self):
        self.refuses_with("tone.toml", "0xBFFA0010  Name", "0xBFFA0011  Name",
                          "tone.toml: PlayTone: the failure 0xBFFA0011 is no error of the catalogue")
