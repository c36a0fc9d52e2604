// The largest and smallest numbers in every place that takes one: refused or cut, never harmful.
#include <climits>

#include "tests/platform/conformance/support/picture.h"
#include "tests/platform/conformance/support/window_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

constexpr int kExtremes[] = {INT_MIN, INT_MIN + 1, -1000000,    -32769,
                             32768,   1000000,     INT_MAX - 1, INT_MAX};

class ExtremeValuesTest : public WindowTest {
 protected:
  void TearDown() override {
    MoveWindow(popup_, 100, 100, 100, 100, TRUE);
    MoveWindow(child_, 10, 10, 50, 50, TRUE);
    pump();
    EXPECT_EQ(text_of(window_rect(child_)), "110,110,160,160");
    EXPECT_EQ(WindowFromPoint({120, 120}), child_);
    WindowTest::TearDown();
  }
  static void for_each_pair(const std::function<void(int, int)>& action) {
    for (const int first : kExtremes) {
      for (const int second : kExtremes) action(first, second);
    }
  }
  const HWND popup_ = settled_popup("pop", 100, 100, 100, 100);
  const HWND child_ = settled_child("child", popup_, 10, 10, 50, 50);
};

TEST_F(ExtremeValuesTest, PositionsOfWindowsAndPoints) {
  for_each_pair([&](int x, int y) {
    for (const HWND window : {popup_, child_}) {
      MoveWindow(window, x, y, 60, 60, TRUE);
      POINT origin{0, 0};
      ClientToScreen(child_, &origin);
      move_to(150, 150);
      MoveWindow(window, 20, 20, 60, 60, TRUE);
    }
    POINT point{x, y};
    ScreenToClient(child_, &point);
    ClientToScreen(child_, &point);
    MapWindowPoints(popup_, child_, &point, 1);
    EXPECT_EQ(WindowFromPoint({x, y}), nullptr);
    EXPECT_EQ(ChildWindowFromPoint(popup_, {x, y}), nullptr);
  });
  EXPECT_EQ(pixel(50, 50), kWhite);
}

TEST_F(ExtremeValuesTest, SizesOfWindows) {
  for (const int size : kExtremes) {
    MoveWindow(child_, 0, 0, size, 40, TRUE);
    MoveWindow(child_, 0, 0, 40, size, TRUE);
    SetWindowPos(child_, nullptr, size, size, size, size, SWP_NOZORDER);
    pump();
    const RECT client = client_rect(child_);
    EXPECT_GE(client.right, 0);
    EXPECT_GE(client.bottom, 0);
    DestroyWindow(create(
        "far",
        {.parent = popup_, .style = WS_CHILD | WS_VISIBLE, .place = {size, size, size, size}}));
    pump();
  }
}

TEST_F(ExtremeValuesTest, LayeredContentIsPlacedWhereMoveWindowWouldAndNeverLarger) {
  const HWND layer = create("layer", {.parent = popup_,
                                      .style = WS_POPUP | WS_VISIBLE,
                                      .place = {0, 0, 60, 40},
                                      .ex_style = WS_EX_LAYERED});
  const Picture picture(60, 40, 0xFF00FF00);
  BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  const auto update = [&](POINT position, SIZE size, POINT source) {
    return UpdateLayeredWindow(layer, nullptr, &position, &size, picture.dc(), &source, 0, &blend,
                               ULW_ALPHA);
  };
  for_each_pair([&](int x, int y) {
    MoveWindow(layer, x, y, 60, 40, FALSE);
    const std::string there = text_of(window_rect(layer));
    EXPECT_NE(update({x, y}, picture.size(), {0, 0}), 0);
    EXPECT_EQ(text_of(window_rect(layer)), there) << x << ' ' << y;
    EXPECT_NE(update({200, 300}, picture.size(), {x, y}), 0);
    EXPECT_EQ(update({0, 0}, {x, y}, {0, 0}), 0);
    EXPECT_EQ(text_of(window_rect(layer)), "200,300,260,340");
    pump();
  });
}

TEST_F(ExtremeValuesTest, ChainsOfParentsAndOfOwnersEndAtFiftyWherever) {
  for (const DWORD style : {WS_CHILD | WS_VISIBLE, WS_POPUP | WS_VISIBLE}) {
    for (const int at : kExtremes) {
      const HWND first = create("1", {.style = WS_POPUP | WS_VISIBLE, .place = {at, at, 90, 90}});
      HWND last = first;
      for (int depth = 2; depth <= 50; ++depth) {
        last = create(std::to_string(depth),
                      {.parent = last, .style = style, .place = {at, at, 90, 90}});
        ASSERT_NE(last, nullptr) << depth;
        POINT point{at, at};
        MapWindowPoints(first, last, &point, 1);
        ReleaseDC(last, GetDC(last));
      }
      MoveWindow(last, -(at + 1), at, 50, 50, TRUE);
      EXPECT_GT(window_rect(last).right, window_rect(last).left);
      move_to(150, 150);
      EXPECT_EQ(create("51", {.parent = last, .style = style}), nullptr);
      EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
      EXPECT_TRUE(style != (WS_CHILD | WS_VISIBLE) || SetParent(child_, last) == nullptr);
      DestroyWindow(first);
      settle();
    }
  }
}

TEST_F(ExtremeValuesTest, SurfacesBeyondReasonAreRefused) {
  const WindowPlan plan{.parent = popup_, .style = WS_POPUP, .ex_style = WS_EX_LAYERED};
  const HWND layer = create("layer", plan);
  for (const int size : {32767, 46341, INT_MAX}) {
    for (const DWORD style : {WS_POPUP, WS_CHILD}) {
      EXPECT_EQ(create("huge", {.parent = popup_,
                                .style = style,
                                .place = {0, 0, size, size},
                                .ex_style = WS_EX_LAYERED}),
                nullptr);
      EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
    }
    EXPECT_EQ(MoveWindow(popup_, 0, 0, size, size, TRUE), 0);
    EXPECT_EQ(text_of(window_rect(popup_)), "100,100,200,200");
    const Picture picture(1, 1, 0);
    SIZE extent{size, size};
    POINT source{};
    EXPECT_EQ(UpdateLayeredWindow(layer, nullptr, nullptr, &extent, picture.dc(), &source, 0,
                                  nullptr, ULW_OPAQUE),
              0);
    MoveWindow(child_, 0, 0, size, size, TRUE);
    EXPECT_EQ(SetParent(child_, nullptr), nullptr) << "a child needs no surface";
    SetWindowLongW(child_, GWL_EXSTYLE, WS_EX_LAYERED);
    pump();
    SetWindowLongW(child_, GWL_EXSTYLE, 0);
  }
}

// Ran for hours when each new window was looked for among all.
TEST_F(ExtremeValuesTest, TenThousandWindowsOfOneOwnerAndAsManyTimers) {
  constexpr UINT kMany = 10000;
  std::vector<HWND> windows;
  WNDCLASSW plain{};
  plain.lpfnWndProc = &DefWindowProcW;
  plain.lpszClassName = L"one of many";
  ASSERT_NE(RegisterClassW(&plain), 0);
  for (UINT i = 1; i <= kMany; ++i) {
    windows.push_back(CreateWindowExW(0, plain.lpszClassName, L"", WS_POPUP | WS_VISIBLE, 0, 0, 0,
                                      0, popup_, nullptr, nullptr, nullptr));
    SetTimer(windows.back(), i, 100, nullptr);
  }
  EXPECT_EQ(GetTopWindow(nullptr), windows.back());
  pump();
  advance(100);
  MSG message{};
  for (UINT i = 1; i <= kMany; ++i) {
    ASSERT_NE(PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE), 0) << i;
    ASSERT_EQ(message.wParam, i) << "two that fall due together come as they were set";
  }
  for (UINT i = 0; i < kMany; i += 2) DestroyWindow(windows[i]);
  EXPECT_EQ(own().windows.live_timers(), static_cast<int>(kMany / 2));
  EXPECT_EQ(GetWindow(windows[1], GW_HWNDPREV), windows[3]);
  for (const HWND window : windows) DestroyWindow(window);
}

TEST_F(ExtremeValuesTest, InvalidRectangles) {
  for_each_pair([&](int first, int second) {
    const RECT rect{first, first, second, second};
    InvalidateRect(popup_, &rect, TRUE);
    ValidateRect(popup_, &rect);
    RedrawWindow(popup_, &rect, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    pump();
    EXPECT_EQ(text_of(update_rect(popup_)), "0,0,0,0");
  });
  const RECT everything{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
  InvalidateRect(popup_, &everything, FALSE);
  EXPECT_EQ(text_of(update_rect(popup_)), "0,0,100,100");
}

TEST_F(ExtremeValuesTest, PointerStaysOnTheScreen) {
  for (const int value : kExtremes) {
    SetCursorPos(value, value);
    INPUT input{INPUT_MOUSE, {{value, value, 0, MOUSEEVENTF_MOVE, 0, 0}}};
    SendInput(1, &input, sizeof(input));
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    SendInput(1, &input, sizeof(input));
    pump();
    POINT point{};
    EXPECT_NE(GetCursorPos(&point), 0);
    const RECT screen{0, 0, 1280, 800};
    EXPECT_NE(PtInRect(&screen, point), 0) << text_of(point);
  }
}

TEST_F(ExtremeValuesTest, NumbersWithoutMeaning) {
  for (const int value : kExtremes) {
    ShowWindow(child_, value);
    ShowWindow(child_, SW_SHOWNA);
    GetWindow(child_, static_cast<UINT>(value));
    GetAncestor(child_, static_cast<UINT>(value));
    GetWindowLongW(child_, value);
    SetWindowLongW(child_, value, 1);
    GetWindowLongPtrW(child_, value);
    SetWindowLongPtrW(child_, value, 1);
    GetClassLongPtrW(child_, value);
    GetDlgItem(popup_, value);
    GetKeyState(value);
    GetAsyncKeyState(value);
    GetSystemMetrics(value);
    SystemParametersInfoW(static_cast<UINT>(value), 0, nullptr, 0);
    SendInput(static_cast<UINT>(value) & 1U, nullptr, value);
    SetTimer(child_, static_cast<UINT_PTR>(value), static_cast<UINT>(value), nullptr);
    KillTimer(child_, static_cast<UINT_PTR>(value));
    wchar_t text[4] = {};
    EXPECT_LE(GetWindowTextW(child_, text, value < 0 ? value : 4), 3);
    EXPECT_LE(GetClassNameW(child_, text, value < 0 ? value : 4), 3);
  }
}

TEST_F(ExtremeValuesTest, LongTexts) {
  const std::wstring text(100000, L'x');
  EXPECT_NE(SetWindowTextW(popup_, text.c_str()), 0);
  EXPECT_EQ(GetWindowTextLengthW(popup_), 100000);
  EXPECT_NE(SetWindowTextW(popup_, nullptr), 0);
  EXPECT_EQ(GetWindowTextLengthW(popup_), 0);
}

}  // namespace
}  // namespace corvane::conformance
