#pragma once
// A desktop, buffers of one colour and a small picture.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "corvane/platform/drawing/buffer_dc.h"
#include "corvane/platform/drawing/gdi_dc.h"
#include "tests/support/desktop.h"

namespace corvane::test {

constexpr COLORREF kBlack = RGB(0, 0, 0), kWhite = RGB(255, 255, 255), kRed = RGB(255, 0, 0),
                   kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255);

class DrawingTest : public testing::Test {
 protected:
  // A picture of 2 x 2 blocks: red, green above blue, clear.
  static Gdiplus::Bitmap quarters(int size) {
    std::vector<std::uint32_t> pixels;
    for (int at = 0; at < size * size; ++at) {
      const bool right = at % size >= size / 2, below = at / size >= size / 2;
      pixels.push_back(below ? (right ? 0x00000000 : 0xFF0000FF)
                             : (right ? 0xFF00FF00 : 0xFFFF0000));
    }
    return Gdiplus::Bitmap(size, size, size * 4, PixelFormat32bppARGB,
                           reinterpret_cast<BYTE*>(pixels.data()));
  }
  static CBufferDC buffer(int width, int height, COLORREF color) {
    CBufferDC result;
    const CRect rect(0, 0, width, height);
    EXPECT_TRUE(result.CreateBufferDC(nullptr, rect));
    result.SetBackColor(rect, color);
    return result;
  }
  static void expect_same(const CBufferDC& seen, const CBufferDC& expected) {
    const CSize size = expected.GetRect().Size();
    for (int at = 0; at < size.cx * size.cy; ++at) {
      const int x = at % size.cx, y = at / size.cx;
      ASSERT_EQ(::GetPixel(seen, x, y), ::GetPixel(expected, x, y)) << x << ", " << y;
    }
  }
  int live_objects() const { return desktop_.living_drawing_objects(); }

  Desktop desktop_{SIZE{200, 100}};
  CGdiDC drawing_;
};

}  // namespace corvane::test
