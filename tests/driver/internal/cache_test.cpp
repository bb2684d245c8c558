// The caches of a session, and the scope objects that fill them.

#include <CacheManager.h>
#include <KVTD481X2C.h>
#include <Registry.h>

#include "BareSession.h"

namespace kvtd::test {
namespace {

constexpr ViAttr kReal = 1150020;     // FREQUENCY_MULTIPLIER
constexpr ViAttr kInt32 = 1150019;    // FREQUENCY_MODE
constexpr ViAttr kBoolean = 1150175;  // INITIATE_CONTINUOUS_ENABLED
constexpr ViAttr kText = 1150222;     // any id will do: the cache knows no attribute

class Caches : public BareSession {
 protected:
  // The entry of an attribute under the empty selector, or null.
  template <class T>
  const tvr::CacheEntry<T>* Entry(ViAttr id) {
    const auto& cache = session().CacheOf<T>();
    const auto attribute = cache.find(id);
    if (attribute == cache.end()) return nullptr;
    const auto entry = attribute->second.find("");
    return entry == attribute->second.end() ? nullptr : &entry->second;
  }
  template <class T>
  void ExpectStored(ViAttr id, const T& value) {
    const auto* entry = Entry<T>(id);
    ASSERT_NE(nullptr, entry);
    EXPECT_TRUE(entry->valid);
    EXPECT_EQ(value, entry->value);
  }
};

// A frame.

TEST_F(Caches, ASimulatedReadThatFindsNothingStoresItsDefault) {
  session().SetSimulate(true);
  ViReal64 value = 77;
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(VI_SUCCESS, KVTD481X2C_InvalidateAllAttributes(vi));
    EXPECT_EQ(nullptr, Entry<ViReal64>(kReal));
    EXPECT_EQ(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(0.0, value);
    ExpectStored<ViReal64>(kReal, 0.0);
    session().CacheOf<ViReal64>()[kReal][""].value = 2.5;
    EXPECT_EQ(VI_SUCCESS, KVTD481X2C_GetFrequencyMultiplier(vi, &value));
    EXPECT_EQ(2.5, value);
  }
}

// Managers.

TEST_F(Caches, ASetterStoresItsValueWhenItsScopeEnds) {
  ViReal64 value = 2.5;
  {
    const tvr::SetterCacheManager<ViReal64> manager(vi, kReal, &value);
    EXPECT_EQ(nullptr, Entry<ViReal64>(kReal));
    value = 3.5;
  }
  ExpectStored<ViReal64>(kReal, 3.5);
}

TEST_F(Caches, AGetterMakesItsEntryAtOnceAndStoresWhatStandsInTheVariable) {
  ViInt32 value = 1;
  {
    const tvr::GetterCacheManager<ViInt32> manager(vi, kInt32, &value);
    ASSERT_NE(nullptr, Entry<ViInt32>(kInt32));
    EXPECT_FALSE(Entry<ViInt32>(kInt32)->valid);
    value = -1;
  }
  ExpectStored<ViInt32>(kInt32, -1);
}

TEST_F(Caches, AGetterRecallsWhatIsValidOnly) {
  ViBoolean value = 7;
  {
    const tvr::GetterCacheManager<ViBoolean> manager(vi, kBoolean, &value);
    EXPECT_FALSE(manager.Recall());
    EXPECT_EQ(7, value);
  }
  ViBoolean again = 0;
  const tvr::GetterCacheManager<ViBoolean> manager(vi, kBoolean, &again);
  EXPECT_TRUE(manager.Recall());
  EXPECT_EQ(7, again);
}

TEST_F(Caches, TheValueIsStoredAlsoWhenAnExceptionPasses) {
  ViReal64 value = 4;
  EXPECT_THROW(
      {
        const tvr::SetterCacheManager<ViReal64> manager(vi, kReal, &value);
        throw 1;
      },
      int);
  ExpectStored<ViReal64>(kReal, 4.0);
}

TEST_F(Caches, WithTheCacheOffARealSessionStoresNothing) {
  session().SetCache(false);
  ViReal64 value = 1;
  { const tvr::SetterCacheManager<ViReal64> manager(vi, kReal, &value); }
  {
    const tvr::GetterCacheManager<ViReal64> manager(vi, kReal, &value);
    EXPECT_FALSE(manager.Recall());
  }
  EXPECT_EQ(nullptr, Entry<ViReal64>(kReal));
}

TEST_F(Caches, ASimulatedSessionStoresWithTheCacheOff) {
  session().SetCache(false);
  session().SetSimulate(true);
  ViReal64 value = 1;
  { const tvr::SetterCacheManager<ViReal64> manager(vi, kReal, &value); }
  ExpectStored<ViReal64>(kReal, 1.0);
}

TEST_F(Caches, WhetherToStoreIsSettledWhenTheScopeBegins) {
  ViReal64 value = 1;
  {
    const tvr::SetterCacheManager<ViReal64> manager(vi, kReal, &value);
    session().SetCache(false);
  }
  ExpectStored<ViReal64>(kReal, 1.0);
  {
    const tvr::SetterCacheManager<ViReal64> manager(vi, kReal + 1, &value);
    session().SetCache(true);
  }
  EXPECT_EQ(nullptr, Entry<ViReal64>(kReal + 1));
}

TEST_F(Caches, ATextIsCopiedAndOutlivesItsBuffer) {
  {
    std::string text = "a text of the caller's that goes away";
    const char* value = text.c_str();
    const tvr::SetterCacheManager<const char*> manager(vi, kText, &value);
  }
  ExpectStored<std::string>(kText, "a text of the caller's that goes away");
}

TEST_F(Caches, ATextIsRecalledCutToTheBufferAndStoredSo) {
  const char* value = "0123456789";
  { const tvr::SetterCacheManager<const char*> manager(vi, kText, &value); }
  std::array<char, 5> buffer{};
  {
    const tvr::GetterCacheManager<char[]> manager(vi, kText, 5, buffer.data());
    EXPECT_TRUE(manager.Recall());
    EXPECT_STREQ("0123", buffer.data());
    ExpectStored<std::string>(kText, "0123456789");
  }
  ExpectStored<std::string>(kText, "0123");
}

TEST_F(Caches, AnEmptyTextThatIsStoredIsValid) {
  const char* value = "";
  { const tvr::SetterCacheManager<const char*> manager(vi, kText, &value); }
  std::array<char, 5> buffer{'x'};
  const tvr::GetterCacheManager<char[]> manager(vi, kText, 5, buffer.data());
  EXPECT_TRUE(manager.Recall());
  EXPECT_STREQ("", buffer.data());
}

TEST_F(Caches, ANullBufferIsNeitherReadNorFilled) {
  const char* value = "text";
  { const tvr::SetterCacheManager<const char*> manager(vi, kText, &value); }
  {
    const tvr::GetterCacheManager<char[]> manager(vi, kText, 5, nullptr);
    EXPECT_FALSE(manager.Recall());
  }
  ExpectStored<std::string>(kText, "text");
}

TEST_F(Caches, ABufferWithoutATerminatorIsStoredToItsEndOnly) {
  std::array<char, 8> buffer{'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h'};
  { const tvr::GetterCacheManager<char[]> manager(vi, kText, 4, buffer.data()); }
  ExpectStored<std::string>(kText, "abcd");
}

// Invalidation.

TEST_F(Caches, InvalidateAllEmptiesEveryType) {
  session().CacheOf<ViInt32>()[1][""].valid = true;
  session().CacheOf<ViInt64>()[1][""].valid = true;
  session().CacheOf<ViReal64>()[1][""].valid = true;
  session().CacheOf<ViBoolean>()[1][""].valid = true;
  session().CacheOf<ViSession>()[1][""].valid = true;
  session().CacheOf<std::string>()[1][""].valid = true;
  session().InvalidateAll();
  EXPECT_TRUE(session().CacheOf<ViInt32>().empty());
  EXPECT_TRUE(session().CacheOf<ViInt64>().empty());
  EXPECT_TRUE(session().CacheOf<ViReal64>().empty());
  EXPECT_TRUE(session().CacheOf<ViBoolean>().empty());
  EXPECT_TRUE(session().CacheOf<ViSession>().empty());
  EXPECT_TRUE(session().CacheOf<std::string>().empty());
}

TEST_F(Caches, ADescriptorInvalidatesOneEntryOrAllOfItsAttribute) {
  const auto& invalidate = tvr::Registry().Find(kReal)->invalidate;
  auto& entries = session().CacheOf<ViReal64>()[kReal];
  entries["a"] = {true, 1.0};
  entries["b"] = {true, 2.0};
  session().CacheOf<ViReal64>()[kReal + 2]["a"] = {true, 3.0};

  invalidate(&session(), false, "a");
  EXPECT_FALSE(entries.at("a").valid);
  EXPECT_TRUE(entries.at("b").valid);
  invalidate(&session(), false, "new");
  EXPECT_FALSE(entries.at("new").valid);
  EXPECT_EQ(3U, entries.size());
  invalidate(&session(), true, "");
  EXPECT_TRUE(entries.empty());
  EXPECT_TRUE(session().CacheOf<ViReal64>()[kReal + 2].at("a").valid);
}

TEST_F(Caches, EveryDescriptorInvalidatesInTheCacheOfItsType) {
  const auto sizes = [this] {
    return std::array{session().CacheOf<ViBoolean>().size(),   session().CacheOf<ViInt32>().size(),
                      session().CacheOf<ViReal64>().size(),    session().CacheOf<ViSession>().size(),
                      session().CacheOf<std::string>().size(), session().CacheOf<ViInt64>().size()};
  };
  for (const auto& [id, attribute] : tvr::Registry().attributes()) {
    attribute.invalidate(&session(), true, "");
    attribute.invalidate(&session(), false, "x");
  }
  EXPECT_EQ((std::array<std::size_t, 6>{31, 79, 82, 1, 41, 0}), sizes());
}

}  // namespace
}  // namespace kvtd::test
