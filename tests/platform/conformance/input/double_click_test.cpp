// Double clicks.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class DoubleClickTest : public WindowTest {
 protected:
  void make(UINT class_style) {
    create("pop", {.style = WS_POPUP | WS_VISIBLE,
                   .place = {100, 100, 200, 100},
                   .class_style = class_style});
    move_to(150, 150);
    settle();
    recorder().only({WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP,
                     WM_RBUTTONDBLCLK});
  }
  void click_here() {
    press();
    release();
  }
};

TEST_F(DoubleClickTest, ReplacesTheSecondPress) {
  make(CS_DBLCLKS);
  click_here();
  click_here();
  EXPECT_TRUE(
      log_is("pop (q) WM_LBUTTONDOWN > (q) WM_LBUTTONUP > (q) WM_LBUTTONDBLCLK 50,50 LBUTTON >"
             "(q) WM_LBUTTONUP"));
}

TEST_F(DoubleClickTest, FourQuickClicksAreTwoPairs) {
  make(CS_DBLCLKS);
  for (int times = 0; times < 4; ++times) click_here();
  EXPECT_TRUE(
      log_is("pop (q) WM_LBUTTONDOWN > (q) WM_LBUTTONUP >"
             "(q) WM_LBUTTONDBLCLK > (q) WM_LBUTTONUP >"
             "(q) WM_LBUTTONDOWN > (q) WM_LBUTTONUP >"
             "(q) WM_LBUTTONDBLCLK > (q) WM_LBUTTONUP"));
}

TEST_F(DoubleClickTest, WithoutTheClassStyleEveryPressIsAPress) {
  make(0);
  click_here();
  click_here();
  EXPECT_EQ(recorder().count("pop", WM_LBUTTONDOWN), 2);
  EXPECT_EQ(recorder().count("pop", WM_LBUTTONDBLCLK), 0);
}

struct SecondClick {
  const char* label;
  unsigned delay;
  int dx;
  int dy;
  bool is_double;
};

class SecondClickTest : public DoubleClickTest, public testing::WithParamInterface<SecondClick> {};

TEST_P(SecondClickTest, MustBeSoonAndNear) {
  make(CS_DBLCLKS);
  click_here();
  advance(GetParam().delay);
  move_to(150 + GetParam().dx, 150 + GetParam().dy);
  recorder().clear();
  press();
  EXPECT_TRUE(log_is(GetParam().is_double ? "pop (q) WM_LBUTTONDBLCLK" : "pop (q) WM_LBUTTONDOWN"));
}

INSTANTIATE_TEST_SUITE_P(, SecondClickTest,
                         testing::Values(SecondClick{"AtOnce", 0, 0, 0, true},
                                         SecondClick{"InTime", 499, 0, 0, true},
                                         SecondClick{"TooLate", 501, 0, 0, false},
                                         SecondClick{"OnePixelRight", 0, 1, 0, true},
                                         SecondClick{"OnePixelUp", 0, 0, -1, true},
                                         SecondClick{"FivePixelsRight", 0, 5, 0, false},
                                         SecondClick{"FivePixelsLeft", 0, -5, 0, false},
                                         SecondClick{"FivePixelsDown", 0, 0, 5, false}),
                         [](const auto& instance) { return instance.param.label; });

TEST_F(DoubleClickTest, MustBeTheSameButton) {
  make(CS_DBLCLKS);
  click_here();
  press(MOUSEEVENTF_RIGHTDOWN);
  release(MOUSEEVENTF_RIGHTUP);
  click_here();
  EXPECT_TRUE(
      log_is("pop (q) WM_LBUTTONDOWN > (q) WM_LBUTTONUP > (q) WM_RBUTTONDOWN >"
             "(q) WM_RBUTTONUP > (q) WM_LBUTTONDOWN > (q) WM_LBUTTONUP"));
}

TEST_F(DoubleClickTest, MustBeTheSameWindow) {
  make(CS_DBLCLKS);
  click_here();
  create(
      "cover",
      {.style = WS_POPUP | WS_VISIBLE, .place = {100, 100, 200, 100}, .class_style = CS_DBLCLKS});
  settle();
  click_here();
  EXPECT_TRUE(log_is("cover (q) WM_LBUTTONDOWN > (q) WM_LBUTTONUP"));
}

TEST_F(DoubleClickTest, RightButtonHasItsOwn) {
  make(CS_DBLCLKS);
  for (int times = 0; times < 2; ++times) {
    press(MOUSEEVENTF_RIGHTDOWN);
    release(MOUSEEVENTF_RIGHTUP);
  }
  EXPECT_TRUE(
      log_is("pop (q) WM_RBUTTONDOWN > (q) WM_RBUTTONUP > (q) WM_RBUTTONDBLCLK >"
             "(q) WM_RBUTTONUP"));
}

TEST_F(DoubleClickTest, SystemFigures) {
  EXPECT_EQ(GetDoubleClickTime(), 500U);
  EXPECT_EQ(GetSystemMetrics(SM_CXDOUBLECLK), 4);
  EXPECT_EQ(GetSystemMetrics(SM_CYDOUBLECLK), 4);
}

}  // namespace
}  // namespace corvane::conformance
