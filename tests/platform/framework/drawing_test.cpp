#include "tests/platform/framework/watched_wnd.h"

namespace corvane {
namespace {

class FrameworkDrawing : public WatchedWndTest {
 protected:
  int objects() { return desktop_.living_drawing_objects(); }
};

TEST_F(FrameworkDrawing, ObjectsAreFreedWithTheirOwners) {
  const int before = objects();
  {
    CPen pen(PS_SOLID, 2, RGB(0, 255, 0));
    CBrush brush(RGB(1, 2, 3));
    EXPECT_EQ(objects(), before + 2);
    EXPECT_TRUE(pen.CreatePen(PS_SOLID, 1, RGB(255, 0, 0)));
    EXPECT_EQ(objects(), before + 2) << "the new pen replaces the old";
    EXPECT_FALSE(pen.Attach(brush.GetSafeHandle())) << "has one";
    const HGDIOBJ taken = brush.Detach();
    EXPECT_FALSE(brush.DeleteObject());
    EXPECT_EQ(objects(), before + 2);
    ::DeleteObject(taken);
  }
  EXPECT_EQ(objects(), before);
}

TEST_F(FrameworkDrawing, ContextsAreFreedWithTheirScopes) {
  const int before = objects();
  {
    CClientDC client(&window_);
    CWindowDC whole(&window_);
    CClientDC screen(nullptr);
    EXPECT_TRUE(client && whole && screen);
    CDC memory;
    EXPECT_TRUE(memory.CreateCompatibleDC(&client));
    EXPECT_FALSE(memory.CreateCompatibleDC(&client)) << "has one";
    EXPECT_GT(objects(), before);
    EXPECT_TRUE(memory.DeleteDC());
  }
  EXPECT_EQ(objects(), before);
}

TEST_F(FrameworkDrawing, AttachedAndTemporaryContextsAreOnlyBorrowed) {
  CClientDC client(&window_);
  {
    CDC borrowed;
    EXPECT_TRUE(borrowed.Attach(client));
    EXPECT_FALSE(borrowed.DeleteDC());
  }
  EXPECT_EQ(CDC::FromHandle(client), CDC::FromHandle(client));
  MSG idle{};
  PreTranslateInput(&idle);
  EXPECT_NE(::SetPixel(client, 1, 1, RGB(9, 9, 9)), CLR_INVALID) << "still open";
  EXPECT_EQ(CDC::FromHandle(nullptr), nullptr);
}

TEST_F(FrameworkDrawing, FillsAndFrames) {
  CClientDC client(&window_);
  client.SetBkColor(RGB(7, 7, 7));
  EXPECT_TRUE(client.FillSolidRect(CRect(10, 10, 20, 20), RGB(200, 100, 50)));
  for (const int at : {10, 19}) EXPECT_EQ(::GetPixel(client, at, at), RGB(200, 100, 50));
  EXPECT_NE(::GetPixel(client, 20, 19), RGB(200, 100, 50));
  EXPECT_EQ(::GetBkColor(client), RGB(7, 7, 7));
  CPen pen(PS_SOLID, 1, RGB(0, 0, 255));
  const HGDIOBJ old = client.SelectObject(pen);
  client.MoveTo(0, 5);
  client.LineTo(CPoint(9, 5));
  client.SelectObject(old);
  EXPECT_EQ(::GetPixel(client, 4, 5), RGB(0, 0, 255));
  EXPECT_FALSE(client.FillSolidRect(nullptr, 0));
  SIZE size{};
  ASSERT_TRUE(::GetTextExtentPoint32W(client, L"text", 4, &size));
  EXPECT_EQ(client.GetTextExtent(L"text"), CSize(size));
}

TEST_F(FrameworkDrawing, FontsTellWhatTheyWereMadeOf) {
  LOGFONTW wanted{};
  wanted.lfHeight = 32;
  wanted.lfWeight = FW_BOLD;
  CFont font;
  LOGFONTW told{};
  EXPECT_FALSE(font.GetLogFont(&told));
  ASSERT_TRUE(font.CreateFontIndirectW(&wanted));
  ASSERT_TRUE(font.GetLogFont(&told));
  EXPECT_EQ(told.lfHeight, 32);
  EXPECT_EQ(told.lfWeight, FW_BOLD);
  EXPECT_FALSE(font.CreateFontIndirectW(nullptr));
  EXPECT_TRUE(font.GetLogFont(&told)) << "kept";
}

TEST_F(FrameworkDrawing, PaintingSurvivesTheEndOfTheWindow) {
  window_.Invalidate();
  {
    CPaintDC dc(&window_);
    window_.DestroyWindow();
    dc.FillSolidRect(CRect(0, 0, 9, 9), RGB(1, 1, 1));
  }
  EXPECT_EQ(desktop_.living_windows(), 0);
  const CDC none;
  EXPECT_EQ(none.GetTextExtent(L"text"), CSize(0, 0));
}

}  // namespace
}  // namespace corvane
