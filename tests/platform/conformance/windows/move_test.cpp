// MoveWindow and SetWindowPos: messages and rectangles.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

const std::set<UINT> position_messages = {WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_NCCALCSIZE,
                                          WM_SIZE, WM_MOVE};

class MoveWindowTest : public WindowTest {};

struct ObservedMove {
  const char* label;
  RECT to;  // left, top, width, height; from 10, 20, 40, 30
  BOOL repaint;
  const char* log;
};

class ObservedMoveOrder : public WindowTest, public testing::WithParamInterface<ObservedMove> {};

TEST_P(ObservedMoveOrder, OfAVisibleChild) {
  const HWND parent = settled_popup("parent", 100, 100, 300, 200);
  const HWND child = settled_child("child", parent, 10, 20, 40, 30);
  recorder().only(position_messages);
  const ObservedMove& move = GetParam();
  EXPECT_NE(
      MoveWindow(child, move.to.left, move.to.top, move.to.right, move.to.bottom, move.repaint), 0);
  EXPECT_TRUE(log_is(move.log));
  recorder().clear();
  pump();
  EXPECT_TRUE(log_is(""));
}

INSTANTIATE_TEST_SUITE_P(
    , ObservedMoveOrder,
    testing::Values(
        ObservedMove{"Unchanged",
                     {10, 20, 40, 30},
                     TRUE,
                     "child WM_WINDOWPOSCHANGING NOZORDER|NOACTIVATE 10,20 40x30"},
        ObservedMove{"UnchangedQuietly",
                     {10, 20, 40, 30},
                     FALSE,
                     "child WM_WINDOWPOSCHANGING NOZORDER|NOACTIVATE|NOREDRAW 10,20 40x30"},
        ObservedMove{"Moved",
                     {15, 26, 40, 30},
                     TRUE,
                     "child WM_WINDOWPOSCHANGING NOZORDER|NOACTIVATE 15,26 40x30 >"
                     "WM_WINDOWPOSCHANGED NOZORDER|NOACTIVATE|NOSIZE|NOCLIENTSIZE {"
                     "  WM_MOVE 15,26 }"},
        ObservedMove{"Sized",
                     {10, 20, 41, 33},
                     TRUE,
                     "child WM_WINDOWPOSCHANGING NOZORDER|NOACTIVATE 10,20 41x33 >"
                     "WM_NCCALCSIZE 1 >"
                     "WM_WINDOWPOSCHANGED NOZORDER|NOACTIVATE|NOMOVE|NOCLIENTMOVE {"
                     "  WM_SIZE 0 41x33 }"},
        ObservedMove{"Both",
                     {-5, -6, 70, 80},
                     TRUE,
                     "child WM_WINDOWPOSCHANGING NOZORDER|NOACTIVATE -5,-6 70x80 >"
                     "WM_NCCALCSIZE 1 >"
                     "WM_WINDOWPOSCHANGED NOZORDER|NOACTIVATE { WM_MOVE -5,-6 > WM_SIZE 0 70x80 }"},
        ObservedMove{"BothQuietly",
                     {1, 2, 3, 4},
                     FALSE,
                     "child WM_WINDOWPOSCHANGING NOZORDER|NOACTIVATE|NOREDRAW 1,2 3x4 >"
                     "WM_NCCALCSIZE 1 >"
                     "WM_WINDOWPOSCHANGED ~NOREDRAW { WM_MOVE 1,2 > WM_SIZE 0 3x4 }"}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(MoveWindowTest, MoveAndSizeComeFromTheDefaultHandling) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  recorder().answer("pop", WM_WINDOWPOSCHANGED, 0);
  recorder().only({WM_MOVE, WM_SIZE});
  MoveWindow(popup, 5, 5, 60, 60, TRUE);
  EXPECT_TRUE(log_is(""));
  EXPECT_EQ(text_of(window_rect(popup)), "5,5,65,65");
}

TEST_F(MoveWindowTest, ChangingHandlerMayChangeThePosition) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  recorder().on("pop", WM_WINDOWPOSCHANGING, [](const Message& sent) -> std::optional<LRESULT> {
    reinterpret_cast<WINDOWPOS*>(sent.lparam)->x = 77;
    return 0;
  });
  MoveWindow(popup, 5, 5, 60, 60, TRUE);
  EXPECT_EQ(text_of(window_rect(popup)), "77,5,137,65");
}

TEST_F(MoveWindowTest, MovedChildKeepsItsPixelsAndTheParentPaintsTheGap) {
  const HWND parent = settled_popup("parent", 100, 100, 300, 200);
  const HWND child = create(
      "child", {.parent = parent, .style = WS_CHILD | WS_VISIBLE, .place = {10, 20, 40, 30}});
  paint_patches("child", {{{0, 0, 40, 30}, RGB(200, 0, 0)}});
  settle();
  recorder().only({WM_PAINT, WM_ERASEBKGND});
  MoveWindow(child, 100, 20, 40, 30, TRUE);
  pump();
  EXPECT_EQ(recorder().count("child", WM_PAINT), 0);
  EXPECT_EQ(recorder().count("child", WM_ERASEBKGND), 0);
  EXPECT_EQ(recorder().count("parent", WM_PAINT), 1);
  EXPECT_EQ(recorder().count("parent", WM_ERASEBKGND), 1);
  EXPECT_EQ(pixel(205, 125), RGB(200, 0, 0));
  EXPECT_EQ(pixel(115, 125), RGB(255, 255, 255));
}

TEST_F(MoveWindowTest, ParentPaintsExactlyWhatWasUncovered) {
  const HWND parent = settled_popup("parent", 100, 100, 300, 200);
  const HWND child = settled_child("child", parent, 10, 20, 40, 30);
  recorder().only({WM_PAINT});
  MoveWindow(child, 25, 20, 40, 30, TRUE);
  pump();
  EXPECT_TRUE(log_is("parent (q) WM_PAINT 10,20,25,50"));
}

TEST_F(MoveWindowTest, WithoutRepaintNothingIsInvalidated) {
  const HWND parent = settled_popup("parent", 100, 100, 300, 200);
  const HWND child = settled_child("child", parent, 10, 20, 40, 30);
  recorder().only({WM_PAINT, WM_ERASEBKGND, WM_NCPAINT});
  MoveWindow(child, 100, 20, 60, 60, FALSE);
  pump();
  EXPECT_TRUE(log_is(""));
}

struct SizeChange {
  const char* label;
  UINT class_style;
  int width;  // from 40 x 30
  int height;
  const char* painted;  // empty: no paint
};

class SizePaintTest : public WindowTest, public testing::WithParamInterface<SizeChange> {};

TEST_P(SizePaintTest, PaintsTheNewPartOrEverything) {
  const SizeChange& change = GetParam();
  const HWND parent = settled_popup("parent", 100, 100, 300, 200);
  const HWND child = create("child", {.parent = parent,
                                      .style = WS_CHILD | WS_VISIBLE,
                                      .place = {.width = 40, .height = 30},
                                      .class_style = change.class_style});
  settle();
  recorder().only({WM_PAINT});
  recorder().only_windows({"child"});
  MoveWindow(child, 0, 0, change.width, change.height, TRUE);
  pump();
  const std::string painted = change.painted;
  EXPECT_TRUE(log_is(painted.empty() ? "" : "child (q) WM_PAINT " + painted));
}

INSTANTIATE_TEST_SUITE_P(
    , SizePaintTest,
    testing::Values(SizeChange{"Wider", 0, 60, 30, "40,0,60,30"},
                    SizeChange{"Taller", 0, 40, 50, "0,30,40,50"},
                    SizeChange{"Larger", 0, 60, 50, "0,0,60,50"},
                    SizeChange{"Smaller", 0, 20, 10, ""},
                    SizeChange{"WiderRedrawn", CS_HREDRAW, 60, 30, "0,0,60,30"},
                    SizeChange{"NarrowerRedrawn", CS_HREDRAW, 20, 30, "0,0,20,30"},
                    SizeChange{"TallerRedrawn", CS_VREDRAW, 40, 50, "0,0,40,50"},
                    SizeChange{"ShorterRedrawn", CS_VREDRAW, 40, 10, "0,0,40,10"},
                    SizeChange{"SmallerRedrawn", CS_HREDRAW | CS_VREDRAW, 20, 10, "0,0,20,10"},
                    SizeChange{"WiderBothRedrawn", CS_HREDRAW | CS_VREDRAW, 60, 30, "0,0,60,30"}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(MoveWindowTest, GrowingClipsTheOldPartOut) {
  const HWND popup = settled_popup("pop", 0, 0, 40, 30);
  BOOL old_part = TRUE;
  BOOL right_strip = FALSE;
  BOOL bottom_strip = FALSE;
  recorder().on("pop", WM_PAINT, [&](const Message& sent) -> std::optional<LRESULT> {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(sent.window, &paint);
    const RECT old_rect{0, 0, 40, 30};
    const RECT right{50, 5, 55, 10};
    const RECT bottom{5, 40, 10, 45};
    old_part = RectVisible(dc, &old_rect);
    right_strip = RectVisible(dc, &right);
    bottom_strip = RectVisible(dc, &bottom);
    EndPaint(sent.window, &paint);
    return 0;
  });
  MoveWindow(popup, 0, 0, 60, 50, TRUE);
  pump();
  EXPECT_EQ(old_part, FALSE);
  EXPECT_NE(right_strip, FALSE);
  EXPECT_NE(bottom_strip, FALSE);
}

TEST_F(MoveWindowTest, ResizedTopLevelWindowErasesOnceAndPaintsOnce) {
  for (const UINT style : {0U, CS_HREDRAW | CS_VREDRAW}) {
    const std::string name = "pop" + std::to_string(style);
    const HWND popup = create(name, {.style = WS_POPUP | WS_VISIBLE,
                                     .place = {.width = 40, .height = 30},
                                     .class_style = style});
    settle();
    recorder().only({WM_PAINT, WM_ERASEBKGND});
    MoveWindow(popup, 0, 0, 90, 90, TRUE);
    pump();
    EXPECT_EQ(recorder().count(name, WM_ERASEBKGND), 1) << style;
    EXPECT_EQ(recorder().count(name, WM_PAINT), 1) << style;
  }
}

class ObservedPositionOrder : public WindowTest {};

TEST_F(ObservedPositionOrder, HiddenWindowIsToldTheSameButPaintsNothing) {
  const HWND popup = create("pop", {.place = {.width = 40, .height = 30}});
  settle();
  MoveWindow(popup, 5, 6, 50, 60, TRUE);
  pump();
  EXPECT_TRUE(
      log_is("pop WM_WINDOWPOSCHANGING ~NOZORDER|NOACTIVATE > WM_NCCALCSIZE 1 >"
             "WM_WINDOWPOSCHANGED ~NOZORDER|NOACTIVATE|NOREDRAW {"
             "  WM_MOVE 5,6 > WM_SIZE 0 50x60 }"));
}

TEST_F(ObservedPositionOrder, NegativeSizesBecomeZero) {
  const HWND popup = create("pop", {.place = {.width = 40, .height = 30}});
  EXPECT_NE(MoveWindow(popup, 5, 6, -10, -20, TRUE), 0);
  EXPECT_EQ(text_of(window_rect(popup)), "5,6,5,6");
  EXPECT_EQ(text_of(client_rect(popup)), "0,0,0,0");
}

TEST_F(MoveWindowTest, ChangesNeitherVisibilityNorOrderNorActivation) {
  const HWND hidden = create("hidden", {});
  const HWND lower = settled_popup("lower", 0, 0, 50, 50);
  const HWND upper = settled_popup("upper", 0, 0, 50, 50);
  MoveWindow(hidden, 1, 1, 60, 60, TRUE);
  MoveWindow(lower, 1, 1, 60, 60, TRUE);
  EXPECT_EQ(IsWindowVisible(hidden), 0);
  EXPECT_EQ(WindowFromPoint({10, 10}), upper);
  EXPECT_EQ(GetActiveWindow(), upper);
}

struct ObservedPosition {
  const char* label;
  UINT flags;
  const char* log;
};

class ObservedSetPosition : public WindowTest,
                            public testing::WithParamInterface<ObservedPosition> {};

TEST_P(ObservedSetPosition, OfAChild) {
  const HWND parent = settled_popup("parent", 0, 0, 200, 200);
  settled_child("first", parent, 0, 0, 40, 30);
  const HWND second = settled_child("second", parent, 10, 10, 40, 30);
  recorder().only({WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_NCCALCSIZE, WM_SIZE, WM_MOVE,
                   WM_CHILDACTIVATE});
  EXPECT_NE(SetWindowPos(second, HWND_TOP, 0, 0, 0, 0, GetParam().flags), 0);
  EXPECT_TRUE(log_is(GetParam().log));
}

INSTANTIATE_TEST_SUITE_P(
    , ObservedSetPosition,
    testing::Values(
        ObservedPosition{
            "FrameChanged",
            SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED,
            "second WM_WINDOWPOSCHANGING NOMOVE|NOSIZE|NOZORDER|NOACTIVATE|FRAMECHANGED >"
            "WM_NCCALCSIZE 1 > WM_WINDOWPOSCHANGED"},
        ObservedPosition{"Nothing", SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE,
                         "second WM_WINDOWPOSCHANGING NOMOVE|NOSIZE|NOZORDER|NOACTIVATE"},
        ObservedPosition{"Raised", SWP_NOMOVE | SWP_NOSIZE,
                         "second WM_WINDOWPOSCHANGING NOMOVE|NOSIZE > WM_CHILDACTIVATE >"
                         "WM_WINDOWPOSCHANGED"}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(ObservedPositionOrder, RaisingTheTopmostChildChangesNothing) {
  const HWND parent = settled_popup("parent", 0, 0, 200, 200);
  const HWND first = settled_child("first", parent, 0, 0, 40, 30);
  settled_child("second", parent, 10, 10, 40, 30);
  recorder().only({WM_WINDOWPOSCHANGING, WM_WINDOWPOSCHANGED, WM_CHILDACTIVATE});
  SetWindowPos(first, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  EXPECT_TRUE(log_is("first WM_WINDOWPOSCHANGING > WM_CHILDACTIVATE"));
}

TEST_F(MoveWindowTest, ShowAndHideFlags) {
  const HWND popup = create("pop", {});
  const UINT nothing = SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE;
  SetWindowPos(popup, nullptr, 0, 0, 0, 0, nothing | SWP_SHOWWINDOW);
  EXPECT_NE(IsWindowVisible(popup), 0);
  SetWindowPos(popup, nullptr, 0, 0, 0, 0, nothing | SWP_HIDEWINDOW);
  EXPECT_EQ(IsWindowVisible(popup), 0);
}

TEST_F(MoveWindowTest, RaisedSiblingCoversTheOthers) {
  const HWND parent = settled_popup("parent", 0, 0, 200, 200);
  const HWND first = settled_child("first", parent, 0, 0, 40, 40);
  const HWND second = settled_child("second", parent, 0, 0, 40, 40);
  EXPECT_EQ(WindowFromPoint({5, 5}), first);
  SetWindowPos(second, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(WindowFromPoint({5, 5}), second);
  SetWindowPos(second, HWND_BOTTOM, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(WindowFromPoint({5, 5}), first);
  SetWindowPos(first, second, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(WindowFromPoint({5, 5}), second);
}

TEST_F(MoveWindowTest, OwnedWindowsStayAboveTheirOwner) {
  const HWND owner = settled_popup("owner", 0, 0, 50, 50);
  const HWND owned = settled_popup("owned", 0, 0, 50, 50, owner);
  const HWND other = settled_popup("other", 0, 0, 50, 50);
  SetWindowPos(owner, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(WindowFromPoint({5, 5}), owned);
  SetWindowPos(other, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  EXPECT_EQ(WindowFromPoint({5, 5}), other);
  SetActiveWindow(owner);
  EXPECT_EQ(WindowFromPoint({5, 5}), owned) << "also after the owner is activated";
  BringWindowToTop(owner);
  EXPECT_EQ(WindowFromPoint({5, 5}), owned);
  EXPECT_EQ(GetWindow(owned, GW_HWNDNEXT), owner);
}

struct StyleChange {
  int index;
  LONG added;
};

class StyleChangeTest : public WindowTest, public testing::WithParamInterface<StyleChange> {};

TEST_P(StyleChangeTest, IsAnnouncedAlsoWhenNothingChangesAndPaintsNothing) {
  const HWND popup = settled_popup("pop", 0, 0, 50, 50);
  const auto [index, added] = GetParam();
  const LONG old = GetWindowLongW(popup, index);
  const std::string pair = "pop WM_STYLECHANGING " + std::to_string(index) + " > WM_STYLECHANGED " +
                           std::to_string(index);
  EXPECT_EQ(SetWindowLongW(popup, index, old | added), old);
  pump();
  EXPECT_TRUE(log_is(pair));
  EXPECT_EQ(GetWindowLongW(popup, index), old | added);
  recorder().clear();
  EXPECT_EQ(SetWindowLongW(popup, index, old | added), old | added);
  pump();
  EXPECT_TRUE(log_is(pair));
}

INSTANTIATE_TEST_SUITE_P(, StyleChangeTest,
                         testing::Values(StyleChange{GWL_STYLE, static_cast<LONG>(WS_CLIPCHILDREN)},
                                         StyleChange{GWL_EXSTYLE, WS_EX_NOACTIVATE}));

TEST_F(MoveWindowTest, PointsAreMappedBetweenWindows) {
  const HWND parent = settled_popup("parent", 100, 50, 200, 200);
  const HWND child = settled_child("child", parent, 10, 20, 40, 30);
  POINT point{3, 4};
  EXPECT_NE(ClientToScreen(child, &point), 0);
  EXPECT_EQ(point.x, 113);
  EXPECT_EQ(point.y, 74);
  EXPECT_NE(ScreenToClient(parent, &point), 0);
  EXPECT_EQ(point.x, 13);
  EXPECT_EQ(point.y, 24);
  RECT rect{0, 0, 40, 30};
  MapWindowPoints(child, parent, reinterpret_cast<POINT*>(&rect), 2);
  EXPECT_EQ(text_of(rect), "10,20,50,50");
  MapWindowPoints(parent, nullptr, reinterpret_cast<POINT*>(&rect), 2);
  EXPECT_EQ(text_of(rect), "110,70,150,100");
}

}  // namespace
}  // namespace corvane::conformance
