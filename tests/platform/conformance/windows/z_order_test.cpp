// Which window is above which: top-level windows, owned ones, those that stay on top, and siblings.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class ZOrderTest : public WindowTest {
 protected:
  HWND make(const std::string& name, DWORD ex_style, HWND owner = nullptr) {
    const HWND result =
        create(name, {.parent = owner, .style = WS_POPUP | WS_VISIBLE, .ex_style = ex_style});
    recorder().only({WM_ACTIVATE});
    settle();
    return result;
  }
  // What the order is, and which window is seen.
  void place(const std::string& what, HWND window, HWND after) {
    EXPECT_NE(SetWindowPos(window, after, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE), 0);
    settle_paint(what);
  }
  void settle_paint(const std::string& what) {
    pump();
    step(what, WindowFromPoint({50, 50}));
  }
};

TEST_F(ZOrderTest, TopmostWindowsStayAboveTheOthers) {
  const HWND topmost = make("topmost", WS_EX_TOPMOST);
  const HWND ordinary = make("ordinary", 0);
  make("second", WS_EX_TOPMOST);
  const HWND owned = make("owned", 0, topmost);
  make("last", 0);
  settle_paint("new windows come on top of their kind, and above their owner");
  place("raising an ordinary one", ordinary, HWND_TOP);
  EXPECT_NE(BringWindowToTop(window("last")), 0);
  settle_paint("bringing an ordinary one to the top");
  place("it becomes topmost", ordinary, HWND_TOPMOST);
  place("and ordinary again", ordinary, HWND_NOTOPMOST);
  place("a topmost one at the bottom", window("second"), HWND_BOTTOM);
  place("an owned one", owned, HWND_TOP);
}

TEST_F(ZOrderTest, OwnedWindowsStayAboveTheirOwner) {
  const HWND owner = make("owner", 0);
  const HWND owned = make("owned", 0, owner);
  const HWND other = make("other", 0);
  make("further", 0);
  place("raising the owner", owner, HWND_TOP);
  place("raising another", other, HWND_TOP);
  SetActiveWindow(owner);
  settle_paint("activating the owner");
  place("raising the other", other, HWND_TOP);
  BringWindowToTop(owner);
  settle_paint("bringing the owner to the top");
  place("sinking the owned one", owned, HWND_BOTTOM);
  place("placing it below its owner", owned, owner);
  place("sinking another", other, HWND_BOTTOM);
  place("placing a window behind another", window("further"), owned);
  place("and behind the last", window("further"), other);
}

TEST_F(ZOrderTest, Siblings) {
  const HWND parent = make("parent", 0);
  for (const std::string name : {"first", "second", "third"}) {
    settled_child(name, parent, 0, 0, 100, 100);
  }
  const HWND first = window("first");
  const HWND second = window("second");
  place("to the top", second, HWND_TOP);
  place("to the bottom", second, HWND_BOTTOM);
  place("behind another", first, window("third"));
  place("behind the last", window("third"), second);
  place("behind itself", second, second);
  EXPECT_EQ(GetWindow(parent, GW_CHILD), GetTopWindow(parent));
  for (const auto& [relation, window] :
       {std::pair{GW_HWNDFIRST, GetTopWindow(parent)}, std::pair{GW_HWNDLAST, window("third")},
        std::pair{GW_HWNDPREV, first}, std::pair{GW_HWNDNEXT, window("third")}}) {
    EXPECT_EQ(GetWindow(second, static_cast<UINT>(relation)), window) << relation;
  }
}

TEST_F(ZOrderTest, APopUpThatWasGivenAParentIsOrderedAmongItsNewSiblings) {
  const HWND parent = make("parent", 0);
  settled_child("child", parent, 0, 0, 100, 100);
  const HWND pop_up = make("pop-up", 0);
  SetParent(pop_up, parent);
  settle_paint("given");
  for (const auto& [what, after] :
       {std::pair{"top", HWND_TOP}, std::pair{"bottom", HWND_BOTTOM},
        std::pair{"not topmost", HWND_NOTOPMOST}, std::pair{"top again", HWND_TOP}}) {
    place(what, pop_up, after);
  }
}

}  // namespace
}  // namespace corvane::conformance
