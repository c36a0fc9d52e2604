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
  HWND parent_ = nullptr;
  HWND child_ = nullptr;
};

TEST_F(PaintChildrenTest, ParentPaintsOverItsChildrenThenTheyPaint) {
  make(0);
  invalidate_parent({40, 40, 70, 60});
  pump();
  EXPECT_TRUE(
      log_is("parent (q) WM_PAINT 40,40,70,60 fErase=0 { WM_ERASEBKGND } >"
             "child (q) WM_PAINT 0,0,20,10 fErase=0 { WM_ERASEBKGND }"));
}

TEST_F(PaintChildrenTest, ChildrenEraseAlsoWhenTheParentDoesNot) {
  make(0);
  InvalidateRect(parent_, nullptr, FALSE);
  pump();
  EXPECT_TRUE(
      log_is("parent (q) WM_PAINT 0,0,200,150 fErase=0 >"
             "child (q) WM_PAINT 0,0,60,40 fErase=0 { WM_ERASEBKGND }"));
}

TEST_F(PaintChildrenTest, ParentsDrawingReachesTheChildrensPixels) {
  make(0);
  paint_patches("parent", {{{0, 0, 200, 150}, RGB(255, 0, 0)}});
  recorder().on("child", WM_PAINT, [](const Message& sent) -> std::optional<LRESULT> {
    ValidateRect(sent.window, nullptr);
    return 0;
  });
  invalidate_parent({0, 0, 200, 150});
  pump();
  EXPECT_EQ(pixel(160, 160), RGB(255, 0, 0));
}

TEST_F(PaintChildrenTest, RepaintedChildCoversTheParentsDrawing) {
  make(0);
  paint_patches("parent", {{{0, 0, 200, 150}, RGB(255, 0, 0)}});
  paint_patches("child", {{{0, 0, 60, 40}, RGB(0, 255, 0)}});
  invalidate_parent({0, 0, 200, 150});
  pump();
  EXPECT_EQ(pixel(160, 160), RGB(0, 255, 0));
  EXPECT_EQ(pixel(110, 110), RGB(255, 0, 0));
}

TEST_F(PaintChildrenTest, ClippingParentLeavesItsChildrenAlone) {
  make(WS_CLIPCHILDREN);
  paint_patches("child", {{{0, 0, 60, 40}, RGB(0, 255, 0)}});
  InvalidateRect(child_, nullptr, FALSE);
  settle();
  paint_patches("parent", {{{0, 0, 200, 150}, RGB(255, 0, 0)}});
  invalidate_parent({0, 0, 200, 150});
  pump();
  EXPECT_EQ(recorder().count("child", WM_PAINT), 0);
  EXPECT_EQ(pixel(160, 160), RGB(0, 255, 0));
  EXPECT_EQ(pixel(110, 110), RGB(255, 0, 0));
}

TEST_F(PaintChildrenTest, ClippingParentsUpdateRegionHasTheChildCutOut) {
  make(WS_CLIPCHILDREN);
  invalidate_parent({40, 50, 70, 90});
  pump();
  EXPECT_TRUE(log_is("parent (q) WM_PAINT 40,50,50,90 fErase=0 { WM_ERASEBKGND }"));
}

TEST_F(PaintChildrenTest, ClippingParentsDrawingOutsidePaintIsCutToo) {
  make(WS_CLIPCHILDREN);
  const HDC dc = GetDC(parent_);
  fill(dc, {0, 0, 200, 150}, RGB(255, 0, 0));
  ReleaseDC(parent_, dc);
  EXPECT_EQ(pixel(160, 160), RGB(255, 255, 255));
  EXPECT_EQ(pixel(110, 110), RGB(255, 0, 0));
}

TEST_F(PaintChildrenTest, ObservedThatARegionUnderAChildStillGivesAnEmptyPaint) {
  make(WS_CLIPCHILDREN);
  recorder().only({WM_PAINT});
  invalidate_parent({60, 60, 70, 70});
  pump();
  EXPECT_TRUE(log_is("parent (q) WM_PAINT 0,0,0,0"));
}

TEST_F(PaintChildrenTest, RedrawOfAllChildrenReachesThemInAClippingParent) {
  make(WS_CLIPCHILDREN);
  recorder().only({WM_PAINT});
  RedrawWindow(parent_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  pump();
  EXPECT_TRUE(log_is("parent (q) WM_PAINT 0,0,200,150 > child (q) WM_PAINT 0,0,60,40"));
}

TEST_F(PaintChildrenTest, RedrawWithoutChildrenStopsAtTheParent) {
  make(0);
  recorder().only({WM_PAINT});
  RedrawWindow(parent_, nullptr, nullptr, RDW_INVALIDATE | RDW_NOCHILDREN);
  pump();
  EXPECT_TRUE(log_is("parent (q) WM_PAINT 0,0,200,150"));
}

TEST_F(PaintChildrenTest, InvalidChildDoesNotTouchTheParent) {
  for (const DWORD style : {DWORD{0}, WS_CLIPCHILDREN}) {
    make(style);
    InvalidateRect(child_, nullptr, TRUE);
    pump();
    EXPECT_TRUE(log_is("child (q) WM_PAINT 0,0,60,40 fErase=0 { WM_ERASEBKGND }"));
    DestroyWindow(parent_);
    settle();
  }
}

TEST_F(PaintChildrenTest, ParentsPaintBeforeTheirChildren) {
  make(WS_CLIPCHILDREN);
  recorder().only({WM_PAINT});
  InvalidateRect(child_, nullptr, FALSE);
  InvalidateRect(parent_, nullptr, FALSE);
  pump();
  EXPECT_TRUE(log_is("parent (q) WM_PAINT > child (q) WM_PAINT"));
}

TEST_F(PaintChildrenTest, ObservedThatUpdatingTheParentPaintsInvalidChildren) {
  make(WS_CLIPCHILDREN);
  recorder().only({WM_PAINT});
  InvalidateRect(child_, nullptr, FALSE);
  InvalidateRect(parent_, nullptr, FALSE);
  UpdateWindow(parent_);
  EXPECT_TRUE(log_is("parent WM_PAINT > child WM_PAINT", Nesting::ignored));
}

TEST_F(PaintChildrenTest, SiblingsDoNotInvalidateEachOther) {
  make(0);
  const HWND sibling = settled_child("sibling", parent_, 60, 60, 60, 40);
  recorder().only({WM_PAINT});
  InvalidateRect(sibling, nullptr, TRUE);
  pump();
  EXPECT_TRUE(log_is("sibling (q) WM_PAINT 0,0,60,40"));
}

TEST_F(PaintChildrenTest, SiblingsDoNotClipEachOther) {
  make(0);
  const HWND sibling = settled_child("sibling", parent_, 60, 60, 60, 40);
  const HDC dc = GetDC(sibling);
  fill(dc, {0, 0, 60, 40}, RGB(255, 0, 0));
  ReleaseDC(sibling, dc);
  EXPECT_EQ(pixel(165, 165), RGB(255, 0, 0)) << "under the upper sibling";
}

TEST_F(PaintChildrenTest, ClippingSiblingsAreCutByThoseAbove) {
  make(0);
  const HWND sibling = settled_child("sibling", parent_, 60, 60, 60, 40, WS_CLIPSIBLINGS);
  const HDC dc = GetDC(sibling);
  fill(dc, {0, 0, 60, 40}, RGB(255, 0, 0));
  ReleaseDC(sibling, dc);
  EXPECT_EQ(pixel(165, 165), RGB(255, 255, 255));
  EXPECT_EQ(pixel(215, 195), RGB(255, 0, 0));
}

TEST_F(PaintChildrenTest, HidingAChildInvalidatesTheParentsPartWithErase) {
  make(0);
  ShowWindow(child_, SW_HIDE);
  pump();
  EXPECT_GE(recorder().count("parent", WM_ERASEBKGND), 1);
  recorder().only({WM_PAINT});
  EXPECT_EQ(recorder().count("parent", WM_PAINT), 1);
  EXPECT_EQ(recorder().count("child", WM_PAINT), 0);
}

TEST_F(PaintChildrenTest, ChildrenAreClippedToTheirParent) {
  make(0);
  const HWND wide = settled_child("wide", parent_, 150, 100, 500, 500);
  const HDC dc = GetDC(wide);
  fill(dc, {0, 0, 500, 500}, RGB(255, 0, 0));
  ReleaseDC(wide, dc);
  EXPECT_EQ(pixel(299, 249), RGB(255, 0, 0));
  EXPECT_NE(pixel(300, 249), RGB(255, 0, 0));
  EXPECT_NE(pixel(299, 250), RGB(255, 0, 0));
}

TEST_F(PaintChildrenTest, HiddenChildrenAreNeitherInvalidatedNorCutOut) {
  make(WS_CLIPCHILDREN);
  ShowWindow(child_, SW_HIDE);
  settle();
  recorder().only({WM_PAINT});
  InvalidateRect(parent_, nullptr, TRUE);
  pump();
  EXPECT_TRUE(log_is("parent (q) WM_PAINT 0,0,200,150"));
}

}  // namespace
}  // namespace corvane::conformance
