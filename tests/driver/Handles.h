// Handles that are no open session of the driver.

#ifndef KVTD_TESTS_DRIVER_HANDLES_H
#define KVTD_TESTS_DRIVER_HANDLES_H

#include <vector>

#include "DriverDialogue.h"

namespace kvtd::test {

// None, one that was open and is closed, and one that never was.
inline std::vector<ViSession> HandlesThatAreNotOpen() {
  ViSession closed = VI_NULL;
  std::string resource = "TCPIP0::127.0.0.1::1::SOCKET";
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_InitWithOptions(resource.data(), VI_FALSE, VI_FALSE, "Simulate=1", &closed));
  EXPECT_STATUS(VI_SUCCESS, KVTD481X2C_close(closed));
  return {VI_NULL, closed, ViSession{0xDEADBEEF}};
}

inline RecordedError NullPointerError(const std::string& function, const std::string& parameter) {
  return {kNullPointer, "Null pointer passed for function '" + function + "', parameter '" + parameter + "'."};
}

}  // namespace kvtd::test

#endif
