// A fixture for the rooms whose operations are single exchanges.

#ifndef KVTD_TESTS_DRIVER_SERVICES_SERVICE_DIALOGUE_H
#define KVTD_TESTS_DRIVER_SERVICES_SERVICE_DIALOGUE_H

#include <functional>

#include "DriverDialogue.h"
#include "Handles.h"

namespace kvtd::test {

class ServiceDialogue : public DriverDialogue {
 protected:
  void Asked(const std::string& query, const std::string& answer) {
    Sent(query + '\n');
    Answer(answer + '\n');
  }

  ViInt32 IoTimeout() {
    ViInt32 timeout = -1;
    EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_GetIOTimeout(vi, &timeout));
    return timeout;
  }
  void SetIoTimeout(ViInt32 timeout) { EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_SetIOTimeout(vi, timeout)); }

  // The instrument is gone, and VISA knows it: whatever is sent from now on fails.
  void LoseTheConnection() {
    Sent("*OPC?\n");
    instrument.Reset();
    EXPECT_STATUS(kVisaConnectionLost, KVTD481X2C_WaitForOperationComplete(vi));
  }

  // An operation that sends one command and asks for the status behind it.
  void ExpectCheckedAction(const std::string& command, const std::function<ViStatus()>& operation) {
    SCOPED_TRACE(command);
    QueryInstrumentStatus(false);
    Sent(command);
    EXPECT_STATUS(VI_SUCCESS, operation());
    QueryInstrumentStatus(true);
    Sent(command);
    Asked("*ESR?", "0");
    EXPECT_STATUS(VI_SUCCESS, operation());
    Sent(command);
    Asked("*ESR?", "16");
    EXPECT_STATUS(kInstrumentError, operation());
    EXPECT_EQ((RecordedError{kInstrumentError, std::string(kInstrumentErrorText)}), LastError());
  }

  // An operation that reads one line into the caller's buffer.
  using TextQuery = std::function<ViStatus(ViSession vi, ViInt32 size, ViChar* text)>;
  void ExpectTextQuery(const std::string& query, const std::string& function, const std::string& parameter,
                       const TextQuery& operation) {
    SCOPED_TRACE(query);
    QueryInstrumentStatus(true);
    const auto cut = [&]<std::size_t N>(GuardedText<N>&& text, const std::string& expected) {
      Asked(query, "one, \"two\"");
      Asked("*ESR?", "0");
      EXPECT_STATUS(VI_SUCCESS, operation(vi, text.size(), text.data()));
      EXPECT_EQ(expected, text.text());
    };
    cut(GuardedText<1>(), "");
    cut(GuardedText<6>(), "one, ");
    cut(GuardedText<11>(), "one, \"two\"");
    cut(GuardedText<4096>(), "one, \"two\"");

    GuardedText<16> text;
    Asked(query, "");
    Asked("*ESR?", "0");
    EXPECT_STATUS(VI_SUCCESS, operation(vi, text.size(), text.data()));
    EXPECT_EQ("", text.text());
    Asked(query, "x");
    Asked("*ESR?", "32");
    EXPECT_STATUS(kInstrumentError, operation(vi, text.size(), text.data()));
    EXPECT_EQ(kInstrumentErrorText, LastErrorText());

    EXPECT_STATUS(kNullPointer, operation(vi, text.size(), nullptr));
    EXPECT_EQ(NullPointerError(function, parameter), LastError());
    for (const ViSession handle : HandlesThatAreNotOpen()) {
      GuardedText<16> untouched;
      EXPECT_STATUS(kInvalidHandle, operation(handle, untouched.size(), untouched.data()));
      EXPECT_TRUE(untouched.Untouched());
    }
    EXPECT_EQ(kNothingRecorded, LastError());
    QueryInstrumentStatus(false);
  }
};

class SimulatedService : public SimulatedDriver {
 protected:
  using TextQuery = std::function<ViStatus(ViSession vi, ViInt32 size, ViChar* text)>;
  void ExpectUnwritten(const std::string& function, const std::string& parameter, const TextQuery& operation) {
    GuardedText<16> text;
    EXPECT_STATUS(VI_SUCCESS, operation(vi, text.size(), text.data()));
    EXPECT_TRUE(text.Untouched());
    EXPECT_STATUS(kNullPointer, operation(vi, text.size(), nullptr));
    EXPECT_EQ(NullPointerError(function, parameter), LastError());
  }
};

}  // namespace kvtd::test

#endif
