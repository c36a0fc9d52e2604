// Texts and shapes, scroll bars that are windows, and how programs may use the classes' names.
#include "tests/platform/conformance/controls/control_test.h"

namespace corvane::conformance {
namespace {

class StaticTest : public ControlTest {};

TEST_F(StaticTest, LetsTheMouseThroughUnlessItNotifies) {
  HWND quiet = add(L"STATIC", L"quiet", 0, {0, 0, 100, 40});
  HWND loud = add(L"static", L"loud", SS_NOTIFY, {0, 50, 100, 90});
  EXPECT_EQ(WindowFromPoint(middle_of(quiet)), dialog_);
  click(middle_of(loud));
  EXPECT_EQ(told(), "2:0 ");
  double_click(middle_of(loud));
  EXPECT_EQ(told(), "2:0 2:1 ");
  EnableWindow(loud, FALSE);
  EXPECT_EQ(told(), "2:3 ");
  EXPECT_EQ(SendMessageW(loud, WM_GETDLGCODE, 0, 0), DLGC_STATIC);
}

TEST_F(StaticTest, DrawsItsShapeTextOrBitmap) {
  struct Case {
    DWORD style;
    COLORREF corner;
    COLORREF middle;
  };
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  const COLORREF shadow = GetSysColor(COLOR_BTNSHADOW);
  const Case cases[] = {
      {SS_LEFT, face, face},
      {SS_BLACKRECT, GetSysColor(COLOR_WINDOWFRAME), GetSysColor(COLOR_WINDOWFRAME)},
      {SS_WHITERECT, kWhite, kWhite},
      {SS_GRAYFRAME, shadow, face},
      {SS_ETCHEDHORZ, shadow, face},
  };
  for (const Case& shape : cases) {
    SCOPED_TRACE(shape.style);
    HWND control = add(L"STATIC", L"", shape.style, {10, 10, 60, 60});
    EXPECT_EQ(pixel(110, 110), shape.corner);
    EXPECT_EQ(pixel(135, 135), shape.middle);
    DestroyWindow(control);
  }
  HWND text = add(L"STATIC", L"\u6587\u6587\u6587", SS_CENTER | SS_CENTERIMAGE, {10, 10, 110, 60});
  const auto inked = [&](const RECT& area) { return frame().count_other_than(area, face); };
  EXPECT_GT(inked({140, 125, 180, 145}), 20);
  EXPECT_EQ(inked({110, 110, 130, 160}), 0);
  SetWindowTextW(text, L"");
  pump();
  EXPECT_EQ(inked({110, 110, 210, 160}), 0);
}

TEST_F(StaticTest, ShowsABitmapAtItsSize) {
  HWND control = add(L"STATIC", nullptr, SS_BITMAP | WS_BORDER, {9, 9, 20, 20});
  const BITMAPINFO info{{sizeof(BITMAPINFOHEADER), 30, -20, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
  void* bits = nullptr;
  HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  std::fill_n(static_cast<DWORD*>(bits), 30 * 20, 0x0000FF00u);
  const auto parameter = reinterpret_cast<LPARAM>(bitmap);
  EXPECT_EQ(SendMessageW(control, STM_SETIMAGE, IMAGE_BITMAP, parameter), 0);
  pump();
  EXPECT_EQ(text_of(client_rect(control)), text_of({0, 0, 30, 20}));
  EXPECT_EQ(pixel(139, 129), kGreen);
  EXPECT_EQ(SendMessageW(control, STM_SETIMAGE, IMAGE_BITMAP, 0), parameter);
  DeleteObject(bitmap);
}

class ScrollBarControlTest : public ControlTest {
 protected:
  ScrollBarControlTest() {
    const SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 99, 10, 0, 0};
    SetScrollInfo(bar_, SB_CTL, &info, TRUE);
    pump();
  }
  // All at once: a press is not done with before its release.
  std::string told_of_drag(POINT from, POINT to) {
    move_to(from);
    send_mouse(MOUSEEVENTF_LEFTDOWN);
    if (to.y != from.y) SetCursorPos(to.x, to.y);
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();
    return told();
  }
  // Screen x 110 to 129, y 110 to 309.
  const HWND bar_ = add(L"SCROLLBAR", nullptr, SBS_VERT | WS_TABSTOP, {10, 10, 30, 210});
};

TEST_F(ScrollBarControlTest, KeepsItsNumbers) {
  EXPECT_EQ(SetScrollPos(bar_, SB_CTL, 200, TRUE), 0);
  EXPECT_EQ(GetScrollPos(bar_, SB_CTL), 90);
  int low = 7;
  int high = 7;
  EXPECT_TRUE(GetScrollRange(bar_, SB_CTL, &low, &high));
  EXPECT_EQ(low, 0);
  EXPECT_EQ(high, 99);
  EXPECT_EQ(SendMessageW(bar_, SBM_SETRANGE, 5, 50), 90);
  EXPECT_EQ(GetScrollPos(bar_, SB_CTL), 41);
  EXPECT_TRUE(ShowScrollBar(bar_, SB_CTL, FALSE));
  EXPECT_FALSE(IsWindowVisible(bar_));
  EXPECT_EQ(text_of(client_rect(bar_)), text_of({0, 0, 20, 200}));
}

TEST_F(ScrollBarControlTest, TellsItsParent) {
  const COLORREF thumb = pixel(120, 135);
  EXPECT_EQ(told_of_drag({120, 300}, {120, 300}), "scroll 1 scroll 8 ");
  EXPECT_EQ(last_teller_, bar_);
  EXPECT_EQ(GetFocus(), bar_);
  EXPECT_EQ(told_of_drag({120, 250}, {120, 250}), "scroll 3 scroll 8 ");
  EXPECT_EQ(told_of_drag({120, 130}, {120, 200}), "scroll 5 scroll 5 scroll 4 scroll 8 ");
  key(VK_NEXT);
  EXPECT_EQ(told(), "scroll 3 scroll 8 ");
  key(VK_HOME);
  EXPECT_EQ(told(), "scroll 6 scroll 8 ");
  SetFocus(dialog_);
  SetScrollPos(bar_, SB_CTL, 90, TRUE);
  pump();
  EXPECT_NE(pixel(120, 135), thumb);
  EXPECT_EQ(pixel(120, 283), thumb);
}

TEST_F(ScrollBarControlTest, MayBeDestroyedWhileItIsHeld) {
  recorder().on("dialog", WM_VSCROLL, [&](const Message&) { return DestroyWindow(bar_); });
  EXPECT_EQ(told_of_drag({120, 250}, {120, 250}), "");
  EXPECT_FALSE(IsWindow(bar_));
}

// A program may build its own class on one of these, or take the name.
TEST_F(ControlTest, ClassesCanBeReadAndHidden) {
  WNDCLASSW known{};
  ASSERT_TRUE(GetClassInfoW(nullptr, L"bUtToN", &known));
  EXPECT_FALSE(UnregisterClassW(L"button", nullptr));
  const WNDPROC original = known.lpfnWndProc;
  known.lpfnWndProc = [](HWND window, UINT message, WPARAM wparam, LPARAM lparam) -> LRESULT {
    return message == BM_GETCHECK ? 77 : DefWindowProcW(window, message, wparam, lparam);
  };
  known.lpszClassName = L"Button";
  ASSERT_NE(RegisterClassW(&known), 0);
  HWND own = add_button(L"mine", 0, 0);
  EXPECT_EQ(SendMessageW(own, BM_GETCHECK, 0, 0), 77);
  DestroyWindow(own);
  EXPECT_TRUE(UnregisterClassW(L"button", nullptr));
  ASSERT_TRUE(GetClassInfoW(nullptr, L"Button", &known));
  EXPECT_EQ(known.lpfnWndProc, original);
}

}  // namespace
}  // namespace corvane::conformance
