// Which directives the driver hands to VISA: no more than these, so that any VISA library will do.

#include <KVTD481X2C.h>
#include <Registry.h>
#include <gmock/gmock.h>

#include <array>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "FakeVisa.h"

namespace kvtd::test {
namespace {

using testing::UnorderedElementsAre;

// A value for one parameter of an exported function: something that lets the call reach its exchange. Outputs have
// room for more than any of them is written.
class Arguments {
 public:
  explicit Arguments(ViSession vi) : vi_(vi) {}

  template <class T>
  T Make() {
    if constexpr (std::is_same_v<T, ViConstString>) {
      return "x";
    } else if constexpr (std::is_pointer_v<T>) {
      return reinterpret_cast<T>(room_.emplace_back(std::make_unique<Room>())->data());
    } else if constexpr (std::is_same_v<T, ViSession>) {
      return vi_;
    } else if constexpr (std::is_same_v<T, ViBoolean>) {
      return VI_FALSE;
    } else {
      return T{1};
    }
  }

 private:
  using Room = std::array<ViReal64, 512>;

  ViSession vi_;
  std::vector<std::unique_ptr<Room>> room_;
};

template <class... Parameters>
void Call(ViStatus (*function)(Parameters...), ViSession vi) {
  Arguments arguments(vi);
  function(arguments.Make<Parameters>()...);
}

// Functions that would end the session, give out one of their own, or hold its lock.
const std::set<std::string> kLeftOut = {"KVTD481X2C_init", "KVTD481X2C_InitWithOptions", "KVTD481X2C_close",
                                        "KVTD481X2C_LockSession", "KVTD481X2C_UnlockSession"};

int CallEveryExport(ViSession vi) {
  int count = 0;
#define EXPORT(function)               \
  if (!kLeftOut.contains(#function)) { \
    Call(function, vi);                \
    ++count;                           \
  }
#include "exports.inc"
#undef EXPORT
  return count;
}

template <class T>
void GetAndSet(ViSession vi, ViAttr id, std::initializer_list<T> values) {
  T value{};
  tvr::GetAttribute<T>(vi, nullptr, id, &value);
  for (const T one : values) tvr::SetAttribute<T>(vi, nullptr, id, one);
}

void GetAndSetEveryAttribute(ViSession vi) {
  for (const auto& [id, attribute] : tvr::Registry().attributes()) {
    const std::string type = attribute.type_name;
    if (type == "ViBoolean") GetAndSet<ViBoolean>(vi, id, {VI_FALSE});
    if (type == "ViInt32") GetAndSet<ViInt32>(vi, id, {0, 1, 2, 3});
    if (type == "ViReal64") GetAndSet<ViReal64>(vi, id, {1.0});
    if (type == "ViString") {
      ViChar text[64] = "";
      tvr::GetStringAttribute(vi, nullptr, id, sizeof text, text);
      tvr::SetAttribute<ViString>(vi, nullptr, id, "x");
    }
  }
}

TEST(Formats, AllAttributesAndFunctionsTogetherUseTheseDirectives) {
  Visa() = FakeVisa{};
  ViSession vi = VI_NULL;
  ASSERT_EQ(VI_SUCCESS,
            KVTD481X2C_InitWithOptions(const_cast<ViChar*>("X"), VI_TRUE, VI_TRUE, "QueryInstrStatus=0", &vi));
  GetAndSetEveryAttribute(vi);
  Visa().answer = "1,1";  // what two numbers or a code and a text are read from
  EXPECT_EQ(406, CallEveryExport(vi));
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
  EXPECT_THAT(Visa().written, UnorderedElementsAre("%0.15lg", "%ld", "%4ld", "%s", "%0.15,*lf", "%*b"));
  EXPECT_THAT(Visa().scanned,
              UnorderedElementsAre("%lf", "%ld", "%hd", "%#[^\n]", "%#[^\n,]", "%256[^,]", "%*t", "%*T", "%#b"));
}

TEST(Formats, EveryTextThatIsWrittenEndsWithOneLineFeed) {
  Visa() = FakeVisa{};
  ViSession vi = VI_NULL;
  ASSERT_EQ(VI_SUCCESS, KVTD481X2C_InitWithOptions(const_cast<ViChar*>("X"), VI_TRUE, VI_TRUE, "", &vi));
  GetAndSetEveryAttribute(vi);
  Visa().answer = "1,1";
  CallEveryExport(vi);
  EXPECT_EQ(VI_SUCCESS, KVTD481X2C_close(vi));
  const std::vector<std::string> printed = Visa().CallsOf("viPrintf");
  EXPECT_LT(300U, printed.size());
  for (const std::string& call : printed) EXPECT_EQ(call.size() - 1, call.find('\n')) << call;
}

}  // namespace
}  // namespace kvtd::test
