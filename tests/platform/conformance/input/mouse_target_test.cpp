// Which window the mouse belongs to.
#include "tests/platform/conformance/support/family_test.h"

namespace corvane::conformance {
namespace {

class MouseTargetTest : public FamilyTest {
 protected:
  MouseTargetTest() { recorder().only({WM_LBUTTONDOWN, WM_LBUTTONUP}); }
  // Who gets a click at 140,140, and what WindowFromPoint answers there.
  void click_there(const std::string& what) {
    settle();
    click(140, 140);
    step(what, WindowFromPoint({140, 140}));
  }
};

struct Target {
  POINT point;
  const char* window;
};

TEST_F(MouseTargetTest, LeftAndTopAreInsideRightAndBottomOutside) {
  settled_child("wide", top_, 150, 0, 500, 50);
  for (const Target& target :
       {Target{{100, 100}, "top"}, Target{{299, 299}, "top"}, Target{{119, 120}, "top"},
        Target{{120, 120}, "parent"}, Target{{219, 219}, "parent"}, Target{{220, 219}, "top"},
        Target{{130, 130}, "child"}, Target{{179, 179}, "child"}, Target{{179, 180}, "parent"},
        Target{{299, 110}, "wide"}, Target{{300, 110}, ""}, Target{{99, 100}, ""},
        Target{{300, 299}, ""}}) {
    const std::string there = text_of(target.point);
    EXPECT_EQ(pressed_at(target.point.x, target.point.y), target.window) << there;
    const HWND found = WindowFromPoint(target.point);
    EXPECT_EQ(found == nullptr ? "" : name_of(found), target.window) << there;
  }
}

TEST_F(MouseTargetTest, HiddenAndDisabledWindowsPassItOn) {
  ShowWindow(parent_, SW_HIDE);
  click_there("a hidden child does not count");
  ShowWindow(parent_, SW_SHOW);
  EnableWindow(child_, FALSE);
  click_there("a disabled child passes to its parent");
  EnableWindow(child_, TRUE);
  EnableWindow(parent_, FALSE);
  click_there("so does everything inside");
  EnableWindow(settled_popup("cover", 100, 100, 200, 200), FALSE);
  click_there("a disabled top-level window swallows it");
}

TEST_F(MouseTargetTest, UpperSiblingIsTheFirstCreated) {
  settled_child("sibling", parent_, 10, 10, 50, 50);
  click_there("it gets the press");
  EnableWindow(child_, FALSE);
  click_there("a disabled one keeps it from the sibling below");
  ShowWindow(child_, SW_HIDE);
  click_there("a hidden one does not");
}

TEST_F(MouseTargetTest, TransparentHitGoesToWhatIsBelow) {
  recorder().answer("child", WM_NCHITTEST, HTTRANSPARENT);
  click_there("to the parent");
  settled_child("sibling", parent_, 10, 10, 50, 50);
  click_there("to a sibling below");
  settled_popup("glass", 100, 100, 200, 200, top_);
  recorder().remove_hooks();
  recorder().answer("glass", WM_NCHITTEST, HTTRANSPARENT);
  click_there("to the window below");
}

TEST_F(MouseTargetTest, HitTestGetsScreenCoordinatesAndItsAnswerGoesWithThePress) {
  recorder().only({WM_NCHITTEST, WM_NCLBUTTONDOWN, WM_NCLBUTTONUP, WM_LBUTTONDOWN});
  recorder().answer("child", WM_NCLBUTTONDOWN, 0);
  recorder().answer("child", WM_NCHITTEST, HTCAPTION);
  move_to(150, 155);
  step("a move");
  press();
  release();
  step("a press outside of the client area");
}

TEST_F(MouseTargetTest, ChildFromPointLooksAtImmediateChildrenWhateverTheirState) {
  EXPECT_EQ(ChildWindowFromPoint(top_, {5, 5}), top_);
  EXPECT_EQ(ChildWindowFromPoint(top_, {200, 5}), nullptr);
  EXPECT_EQ(ChildWindowFromPoint(top_, {-1, 5}), nullptr);
  EXPECT_EQ(ChildWindowFromPoint(top_, {40, 40}), parent_);
  EnableWindow(parent_, FALSE);
  EXPECT_EQ(ChildWindowFromPoint(top_, {40, 40}), parent_);
  ShowWindow(parent_, SW_HIDE);
  EXPECT_EQ(ChildWindowFromPoint(top_, {40, 40}), parent_);
}

}  // namespace
}  // namespace corvane::conformance
