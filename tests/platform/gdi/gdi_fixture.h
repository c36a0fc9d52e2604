#pragma once
// A drawing system with one white surface and a device context on it.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "corvane/platform/system/gdi/gdi.h"
#include "tests/support/golden_file.h"
#include "tests/support/rects.h"

namespace corvane::system {

// An object that is in the context for as long as this lives, and is deleted then.
class Selected {
 public:
  Selected(HDC dc, HGDIOBJ object) : dc_(dc), object_(object), before_(SelectObject(dc, object)) {}
  ~Selected() {
    SelectObject(dc_, before_);
    DeleteObject(object_);
  }
  Selected(const Selected&) = delete;
  Selected& operator=(const Selected&) = delete;

 private:
  HDC dc_;
  HGDIOBJ object_, before_;
};

class GdiTest : public testing::Test {
 protected:
  static constexpr Pixel kWhite = 0xFFFFFF;
  static constexpr int kSize = 100;

  GdiTest() { Gdi::set_current(&gdi); }
  ~GdiTest() override {
    for (const HDC each : contexts) gdi.close_dc(each) || DeleteDC(each);
    EXPECT_EQ(gdi.live_objects(), 0) << "objects left behind";
  }

  // Contexts that stay open until the test ends.
  HDC open(const std::shared_ptr<Surface>& on, POINT origin, const Region& clip) {
    return contexts.emplace_back(gdi.open_dc(on, origin, clip));
  }
  HDC open(const std::shared_ptr<Surface>& on) { return open(on, {0, 0}, Region(on->rect())); }
  HDC open_memory(HDC like) { return contexts.emplace_back(CreateCompatibleDC(like)); }

  using Condition = std::function<bool(int x, int y, Pixel color)>;  // the alpha byte left out
  // How many of the surface's pixels are so; `box` becomes the smallest rectangle around them.
  int count(const Condition& condition, RECT* box = nullptr) const {
    RECT around{kSize, kSize, 0, 0};
    int found = 0;
    for (int y = 0; y < kSize; ++y) {
      for (int x = 0; x < kSize; ++x) {
        if (!condition(x, y, seen(x, y))) continue;
        ++found;
        around = {std::min(around.left, x), std::min(around.top, y), std::max(around.right, x + 1),
                  std::max(around.bottom, y + 1)};
      }
    }
    if (box != nullptr) *box = around;
    return found;
  }
  // What is not white, as "left,top,right,bottom", the last two outside, and the pixels' number.
  std::string drawn() const {
    RECT box{};
    const int number = count([](int, int, Pixel color) { return color != kWhite; }, &box);
    if (number == 0) return "nothing";
    return test::text_of(box) + " " + std::to_string(number);
  }
  // How many pixels are not white outside of these rectangles, or white inside.
  int differing_from(const std::vector<RECT>& rects) const {
    return count([&rects](int x, int y, Pixel color) {
      const bool inside = std::any_of(rects.begin(), rects.end(), [&](const RECT& rect) {
        return PtInRect(&rect, {x, y});
      });
      return inside != (color != kWhite);
    });
  }
  // Each row of a golden file: what to draw, a rectangle for it, and what is drawn then.
  void expect_drawn(const std::string& file,
                    const std::map<std::string, std::function<void(const RECT&)>>& draw) {
    for (const auto& row : test::golden_rows(file)) {
      wipe();
      draw.at(row.at(0))(test::rect_of(row.at(1)));
      EXPECT_EQ(drawn(), row.at(2)) << row.at(0) << " in " << row.at(1);
    }
  }
  Pixel seen(int x, int y) const { return surface->at(x, y) & 0xFFFFFF; }
  // The surface's pixels at these points, all of their bits.
  struct Dot {
    int x, y;
    Pixel color;
  };
  void expect_dots(std::initializer_list<Dot> dots) const {
    for (const auto& [x, y, color] : dots) EXPECT_EQ(surface->at(x, y), color) << x << ", " << y;
  }
  void wipe() {
    surface->fill(surface->rect(), kWhite);
    surface->take_marks();
  }

  Gdi gdi;
  std::vector<HDC> contexts;
  std::shared_ptr<Surface> surface = std::make_shared<Surface>(kSize, kSize, kWhite);
  HDC dc = open(surface);
};

}  // namespace corvane::system
