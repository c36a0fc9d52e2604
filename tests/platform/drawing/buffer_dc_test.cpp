// The off-screen buffer.
#include "tests/platform/drawing/drawing_support.h"

namespace corvane {
namespace {

using namespace test;

using BufferDC = DrawingTest;

TEST_F(BufferDC, HasTheSizeOfItsRectangleAndIsBlackAtFirst) {
  CBufferDC buffer;
  EXPECT_EQ(buffer.GetDC(), nullptr);
  ASSERT_TRUE(buffer.CreateBufferDC(nullptr, CRect(100, 200, 130, 220)));
  EXPECT_EQ(buffer.GetRect(), CRect(100, 200, 130, 220));
  EXPECT_TRUE(buffer.HasSizeOf(CRect(0, 0, 30, 20)));
  EXPECT_FALSE(buffer.HasSizeOf(CRect(0, 0, 20, 30)));
  EXPECT_EQ(::GetPixel(buffer, 29, 19), kBlack);
  EXPECT_EQ(::GetPixel(buffer, 30, 19), CLR_INVALID);
}

TEST_F(BufferDC, ReleasingFreesEverythingAndIsHarmlessTwice) {
  const int before = live_objects();
  {
    CBufferDC buffer;
    ASSERT_TRUE(buffer.CreateBufferDC(nullptr, CRect(0, 0, 10, 10)));
    ASSERT_TRUE(buffer.CreateBufferDC(nullptr, CRect(0, 0, 20, 20)));
    EXPECT_GT(live_objects(), before);
    buffer.Release();
    EXPECT_EQ(live_objects(), before);
    EXPECT_TRUE(buffer.GetRect().IsRectNull());
    buffer.Release();
    ASSERT_TRUE(buffer.CreateBufferDC(nullptr, CRect(0, 0, 10, 10)));
    buffer.SetBackColor(CRect(0, 0, 5, 5), kRed);
  }
  EXPECT_EQ(live_objects(), before);
}

TEST_F(BufferDC, WithoutAPictureNothingHappens) {
  CBufferDC nothing;
  for (const CRect& rect : {CRect(), CRect(5, 5, 5, 10), CRect(10, 10, 0, 0)}) {
    EXPECT_FALSE(nothing.CreateBufferDC(nullptr, rect));
  }
  CBufferDC target = buffer(10, 10, kWhite);
  nothing.SetBackColor(CRect(0, 0, 10, 10), kRed);
  EXPECT_FALSE(nothing.Paste(target, CRect(0, 0, 10, 10)));
  EXPECT_FALSE(target.Paste(nullptr, CRect(0, 0, 10, 10)));
  target = nothing;
  EXPECT_EQ(target.GetDC(), nullptr);
}

TEST_F(BufferDC, ColoursOnlyTheRectangle) {
  CBufferDC white = buffer(20, 20, kWhite);
  white.SetBackColor(CRect(5, 5, 10, 15), kRed);
  for (const auto& [x, y] : {std::pair(5, 5), std::pair(9, 14)})
    EXPECT_EQ(::GetPixel(white, x, y), kRed);
  for (const auto& [x, y] : {std::pair(10, 14), std::pair(4, 5)})
    EXPECT_EQ(::GetPixel(white, x, y), kWhite);
}

TEST_F(BufferDC, ASmallBufferIsStretchedOverTheWholeRectangle) {
  const CBufferDC dark = buffer(10, 10, kBlue);
  const CBufferDC target = buffer(200, 100, kWhite);
  ASSERT_TRUE(dark.Paste(target, CRect(20, 10, 190, 95), SRCCOPY));
  CBufferDC expected = buffer(200, 100, kWhite);
  expected.SetBackColor(CRect(20, 10, 190, 95), kBlue);
  expect_same(target, expected);
}

TEST_F(BufferDC, ACopyHasTheSameContentsAndIsIndependent) {
  CBufferDC original = buffer(20, 10, kRed);
  CBufferDC copy;
  copy = original;
  CBufferDC constructed(original);
  original.SetBackColor(CRect(0, 0, 20, 10), kGreen);
  EXPECT_EQ(::GetPixel(copy, 19, 9), kRed);
  EXPECT_EQ(::GetPixel(constructed, 19, 9), kRed);
  copy.SetBackColor(CRect(0, 0, 20, 10), kBlue);
  EXPECT_EQ(::GetPixel(original, 0, 0), kGreen);
  const CBufferDC& self = original;
  original = self;
  EXPECT_EQ(::GetPixel(original, 0, 0), kGreen);
  copy = buffer(5, 5, kWhite);  // of another size
  EXPECT_EQ(copy.GetRect(), CRect(0, 0, 5, 5));
  EXPECT_EQ(::GetPixel(copy, 4, 4), kWhite);
}

}  // namespace
}  // namespace corvane
