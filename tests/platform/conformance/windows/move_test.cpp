// MoveWindow and SetWindowPos: messages and rectangles.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

constexpr UINT kOnlyOrder = SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE;
constexpr UINT kNothing = kOnlyOrder | SWP_NOZORDER;

class MoveWindowTest : public WindowTest {
 protected:
  const HWND parent_ = settled_popup("parent", 100, 100, 300, 200);
  const HWND child_ = settled_child("child", parent_, 10, 20, 40, 30);
};

TEST_F(MoveWindowTest, ObservedForAVisibleChild) {
  struct Move {
    const char* label;
    RECT to;  // left, top, width, height
    BOOL repaint;
  };
  for (const Move& move :
       {Move{"unchanged", {10, 20, 40, 30}, TRUE},
        Move{"unchanged quietly", {10, 20, 40, 30}, FALSE}, Move{"moved", {25, 26, 40, 30}, TRUE},
        Move{"sized", {10, 20, 41, 33}, TRUE}, Move{"both", {-5, -6, 70, 80}, TRUE},
        Move{"both quietly", {1, 2, 3, 4}, FALSE}}) {
    MoveWindow(child_, 10, 20, 40, 30, TRUE);
    settle();
    now_and_later(move.label, MoveWindow(child_, move.to.left, move.to.top, move.to.right,
                                         move.to.bottom, move.repaint));
  }
}

TEST_F(MoveWindowTest, ObservedForAHiddenWindow) {
  const HWND popup = create("pop", {.place = {.width = 40, .height = 30}});
  settle();
  MoveWindow(popup, 5, 6, 50, 60, TRUE);
  pump_step("it is told the same but paints nothing");
  MoveWindow(popup, 5, 6, -10, -20, TRUE);
  pump_step("negative sizes become zero");
}

TEST_F(MoveWindowTest, WindowsWithAFrameHaveTheirSizeLimited) {
  recorder().only({WM_GETMINMAXINFO});
  for (const DWORD style : {WS_POPUP, WS_CAPTION, WS_POPUP | WS_THICKFRAME}) {
    const HWND sized = create("sized", {.style = style, .place = {.width = 320, .height = 250}});
    recorder().on("sized", WM_GETMINMAXINFO, [](const Message& sent) -> std::optional<LRESULT> {
      auto& info = *reinterpret_cast<MINMAXINFO*>(sent.lparam);
      info.ptMinTrackSize = {300, 200};
      info.ptMaxTrackSize.x = 500;
      return 0;
    });
    forget();
    MoveWindow(sized, 0, 0, 100, 100, TRUE);
    step("small");
    MoveWindow(sized, 0, 0, 700, 900, TRUE);
    step("large");
    SetWindowPos(sized, nullptr, 5, 5, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    step("moved");
  }
}

TEST_F(MoveWindowTest, OrderThatStaysIsMarked) {
  recorder().only({WM_WINDOWPOSCHANGED});
  SetWindowPos(child_, HWND_TOP, 1, 2, 40, 30, SWP_NOACTIVATE);
  step("on top already");
}

TEST_F(MoveWindowTest, HandlersMayChangeWhatHappens) {
  recorder().answer("parent", WM_WINDOWPOSCHANGED, 0);
  recorder().only({WM_MOVE, WM_SIZE});
  MoveWindow(parent_, 5, 5, 60, 60, TRUE);
  pump_step("move and size come from the default handling");
  recorder().on("child", WM_WINDOWPOSCHANGING, [](const Message& sent) -> std::optional<LRESULT> {
    reinterpret_cast<WINDOWPOS*>(sent.lparam)->x = 77;
    return 0;
  });
  MoveWindow(child_, 5, 5, 60, 60, TRUE);
  pump_step("the position is changed before");
  recorder().before_default("child", WM_CHILDACTIVATE, [&] { DestroyWindow(child_); });
  step("the window is gone", SetWindowPos(child_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
}

TEST_F(MoveWindowTest, MovedChildKeepsItsPixelsAndTheParentPaintsTheGap) {
  paint_patches("child", {{{0, 0, 40, 30}, RGB(200, 0, 0)}});
  InvalidateRect(child_, nullptr, TRUE);
  settle();
  recorder().only({WM_PAINT, WM_ERASEBKGND});
  MoveWindow(child_, 100, 20, 40, 30, TRUE);
  pump_step("");
  EXPECT_EQ(pixel(205, 125), RGB(200, 0, 0));
  EXPECT_EQ(pixel(115, 125), kWhite);
}

TEST_F(MoveWindowTest, NewSizePaintsTheNewPartOrEverything) {
  struct Size {
    int width, height;
    UINT class_style;
  };
  for (const Size& size :
       {Size{60, 30, 0}, Size{40, 50, 0}, Size{60, 50, 0}, Size{20, 10, 0},
        Size{60, 30, CS_HREDRAW}, Size{20, 30, CS_HREDRAW}, Size{40, 50, CS_HREDRAW},
        Size{40, 50, CS_VREDRAW}, Size{40, 10, CS_VREDRAW}, Size{60, 30, CS_VREDRAW},
        Size{20, 10, CS_HREDRAW | CS_VREDRAW}, Size{60, 30, CS_HREDRAW | CS_VREDRAW}}) {
    const HWND window = create("sized", {.parent = parent_,
                                         .style = WS_CHILD | WS_VISIBLE,
                                         .place = {.width = 40, .height = 30},
                                         .class_style = size.class_style});
    settle();
    recorder().only({WM_PAINT, WM_ERASEBKGND});
    recorder().only_windows({"sized"});
    MoveWindow(window, 0, 0, size.width, size.height, TRUE);
    pump_step(std::to_string(size.width) + "x" + std::to_string(size.height) + " of class style " +
              std::to_string(size.class_style));
    DestroyWindow(window);
  }
}

TEST_F(MoveWindowTest, GrowingClipsTheOldPartOut) {
  std::vector<BOOL> visible;
  recorder().on_paint("child", [&](const PAINTSTRUCT& paint) {
    for (const RECT& rect : {RECT{0, 0, 40, 30}, RECT{50, 5, 55, 10}, RECT{5, 40, 10, 45}}) {
      visible.push_back(RectVisible(paint.hdc, &rect) != 0);
    }
  });
  MoveWindow(child_, 0, 0, 60, 50, TRUE);
  pump();
  EXPECT_EQ(visible, (std::vector<BOOL>{0, 1, 1}));
}

TEST_F(MoveWindowTest, ChangesNeitherVisibilityNorOrderNorActivation) {
  const HWND hidden = create("hidden", {});
  settled_popup("upper", 0, 0, 50, 50);
  recorder().only({WM_ACTIVATE, WM_PAINT, WM_ERASEBKGND});
  MoveWindow(hidden, 1, 1, 60, 60, TRUE);
  MoveWindow(parent_, 1, 1, 310, 210, TRUE);
  pump_step("");
}

TEST_F(MoveWindowTest, ObservedFlagsOfSetWindowPos) {
  struct Position {
    const char* label;
    UINT flags;
  };
  settled_child("above", parent_, 0, 0, 20, 20);
  recorder().ignore({WM_PAINT, WM_ERASEBKGND, WM_NCPAINT});
  for (const Position& position :
       {Position{"frame changed", kNothing | SWP_FRAMECHANGED}, Position{"nothing", kNothing},
        Position{"lowered", kOnlyOrder}, Position{"hidden", kNothing | SWP_HIDEWINDOW},
        Position{"shown", kNothing | SWP_SHOWWINDOW}}) {
    now_and_later(position.label, SetWindowPos(child_, HWND_BOTTOM, 0, 0, 0, 0, position.flags));
  }
  step("raised", SetWindowPos(child_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
  step("raised again", SetWindowPos(child_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE));
}

TEST_F(MoveWindowTest, StyleChangeIsAnnouncedAlsoWhenNothingChangesAndPaintsNothing) {
  for (const auto& [index, added] : {std::pair{GWL_STYLE, static_cast<LONG>(WS_CLIPCHILDREN)},
                                     std::pair{GWL_EXSTYLE, static_cast<LONG>(WS_EX_NOACTIVATE)}}) {
    const LONG old = GetWindowLongW(parent_, index);
    for (const LONG before : {old, old | added}) {
      EXPECT_EQ(SetWindowLongW(parent_, index, old | added), before);
      pump_step(std::string(index == GWL_STYLE ? "style" : "extended style") +
                (before == old ? "" : " again"));
    }
  }
}

TEST_F(MoveWindowTest, PointsAreMappedBetweenWindows) {
  POINT point{3, 4};
  EXPECT_NE(ClientToScreen(child_, &point), 0);
  EXPECT_EQ(text_of(point), "113,124");
  EXPECT_NE(ScreenToClient(parent_, &point), 0);
  EXPECT_EQ(text_of(point), "13,24");
  RECT rect{0, 0, 40, 30};
  MapWindowPoints(child_, parent_, reinterpret_cast<POINT*>(&rect), 2);
  EXPECT_EQ(text_of(rect), "10,20,50,50");
  MapWindowPoints(parent_, nullptr, reinterpret_cast<POINT*>(&rect), 2);
  EXPECT_EQ(text_of(rect), "110,120,150,150");
}

}  // namespace
}  // namespace corvane::conformance
