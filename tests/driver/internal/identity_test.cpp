// The four fields of the identity where the session keeps them. The serial number has no way out of it: the attribute
// of that name asks the instrument.

#include <TD481X2CDriverSession.h>

#include "DriverDialogue.h"

namespace kvtd::test {
namespace {

class KeptIdentity : public InstrumentDialogue {
 protected:
  void ExpectKept(const char* manufacturer, const char* model, const char* serial_number, const char* firmware) {
    const tvr::DriverSession& session = tvr::SessionOf(vi);
    EXPECT_EQ(manufacturer, session.GetInstrumentManufacturer());
    EXPECT_EQ(model, session.GetInstrumentModel());
    EXPECT_EQ(serial_number, session.GetInstrumentSerialNumber());
    EXPECT_EQ(firmware, session.GetInstrumentFirmwareRevision());
  }
};

TEST_F(KeptIdentity, EveryFieldHasItsPlace) {
  ScriptBringUp("Kelvora,TD48142C,SN4711,1.2.3");
  ASSERT_STATUS(VI_SUCCESS, Open());
  ExpectKept("Kelvora", "TD48142C", "SN4711", "1.2.3");
}

TEST_F(KeptIdentity, NothingIsTrimmed) {
  ScriptBringUp(" Kelvora , TD48142C, 47 11 , 1.0 beta,more");
  ASSERT_STATUS(VI_SUCCESS, Open());
  ExpectKept(" Kelvora ", " TD48142C", " 47 11 ", " 1.0 beta");
}

TEST_F(KeptIdentity, FieldsThatAreMissingStayEmpty) {
  ScriptBringUp("Kelvora,TD48142C,SN4711");
  ASSERT_STATUS(VI_SUCCESS, Open());
  ExpectKept("Kelvora", "TD48142C", "SN4711", "");
}

TEST_F(KeptIdentity, OfASimulatedSessionIsItsModelAlone) {
  ASSERT_STATUS(VI_SUCCESS, Open("Simulate=1"));
  ExpectKept("", "TD48122C", "", "");
}

}  // namespace
}  // namespace kvtd::test
