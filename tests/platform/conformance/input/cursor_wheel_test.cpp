// WM_SETCURSOR, the cursor, and the wheel.
#include "tests/platform/conformance/support/family_test.h"

namespace corvane::conformance {
namespace {

class CursorTest : public WindowTest {
 protected:
  CursorTest() {
    move_to(105, 105);
    recorder().only({WM_SETCURSOR});
    settle();
  }
  const HCURSOR cross_ = LoadCursorW(nullptr, IDC_CROSS);
  const HCURSOR hand_ = LoadCursorW(nullptr, IDC_HAND);
  const HWND top_ = create(
      "top", {.style = WS_POPUP | WS_VISIBLE, .place = {100, 100, 200, 200}, .cursor = cross_});
  const HWND child_ = create(
      "child",
      {.parent = top_, .style = WS_CHILD | WS_VISIBLE, .place = {50, 50, 50, 50}, .cursor = hand_});
};

TEST_F(CursorTest, IsAskedForEachMovePressAndRelease) {
  move_to(106, 106);
  press();
  release();
  step();
}

TEST_F(CursorTest, DefaultHandlingAsksTheParentsFirstThenSetsTheClassCursor) {
  move_to(160, 160);
  step("left to the default handling");
  EXPECT_EQ(GetCursor(), hand_);
  move_to(105, 106);
  EXPECT_EQ(GetCursor(), cross_);
  forget();
  recorder().answer("top", WM_SETCURSOR, TRUE);
  move_to(160, 160);
  step("answered by the parent");
  EXPECT_EQ(GetCursor(), cross_) << "the parent's answer stops the default handling";
}

TEST_F(CursorTest, WindowThatHandlesItKeepsItFromTheParents) {
  recorder().on("child", WM_SETCURSOR, [&](const Message&) -> std::optional<LRESULT> {
    SetCursor(cross_);
    return TRUE;
  });
  move_to(160, 160);
  step("handled by the child");
  EXPECT_EQ(GetCursor(), cross_);
  EnableWindow(child_, FALSE);
  move_to(161, 161);
  step("over the disabled child");
  SetCapture(top_);
  move_to(160, 160);
  press();
  release();
  step("while captured");
}

TEST_F(CursorTest, ReleasingTheCaptureAsksTheWindowUnderThePointer) {
  SetCapture(top_);
  move_to(160, 160);
  EXPECT_EQ(GetCursor(), cross_) << "not asked while the mouse is captured";
  forget();
  for (const bool released : {true, false}) {
    SetCursor(cross_);
    released ? static_cast<void>(ReleaseCapture()) : static_cast<void>(DestroyWindow(GetCapture()));
    step("at once");
    pump();
    step("later");
    EXPECT_EQ(GetCursor(), hand_);
    SetCapture(create("gone", {.place = {0, 0, 9, 9}}));
    settle();
  }
}

TEST_F(CursorTest, SetCursorReturnsThePreviousOne) {
  SetCursor(cross_);
  EXPECT_EQ(SetCursor(hand_), cross_);
  EXPECT_EQ(SetCursor(nullptr), hand_);
  EXPECT_EQ(GetCursor(), nullptr);
}

class WheelTest : public FamilyTest {
 protected:
  WheelTest() {
    settled_child("barred", top_, 150, 0, 50, 100, WS_VSCROLL);
    recorder().only({WM_MOUSEWHEEL});
    SetActiveWindow(other_);
    settle();
  }
  static void route(DWORD routing) {
    void* const value = reinterpret_cast<void*>(static_cast<UINT_PTR>(routing));
    EXPECT_NE(SystemParametersInfoW(SPI_SETMOUSEWHEELROUTING, 0, value, 0), 0);
    DWORD kept = 99;
    EXPECT_NE(SystemParametersInfoW(SPI_GETMOUSEWHEELROUTING, 0, &kept, 0), 0);
    EXPECT_EQ(kept, routing);
  }
};

TEST_F(WheelTest, GoesToTheWindowUnderThePointerAndUpItsParents) {
  wheel_at(160, 170, WHEEL_DELTA);
  step("over a child");
  wheel_at(295, 150, WHEEL_DELTA);
  step("over a scroll bar");
  recorder().answer("child", WM_MOUSEWHEEL, 0);
  wheel_at(160, 170, -WHEEL_DELTA);
  step("handled by the child");
  move_to(110, 110);
  for (const int delta : {30, -7, 240}) wheel(delta);
  step("small distances");
  send_key(VK_CONTROL, true);
  send_mouse(MOUSEEVENTF_RIGHTDOWN);
  wheel(WHEEL_DELTA);
  step("with keys and buttons");
}

TEST_F(WheelTest, RoutedToTheFocusWindowWhenTheParameterSaysSo) {
  DWORD routing = 99;
  EXPECT_NE(SystemParametersInfoW(SPI_GETMOUSEWHEELROUTING, 0, &routing, 0), 0);
  EXPECT_EQ(routing, 2U);
  route(MOUSEWHEEL_ROUTING_FOCUS);
  wheel_at(160, 170, WHEEL_DELTA);
  step("to the focus window");
  SetFocus(child_);
  forget();
  wheel_at(510, 110, WHEEL_DELTA);
  step("and up its parents");
  route(MOUSEWHEEL_ROUTING_MOUSE_POS);
  wheel_at(510, 110, WHEEL_DELTA);
  step("to the pointer again");
}

TEST_F(WheelTest, OtherSystemParameters) {
  UINT lines = 0;
  EXPECT_NE(SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0), 0);
  EXPECT_EQ(lines, 3U);
  RECT area{};
  EXPECT_NE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0), 0);
  EXPECT_EQ(text_of(area), "0,0,1280,800");
  EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), 1280);
  EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN), 800);
  const HMONITOR monitor = MonitorFromWindow(top_, MONITOR_DEFAULTTONULL);
  MONITORINFO info{};
  EXPECT_EQ(GetMonitorInfoW(monitor, &info), 0) << "its size is not said";
  info.cbSize = sizeof(info);
  EXPECT_EQ(GetMonitorInfoW(nullptr, &info), 0);
  EXPECT_NE(GetMonitorInfoW(monitor, &info), 0);
  EXPECT_EQ(text_of(info.rcMonitor) + " " + text_of(info.rcWork), "0,0,1280,800 0,0,1280,800");
  EXPECT_EQ(info.dwFlags, MONITORINFOF_PRIMARY);
  EXPECT_NE(SystemParametersInfoW(SPI_SETDRAGFULLWINDOWS, 1, nullptr, 0), 0);
  BOOL drags_contents = FALSE;
  EXPECT_NE(SystemParametersInfoW(SPI_GETDRAGFULLWINDOWS, 0, &drags_contents, 0), 0);
  EXPECT_EQ(drags_contents, 1);
}

}  // namespace
}  // namespace corvane::conformance
