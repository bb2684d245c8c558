#ifndef TESTS_IVI_STORE_FIXTURE_H
#define TESTS_IVI_STORE_FIXTURE_H

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>

#include "IviConfigServer.h"

/// Runs each test in a folder of its own, which is also where the component under test has its master store.
class StoreFixture : public ::testing::Test {
 protected:
  static constexpr const char* kMaster = "IviConfigurationStore.xml";

  void SetUp() override {
    ::unsetenv("IVICONFIGSERVERDEFAULT");
    std::string folder = (std::filesystem::temp_directory_path() / "ivi_test_XXXXXX").string();
    ASSERT_NE(nullptr, ::mkdtemp(folder.data()));
    folder_ = folder;
    before_ = std::filesystem::current_path();
    std::filesystem::current_path(folder_);
  }

  void TearDown() override {
    if (store != nullptr) {
      EXPECT_EQ(VI_SUCCESS, IviConfig_Close(store));
    }
    std::filesystem::current_path(before_);
    std::filesystem::remove_all(folder_);
  }

  static void Write(const std::string& file, std::string_view text) {
    std::ofstream(file, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
  }

  static std::string Read(const std::string& file) {
    std::ostringstream text;
    text << std::ifstream(file, std::ios::binary).rdbuf();
    return text.str();
  }

  static std::string SampleStore() { return Read(TESTS_IVI_DATA "/SampleStore.xml"); }

  /// The sample store with one piece of its text replaced.
  static std::string SampleStoreWith(const std::string& piece, const std::string& replacement) {
    std::string text = SampleStore();
    const size_t at = text.find(piece);
    EXPECT_NE(std::string::npos, at) << piece;
    return at == std::string::npos ? text : text.replace(at, piece.size(), replacement);
  }

  static ViStatus Load(IviConfigStoreHandle* store, const std::string& file) {
    EXPECT_EQ(VI_SUCCESS, IviConfig_Initialize(store));
    return IviConfig_Deserialize(*store, file.c_str());
  }

  /// Opens the text as the test's store.
  void Open(std::string_view text) {
    Write("store.xml", text);
    ASSERT_EQ(VI_SUCCESS, Load(&store, "store.xml")) << Error();
  }

  static std::string Error() {
    ViChar text[4096];
    EXPECT_EQ(VI_SUCCESS, IviConfig_GetError(sizeof text, text));
    return text;
  }

  /// A text property read by one of the component's functions.
  template <typename Get>
  static std::string Text(Get get, IviConfigHandle handle, ViInt32 property) {
    ViChar text[1024] = "untouched";
    EXPECT_EQ(VI_SUCCESS, get(handle, property, sizeof text, text));
    return text;
  }

  IviConfigStoreHandle store = nullptr;

 private:
  std::filesystem::path folder_;
  std::filesystem::path before_;
};

/// A handle given back at the end of the scope.
class Handle {
 public:
  Handle() = default;
  ~Handle() {
    if (handle_ != nullptr) {
      EXPECT_EQ(VI_SUCCESS, IviConfig_DisposeHandle(handle_));
    }
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;

  IviConfigHandle* operator&() { return &handle_; }
  operator IviConfigHandle() const { return handle_; }

 private:
  IviConfigHandle handle_ = nullptr;
};

#endif
