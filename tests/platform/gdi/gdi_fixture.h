#pragma once
// A drawing system with one white surface and a device context on it.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "corvane/platform/system/gdi/gdi.h"

namespace corvane::system {

class GdiTest : public testing::Test {
 protected:
  static constexpr Pixel kWhite = 0xFFFFFF;
  static constexpr int kSize = 100;

  GdiTest() {
    Gdi::set_current(&gdi);
    surface = std::make_shared<Surface>(kSize, kSize, kWhite);
    dc = gdi.open_dc(surface, {0, 0}, Region(surface->rect()));
  }
  ~GdiTest() override {
    gdi.close_dc(dc);
    EXPECT_EQ(gdi.live_objects(), 0) << "objects left behind";
  }

  // The smallest rectangle around the pixels that are not white, as "left,top,right,bottom" with
  // the last two outside, and their number.
  std::string drawn(const Surface& on) const {
    RECT box{on.width(), on.height(), 0, 0};
    int count = 0;
    for (int y = 0; y < on.height(); ++y)
      for (int x = 0; x < on.width(); ++x) {
        if ((on.at(x, y) & 0xFFFFFF) == kWhite) continue;
        ++count;
        box = {std::min(box.left, x), std::min(box.top, y), std::max(box.right, x + 1),
               std::max(box.bottom, y + 1)};
      }
    if (count == 0) return "nothing";
    return std::to_string(box.left) + "," + std::to_string(box.top) + "," +
           std::to_string(box.right) + "," + std::to_string(box.bottom) + " " +
           std::to_string(count);
  }
  std::string drawn() const { return drawn(*surface); }
  void wipe() {
    surface->fill(surface->rect(), kWhite);
    surface->take_marks();
  }

  Gdi gdi;
  std::shared_ptr<Surface> surface;
  HDC dc = nullptr;
};

}  // namespace corvane::system
