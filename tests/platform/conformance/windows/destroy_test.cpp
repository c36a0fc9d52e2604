// DestroyWindow: order, what exists when, focus and activation.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class DestroyWindowTest : public WindowTest {
 protected:
  // main with children A (with A1 inside) and B; pop owned by main, top owned by pop.
  HWND make_family() {
    const HWND main = settled_popup("main", 0, 0, 300, 300);
    const HWND a = settled_child("A", main, 0, 0, 100, 100);
    settled_child("A1", a, 0, 0, 50, 50);
    settled_child("B", main, 100, 0, 100, 100);
    const HWND pop = settled_popup("pop", 300, 0, 50, 50, main);
    settled_popup("top", 360, 0, 50, 50, pop);
    return main;
  }
};
class ObservedDestroyOrder : public DestroyWindowTest {};

TEST_F(DestroyWindowTest, OwnedFirstThenDownWithDestroyAndUpWithNcDestroy) {
  const HWND main = make_family();
  recorder().only({WM_DESTROY, WM_NCDESTROY});
  EXPECT_NE(DestroyWindow(main), 0);
  EXPECT_TRUE(
      log_is("top WM_DESTROY > WM_NCDESTROY > pop WM_DESTROY > WM_NCDESTROY >"
             "main WM_DESTROY > A WM_DESTROY > A1 WM_DESTROY > B WM_DESTROY >"
             "A1 WM_NCDESTROY > A WM_NCDESTROY > B WM_NCDESTROY > main WM_NCDESTROY"));
  for (const char* name : {"main", "A", "A1", "B", "pop", "top"}) {
    EXPECT_EQ(IsWindow(window(name)), 0) << name;
  }
}

TEST_F(DestroyWindowTest, WhatExistsWhileItGoes) {
  const HWND main = make_family();
  bool checked_destroy = false;
  bool checked_end = false;
  recorder().before_default("main", WM_DESTROY, [&] {
    checked_destroy = true;
    for (const char* name : {"main", "A", "A1", "B"}) EXPECT_NE(IsWindow(window(name)), 0) << name;
    EXPECT_EQ(GetParent(window("A")), window("main"));
    for (const char* name : {"pop", "top"}) EXPECT_EQ(IsWindow(window(name)), 0) << name;
  });
  recorder().before_default("main", WM_NCDESTROY, [&] {
    checked_end = true;
    EXPECT_NE(IsWindow(window("main")), 0);
    EXPECT_EQ(IsWindow(window("A")), 0);
  });
  DestroyWindow(main);
  EXPECT_TRUE(checked_destroy);
  EXPECT_TRUE(checked_end);
}

TEST_F(DestroyWindowTest, ChildrenDestroyedWithTheirParentAreNotAnnounced) {
  const HWND main = make_family();
  recorder().only({WM_PARENTNOTIFY});
  DestroyWindow(main);
  EXPECT_TRUE(log_is(""));
}

TEST_F(ObservedDestroyOrder, VisibleChildIsAnnouncedAndHiddenFirst) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  const HWND child = create("child", {.parent = parent,
                                      .style = WS_CHILD | WS_VISIBLE,
                                      .place = {.width = 40, .height = 30},
                                      .id = 7});
  settle();
  EXPECT_NE(DestroyWindow(child), 0);
  EXPECT_TRUE(
      log_is("parent WM_PARENTNOTIFY WM_DESTROY 7 child > child WM_SHOWWINDOW 0 0 >"
             "WM_WINDOWPOSCHANGING ~HIDEWINDOW > parent WM_ERASEBKGND >"
             "child WM_WINDOWPOSCHANGED ~HIDEWINDOW > WM_DESTROY > WM_NCDESTROY"));
}

TEST_F(ObservedDestroyOrder, HiddenChildIsOnlyAnnounced) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  const HWND child = create("child", {.parent = parent, .style = WS_CHILD, .id = 7});
  settle();
  DestroyWindow(child);
  EXPECT_TRUE(
      log_is("parent WM_PARENTNOTIFY WM_DESTROY 7 child > child WM_DESTROY > WM_NCDESTROY"));
}

TEST_F(ObservedDestroyOrder, ActivePopupIsHiddenAndLosesTheActivationFirst) {
  const HWND next = settled_popup("next", 0, 0, 50, 50);
  const HWND popup = settled_popup("pop", 100, 100, 50, 50, next);
  recorder().only(
      {WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_ACTIVATE, WM_DESTROY, WM_NCDESTROY});
  DestroyWindow(popup);
  EXPECT_TRUE(
      log_is("pop WM_WINDOWPOSCHANGING ~HIDEWINDOW > WM_WINDOWPOSCHANGED ~HIDEWINDOW >"
             "WM_ACTIVATE 0 next > next WM_ACTIVATE 1 pop >"
             "pop WM_DESTROY > WM_NCDESTROY"));
  EXPECT_EQ(GetActiveWindow(), next);
  EXPECT_EQ(GetFocus(), next);
}

TEST_F(ObservedDestroyOrder, HiddenPopupGoesWithoutMoreWords) {
  const HWND popup = create("pop", {});
  settle();
  DestroyWindow(popup);
  EXPECT_TRUE(log_is("pop WM_DESTROY > WM_NCDESTROY"));
}

TEST_F(ObservedDestroyOrder, FocusOfTheDestroyedChildGoesToItsParent) {
  const HWND parent = settled_popup("parent", 0, 0, 200, 200);
  const HWND child = settled_child("child", parent, 0, 0, 50, 50);
  SetFocus(child);
  recorder().only({WM_KILLFOCUS, WM_SETFOCUS, WM_DESTROY});
  recorder().clear();
  DestroyWindow(child);
  EXPECT_TRUE(log_is("child WM_KILLFOCUS parent > parent WM_SETFOCUS child > child WM_DESTROY"));
  EXPECT_EQ(GetFocus(), parent);
}

TEST_F(ObservedDestroyOrder, FocusOfAGrandchildIsLostSilently) {
  const HWND parent = settled_popup("parent", 0, 0, 200, 200);
  const HWND child = settled_child("child", parent, 0, 0, 50, 50);
  const HWND grandchild = settled_child("grandchild", child, 0, 0, 20, 20);
  SetFocus(grandchild);
  recorder().only({WM_KILLFOCUS, WM_SETFOCUS});
  recorder().clear();
  DestroyWindow(child);
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(GetFocus(), nullptr);
}

TEST_F(DestroyWindowTest, CaptureTimersAndMessagesEndWithTheWindow) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  const HWND other = settled_popup("other", 100, 100, 50, 50);
  SetCapture(popup);
  SetTimer(popup, 1, 10, nullptr);
  PostMessageW(popup, WM_USER, 0, 0);
  DestroyWindow(popup);
  EXPECT_EQ(GetCapture(), nullptr);
  recorder().clear();
  advance(100);
  recorder().only_windows({"pop"});
  pump();
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(GetActiveWindow(), other);
}

TEST_F(DestroyWindowTest, SecondTimeFails) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  EXPECT_NE(DestroyWindow(popup), 0);
  recorder().clear();
  SetLastError(0);
  EXPECT_EQ(DestroyWindow(popup), 0);
  EXPECT_EQ(GetLastError(), 1400U);
  EXPECT_TRUE(log_is(""));
}

TEST_F(DestroyWindowTest, NestedDestroyOfTheSameWindowIsHarmless) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  recorder().before_default("pop", WM_DESTROY, [&] { DestroyWindow(window("pop")); });
  recorder().only({WM_NCDESTROY});
  DestroyWindow(popup);
  EXPECT_TRUE(log_is("pop WM_NCDESTROY"));
}

TEST_F(DestroyWindowTest, TheScreenShowsWhatWasBelow) {
  create("below", {.style = WS_POPUP | WS_VISIBLE,
                   .brush = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))});
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  EXPECT_EQ(pixel(10, 10), RGB(255, 255, 255));
  DestroyWindow(popup);
  pump();
  EXPECT_EQ(pixel(10, 10), RGB(0, 0, 0));
}

}  // namespace
}  // namespace corvane::conformance
