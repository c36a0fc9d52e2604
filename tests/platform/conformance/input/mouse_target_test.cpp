// Which window the mouse belongs to.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class MouseTargetTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    top_ = settled_popup("top", 100, 100, 200, 200);
    outer_ = settled_child("outer", top_, 20, 20, 100, 100);
    inner_ = settled_child("inner", outer_, 10, 10, 50, 50);
    recorder().only({WM_LBUTTONDOWN, WM_LBUTTONUP});
  }
  HWND top_ = nullptr;
  HWND outer_ = nullptr;
  HWND inner_ = nullptr;
};

struct Target {
  int x;
  int y;
  const char* window;
  const char* point;
};

class MouseEdgeTest : public MouseTargetTest, public testing::WithParamInterface<Target> {};

TEST_P(MouseEdgeTest, LeftAndTopAreInsideRightAndBottomOutside) {
  const Target& target = GetParam();
  move_to(target.x, target.y);
  recorder().clear();
  recorder().only({WM_LBUTTONDOWN});
  press();
  EXPECT_TRUE(log_is(std::string(target.window) + " (q) WM_LBUTTONDOWN " + target.point));
  EXPECT_EQ(name_of(WindowFromPoint({target.x, target.y})), target.window);
}

INSTANTIATE_TEST_SUITE_P(
    , MouseEdgeTest,
    testing::Values(Target{100, 100, "top", "0,0"}, Target{299, 299, "top", "199,199"},
                    Target{119, 120, "top", "19,20"}, Target{120, 120, "outer", "0,0"},
                    Target{219, 219, "outer", "99,99"}, Target{220, 219, "top", "120,119"},
                    Target{130, 130, "inner", "0,0"}, Target{179, 179, "inner", "49,49"},
                    Target{179, 180, "outer", "59,60"}));

TEST_F(MouseTargetTest, OutsideEverythingNobodyIsPressed) {
  click(99, 100);
  click(300, 299);
  EXPECT_TRUE(log_is(""));
}

TEST_F(MouseTargetTest, UpperSiblingIsTheFirstCreated) {
  const HWND sibling = settled_child("sibling", outer_, 10, 10, 50, 50);
  click(140, 140);
  EXPECT_EQ(recorder().count("inner", WM_LBUTTONDOWN), 1);
  EXPECT_EQ(recorder().count("sibling", WM_LBUTTONDOWN), 0);
  ShowWindow(inner_, SW_HIDE);
  EXPECT_EQ(WindowFromPoint({140, 140}), sibling);
}

TEST_F(MouseTargetTest, HiddenChildDoesNotCount) {
  ShowWindow(outer_, SW_HIDE);
  settle();
  click(140, 140);
  EXPECT_TRUE(log_is("top (q) WM_LBUTTONDOWN 40,40 > (q) WM_LBUTTONUP 40,40"));
  EXPECT_EQ(WindowFromPoint({140, 140}), top_);
}

TEST_F(MouseTargetTest, DisabledChildPassesToItsParent) {
  EnableWindow(inner_, FALSE);
  settle();
  click(140, 140);
  EXPECT_TRUE(log_is("outer (q) WM_LBUTTONDOWN 20,20 > (q) WM_LBUTTONUP 20,20"));
  EXPECT_EQ(WindowFromPoint({140, 140}), outer_);
}

TEST_F(MouseTargetTest, DisabledChildKeepsThePressFromTheSiblingBelow) {
  settled_child("sibling", outer_, 10, 10, 50, 50);
  EnableWindow(inner_, FALSE);
  settle();
  click(140, 140);
  EXPECT_TRUE(log_is("outer (q) WM_LBUTTONDOWN 20,20 > (q) WM_LBUTTONUP 20,20"));
}

TEST_F(MouseTargetTest, EverythingInsideADisabledChildPassesToo) {
  EnableWindow(outer_, FALSE);
  settle();
  click(140, 140);
  EXPECT_TRUE(log_is("top (q) WM_LBUTTONDOWN 40,40 > (q) WM_LBUTTONUP 40,40"));
  EXPECT_NE(IsWindowEnabled(inner_), 0);
}

TEST_F(MouseTargetTest, DisabledTopLevelWindowSwallowsThePress) {
  settled_popup("cover", 100, 100, 200, 200);
  EnableWindow(window("cover"), FALSE);
  settle();
  click(140, 140);
  EXPECT_TRUE(log_is(""));
}

TEST_F(MouseTargetTest, TransparentHitGoesToWhatIsBelow) {
  recorder().answer("inner", WM_NCHITTEST, HTTRANSPARENT);
  settle();
  click(140, 140);
  EXPECT_TRUE(log_is("outer (q) WM_LBUTTONDOWN 20,20 > (q) WM_LBUTTONUP 20,20"));
}

TEST_F(MouseTargetTest, TransparentHitGoesToASiblingBelow) {
  settled_child("sibling", outer_, 10, 10, 50, 50);
  recorder().answer("inner", WM_NCHITTEST, HTTRANSPARENT);
  click(140, 140);
  EXPECT_TRUE(log_is("sibling (q) WM_LBUTTONDOWN 10,10 > (q) WM_LBUTTONUP 10,10"));
}

TEST_F(MouseTargetTest, TransparentPopupPassesToTheWindowBelow) {
  settled_popup("glass", 100, 100, 200, 200, top_);
  recorder().answer("glass", WM_NCHITTEST, HTTRANSPARENT);
  click(140, 140);
  EXPECT_TRUE(log_is("inner (q) WM_LBUTTONDOWN 10,10 > (q) WM_LBUTTONUP 10,10"));
}

TEST_F(MouseTargetTest, HitTestGetsScreenCoordinates) {
  recorder().only({WM_NCHITTEST});
  recorder().clear();
  SetCursorPos(150, 155);
  pump();
  EXPECT_EQ(recorder().log().empty(), false);
  EXPECT_EQ(recorder().log().back().text, "inner WM_NCHITTEST 150,155");
}

TEST_F(MouseTargetTest, ChildFromPointLooksAtImmediateChildrenWhateverTheirState) {
  EXPECT_EQ(ChildWindowFromPoint(top_, {40, 40}), outer_);
  EXPECT_EQ(ChildWindowFromPoint(top_, {5, 5}), top_);
  EXPECT_EQ(ChildWindowFromPoint(top_, {200, 5}), nullptr);
  EXPECT_EQ(ChildWindowFromPoint(top_, {-1, 5}), nullptr);
  EnableWindow(outer_, FALSE);
  EXPECT_EQ(ChildWindowFromPoint(top_, {40, 40}), outer_);
  ShowWindow(outer_, SW_HIDE);
  EXPECT_EQ(ChildWindowFromPoint(top_, {40, 40}), outer_);
}

TEST_F(MouseTargetTest, ChildPartsOutsideTheParentAreNotThere) {
  settled_child("wide", top_, 150, 0, 500, 50);
  click(320, 110);
  EXPECT_TRUE(log_is(""));
}

TEST_F(MouseTargetTest, NonClientHitGivesNonClientMessages) {
  recorder().answer("inner", WM_NCHITTEST, HTCAPTION);
  UINT message = 0;
  WPARAM code = 0;
  recorder().on("inner", WM_NCLBUTTONDOWN, [&](const Message& sent) -> std::optional<LRESULT> {
    message = sent.message;
    code = sent.wparam;
    EXPECT_EQ(GET_X_LPARAM(sent.lparam), 140);
    return 0;
  });
  press_at(140, 140);
  EXPECT_EQ(message, WM_NCLBUTTONDOWN);
  EXPECT_EQ(code, static_cast<WPARAM>(HTCAPTION));
  release();
}

}  // namespace
}  // namespace corvane::conformance
