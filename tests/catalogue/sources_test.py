"""The C++ of the library: literal lines of the toy's. The library's own build shows that such lines compile."""

from toy_catalogue import ToyCatalogue


class Sources(ToyCatalogue):
    def setUp(self):
        super().setUp()
        self.sources = self.product("sources")

    def has(self, file, *lines):
        for line in lines:
            self.assertIn(line, self.sources[file])

    def has_not(self, file, *lines):
        for line in lines:
            self.assertNotIn(line, self.sources[file])

    def test_a_room_has_its_rows_in_a_file_of_its_own(self):
        self.assertEqual({"handlers.h", "operations.h", "registry.cpp", "exports.cpp", "enums.h", "enums.cpp",
                          "error_codes.h", "error_table.cpp", "tone_rows.cpp"}, set(self.sources))

    def test_a_real_row_has_its_texts_its_simulated_value_and_its_step(self):
        self.has("tone_rows.cpp", """\
constexpr tvr::RealRow kTonePitch{KVTD481X2C_ATTR_TONE_PITCH, "KVTD481X2C_ATTR_TONE_PITCH", tvr::Frame::Cached,
                                  ":TONE:PITC?\\n", ":TONE:PITC %0.15lg HZ\\n", 440.0, StampPitch};
""", """\
constexpr tvr::RealRow kToneLevel{KVTD481X2C_ATTR_TONE_LEVEL, "KVTD481X2C_ATTR_TONE_LEVEL", tvr::Frame::Plain,
                                  ":TONE:LEV?\\n", ":TONE:LEV %0.15lg \\n", 0.0, nullptr};
""")

    def test_an_integer_row_that_is_only_read_has_no_write(self):
        self.has("tone_rows.cpp", """\
constexpr tvr::IntegerRow kToneCount{KVTD481X2C_ATTR_TONE_COUNT, "KVTD481X2C_ATTR_TONE_COUNT", tvr::Frame::Cached,
                                     ":TONE:COUN?\\n", nullptr, 3};
""")

    def test_an_enum_row_has_its_map(self):
        self.has("tone_rows.cpp", """\
constexpr tvr::EnumRow kToneRange{KVTD481X2C_ATTR_TONE_RANGE, "KVTD481X2C_ATTR_TONE_RANGE", tvr::Frame::Simulated,
                                  nullptr, ":TONE:RANG %s\\n", 0, &maps::Shape};
""")

    def test_a_boolean_row_simulates_true_or_false(self):
        self.has("tone_rows.cpp", """\
constexpr tvr::BooleanRow kToneAuto{KVTD481X2C_ATTR_TONE_AUTO, "KVTD481X2C_ATTR_TONE_AUTO", tvr::Frame::Simulated,
                                    ":TONE:AUTO?\\n", nullptr, VI_TRUE, nullptr};
""", '":TONE:STAT %s\\n", VI_FALSE, StampSwitch};')

    def test_quotes_in_a_text_row_are_escaped(self):
        self.has("tone_rows.cpp", """\
constexpr tvr::TextRow kToneLabel{KVTD481X2C_ATTR_TONE_LABEL, "KVTD481X2C_ATTR_TONE_LABEL", tvr::Frame::Cached,
                                  ":TONE:LAB?\\n", ":TONE:LAB \\"%s\\"\\n", "a \\"quoted\\" one", QuoteList};
""")

    def test_a_forward_row_has_its_target(self):
        self.has("tone_rows.cpp", """\
constexpr tvr::ForwardRow kTonePitchF0{KVTD481X2C_ATTR_TONE_PITCH_F0, "KVTD481X2C_ATTR_TONE_PITCH_F0",
                                       KVTD481X2C_ATTR_TONE_PITCH};
""")

    def test_a_custom_row_has_prototypes_and_nothing_else(self):
        self.has_not("tone_rows.cpp", "TONE_SOURCE", "TONE_SESSION")
        self.has("handlers.h",
                 "ViStatus KVTD481X2C_get_TONE_SOURCE(ViSession vi, ViConstString selector, ViInt32* value);\n",
                 "ViStatus KVTD481X2C_set_TONE_SOURCE(ViSession vi, ViConstString selector, ViInt32 value);\n",
                 "ViStatus KVTD481X2C_get_TONE_SESSION(ViSession vi, ViConstString selector, ViSession* value);\n")
        self.has_not("handlers.h", "KVTD481X2C_set_TONE_SESSION")

    def test_a_room_of_custom_rows_alone_has_a_file_without_rows(self):
        self.append("codes.toml", '[attribute.CODE]\nid = 1050002\ntype = "integer"\nframe = "custom"\naccess = "R"\n'
                                  'reads = "The last code."\nbrief = "Last code."\n')
        self.assertNotIn("kCode", self.product("sources")["codes_rows.cpp"])

    def test_a_handler_is_one_call(self):
        self.has("tone_rows.cpp", """\
ViStatus KVTD481X2C_set_TONE_LEVEL(ViSession vi, ViConstString, ViReal64 value) {
  return tvr::SetValue(kToneLevel, vi, value);
}
""", """\
ViStatus KVTD481X2C_get_TONE_LABEL(ViSession vi, ViConstString, ViInt32 size, ViChar* value) {
  return tvr::GetValue(kToneLabel, vi, size, value);
}
""")

    def test_a_direction_that_a_row_lacks_has_no_handler(self):
        for file in ("tone_rows.cpp", "handlers.h", "registry.cpp"):
            self.has_not(file, "KVTD481X2C_set_TONE_COUNT", "KVTD481X2C_get_TONE_RANGE")

    def test_a_step_takes_the_type_of_its_attribute(self):
        self.has("handlers.h", "ViStatus StampPitch(ViSession vi, ViReal64 value, ViStatus status);\n",
                 "ViStatus StampSwitch(ViSession vi, ViBoolean value, ViStatus status);\n",
                 "std::string QuoteList(ViConstString text);\n")

    def test_the_registry_is_filled_by_ascending_id(self):
        ids = [line.split("(")[1].split(",")[0] for line in self.sources["registry.cpp"].splitlines()
               if "registry.Add" in line]
        self.assertEqual([f"KVTD481X2C_ATTR_TONE_{name}" for name in (
            "SESSION", "PITCH", "LABEL", "COUNT", "SHAPE", "RANGE", "AUTO", "LEVEL", "ENABLED", "PITCH_F0", "DEPTH",
            "SOURCE")], ids)

    def test_the_registry_has_null_for_a_missing_direction(self):
        self.has("registry.cpp", """\
  registry.Add<ViInt32>(KVTD481X2C_ATTR_TONE_RANGE, "KVTD481X2C_ATTR_TONE_RANGE", nullptr, KVTD481X2C_set_TONE_RANGE);
""", """\
  registry.Add<ViSession>(KVTD481X2C_ATTR_TONE_SESSION, "KVTD481X2C_ATTR_TONE_SESSION", KVTD481X2C_get_TONE_SESSION,
                          nullptr);
""")

    def test_a_typed_export_is_the_generic_one_with_the_id(self):
        self.has("exports.cpp", """\
extern "C" ViStatus _VI_FUNC KVTD481X2C_GetTonePitch(ViSession Vi, ViReal64* Value) {
  return KVTD481X2C_GetAttributeViReal64(Vi, VI_NULL, KVTD481X2C_ATTR_TONE_PITCH, Value);
}
""", """\
extern "C" ViStatus _VI_FUNC KVTD481X2C_GetToneLabel(ViSession Vi, ViInt32 BufferSize, ViChar Value[]) {
  return KVTD481X2C_GetAttributeViString(Vi, VI_NULL, KVTD481X2C_ATTR_TONE_LABEL, BufferSize, Value);
}
""", """\
extern "C" ViStatus _VI_FUNC KVTD481X2C_SetToneLabel(ViSession Vi, ViConstString Value) {
  return tvr::SetAttribute<ViString>(Vi, nullptr, KVTD481X2C_ATTR_TONE_LABEL, Value);
}
""")

    def test_an_attribute_without_export_has_no_typed_one(self):
        self.has_not("exports.cpp", "TONE_LEVEL", "TONE_DEPTH")

    def test_an_operation_has_its_texts_and_null_for_the_rest(self):
        self.has("operations.h", """\
constexpr Operation kPlayTone{"KVTD481X2C_PlayTone", "Duration, Report", nullptr, ":TONE:PLAY? \\"%s\\"\\n",
                              "%lf,%#[^\\n]%*t"};
constexpr Operation kExplain{"KVTD481X2C_explain", nullptr, nullptr, nullptr, nullptr};
""")

    def test_a_map_declares_every_value_before_the_words(self):
        self.has("enums.cpp", """\
const tvr::EnumMap& Shape() {
  static const tvr::EnumMap map{
      {"KVTD481X2C_VAL_SHAPE_SINE", 0, "!!!", "!!!"},
      {"KVTD481X2C_VAL_SHAPE_NONE", 1, "!!!", "!!!"},
      {"KVTD481X2C_VAL_SHAPE_LIST", 2, "!!!", "!!!"},
      {"KVTD481X2C_VAL_SHAPE_SINE", 0, "SINusoid, SIN", ""},
      {"KVTD481X2C_VAL_SHAPE_LIST", 2, "LIST", ""},
  };
  return map;
}
""")

    def test_the_map_of_booleans_has_only_words(self):
        self.has("enums.cpp", """\
  static const tvr::EnumMap map{
      {"VI_TRUE", 1, "1, ON", ""},
      {"VI_FALSE", 0, "0, OFF", ""},
  };
""")

    def test_error_texts_ascend_by_the_signed_code(self):
        self.has("error_codes.h", "constexpr ViStatus kNullPointer = static_cast<ViStatus>(0xBFFA0058);\n")
        self.has("error_table.cpp", """\
    {tvr::error::kInvalidValue, "Invalid value '%s'."},
    {tvr::error::kNullPointer, "Null pointer passed for function '%s', parameter '%s'."},
    {tvr::error::kNoReset, "Reset is not supported by this instrument."},
""")
