// One 3840 x 2160 frame of picture, mouse catcher and dimming layer with a hole: composed by us
// and painted by Cairo, each against a plain copy of a frame.
#include <cairo.h>

#include <cstring>

#include "bench/crop_scene.h"
#include "bench/measure.h"

namespace corvane::bench {
namespace {

using system::Pixel;
using system::Region;
using system::Surface;

class CairoImage {
 public:
  CairoImage(SIZE size, cairo_format_t format)
      : surface_(cairo_image_surface_create(format, size.cx, size.cy)) {}
  ~CairoImage() { cairo_surface_destroy(surface_); }
  CairoImage(const CairoImage&) = delete;
  CairoImage& operator=(const CairoImage&) = delete;
  cairo_surface_t* get() const { return surface_; }

  void take(const Surface& source) {
    for (int y = 0; y < source.height(); ++y) {
      auto* row = reinterpret_cast<Pixel*>(cairo_image_surface_get_data(surface_) +
                                           y * cairo_image_surface_get_stride(surface_));
      for (int x = 0; x < source.width(); ++x) row[x] = source.at(x, y);
    }
    cairo_surface_mark_dirty(surface_);
  }

  // Cairo knows no colour key: the hole has to be made transparent beforehand.
  void make_transparent(Pixel key) {
    auto* pixels = reinterpret_cast<Pixel*>(cairo_image_surface_get_data(surface_));
    const int count =
        cairo_image_surface_get_stride(surface_) / 4 * cairo_image_surface_get_height(surface_);
    for (int i = 0; i < count; ++i) {
      if ((pixels[i] & 0x00FFFFFF) == key) pixels[i] = 0;
    }
    cairo_surface_mark_dirty(surface_);
  }

 private:
  cairo_surface_t* surface_;
};

class CairoScene {
 public:
  explicit CairoScene(const CropScene& scene)
      : frame_(scene.size, CAIRO_FORMAT_RGB24),
        picture_(scene.size, CAIRO_FORMAT_RGB24),
        dimming_(scene.size, CAIRO_FORMAT_ARGB32) {
    picture_.take(*scene.picture);
    dimming_.take(*scene.dimming);
    dimming_.make_transparent(scene.layers.back().key);
  }

  void paint() {
    cairo_t* const context = cairo_create(frame_.get());
    cairo_set_operator(context, CAIRO_OPERATOR_SOURCE);
    cairo_set_source_surface(context, picture_.get(), 0, 0);
    cairo_paint(context);
    cairo_set_operator(context, CAIRO_OPERATOR_OVER);
    cairo_set_source_rgba(context, 0.94, 0.94, 0.94, 1 / 255.0);
    cairo_paint(context);
    cairo_set_source_surface(context, dimming_.get(), 0, 0);
    cairo_paint_with_alpha(context, 120 / 255.0);
    cairo_destroy(context);
    cairo_surface_flush(frame_.get());
  }

 private:
  CairoImage frame_;
  CairoImage picture_;
  CairoImage dimming_;
};

int run(const Options& options) {
  const CropScene scene(options.smoke ? SIZE{384, 216} : SIZE{3840, 2160});
  Surface frame(scene.size.cx, scene.size.cy);
  const Region all(frame.rect());
  CairoScene cairo(scene);
  const std::size_t pixels =
      static_cast<std::size_t>(scene.size.cx) * static_cast<std::size_t>(scene.size.cy);
  std::vector<Pixel> copy(pixels);
  const Pixel* const original = scene.picture->row_if_stored(0);

  const std::vector<Times> times =
      interleaved({[&] { std::memcpy(copy.data(), original, pixels * sizeof(Pixel)); },
                   [&] { system::compose(frame, all, scene.layers, 0); }, [&] { cairo.paint(); }},
                  options.smoke ? 2 : 60);
  Report report(options);
  report.ratio("frame copied", times[0], times[0], 0);
  report.ratio("frame composed", times[1], times[0], 1.3);
  report.ratio("frame painted by Cairo", times[2], times[0], 0);
  return report.exit_status();
}

}  // namespace
}  // namespace corvane::bench

int main(int argc, char** argv) {
  return corvane::bench::run(corvane::bench::options_of(argc, argv));
}
