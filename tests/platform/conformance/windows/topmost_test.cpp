// Windows that stay above the ordinary ones.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class TopmostTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    topmost_ = make("topmost", WS_EX_TOPMOST);
  }
  HWND make(const std::string& name, DWORD ex_style) {
    const HWND result = create(name, {.style = WS_POPUP | WS_VISIBLE, .ex_style = ex_style});
    settle();
    return result;
  }
  static HWND seen() { return WindowFromPoint({50, 50}); }
  static constexpr UINT only_order = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
  HWND topmost_ = nullptr;
};

TEST_F(TopmostTest, NewWindowsComeOnTopOfTheirKind) {
  const HWND ordinary = make("ordinary", 0);
  EXPECT_EQ(seen(), topmost_);
  EXPECT_EQ(GetActiveWindow(), ordinary);
  EXPECT_EQ(seen(), topmost_);
  const HWND second = make("second", WS_EX_TOPMOST);
  EXPECT_EQ(seen(), second);
}

TEST_F(TopmostTest, RaisingAnOrdinaryWindowLeavesItBelow) {
  const HWND ordinary = make("ordinary", 0);
  SetWindowPos(ordinary, HWND_TOP, 0, 0, 0, 0, only_order);
  EXPECT_EQ(seen(), topmost_);
  BringWindowToTop(ordinary);
  EXPECT_EQ(seen(), topmost_);
}

TEST_F(TopmostTest, MayBeGivenAndTaken) {
  const HWND ordinary = make("ordinary", 0);
  SetWindowPos(ordinary, HWND_TOPMOST, 0, 0, 0, 0, only_order);
  EXPECT_EQ(seen(), ordinary);
  EXPECT_NE(GetWindowLongW(ordinary, GWL_EXSTYLE) & static_cast<LONG>(WS_EX_TOPMOST), 0);
  SetWindowPos(ordinary, HWND_NOTOPMOST, 0, 0, 0, 0, only_order);
  EXPECT_EQ(seen(), topmost_);
  EXPECT_EQ(GetWindowLongW(ordinary, GWL_EXSTYLE) & static_cast<LONG>(WS_EX_TOPMOST), 0);
}

TEST_F(TopmostTest, WindowsOwnedByATopmostOneAreAboveIt) {
  const HWND owned = create("owned", {.parent = topmost_, .style = WS_POPUP | WS_VISIBLE});
  settle();
  EXPECT_EQ(seen(), owned);
  make("ordinary", 0);
  EXPECT_EQ(seen(), owned);
}

class OwnedOrderTest : public TopmostTest {};

TEST_F(OwnedOrderTest, NeitherSinkingNorPlacingBringsAnOwnedWindowBelowItsOwner) {
  DestroyWindow(topmost_);
  const HWND owner = make("owner", 0);
  const HWND owned = create("owned", {.parent = owner, .style = WS_POPUP | WS_VISIBLE});
  const HWND other = make("other", 0);
  SetWindowPos(owned, HWND_BOTTOM, 0, 0, 0, 0, only_order);
  EXPECT_EQ(GetWindow(owned, GW_HWNDNEXT), owner);
  SetWindowPos(owned, owner, 0, 0, 0, 0, only_order);
  EXPECT_EQ(GetWindow(owned, GW_HWNDNEXT), owner);
  SetWindowPos(other, HWND_BOTTOM, 0, 0, 0, 0, only_order);
  EXPECT_EQ(seen(), owned);
}

}  // namespace
}  // namespace corvane::conformance
