// ShowWindow: results, messages and where the activation goes.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class ShowWindowTest : public WindowTest {};
class ObservedShowOrder : public WindowTest {};

struct ShowResult {
  const char* label;
  bool visible;
  int command;
  bool visible_after;
};

class ShowResultTest : public WindowTest, public testing::WithParamInterface<ShowResult> {};

TEST_P(ShowResultTest, TellsWhetherItWasVisible) {
  const ShowResult& expected = GetParam();
  const HWND popup = create("pop", {.style = WS_POPUP | (expected.visible ? WS_VISIBLE : 0)});
  EXPECT_EQ(ShowWindow(popup, expected.command) != 0, expected.visible);
  EXPECT_EQ(IsWindowVisible(popup) != 0, expected.visible_after);
  const bool marked = (GetWindowLongW(popup, GWL_STYLE) & static_cast<LONG>(WS_VISIBLE)) != 0;
  EXPECT_EQ(marked, expected.visible_after);
}

INSTANTIATE_TEST_SUITE_P(
    , ShowResultTest,
    testing::Values(ShowResult{"HideHidden", false, SW_HIDE, false},
                    ShowResult{"HideVisible", true, SW_HIDE, false},
                    ShowResult{"ShowHidden", false, SW_SHOW, true},
                    ShowResult{"ShowVisible", true, SW_SHOW, true},
                    ShowResult{"NormalHidden", false, SW_SHOWNORMAL, true},
                    ShowResult{"NormalVisible", true, SW_SHOWNORMAL, true},
                    ShowResult{"NaHidden", false, SW_SHOWNA, true},
                    ShowResult{"NaVisible", true, SW_SHOWNA, true},
                    ShowResult{"NoActivateHidden", false, SW_SHOWNOACTIVATE, true},
                    ShowResult{"NoActivateVisible", true, SW_SHOWNOACTIVATE, true}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(ObservedShowOrder, NothingHappensWithoutAChange) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  const HWND child = settled_child("child", popup, 0, 0, 20, 20);
  EXPECT_NE(ShowWindow(popup, SW_SHOW), 0);
  EXPECT_NE(ShowWindow(popup, SW_SHOWNA), 0);
  EXPECT_NE(ShowWindow(child, SW_SHOW), 0);
  pump();
  EXPECT_TRUE(log_is(""));
  ShowWindow(child, SW_HIDE);
  ShowWindow(popup, SW_HIDE);
  settle();
  EXPECT_EQ(ShowWindow(popup, SW_HIDE), 0);
  EXPECT_EQ(ShowWindow(child, SW_HIDE), 0);
  pump();
  EXPECT_TRUE(log_is(""));
}

TEST_F(ShowWindowTest, ShowActivatesAWindowThatIsVisibleAlready) {
  const HWND lower = settled_popup("lower", 0, 0, 50, 50);
  settled_popup("upper", 0, 0, 50, 50);
  recorder().only({WM_NCACTIVATE, WM_ACTIVATE, WM_SHOWWINDOW, WM_PAINT});
  EXPECT_NE(ShowWindow(lower, SW_SHOW), 0);
  EXPECT_TRUE(
      log_is("upper WM_NCACTIVATE 0 > WM_ACTIVATE 0 lower >"
             "lower WM_NCACTIVATE 1 > WM_ACTIVATE 1 upper"));
  EXPECT_EQ(GetActiveWindow(), lower);
  EXPECT_EQ(GetFocus(), lower);
}

TEST_F(ShowWindowTest, ShowWithoutActivationLeavesAVisibleWindowInactive) {
  const HWND lower = settled_popup("lower", 0, 0, 50, 50);
  const HWND upper = settled_popup("upper", 0, 0, 50, 50);
  EXPECT_NE(ShowWindow(lower, SW_SHOWNA), 0);
  EXPECT_EQ(GetActiveWindow(), upper);
}

class ObservedActivatingShowOrder : public WindowTest, public testing::WithParamInterface<int> {};

TEST_P(ObservedActivatingShowOrder, ShowsActivatesErases) {
  settled_popup("old", 0, 0, 50, 50);
  const HWND popup = create("pop", {.place = {.width = 60, .height = 70}});
  settle();
  EXPECT_EQ(ShowWindow(popup, GetParam()), 0);
  EXPECT_TRUE(
      log_is("pop WM_SHOWWINDOW 1 0 > WM_WINDOWPOSCHANGING NOSIZE|NOMOVE|SHOWWINDOW >"
             "old WM_NCACTIVATE 0 > WM_ACTIVATE 0 pop >"
             "pop WM_NCACTIVATE 1 > WM_ACTIVATE 1 old {"
             "  old WM_KILLFOCUS pop > pop WM_SETFOCUS old } >"
             "pop WM_NCPAINT > WM_ERASEBKGND > WM_WINDOWPOSCHANGED"));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,60,70"));
  EXPECT_EQ(GetActiveWindow(), popup);
  EXPECT_EQ(GetFocus(), popup);
}

INSTANTIATE_TEST_SUITE_P(, ObservedActivatingShowOrder, testing::Values(SW_SHOW, SW_SHOWNORMAL));

struct QuietShow {
  int command;
  const char* flags;
};

class QuietShowTest : public WindowTest, public testing::WithParamInterface<QuietShow> {};

TEST_P(QuietShowTest, DoesNotActivate) {
  const HWND old = settled_popup("old", 0, 0, 50, 50);
  const HWND popup = create("pop", {.place = {.width = 60, .height = 70}});
  settle();
  EXPECT_EQ(ShowWindow(popup, GetParam().command), 0);
  EXPECT_TRUE(log_is(std::string("pop WM_SHOWWINDOW 1 0 > WM_WINDOWPOSCHANGING ") +
                     GetParam().flags + " > WM_NCPAINT > WM_ERASEBKGND > WM_WINDOWPOSCHANGED"));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is("pop (q) WM_PAINT 0,0,60,70"));
  EXPECT_EQ(GetActiveWindow(), old);
  EXPECT_EQ(GetFocus(), old);
}

INSTANTIATE_TEST_SUITE_P(
    , QuietShowTest,
    testing::Values(QuietShow{SW_SHOWNA, "NOSIZE|NOMOVE|NOACTIVATE|SHOWWINDOW"},
                    QuietShow{SW_SHOWNOACTIVATE, "NOSIZE|NOMOVE|NOZORDER|NOACTIVATE|SHOWWINDOW"}));

TEST_F(ObservedShowOrder, HidingTheActivePopup) {
  const HWND next = settled_popup("next", 0, 0, 50, 50);
  const HWND popup = settled_popup("pop", 10, 10, 50, 50, next);
  recorder().ignore({WM_PAINT, WM_ERASEBKGND, WM_NCPAINT});
  EXPECT_NE(ShowWindow(popup, SW_HIDE), 0);
  EXPECT_TRUE(
      log_is("pop WM_SHOWWINDOW 0 0 > WM_WINDOWPOSCHANGING NOSIZE|NOMOVE|HIDEWINDOW >"
             "WM_WINDOWPOSCHANGED > WM_NCACTIVATE 0 > WM_ACTIVATE 0 next >"
             "next WM_NCACTIVATE 1 > WM_ACTIVATE 1 pop {"
             "  pop WM_KILLFOCUS next > next WM_SETFOCUS pop }"));
}

TEST_F(ObservedShowOrder, HidingAnInactivePopupLeavesTheActivation) {
  const HWND popup = settled_popup("pop", 10, 10, 50, 50);
  const HWND active = settled_popup("active", 100, 100, 50, 50);
  recorder().ignore({WM_PAINT, WM_ERASEBKGND, WM_NCPAINT});
  EXPECT_NE(ShowWindow(popup, SW_HIDE), 0);
  EXPECT_TRUE(
      log_is("pop WM_SHOWWINDOW 0 0 > WM_WINDOWPOSCHANGING ~NOSIZE|NOMOVE|HIDEWINDOW >"
             "WM_WINDOWPOSCHANGED"));
  EXPECT_EQ(GetActiveWindow(), active);
}

enum class OwnerState { usable, hidden, disabled };

class ObservedNextActive : public WindowTest, public testing::WithParamInterface<OwnerState> {};

TEST_P(ObservedNextActive, IsTheUsableOwnerElseAnotherWindow) {
  const HWND other = settled_popup("other", 300, 300, 50, 50);
  const HWND owner = settled_popup("owner", 0, 0, 50, 50);
  const HWND popup = settled_popup("pop", 10, 10, 50, 50, owner);
  if (GetParam() == OwnerState::hidden) ShowWindow(owner, SW_HIDE);
  if (GetParam() == OwnerState::disabled) EnableWindow(owner, FALSE);
  ASSERT_EQ(GetActiveWindow(), popup);
  ShowWindow(popup, SW_HIDE);
  EXPECT_EQ(GetActiveWindow(), GetParam() == OwnerState::usable ? owner : other);
}

INSTANTIATE_TEST_SUITE_P(, ObservedNextActive,
                         testing::Values(OwnerState::usable, OwnerState::hidden,
                                         OwnerState::disabled));

TEST_F(ObservedShowOrder, PopupWithoutSizeActivatesButPaintsNothing) {
  settled_popup("old", 0, 0, 50, 50);
  const HWND popup = create("pop", {.place = {.width = 0, .height = 0}});
  settle();
  ShowWindow(popup, SW_SHOW);
  pump();
  EXPECT_EQ(GetActiveWindow(), popup);
  EXPECT_EQ(recorder().count("pop", WM_ERASEBKGND), 0);
  EXPECT_EQ(recorder().count("pop", WM_PAINT), 0);
}

TEST_F(ObservedShowOrder, HidingAndShowingAChild) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  const HWND child = settled_child("child", parent, 10, 20, 40, 30);
  RECT erased{};
  recorder().on("parent", WM_ERASEBKGND, [&](const Message& sent) -> std::optional<LRESULT> {
    GetClipBox(reinterpret_cast<HDC>(sent.wparam), &erased);
    return std::nullopt;
  });
  EXPECT_NE(ShowWindow(child, SW_HIDE), 0);
  EXPECT_TRUE(
      log_is("child WM_SHOWWINDOW 0 0 >"
             "WM_WINDOWPOSCHANGING NOSIZE|NOMOVE|NOZORDER|NOACTIVATE|HIDEWINDOW >"
             "parent WM_ERASEBKGND > child WM_WINDOWPOSCHANGED"));
  EXPECT_EQ(text_of(erased), "10,20,50,50");
  recorder().clear();
  recorder().only({WM_PAINT});
  pump();
  EXPECT_TRUE(log_is("parent (q) WM_PAINT 10,20,50,50"));
  recorder().clear();
  recorder().record_everything();
  EXPECT_EQ(ShowWindow(child, SW_SHOW), 0);
  EXPECT_TRUE(
      log_is("child WM_SHOWWINDOW 1 0 >"
             "WM_WINDOWPOSCHANGING NOSIZE|NOMOVE|NOZORDER|NOACTIVATE|SHOWWINDOW >"
             "WM_NCPAINT > WM_ERASEBKGND > WM_WINDOWPOSCHANGED"));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is("child (q) WM_PAINT 0,0,40,30"));
}

TEST_F(ObservedShowOrder, ChildOfAHiddenParentIsOnlyTold) {
  const HWND parent = create("parent", {});
  const HWND child = create("child", {.parent = parent, .style = WS_CHILD | WS_VISIBLE});
  settle();
  EXPECT_NE(ShowWindow(child, SW_HIDE), 0) << "its own visible bit counts";
  EXPECT_TRUE(log_is("child WM_SHOWWINDOW 0 0"));
  recorder().clear();
  EXPECT_EQ(ShowWindow(child, SW_SHOW), 0);
  EXPECT_TRUE(log_is("child WM_SHOWWINDOW 1 0"));
  EXPECT_NE(GetWindowLongW(child, GWL_STYLE) & static_cast<LONG>(WS_VISIBLE), 0);
}

TEST_F(ShowWindowTest, IsToldBeforeTheChange) {
  const HWND popup = create("pop", {});
  std::vector<BOOL> visible;
  recorder().before_default("pop", WM_SHOWWINDOW,
                            [&] { visible.push_back(IsWindowVisible(window("pop"))); });
  ShowWindow(popup, SW_SHOW);
  ShowWindow(popup, SW_HIDE);
  ASSERT_EQ(visible.size(), 2U);
  EXPECT_EQ(visible[0], 0);
  EXPECT_NE(visible[1], 0);
}

TEST_F(ObservedShowOrder, OwnersDoNotTakeTheirPopupsAlong) {
  const HWND owner = settled_popup("owner", 0, 0, 50, 50);
  const HWND popup = settled_popup("pop", 10, 10, 50, 50, owner);
  recorder().only_windows({"pop"});
  recorder().only({WM_SHOWWINDOW, WM_MOVE, WM_SIZE, WM_WINDOWPOSCHANGED});
  ShowWindow(owner, SW_HIDE);
  EXPECT_NE(IsWindowVisible(popup), 0);
  ShowWindow(owner, SW_SHOW);
  MoveWindow(owner, 200, 200, 70, 70, TRUE);
  EXPECT_EQ(text_of(window_rect(popup)), "10,10,60,60");
  EXPECT_EQ(recorder().count("pop", WM_SHOWWINDOW) + recorder().count("pop", WM_MOVE), 0);
}

TEST_F(ShowWindowTest, ContentsAppearAndDisappearOnTheScreen) {
  const HWND popup = create("pop", {.style = WS_POPUP, .place = {10, 10, 50, 50}});
  const COLORREF desktop = pixel(20, 20);
  ShowWindow(popup, SW_SHOW);
  pump();
  EXPECT_EQ(pixel(20, 20), RGB(255, 255, 255));
  ShowWindow(popup, SW_HIDE);
  pump();
  EXPECT_EQ(pixel(20, 20), desktop);
}

}  // namespace
}  // namespace corvane::conformance
