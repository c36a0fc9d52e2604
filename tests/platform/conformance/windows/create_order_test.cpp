// The messages of a window's creation. The orders were observed; the documentation leaves them
// open.
#include "tests/platform/conformance/support/message_names.h"
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class ObservedCreateOrder : public WindowTest {
 protected:
  static WindowPlan child_of(HWND parent, DWORD extra_style) {
    return {.parent = parent, .style = WS_CHILD | extra_style, .place = {10, 20, 40, 30}, .id = 7};
  }
};

TEST_F(ObservedCreateOrder, VisibleChild) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  create("child", child_of(parent, WS_VISIBLE));
  EXPECT_TRUE(
      log_is("child WM_NCCREATE > WM_NCCALCSIZE 0 > WM_CREATE > WM_SIZE 0 40x30 > WM_MOVE 10,20 >"
             "parent WM_PARENTNOTIFY WM_CREATE 7 child >"
             "child WM_SHOWWINDOW 1 0 >"
             "WM_WINDOWPOSCHANGING NOSIZE|NOMOVE|NOZORDER|NOACTIVATE|SHOWWINDOW >"
             "WM_NCPAINT > WM_ERASEBKGND > WM_WINDOWPOSCHANGED"));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is("child (q) WM_PAINT 0,0,40,30 fErase=0"));
}

TEST_F(ObservedCreateOrder, HiddenChild) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  create("child", child_of(parent, 0));
  pump();
  EXPECT_TRUE(
      log_is("child WM_NCCREATE > WM_NCCALCSIZE 0 > WM_CREATE > WM_SIZE 0 40x30 > WM_MOVE 10,20 >"
             "parent WM_PARENTNOTIFY WM_CREATE 7 child"));
}

TEST_F(ObservedCreateOrder, VisibleChildInHiddenParent) {
  const HWND parent = create("parent", {.place = {.width = 200, .height = 150}});
  recorder().clear();
  create("child", child_of(parent, WS_VISIBLE));
  pump();
  EXPECT_TRUE(
      log_is("child WM_NCCREATE > WM_NCCALCSIZE 0 > WM_CREATE > WM_SIZE 0 40x30 > WM_MOVE 10,20 >"
             "parent WM_PARENTNOTIFY WM_CREATE 7 child > child WM_SHOWWINDOW 1 0"));
}

TEST_F(ObservedCreateOrder, ChildsCalculationRectangleIsInScreenCoordinates) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  RECT seen{};
  recorder().on("child", WM_NCCALCSIZE, [&](const Message& sent) -> std::optional<LRESULT> {
    seen = *reinterpret_cast<const RECT*>(sent.lparam);
    return std::nullopt;
  });
  create("child", child_of(parent, 0));
  EXPECT_EQ(text_of(seen), "110,120,150,150");
}

TEST_F(ObservedCreateOrder, HiddenOwnedPopupOfNoSize) {
  const HWND owner = settled_popup("owner", 100, 100, 200, 150);
  create("pop", {.parent = owner, .place = {5, 6, 0, 0}});
  pump();
  EXPECT_TRUE(
      log_is("pop WM_NCCREATE > WM_NCCALCSIZE 0 > WM_CREATE > WM_SIZE 0 0x0 > WM_MOVE 5,6"));
  EXPECT_EQ(GetActiveWindow(), owner);
}

TEST_F(ObservedCreateOrder, SizeAndMoveAreSentForNothingAtTheOrigin) {
  create("pop", {.place = {.width = 0, .height = 0}});
  EXPECT_TRUE(
      log_is("pop WM_NCCREATE > WM_NCCALCSIZE 0 > WM_CREATE > WM_SIZE 0 0x0 > WM_MOVE 0,0"));
}

TEST_F(ObservedCreateOrder, VisiblePopupTakesTheActivation) {
  settled_popup("old", 0, 0, 50, 50);
  create("new", {.style = WS_POPUP | WS_VISIBLE, .place = {60, 70, 80, 90}});
  EXPECT_TRUE(
      log_is("new WM_NCCREATE > WM_NCCALCSIZE 0 > WM_CREATE > WM_SIZE 0 80x90 > WM_MOVE 60,70 >"
             "WM_SHOWWINDOW 1 0 > WM_WINDOWPOSCHANGING NOSIZE|NOMOVE|SHOWWINDOW >"
             "old WM_NCACTIVATE 0 > WM_ACTIVATE 0 new >"
             "new WM_NCACTIVATE 1 > WM_ACTIVATE 1 old {"
             "  old WM_KILLFOCUS new > new WM_SETFOCUS old } >"
             "new WM_NCPAINT > WM_ERASEBKGND > WM_WINDOWPOSCHANGED"));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is("new (q) WM_PAINT 0,0,80,90"));
}

TEST_F(ObservedCreateOrder, FirstActivationTellsTheApplicationFirst) {
  recorder().only({WM_ACTIVATEAPP, WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS});
  create("first", {.style = WS_POPUP | WS_VISIBLE});
  EXPECT_TRUE(
      log_is("first WM_ACTIVATEAPP 1 > WM_NCACTIVATE 1 > WM_ACTIVATE 1 none { WM_SETFOCUS none }"));
  recorder().clear();
  create("second", {.style = WS_POPUP | WS_VISIBLE});
  EXPECT_EQ(recorder().count("second", WM_ACTIVATEAPP), 0);
}

TEST_F(ObservedCreateOrder, CaptionedWindowAsksForItsLimitsFirst) {
  create("main", {.style = WS_OVERLAPPED | WS_CAPTION, .place = {.width = 300, .height = 200}});
  ASSERT_GE(recorder().log().size(), 2U);
  EXPECT_EQ(recorder().log()[0].text, "main WM_GETMINMAXINFO");
  EXPECT_EQ(recorder().log()[1].text, "main WM_NCCREATE");
  EXPECT_EQ(recorder().count("main", WM_SIZE), 0) << "hidden: no first size yet";
  EXPECT_EQ(recorder().count("main", WM_MOVE), 0);
}

TEST_F(ObservedCreateOrder, CaptionedWindowLearnsItsSizeAtTheEndOfItsFirstShowing) {
  const HWND main =
      create("main", {.style = WS_OVERLAPPED | WS_CAPTION, .place = {.width = 300, .height = 200}});
  recorder().clear();
  ShowWindow(main, SW_SHOW);
  const std::vector<LogLine> log = recorder().log();
  ASSERT_GE(log.size(), 2U);
  EXPECT_EQ(log[log.size() - 2].text.rfind("main WM_SIZE", 0), 0U) << recorder().text();
  EXPECT_EQ(log[log.size() - 1].text.rfind("main WM_MOVE", 0), 0U) << recorder().text();
  ShowWindow(main, SW_HIDE);
  recorder().clear();
  ShowWindow(main, SW_SHOW);
  EXPECT_EQ(recorder().count("main", WM_SIZE), 0) << "only the first showing tells it";
}

TEST_F(ObservedCreateOrder, FailedCreateIsNotDestroyedTwice) {
  recorder().answer("pop", WM_CREATE, -1);
  create("pop", {});
  EXPECT_EQ(recorder().count("pop", WM_DESTROY), 0);
  EXPECT_EQ(recorder().count("pop", WM_NCDESTROY), 1);
}

TEST_F(ObservedCreateOrder, NewChildrenGoBelowTheirSiblings) {
  const HWND parent = create("parent", {.place = {.width = 200, .height = 150}});
  const HWND first = create("first", child_of(parent, 0));
  const HWND second = create("second", child_of(parent, 0));
  const HWND third = create("third", child_of(parent, 0));
  EXPECT_EQ(GetTopWindow(parent), first);
  EXPECT_EQ(GetWindow(parent, GW_CHILD), first);
  EXPECT_EQ(GetWindow(first, GW_HWNDNEXT), second);
  EXPECT_EQ(GetWindow(second, GW_HWNDNEXT), third);
  EXPECT_EQ(GetWindow(third, GW_HWNDNEXT), nullptr);
  EXPECT_EQ(GetWindow(third, GW_HWNDPREV), second);
  EXPECT_EQ(GetWindow(second, GW_HWNDFIRST), first);
  EXPECT_EQ(GetWindow(second, GW_HWNDLAST), third);
}

}  // namespace
}  // namespace corvane::conformance
