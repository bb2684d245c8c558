#include "panel/front_panel.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <vector>

namespace siggen::panel {
namespace {

// Cairo's own stroke font: the picture does not depend on which fonts a machine has.
constexpr const char* kFont = "@cairo:";

struct Color {
  double red, green, blue;
};
constexpr Color kBackground{0.06, 0.08, 0.11};
constexpr Color kFrame{0.20, 0.26, 0.33};
constexpr Color kText{0.88, 0.91, 0.94};
constexpr Color kFaint{0.48, 0.55, 0.62};
constexpr Color kLit{0.30, 0.85, 0.55};
constexpr Color kWarning{0.95, 0.45, 0.30};

class Canvas {
 public:
  Canvas()
      : surface_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, kWidth, kHeight), cairo_surface_destroy),
        cairo_(cairo_create(surface_.get()), cairo_destroy) {
    Set(kBackground);
    cairo_paint(cairo_.get());
    cairo_select_font_face(cairo_.get(), kFont, CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  }

  void Text(double x, double y, double size, const Color& color, const std::string& text) {
    Set(color);
    cairo_set_font_size(cairo_.get(), size);
    cairo_move_to(cairo_.get(), x, y);
    cairo_show_text(cairo_.get(), text.c_str());
  }

  void TextToLeftOf(double x, double y, double size, const Color& color, const std::string& text) {
    cairo_set_font_size(cairo_.get(), size);
    cairo_text_extents_t extents;
    cairo_text_extents(cairo_.get(), text.c_str(), &extents);
    Text(x - extents.x_advance, y, size, color, text);
  }

  void Box(double x, double y, double width, double height) {
    Set(kFrame);
    cairo_set_line_width(cairo_.get(), 2.0);
    cairo_rectangle(cairo_.get(), x, y, width, height);
    cairo_stroke(cairo_.get());
  }

  void Lamp(double x, double y, const std::string& label, bool lit, Color color = kLit) {
    Set(lit ? color : kFrame);
    cairo_rectangle(cairo_.get(), x, y - 14.0, 10.0, 18.0);
    cairo_fill(cairo_.get());
    Text(x + 18.0, y, 17.0, lit ? kText : kFaint, label);
  }

  void Bar(double x, double y, double width, double progress) {
    Box(x, y, width, 14.0);
    Set(kLit);
    cairo_rectangle(cairo_.get(), x + 3.0, y + 3.0, std::max(2.0, (width - 6.0) * progress), 8.0);
    cairo_fill(cairo_.get());
  }

  scpi::Bytes Png() {
    std::string file;
    const auto append = [](void* target, const unsigned char* bytes, unsigned count) {
      static_cast<std::string*>(target)->append(reinterpret_cast<const char*>(bytes), count);
      return CAIRO_STATUS_SUCCESS;
    };
    if (cairo_surface_write_to_png_stream(surface_.get(), append, &file) != CAIRO_STATUS_SUCCESS) {
      throw std::runtime_error("the screen could not be drawn");
    }
    return scpi::Bytes::Copy(file);
  }

 private:
  void Set(Color color) { cairo_set_source_rgb(cairo_.get(), color.red, color.green, color.blue); }

  std::unique_ptr<cairo_surface_t, void (*)(cairo_surface_t*)> surface_;
  std::unique_ptr<cairo_t, void (*)(cairo_t*)> cairo_;
};

// "1.234 567 890 GHz": groups of three behind the point, down to the hertz.
std::string FrequencyText(double hertz) {
  char digits[32];
  const double whole = std::round(hertz);
  std::snprintf(digits, sizeof digits, "%.9f", whole / 1e9);
  std::string text(digits);
  const std::size_t point = text.find('.');
  text.insert(point + 7, " ");
  text.insert(point + 4, " ");
  return text + " GHz";
}

std::string PowerText(double dbm) {
  char text[32];
  std::snprintf(text, sizeof text, "%.2f dBm", dbm);
  return text;
}

std::string DriveText(model::Drive drive) {
  if (drive == model::Drive::kFixed) return "FIXED";
  if (drive == model::Drive::kSweep) return "SWEEP";
  return "LIST " + std::to_string(model::ListOf(drive));
}

void DrawHeading(Canvas& canvas, const Screen& screen) {
  canvas.Text(24.0, 40.0, 22.0, kText, std::string(screen.model));
  canvas.Text(180.0, 40.0, 18.0, kFaint, std::string(screen.unit_name));
  canvas.TextToLeftOf(kWidth - 24.0, 40.0, 18.0, kFaint, screen.time);
}

void DrawCarrier(Canvas& canvas, const model::Generator& generator) {
  const model::Settings& now = generator.now;
  canvas.Box(16.0, 60.0, kWidth - 32.0, 110.0);
  canvas.Text(32.0, 90.0, 17.0, kFaint, "FREQUENCY   " + DriveText(now.frequency.drive));
  canvas.TextToLeftOf(kWidth - 40.0, 146.0, 52.0, kText, FrequencyText(generator.carrier_frequency()));

  canvas.Box(16.0, 184.0, kWidth - 32.0, 110.0);
  canvas.Text(32.0, 214.0, 17.0, kFaint, "POWER   " + DriveText(now.power.drive));
  canvas.Lamp(32.0, 264.0, now.output.on ? "RF ON" : "RF OFF", now.output.on);
  canvas.Lamp(150.0, 264.0, "PROTECTION", generator.protection_tripped(), kWarning);
  canvas.TextToLeftOf(kWidth - 40.0, 270.0, 52.0, kText,
                      PowerText(generator.carrier_power() + generator.shown_offset()));
}

void DrawModulation(Canvas& canvas, const model::Settings& now) {
  canvas.Box(16.0, 308.0, 376.0, 110.0);
  canvas.Text(32.0, 338.0, 17.0, kFaint, "MODULATION");
  canvas.Lamp(32.0, 372.0, "AM", now.am.on);
  canvas.Lamp(122.0, 372.0, "FM", now.fm.on);
  canvas.Lamp(212.0, 372.0, "PM", now.pm.on);
  canvas.Lamp(302.0, 372.0, "PULSE", now.pulse.on);
}

void DrawRun(Canvas& canvas, const model::Generator& generator) {
  canvas.Box(408.0, 308.0, 376.0, 110.0);
  canvas.Text(424.0, 338.0, 17.0, kFaint, "SWEEP AND LIST");
  canvas.Lamp(424.0, 372.0, "RUNNING", generator.sweep.running());
  const model::SweepPlan plan = model::PlanOf(generator.now);
  if (plan.points == 0) return;
  const model::SweepPosition position = generator.sweep.position();
  const double points = static_cast<double>(plan.points);
  canvas.Bar(424.0, 390.0, 344.0, std::min(1.0, (static_cast<double>(position.index) + position.fraction) / points));
  canvas.TextToLeftOf(768.0, 372.0, 17.0, kText,
                      std::to_string(position.index + 1) + " / " + std::to_string(plan.points));
}

void DrawFooting(Canvas& canvas, const Screen& screen) {
  const std::string errors = screen.errors == 0 ? "No errors" : std::to_string(screen.errors) + " in the error queue";
  canvas.Text(24.0, 456.0, 17.0, screen.errors == 0 ? kFaint : kWarning, errors);
}

}  // namespace

scpi::Bytes DrawFrontPanel(const Screen& screen) {
  Canvas canvas;
  DrawHeading(canvas, screen);
  DrawCarrier(canvas, screen.generator);
  DrawModulation(canvas, screen.generator.now);
  DrawRun(canvas, screen.generator);
  DrawFooting(canvas, screen);
  return canvas.Png();
}

}  // namespace siggen::panel
