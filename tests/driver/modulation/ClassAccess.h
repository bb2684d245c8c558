// The class's view of the modulations has few exports of its own: a fixture that reaches it through the generic
// accessors, in a real session or a simulated one.

#ifndef KVTD_TESTS_DRIVER_MODULATION_CLASS_ACCESS_H
#define KVTD_TESTS_DRIVER_MODULATION_CLASS_ACCESS_H

#include "DriverDialogue.h"
#include "Handles.h"

namespace kvtd::test {

inline std::string ValueRefused(const std::string& value, const std::string& attribute) {
  return "Does not support this class-compliant feature:  Enumeration value '" + value +
         "' passed as the value for parameter 'AttributeValue' in function '" + attribute + "'.";
}

inline const RecordedError kNoClassValue{kUnexpectedResponse, "Unexpected response from instrument."};

template <typename Session>
class ClassAccess : public Session {
 protected:
  ViStatus GetReal(ViAttr id, ViReal64* value) { return KVTD481X2C_GetAttributeViReal64(this->vi, nullptr, id, value); }
  ViStatus SetReal(ViAttr id, ViReal64 value) { return KVTD481X2C_SetAttributeViReal64(this->vi, nullptr, id, value); }
  ViStatus GetInt32(ViAttr id, ViInt32* value) { return KVTD481X2C_GetAttributeViInt32(this->vi, nullptr, id, value); }
  ViStatus SetInt32(ViAttr id, ViInt32 value) { return KVTD481X2C_SetAttributeViInt32(this->vi, nullptr, id, value); }
  ViStatus GetBoolean(ViAttr id, ViBoolean* value) {
    return KVTD481X2C_GetAttributeViBoolean(this->vi, nullptr, id, value);
  }
  ViStatus SetBoolean(ViAttr id, ViBoolean value) {
    return KVTD481X2C_SetAttributeViBoolean(this->vi, nullptr, id, value);
  }
  ViStatus SetText(ViAttr id, ViConstString value) {
    return KVTD481X2C_SetAttributeViString(this->vi, nullptr, id, value);
  }

  // Reads that must succeed.
  ViReal64 Real(ViAttr id) {
    ViReal64 value = 77;
    EXPECT_STATUS(VI_SUCCESS, GetReal(id, &value));
    return value;
  }
  ViInt32 Int32(ViAttr id) {
    ViInt32 value = 77;
    EXPECT_STATUS(VI_SUCCESS, GetInt32(id, &value));
    return value;
  }

  // One exchange each.
  void Asked(const std::string& query, const std::string& answer) {
    this->Sent(query + '\n');
    this->Answer(answer + '\n');
  }
};

}  // namespace kvtd::test

#endif
