#include "corvane/platform/system/compositor/compositor.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <tuple>

#include "tests/support/golden_file.h"

namespace corvane::system {
namespace {

class Random {
 public:
  explicit Random(unsigned seed) : engine_(seed) {}
  int between(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }
  bool once_in(int times) { return between(1, times) == 1; }
  Pixel noise() { return static_cast<Pixel>(engine_()); }
  Pixel plain_color() {
    constexpr Pixel colors[] = {0xFF000000, 0xFFFFFFFF, 0x00FFFFFF, 0,
                                0x80402010, 0xFF00C000, 0x00123456, 0x01010101};
    return colors[between(0, 7)];
  }
  RECT rect(int width, int height, int beyond) {
    const int left = between(-beyond, width + beyond);
    const int top = between(-beyond, height + beyond);
    return {left, top, between(left - 1, width + beyond), between(top - 1, height + beyond)};
  }

 private:
  std::mt19937 engine_;
};

void add_noise(Surface& surface, Random& random) {
  const RECT part = random.rect(surface.width(), surface.height(), 0);
  for (int y = std::max<int>(0, part.top); y < std::min<int>(part.bottom, surface.height()); ++y) {
    Pixel* const row = surface.row(y);
    for (int x = std::max<int>(0, part.left); x < std::min<int>(part.right, surface.width()); ++x)
      row[x] = random.once_in(4) ? random.plain_color() : random.noise();
  }
}

std::shared_ptr<Surface> random_surface(Random& random, int width, int height) {
  auto surface = std::make_shared<Surface>(width, height, random.plain_color());
  for (int fills = random.between(0, 4); fills > 0; --fills)
    surface->fill(random.rect(width, height, 3), random.plain_color());
  if (random.once_in(2)) surface->fill({0, height / 3, width, height / 2}, random.plain_color());
  if (random.once_in(2)) add_noise(*surface, random);
  return surface;
}

std::uint8_t random_alpha(Random& random) {
  constexpr int usual[] = {255, 255, 255, 0, 1, 120, 254};
  const int pick = random.between(0, 9);
  return static_cast<std::uint8_t>(pick < 7 ? usual[pick] : random.between(0, 255));
}

Pixel random_key(Random& random, const Surface& surface) {
  if (random.once_in(4)) return random.plain_color();
  return surface.at(random.between(0, surface.width() - 1),
                    random.between(0, surface.height() - 1));
}

Layer random_layer(Random& random, const RECT& frame) {
  Layer layer;
  const bool covering = random.once_in(2);
  const auto surface = random_surface(random, covering ? frame.right : random.between(1, 180),
                                      covering ? frame.bottom : random.between(1, 60));
  layer.surface = surface;
  if (!covering)
    layer.origin = {random.between(-20, frame.right), random.between(-20, frame.bottom)};
  layer.clip = random.once_in(2) ? frame : random.rect(frame.right, frame.bottom, 10);
  layer.keyed = random.once_in(3);
  layer.key = random_key(random, *surface);
  layer.alpha = random_alpha(random);
  layer.pixel_alpha = random.once_in(4);
  return layer;
}

std::vector<Pixel> pixels_of(const Surface& surface) {
  std::vector<Pixel> pixels;
  for (int y = 0; y < surface.height(); ++y)
    for (int x = 0; x < surface.width(); ++x) pixels.push_back(surface.at(x, y));
  return pixels;
}

TEST(Compositor, EqualsTheReferenceForRandomScenes) {
  for (unsigned seed = 0; seed < 1500; ++seed) {
    Random random(seed);
    const int width = random.once_in(8) ? random.between(1000, 2100) : random.between(1, 400);
    const int height = random.between(1, width > 400 ? 6 : 30);
    Surface frame(width, height, random.noise());
    add_noise(frame, random);
    std::vector<Layer> layers;
    if (random.once_in(2))  // a picture: all of the frame, and nothing shows through
      layers.push_back({random_surface(random, width, height), {}, frame.rect()});
    for (int count = random.between(0, 6); count > 0; --count)
      layers.push_back(random_layer(random, frame.rect()));
    Region damage;
    for (int count = random.between(1, 4); count > 0; --count)
      damage.unite(random.once_in(3) ? frame.rect() : random.rect(width, height, 10));
    const Pixel background = random.noise();

    Surface expected = frame;
    compose_reference(expected, damage, layers, background);
    compose(frame, damage, layers, background);
    ASSERT_EQ(pixels_of(frame), pixels_of(expected)) << "seed " << seed << ", width " << width;
  }
}

TEST(Compositor, RoundsEveryBlendToTheNearest) {
  constexpr int values = 256;
  auto below = std::make_shared<Surface>(values, 1);
  for (int x = 0; x < values; ++x) below->row(0)[x] = static_cast<Pixel>(x) * 0x010101;
  Surface frame(values, 1);
  const RECT all = frame.rect();
  for (const bool uniform : {true, false}) {
    for (int source = 0; source < values; source += uniform ? 1 : 3) {
      auto surface = std::make_shared<Surface>(values, 1, static_cast<Pixel>(source) * 0x010101);
      // Alternating alpha bytes do not count, but keep the row from being taken for one colour.
      if (!uniform)
        for (int x = 0; x < values; x += 2) surface->row(0)[x] |= 0xFF000000;
      for (int alpha = 0; alpha < values; ++alpha) {
        const Layer bottom{below, {}, all};
        Layer top{surface, {}, all};
        top.alpha = static_cast<std::uint8_t>(alpha);
        compose(frame, Region(all), {bottom, top}, 0);
        for (int x = 0; x < values; ++x) {
          const int expected = (source * alpha + x * (255 - alpha) + 127) / 255;
          ASSERT_EQ(frame.at(x, 0), 0xFF000000 | static_cast<Pixel>(expected) * 0x010101)
              << source << " over " << x << " with " << alpha;
        }
      }
    }
  }
}

TEST(Compositor, BlendsOnePixelOverTheBackground) {
  const auto pixel = [](const std::string& text) {
    return static_cast<Pixel>(std::stoul(text, nullptr, 16));
  };
  for (const auto& row : test::golden_rows("tests/platform/compositor/single_pixels.txt")) {
    Layer layer{std::make_shared<Surface>(1, 1, pixel(row.at(1))), {}, {0, 0, 1, 1}};
    layer.keyed = row.at(2) != "none";
    layer.key = layer.keyed ? pixel(row.at(2)) : 0x00FFFFFF;
    layer.alpha = static_cast<std::uint8_t>(std::stoi(row.at(3)));
    layer.pixel_alpha = row.at(4) == "pixels";
    for (const auto& composing : {compose, compose_reference}) {
      Surface frame(1, 1);
      composing(frame, Region({0, 0, 1, 1}), {layer}, 0x00406080);
      EXPECT_EQ(frame.at(0, 0), pixel(row.at(5))) << row.at(0);
    }
  }
}

TEST(Compositor, KeepsToDamageAndSurvivesFarAwayLayers) {
  Surface frame(40, 30, 0xFF123456);
  const auto surface = std::make_shared<Surface>(100, 100, 0xFF00FF00);
  const RECT everything{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
  const std::vector<Layer> layers{{surface, {INT_MIN, INT_MIN}, everything},
                                  {surface, {INT_MAX, INT_MAX}, everything},
                                  {nullptr, {0, 0}, everything},
                                  {surface, {-95, 10}, everything}};
  compose(frame, Region({-50, 8, 20, 12}), layers, 0);
  const std::tuple<int, int, Pixel> seen[] = {{0, 7, 0xFF123456},  {20, 10, 0xFF123456},
                                              {19, 9, 0xFF000000}, {4, 10, 0xFF00FF00},
                                              {5, 10, 0xFF000000}, {4, 12, 0xFF123456}};
  for (const auto& [x, y, color] : seen) EXPECT_EQ(frame.at(x, y), color) << x << ", " << y;
}

}  // namespace
}  // namespace corvane::system
