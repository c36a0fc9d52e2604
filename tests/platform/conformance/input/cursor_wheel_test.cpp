// WM_SETCURSOR, the cursor, and the wheel.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class CursorTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    cross_ = LoadCursorW(nullptr, IDC_CROSS);
    hand_ = LoadCursorW(nullptr, IDC_HAND);
    top_ = create(
        "top", {.style = WS_POPUP | WS_VISIBLE, .place = {100, 100, 200, 200}, .cursor = cross_});
    child_ = create("child", {.parent = top_,
                              .style = WS_CHILD | WS_VISIBLE,
                              .place = {50, 50, 50, 50},
                              .cursor = hand_});
    move_to(105, 105);
    recorder().only({WM_SETCURSOR});
    settle();
  }
  HCURSOR cross_ = nullptr;
  HCURSOR hand_ = nullptr;
  HWND top_ = nullptr;
  HWND child_ = nullptr;
};

TEST_F(CursorTest, IsAskedForEachMovePressAndRelease) {
  move_to(106, 106);
  press();
  release();
  EXPECT_TRUE(
      log_is("top WM_SETCURSOR top 1 WM_MOUSEMOVE > WM_SETCURSOR top 1 WM_LBUTTONDOWN >"
             "WM_SETCURSOR top 1 WM_LBUTTONUP"));
}

TEST_F(CursorTest, DefaultHandlingAsksTheParentsFirstThenSetsTheClassCursor) {
  move_to(160, 160);
  EXPECT_TRUE(
      log_is("child WM_SETCURSOR child 1 WM_MOUSEMOVE {"
             "  top WM_SETCURSOR child 1 WM_MOUSEMOVE }"));
  EXPECT_EQ(GetCursor(), hand_);
  move_to(105, 106);
  EXPECT_EQ(GetCursor(), cross_);
}

TEST_F(CursorTest, ParentsAnswerStopsTheDefault) {
  recorder().answer("top", WM_SETCURSOR, TRUE);
  SetCursor(cross_);
  move_to(160, 160);
  EXPECT_EQ(GetCursor(), cross_);
}

TEST_F(CursorTest, WindowThatHandlesItKeepsItFromTheParents) {
  recorder().on("child", WM_SETCURSOR, [&](const Message&) -> std::optional<LRESULT> {
    SetCursor(cross_);
    return TRUE;
  });
  move_to(160, 160);
  EXPECT_TRUE(log_is("child WM_SETCURSOR"));
  EXPECT_EQ(GetCursor(), cross_);
}

TEST_F(CursorTest, OverADisabledChildItIsTheParents) {
  EnableWindow(child_, FALSE);
  move_to(160, 160);
  EXPECT_TRUE(log_is("top WM_SETCURSOR top 1 WM_MOUSEMOVE"));
}

TEST_F(CursorTest, NotAskedWhileCaptured) {
  SetCapture(top_);
  move_to(160, 160);
  press();
  release();
  EXPECT_TRUE(log_is(""));
}

TEST_F(CursorTest, SetCursorReturnsThePreviousOne) {
  SetCursor(cross_);
  EXPECT_EQ(SetCursor(hand_), cross_);
  EXPECT_EQ(SetCursor(nullptr), hand_);
  EXPECT_EQ(GetCursor(), nullptr);
}

class WheelTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    top_ = settled_popup("top", 100, 100, 200, 200);
    child_ = settled_child("child", top_, 50, 50, 50, 50);
    other_ = settled_popup("other", 500, 100, 100, 100);
    recorder().only({WM_MOUSEWHEEL});
  }
  HWND top_ = nullptr;
  HWND child_ = nullptr;
  HWND other_ = nullptr;
};

TEST_F(WheelTest, GoesToTheWindowUnderThePointerAndUpItsParents) {
  move_to(160, 170);
  wheel(WHEEL_DELTA);
  EXPECT_TRUE(
      log_is("child (q) WM_MOUSEWHEEL 120 160,170 - {"
             "  top WM_MOUSEWHEEL 120 160,170 - }"));
}

TEST_F(WheelTest, HandledByTheChildItStopsThere) {
  recorder().answer("child", WM_MOUSEWHEEL, 0);
  move_to(160, 170);
  wheel(-WHEEL_DELTA);
  EXPECT_TRUE(log_is("child (q) WM_MOUSEWHEEL -120 160,170"));
}

TEST_F(WheelTest, SmallDeltasComeAsTheyAre) {
  move_to(110, 110);
  for (const int delta : {30, -7, 240}) wheel(delta);
  EXPECT_TRUE(log_is("top (q) WM_MOUSEWHEEL 30 > (q) WM_MOUSEWHEEL -7 > (q) WM_MOUSEWHEEL 240"));
}

TEST_F(WheelTest, LowWordHasTheKeysAndButtons) {
  move_to(110, 110);
  send_key(VK_CONTROL, true);
  send_mouse(MOUSEEVENTF_RIGHTDOWN);
  wheel(WHEEL_DELTA);
  EXPECT_TRUE(log_is("top (q) WM_MOUSEWHEEL 120 110,110 RBUTTON|CONTROL"));
}

TEST_F(WheelTest, RoutingParameterSaysUnderThePointerByDefault) {
  DWORD routing = 99;
  EXPECT_NE(SystemParametersInfoW(SPI_GETMOUSEWHEELROUTING, 0, &routing, 0), 0);
  EXPECT_EQ(routing, 2U);
  UINT lines = 0;
  EXPECT_NE(SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0), 0);
  EXPECT_EQ(lines, 3U);
}

TEST_F(WheelTest, RoutedToTheFocusWindowWhenTheParameterSaysSo) {
  // The value itself stands in place of the pointer; here it is 0.
  static_assert(MOUSEWHEEL_ROUTING_FOCUS == 0);
  ASSERT_NE(SystemParametersInfoW(SPI_SETMOUSEWHEELROUTING, 0, nullptr, 0), 0);
  SetFocus(other_);
  move_to(160, 170);
  wheel(WHEEL_DELTA);
  EXPECT_TRUE(log_is("other (q) WM_MOUSEWHEEL 120 160,170"));
}

TEST_F(WheelTest, FocusWindowPassesItUpItsParentsToo) {
  ASSERT_NE(SystemParametersInfoW(SPI_SETMOUSEWHEELROUTING, 0, nullptr, 0), 0);
  DWORD routing = 99;
  EXPECT_NE(SystemParametersInfoW(SPI_GETMOUSEWHEELROUTING, 0, &routing, 0), 0);
  EXPECT_EQ(routing, MOUSEWHEEL_ROUTING_FOCUS);
  SetFocus(child_);
  move_to(510, 110);
  wheel(WHEEL_DELTA);
  EXPECT_TRUE(log_is("child (q) WM_MOUSEWHEEL 120 510,110 { top WM_MOUSEWHEEL 120 510,110 }"));
}

TEST_F(WheelTest, RoutedBackToTheWindowUnderThePointer) {
  for (const DWORD routing : {MOUSEWHEEL_ROUTING_FOCUS, MOUSEWHEEL_ROUTING_MOUSE_POS}) {
    void* value = reinterpret_cast<void*>(static_cast<UINT_PTR>(routing));
    ASSERT_NE(SystemParametersInfoW(SPI_SETMOUSEWHEELROUTING, 0, value, 0), 0);
  }
  SetFocus(other_);
  move_to(110, 110);
  wheel(WHEEL_DELTA);
  EXPECT_TRUE(log_is("top (q) WM_MOUSEWHEEL 120 110,110"));
}

TEST_F(WheelTest, OverAScrollBarItIsTheBarsWindows) {
  settled_child("barred", top_, 100, 0, 50, 100, WS_VSCROLL);
  recorder().answer("barred", WM_MOUSEWHEEL, 0);
  move_to(245, 150);
  wheel(WHEEL_DELTA);
  EXPECT_TRUE(log_is("barred (q) WM_MOUSEWHEEL 120 245,150"));
}

TEST_F(WheelTest, OtherSystemParameters) {
  RECT area{};
  EXPECT_NE(SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0), 0);
  EXPECT_EQ(text_of(area), "0,0,1280,800");
  EXPECT_EQ(GetSystemMetrics(SM_CXSCREEN), 1280);
  EXPECT_EQ(GetSystemMetrics(SM_CYSCREEN), 800);
  EXPECT_NE(SystemParametersInfoW(SPI_SETDRAGFULLWINDOWS, 1, nullptr, 0), 0);
  BOOL drags_contents = FALSE;
  EXPECT_NE(SystemParametersInfoW(SPI_GETDRAGFULLWINDOWS, 0, &drags_contents, 0), 0);
  EXPECT_EQ(drags_contents, 1);
}

}  // namespace
}  // namespace corvane::conformance
