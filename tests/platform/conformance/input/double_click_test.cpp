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

struct SecondClick {
  const char* label;
  unsigned delay;
  int dx;
  int dy;
  bool is_double;
};

TEST_F(DoubleClickTest, MustBeSoonAndNear) {
  for (const SecondClick& second :
       {SecondClick{"at once", 0, 0, 0, true}, SecondClick{"in time", 499, 0, 0, true},
        SecondClick{"too late", 501, 0, 0, false}, SecondClick{"a pixel right", 0, 1, 0, true},
        SecondClick{"a pixel up", 0, 0, -1, true}, SecondClick{"far right", 0, 5, 0, false},
        SecondClick{"far left", 0, -5, 0, false}, SecondClick{"far down", 0, 0, 5, false},
        SecondClick{"far up", 0, 0, -5, false}}) {
    advance(1000);
    move_to(150, 150);
    left();
    advance(second.delay);
    move_to(150 + second.dx, 150 + second.dy);
    recorder().clear();
    press();
    EXPECT_EQ(recorder().count("pop", WM_LBUTTONDBLCLK), second.is_double) << second.label;
    EXPECT_EQ(recorder().count("pop", WM_LBUTTONDOWN), !second.is_double) << second.label;
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
