// Handles of the configuration component: kinds, generations, garbage, and many threads at once.
#include <algorithm>
#include <array>
#include <cstdint>
#include <thread>
#include <vector>

#include "StoreFixture.h"

namespace {

constexpr ViStatus kInvalidHandle = static_cast<ViStatus>(0xBFFA1220u);

class ConfigHandle : public StoreFixture {
 protected:
  void SetUp() override {
    StoreFixture::SetUp();
    Open(SampleStore());
  }

  static std::vector<ViStatus> AskEverything(IviConfigHandle handle) {
    ViChar text[8];
    ViInt32 number = 0;
    ViReal64 real = 0;
    ViBoolean boolean = 0;
    IviConfigHandle out = nullptr;
    return {IviConfig_GetDriverSession(handle, "SigGen1", &out),
            IviConfig_GetSession(handle, "SigGen1", &out),
            IviConfig_Deserialize(handle, "store.xml"),
            IviConfig_Serialize(handle, "out.xml"),
            IviConfig_GetConfigStorePropertyViString(handle, 1, 8, text),
            IviConfig_SetConfigStorePropertyViString(handle, 1, "x"),
            IviConfig_GetConfigStorePropertyViInt32(handle, 8, &number),
            IviConfig_GetConfigStoreSoftwareModuleCollection(handle, &out),
            IviConfig_GetSoftwareModuleItemByName(handle, "KVTD481X2C", &out),
            IviConfig_GetSessionSoftwareModuleReference(handle, &out),
            IviConfig_GetSessionHardwareAssetReference(handle, &out),
            IviConfig_GetHardwareAssetPropertyViString(handle, 1, 8, text),
            IviConfig_GetDriverSessionPropertyViBoolean(handle, 4, &boolean),
            IviConfig_GetDriverSessionPropertyViString(handle, 1, 8, text),
            IviConfig_GetSessionVirtualNameCollection(handle, &out),
            IviConfig_GetVirtualNameCount(handle, &number),
            IviConfig_GetVirtualNameItemByIndex(handle, 1, &out),
            IviConfig_GetVirtualNamePropertyViString(handle, 1, 8, text),
            IviConfig_GetVirtualNameVirtualRangeCollection(handle, &out),
            IviConfig_GetVirtualRangeCount(handle, &number),
            IviConfig_GetVirtualRangeItemByIndex(handle, 1, &out),
            IviConfig_GetVirtualRangePropertyViInt32(handle, 2, &number),
            IviConfig_GetSoftwareModulePhysicalNameCollection(handle, &out),
            IviConfig_GetPhysicalNameCount(handle, &number),
            IviConfig_GetPhysicalNameItemByIndex(handle, 1, &out),
            IviConfig_GetPhysicalNamePropertyViString(handle, 1, 8, text),
            IviConfig_GetConfigComponentDataComponentCollection(handle, &out),
            IviConfig_GetDataComponentItemByName(handle, "x", &out),
            IviConfig_GetStructureDataComponentCollection(handle, &out),
            IviConfig_GetDataComponentCount(handle, &number),
            IviConfig_GetDataComponentItemByIndex(handle, 1, &out),
            IviConfig_GetDataComponentPropertyViString(handle, 1, 8, text),
            IviConfig_GetDataComponentPropertyViInt32(handle, 3, &number),
            IviConfig_GetDataComponentPropertyViReal64(handle, 9, &real),
            IviConfig_GetDataComponentPropertyViBoolean(handle, 5, &boolean),
            IviConfig_DisposeHandle(handle),
            IviConfig_Close(handle)};
  }

  // Everything asked of the handle is refused, and nothing was read or written through it.
  static void ExpectRefusedByAll(IviConfigHandle handle) {
    const std::vector<ViStatus> statuses = AskEverything(handle);
    EXPECT_EQ(37u, statuses.size());
    for (size_t i = 0; i < statuses.size(); ++i) EXPECT_EQ(kInvalidHandle, statuses[i]) << "call " << i;
  }

  static int Accepted(const std::vector<ViStatus>& statuses) {
    return static_cast<int>(std::count_if(statuses.begin(), statuses.end(), [](ViStatus s) { return s >= 0; }));
  }
};

TEST_F(ConfigHandle, NullAndGarbageAreRefusedByEveryFunction) {
  std::array<unsigned char, 64> object{};
  for (const std::uintptr_t bits :
       {std::uintptr_t{0}, std::uintptr_t{1}, std::uintptr_t{2}, std::uintptr_t{0xDEADBEEF}, ~std::uintptr_t{0},
        std::uintptr_t{1} << 32, reinterpret_cast<std::uintptr_t>(object.data()),
        reinterpret_cast<std::uintptr_t>(object.data()) + 1}) {
    SCOPED_TRACE(bits);
    ExpectRefusedByAll(reinterpret_cast<IviConfigHandle>(bits));
  }
}

TEST_F(ConfigHandle, DisposedOneIsRefusedAlsoWhenItsSlotIsInUseAgain) {
  IviConfigHandle stale = nullptr;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &stale));
  ASSERT_EQ(VI_SUCCESS, IviConfig_DisposeHandle(stale));
  ExpectRefusedByAll(stale);
  Handle again;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &again));
  EXPECT_NE(stale, static_cast<IviConfigHandle>(again));
  ExpectRefusedByAll(stale);
}

TEST_F(ConfigHandle, ClosedStoreAndEverythingOnItAreRefused) {
  IviConfigHandle session = nullptr;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  ASSERT_EQ(VI_SUCCESS, IviConfig_Close(store));
  ExpectRefusedByAll(session);
  ExpectRefusedByAll(store);
  store = nullptr;
}

TEST_F(ConfigHandle, StoreIsClosedAndNotDisposed) {
  EXPECT_EQ(kInvalidHandle, IviConfig_DisposeHandle(store));
  EXPECT_EQ("IviConfig_DisposeHandle: the handle is not open, or is a store's, which is closed instead", Error());
  Handle session;
  EXPECT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  EXPECT_EQ(kInvalidHandle, IviConfig_Close(session));
}

TEST_F(ConfigHandle, OneOfTheWrongKindIsRefusedWithTheKindExpected) {
  Handle session, modules, module, asset;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetConfigStoreSoftwareModuleCollection(store, &modules));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionSoftwareModuleReference(session, &module));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionHardwareAssetReference(session, &asset));
  ViChar text[8];
  ViInt32 count = 77;
  EXPECT_EQ(kInvalidHandle, IviConfig_GetHardwareAssetPropertyViString(session, 1, 8, text));
  EXPECT_EQ("IviConfig_GetHardwareAssetPropertyViString: the handle is no open hardware asset", Error());
  EXPECT_EQ(kInvalidHandle, IviConfig_GetDriverSessionPropertyViString(asset, 1, 8, text));
  EXPECT_EQ(kInvalidHandle, IviConfig_GetVirtualNameCount(modules, &count));
  EXPECT_EQ("IviConfig_GetVirtualNameCount: the handle is no open collection", Error());
  EXPECT_EQ(77, count);
  IviConfigHandle out = &count;
  EXPECT_EQ(kInvalidHandle, IviConfig_GetSessionVirtualNameCollection(module, &out));
  EXPECT_EQ(nullptr, out);
  EXPECT_EQ(kInvalidHandle, IviConfig_GetConfigComponentDataComponentCollection(modules, &out));
  EXPECT_EQ(kInvalidHandle, IviConfig_GetDriverSession(session, "SigGen1", &out));
}

TEST_F(ConfigHandle, EachKindIsAcceptedByTheFunctionsOfItsClassOnly) {
  // A driver session: session references, virtual names, data components, two kinds of property, and its disposal.
  IviConfigHandle session = nullptr;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  EXPECT_EQ(7, Accepted(AskEverything(session)));
  // A hardware asset: its property, data components, disposal.
  IviConfigHandle asset = nullptr;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionHardwareAssetReference(session, &asset));
  EXPECT_EQ(3, Accepted(AskEverything(asset)));
}

TEST_F(ConfigHandle, OneIsKeptAliveByAStoreThatIsNotClosedWhateverElseIsDisposed) {
  Handle session, names, name;
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(store, "SigGen1", &session));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetSessionVirtualNameCollection(session, &names));
  ASSERT_EQ(VI_SUCCESS, IviConfig_GetVirtualNameItemByIndex(names, 1, &name));
  ASSERT_EQ(VI_SUCCESS, IviConfig_DisposeHandle(names));
  *&names = nullptr;
  EXPECT_EQ("Src", Text(IviConfig_GetVirtualNamePropertyViString, name, 1));
}

TEST_F(ConfigHandle, ThreadsWithStoresOfTheirOwnDoNotMeet) {
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([] {
      for (int i = 0; i < 25; ++i) {
        IviConfigStoreHandle own = nullptr;
        ASSERT_EQ(VI_SUCCESS, Load(&own, "store.xml"));
        IviConfigHandle session = nullptr;
        ASSERT_EQ(VI_SUCCESS, IviConfig_GetDriverSession(own, "SigGen1", &session));
        ASSERT_EQ("Model:TD48142C", Text(IviConfig_GetDriverSessionPropertyViString, session, 10));
        IviConfigHandle none = nullptr;
        ASSERT_GT(0, IviConfig_GetDriverSession(own, std::to_string(i).c_str(), &none));
        ASSERT_EQ("IviConfig_GetDriverSession: '" + std::to_string(i) +
                      "' is neither a logical name nor a session of the store",
                  Error());
        ASSERT_EQ(VI_SUCCESS, IviConfig_Close(own));
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
}

TEST_F(ConfigHandle, ThreadsMayUseOneStoreWhileItIsBeingLoadedAndClosed) {
  for (int i = 0; i < 20; ++i) {
    IviConfigStoreHandle shared = nullptr;
    ASSERT_EQ(VI_SUCCESS, IviConfig_Initialize(&shared));
    std::thread reader([shared] {
      for (int k = 0; k < 200; ++k) {
        IviConfigHandle session = nullptr;
        if (IviConfig_GetDriverSession(shared, "SigGen1", &session) < 0) continue;
        ViChar text[32] = "";
        // Closing the store in between is the only reason to be refused.
        const ViStatus status = IviConfig_GetDriverSessionPropertyViString(session, 1, 32, text);
        ASSERT_TRUE(status == kInvalidHandle || std::string(text) == "BenchSession");
        IviConfig_DisposeHandle(session);
      }
    });
    ASSERT_EQ(VI_SUCCESS, IviConfig_Deserialize(shared, "store.xml"));
    ASSERT_EQ(VI_SUCCESS, IviConfig_Close(shared));
    reader.join();
  }
}

}  // namespace
