// Double clicks.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class DoubleClickTest : public WindowTest {
 protected:
  DoubleClickTest() { make("pop", CS_DBLCLKS); }
  void make(const std::string& name, UINT class_style) {
    create(name, {.style = WS_POPUP | WS_VISIBLE,
                  .place = {100, 100, 200, 100},
                  .class_style = class_style});
    move_to(150, 150);
    recorder().only({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP,
                     WM_RBUTTONDBLCLK});
    settle();
  }
  void left() {
    press();
    release();
  }
  void right() {
    press(MOUSEEVENTF_RIGHTDOWN);
    release(MOUSEEVENTF_RIGHTUP);
  }
};

TEST_F(DoubleClickTest, ReplacesEverySecondPress) {
  for (int times = 0; times < 4; ++times) left();
  step("four quick clicks are two pairs");
  for (int times = 0; times < 2; ++times) right();
  step("the right button has its own");
  left();
  right();
  left();
  step("it is the same button's");
  make("cover", CS_DBLCLKS);
  left();
  step("and the same window's");
}

TEST_F(DoubleClickTest, WithoutTheClassStyleEveryPressIsAPress) {
  make("plain", 0);
  for (int times = 0; times < 2; ++times) left();
  step();
}

TEST_F(DoubleClickTest, SecondPressIsAnnouncedAsAPress) {
  create("child", {.parent = window("pop"),
                   .style = WS_CHILD | WS_VISIBLE,
                   .place = {20, 20, 60, 60},
                   .class_style = CS_DBLCLKS});
  left();
  recorder().only({WM_PARENTNOTIFY, WM_MOUSEACTIVATE, WM_LBUTTONDBLCLK});
  forget();
  left();
  step();
}

TEST_F(DoubleClickTest, OutsideTheClientAreaEveryClassHasThem) {
  make("plain", 0);
  recorder().answer("plain", WM_NCHITTEST, HTBORDER);
  recorder().only({WM_NCLBUTTONDOWN, WM_NCLBUTTONDBLCLK});
  for (int times = 0; times < 3; ++times) left();
  step();
}

struct SecondClick {
  const char* label;
  unsigned delay;
  int dx;
  int dy;
};

TEST_F(DoubleClickTest, MustBeSoonAndNear) {
  for (const SecondClick& second :
       {SecondClick{"at once", 0, 0, 0}, SecondClick{"in time", 499, 0, 0},
        SecondClick{"too late", 501, 0, 0}, SecondClick{"a pixel right", 0, 1, 0},
        SecondClick{"a pixel up", 0, 0, -1}, SecondClick{"far right", 0, 5, 0},
        SecondClick{"far left", 0, -5, 0}, SecondClick{"far down", 0, 0, 5},
        SecondClick{"far up", 0, 0, -5}}) {
    advance(1000);
    move_to(150, 150);
    left();
    advance(second.delay);
    move_to(150 + second.dx, 150 + second.dy);
    forget();
    press();
    step(second.label);
    release();
  }
}

TEST_F(DoubleClickTest, SystemFigures) {
  EXPECT_EQ(GetDoubleClickTime(), 500U);
  EXPECT_EQ(GetSystemMetrics(SM_CXDOUBLECLK), 4);
  EXPECT_EQ(GetSystemMetrics(SM_CYDOUBLECLK), 4);
}

}  // namespace
}  // namespace corvane::conformance
