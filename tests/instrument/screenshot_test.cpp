// The screenshot is read back with Cairo's own PNG reader.
#include <cairo.h>

#include <cstring>
#include <vector>

#include "bench.h"

namespace siggen {
namespace {

class Picture {
 public:
  explicit Picture(std::string_view png) {
    const auto read = [](void* source, unsigned char* bytes, unsigned count) {
      auto& rest = *static_cast<std::string_view*>(source);
      if (rest.size() < count) return CAIRO_STATUS_READ_ERROR;
      std::memcpy(bytes, rest.data(), count);
      rest.remove_prefix(count);
      return CAIRO_STATUS_SUCCESS;
    };
    surface_ = cairo_image_surface_create_from_png_stream(read, &png);
  }
  ~Picture() { cairo_surface_destroy(surface_); }
  Picture(const Picture&) = delete;
  Picture& operator=(const Picture&) = delete;

  bool good() const { return cairo_surface_status(surface_) == CAIRO_STATUS_SUCCESS; }
  int width() const { return cairo_image_surface_get_width(surface_); }
  int height() const { return cairo_image_surface_get_height(surface_); }

  // The pixels of a part, to be compared.
  std::vector<std::uint32_t> Part(int x, int y, int part_width, int part_height) const {
    std::vector<std::uint32_t> pixels;
    const unsigned char* const data = cairo_image_surface_get_data(surface_);
    for (int row = y; row < y + part_height; ++row) {
      for (int column = x; column < x + part_width; ++column) {
        std::uint32_t pixel;
        std::memcpy(&pixel, data + row * cairo_image_surface_get_stride(surface_) + column * 4, sizeof pixel);
        pixels.push_back(pixel & 0xFFFFFF);
      }
    }
    return pixels;
  }

 private:
  cairo_surface_t* surface_;
};

class Screenshot : public Bench {
 protected:
  std::string Take() {
    const std::string answer = Ask(":MMEM:STOR:SCR?");
    const std::size_t digits = static_cast<std::size_t>(answer.at(1) - '0');
    EXPECT_EQ(answer.size() - 2 - digits, std::stoul(answer.substr(2, digits)));
    return answer.substr(2 + digits);
  }
};

TEST_F(Screenshot, IsAPngOfTheScreen) {
  const Picture picture(Take());
  ASSERT_TRUE(picture.good());
  EXPECT_EQ(800, picture.width());
  EXPECT_EQ(480, picture.height());
}

TEST_F(Screenshot, ShowsThePresentSettingsEachInItsPlace) {
  const Picture before(Take());
  Tell(":FREQ 2.5e9");
  const Picture after(Take());
  ASSERT_TRUE(before.good() && after.good());
  EXPECT_TRUE(before.Part(300, 95, 470, 60) != after.Part(300, 95, 470, 60)) << "the frequency";
  EXPECT_TRUE(before.Part(16, 180, 768, 240) == after.Part(16, 180, 768, 240)) << "and nothing else";
}

TEST_F(Screenshot, ShowsOutputModulationAndErrors) {
  const Picture before(Take());
  Tell(":OUTP ON;:AM:STAT ON");
  Tell(":FOO");
  const Picture after(Take());
  EXPECT_TRUE(before.Part(30, 245, 100, 30) != after.Part(30, 245, 100, 30)) << "RF on";
  EXPECT_TRUE(before.Part(30, 355, 60, 25) != after.Part(30, 355, 60, 25)) << "AM";
  EXPECT_TRUE(before.Part(20, 435, 300, 30) != after.Part(20, 435, 300, 30)) << "errors";
  EXPECT_TRUE(before.Part(120, 355, 60, 25) == after.Part(120, 355, 60, 25)) << "FM";
}

TEST_F(Screenshot, TheSameSettingsGiveTheSamePicture) { EXPECT_TRUE(Take() == Take()); }

TEST_F(Screenshot, IsStoredUnderTheNextFreeName) {
  Tell(":MMEM:CDIR \"/user\";STOR:SCR;SCR");
  ExpectNoError();
  const auto stored = instrument_.files().Read("Internal", "/user/screen002.png");
  EXPECT_TRUE(stored.view == Take());
  EXPECT_TRUE(instrument_.files().HasFile("Internal", "/user/screen001.png"));
}

}  // namespace
}  // namespace siggen
