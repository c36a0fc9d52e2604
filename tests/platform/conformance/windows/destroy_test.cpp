// DestroyWindow: order, what exists when, focus and activation.
#include <stdexcept>

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

TEST_F(DestroyWindowTest, OwnedFirstThenDownWithDestroyAndUpWithNcDestroy) {
  const HWND main = make_family();
  std::string existing;
  const auto note = [&] {
    for (const std::string name : {"main", "A", "A1", "B", "pop", "top"}) {
      if (IsWindow(window(name)) != 0) existing += name + " ";
    }
    existing += "| ";
  };
  recorder().before_default("main", WM_DESTROY, note);
  recorder().before_default("main", WM_NCDESTROY, note);
  recorder().only({WM_DESTROY, WM_NCDESTROY, WM_PARENTNOTIFY});
  step("", DestroyWindow(main));
  EXPECT_EQ(existing, "main A A1 B | main | ");
}

TEST_F(DestroyWindowTest, AnExceptionReachesTheCallerWhenAllAreGone) {
  for (const UINT message : {WM_DESTROY, WM_NCDESTROY, WM_WINDOWPOSCHANGING, WM_KILLFOCUS}) {
    for (const std::string thrower : {"main", "A", "A1", "pop"}) {
      const HWND main = make_family();
      SetFocus(window("A1"));
      settle();
      const bool comes = message != WM_WINDOWPOSCHANGING || thrower == "main" || thrower == "pop";
      recorder().before_default(thrower, message, [] { throw std::runtime_error("no"); });
      if (comes && message != WM_KILLFOCUS) {
        EXPECT_THROW(DestroyWindow(main), std::runtime_error) << thrower << message;
      } else {
        try {
          DestroyWindow(main);
        } catch (const std::runtime_error&) {
        }
      }
      recorder().remove_hooks();
      for (const std::string name : {"main", "A", "A1", "B", "pop", "top"}) {
        EXPECT_EQ(IsWindow(window(name)), 0) << name;
        EXPECT_EQ(recorder().count(name, WM_NCDESTROY), 1) << name << " after " << thrower;
      }
      settle();
    }
  }
}

TEST_F(DestroyWindowTest, ObservedForAChild) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  const HWND visible = settled_child("visible", parent, 0, 0, 40, 30);
  const HWND inner = settled_child("inner", visible, 0, 0, 20, 20);
  const HWND hidden = create("hidden", {.parent = parent, .style = WS_CHILD, .id = 7});
  SetFocus(hidden);
  settle();
  step("hidden: announced, and the focus goes to its parent", DestroyWindow(hidden));
  pump();
  SetFocus(inner);
  settle();
  step("visible: hidden first, and a grandchild's focus is lost silently", DestroyWindow(visible));
}

TEST_F(DestroyWindowTest, ObservedForAPopup) {
  const HWND next = settled_popup("next", 0, 0, 50, 50);
  const HWND popup = settled_popup("pop", 100, 100, 50, 50, next);
  step("active: it is hidden and loses the activation first", DestroyWindow(popup));
  SetLastError(0);
  step("a second time", DestroyWindow(popup));
  EXPECT_EQ(GetLastError(), 1400U);
  const HWND hidden = create("hidden", {});
  settle();
  step("hidden: it goes without more words", DestroyWindow(hidden));
}

TEST_F(DestroyWindowTest, CaptureTimersAndMessagesEndWithTheWindow) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  SetCapture(popup);
  SetTimer(popup, 1, 10, nullptr);
  PostMessageW(popup, WM_USER, 0, 0);
  DestroyWindow(popup);
  EXPECT_EQ(GetCapture(), nullptr);
  EXPECT_EQ(KillTimer(popup, 1), 0);
  forget();
  advance(100);
  pump_step("");
}

TEST_F(DestroyWindowTest, TheScreenShowsWhatWasBelow) {
  create("below", {.style = WS_POPUP | WS_VISIBLE,
                   .brush = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH))});
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  EXPECT_EQ(pixel(10, 10), kWhite);
  DestroyWindow(popup);
  pump();
  EXPECT_EQ(pixel(10, 10), kBlack);
}

}  // namespace
}  // namespace corvane::conformance
