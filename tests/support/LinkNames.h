// The links as kinds of a test, and what is said of them: to CTest, and to VISA.

#ifndef KVTD_TESTS_SUPPORT_LINK_NAMES_H
#define KVTD_TESTS_SUPPORT_LINK_NAMES_H

#include <gtest/gtest.h>

#include <cstdint>
#include <ostream>
#include <string>

#include "Link.h"

namespace kvtd::test {

inline auto EveryLink() { return testing::Values(LinkKind::Socket, LinkKind::Hislip, LinkKind::Vxi11); }

// As its protocol is written: "HiSLIP".
const char* NameOf(LinkKind kind);
// As CTest's labels and the listeners of the virtual instrument are called: "hislip".
const char* LabelOf(LinkKind kind);
inline std::string LinkName(const testing::TestParamInfo<LinkKind>& info) { return LabelOf(info.param); }
inline void PrintTo(LinkKind kind, std::ostream* stream) { *stream << NameOf(kind); }

// The VISA resource name of what listens there, on this machine. VXI-11's tells no port: sessions that are opened come
// to the port that was named last, and none may be opening meanwhile.
std::string ResourceOn(LinkKind kind, std::uint16_t port, Family family = Family::V4);

}  // namespace kvtd::test

#endif
