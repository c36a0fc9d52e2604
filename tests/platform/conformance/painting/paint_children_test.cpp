// Painting of parents, children and siblings.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class PaintChildrenTest : public WindowTest {
 protected:
  // A parent at 100,100 with a child at 50,50 (60 x 40) in it, all painted.
  void make(DWORD parent_style) {
    parent_ = create(
        "parent", {.style = WS_POPUP | WS_VISIBLE | parent_style, .place = {100, 100, 200, 150}});
    child_ = settled_child("child", parent_, 50, 50, 60, 40);
    recorder().only({WM_PAINT, WM_ERASEBKGND});
  }
  void invalidate_parent(RECT rect) { InvalidateRect(parent_, &rect, TRUE); }
  static void fill_window(HWND window) { draw(window, {0, 0, 500, 500}, kRed); }
  HWND parent_ = nullptr;
  HWND child_ = nullptr;
};

TEST_F(PaintChildrenTest, ParentPaintsOverItsChildrenThenTheyPaint) {
  make(0);
  invalidate_parent({40, 40, 70, 60});
  pump_step("a corner of the child");
  InvalidateRect(parent_, nullptr, FALSE);
  pump_step("children erase also when the parent does not");
  RedrawWindow(parent_, nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
  pump_step("without children");
  InvalidateRect(child_, nullptr, TRUE);
  pump_step("an invalid child does not touch the parent");
  ShowWindow(child_, SW_HIDE);
  pump_step("a hidden child leaves its place to the parent, with erase");
}

TEST_F(PaintChildrenTest, ParentsDrawingIsCoveredByTheRepaintedChild) {
  make(0);
  paint_patches("parent", {{{0, 0, 200, 150}, kRed}});
  paint_patches("child", {{{0, 0, 60, 40}, kGreen}});
  invalidate_parent({0, 0, 200, 150});
  pump();
  EXPECT_EQ(pixel(160, 160), kGreen);
  EXPECT_EQ(pixel(110, 110), kRed);
  recorder().on("child", WM_PAINT, [](const Message& sent) -> std::optional<LRESULT> {
    ValidateRect(sent.window, nullptr);
    return 0;
  });
  invalidate_parent({0, 0, 200, 150});
  pump();
  EXPECT_EQ(pixel(160, 160), kRed) << "it reaches the pixels of a child that paints nothing";
}

TEST_F(PaintChildrenTest, ClippingParentLeavesItsChildrenAlone) {
  make(WS_CLIPCHILDREN);
  invalidate_parent({40, 40, 70, 60});
  pump_step("a corner of the child");
  invalidate_parent({40, 50, 50, 90});
  pump_step("the strip beside the child");
  invalidate_parent({60, 60, 70, 70});
  pump_step("observed: a region under the child still gives an empty paint");
  RedrawWindow(parent_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  pump_step("all children");
  InvalidateRect(child_, nullptr, TRUE);
  pump_step("an invalid child does not touch the parent");
  for (const HWND window : {child_, parent_}) InvalidateRect(window, nullptr, FALSE);
  pump_step("parents paint before their children");
  for (const HWND window : {child_, parent_}) InvalidateRect(window, nullptr, FALSE);
  UpdateWindow(parent_);
  step("observed: updating the parent paints invalid children");
  fill_window(parent_);
  EXPECT_EQ(pixel(160, 160), kWhite) << "drawing outside of a paint is cut too";
  EXPECT_EQ(pixel(110, 110), kRed);
  invalidate_parent({40, 55, 60, 60});
  MoveWindow(child_, 30, 50, 15, 40, FALSE);
  EXPECT_EQ(text_of(update_rect(parent_)), "45,55,50,60") << "what a child covers now";
  ShowWindow(child_, SW_HIDE);
  settle();
  InvalidateRect(parent_, nullptr, TRUE);
  pump_step("a hidden child is not cut out");
}

TEST_F(PaintChildrenTest, SiblingsNeitherInvalidateNorClipEachOther) {
  make(0);
  const HWND sibling = settled_child("sibling", parent_, 60, 60, 60, 40);
  InvalidateRect(sibling, nullptr, TRUE);
  pump_step("one of two");
  fill_window(sibling);
  EXPECT_EQ(pixel(165, 165), kRed) << "under the upper sibling";
}

TEST_F(PaintChildrenTest, ClippingSiblingsAreCutByThoseAbove) {
  make(0);
  fill_window(settled_child("sibling", parent_, 60, 60, 60, 40, WS_CLIPSIBLINGS));
  EXPECT_EQ(pixel(165, 165), kWhite);
  EXPECT_EQ(pixel(215, 195), kRed);
}

TEST_F(PaintChildrenTest, ChildrenAreClippedToTheirParent) {
  make(0);
  fill_window(settled_child("wide", parent_, 150, 100, 500, 500));
  EXPECT_EQ(pixel(299, 249), kRed);
  EXPECT_NE(pixel(300, 249), kRed);
  EXPECT_NE(pixel(299, 250), kRed);
}

}  // namespace
}  // namespace corvane::conformance
