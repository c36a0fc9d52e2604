// Frames worked with the mouse.
#include "tests/platform/conformance/support/window_test.h"
#include "tests/support/own_system.h"

namespace corvane::conformance {
namespace {

using system::CursorShape;

// The window lies at 100,100 to 500,400; its frame is 4 wide, its caption's boxes end at x 495.
constexpr POINT kCaption{200, 110};
constexpr POINT kClose{480, 110};
constexpr POINT kMaximize{455, 110};
constexpr POINT kMinimize{430, 110};

class FrameMouseTest : public WindowTest {
 protected:
  FrameMouseTest() {
    settle();
    recorder().only({WM_NCLBUTTONDOWN, WM_NCLBUTTONDBLCLK, WM_NCLBUTTONUP, WM_LBUTTONUP,
                     WM_SYSCOMMAND, WM_GETMINMAXINFO, WM_ENTERSIZEMOVE, WM_EXITSIZEMOVE, WM_MOVING,
                     WM_SIZING, WM_MOVE, WM_SIZE, WM_CLOSE, WM_CAPTURECHANGED, WM_SHOWWINDOW,
                     WM_ACTIVATE});
  }
  // All of it is in the queue before the press is dispatched, which begins no double-click.
  void drag(POINT from, POINT to, int key = 0) {
    advance(2 * GetDoubleClickTime());
    move_to(from);
    forget();
    send_mouse(MOUSEEVENTF_LEFTDOWN);
    SetCursorPos(to.x, to.y);
    if (key != 0) send_key(key, true);
    send_mouse(MOUSEEVENTF_LEFTUP);
    pump();
    if (key != 0) key_up(key);
  }

  const HWND window_ =
      create("framed", {.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, .place = {100, 100, 400, 300}});
};

TEST_F(FrameMouseTest, CursorShowsWhatTheSideDoes) {
  struct Place {
    POINT point;
    CursorShape shape;
  };
  for (const Place& each :
       {Place{{101, 200}, CursorShape::size_we}, Place{{499, 200}, CursorShape::size_we},
        Place{{300, 100}, CursorShape::size_ns}, Place{{300, 399}, CursorShape::size_ns},
        Place{{100, 100}, CursorShape::size_nwse}, Place{{499, 399}, CursorShape::size_nwse},
        Place{{499, 100}, CursorShape::size_nesw}, Place{{100, 399}, CursorShape::size_nesw},
        Place{kCaption, CursorShape::arrow}, Place{kClose, CursorShape::arrow}}) {
    SetCursor(LoadCursorW(nullptr, IDC_WAIT));
    move_to(each.point);
    EXPECT_EQ(own().display.cursor(), each.shape) << text_of(each.point);
  }
}

TEST_F(FrameMouseTest, CaptionMovesAndSidesSize) {
  drag(kCaption, {220, 105});
  step("the caption");
  drag({220, 105}, {240, 300}, VK_ESCAPE);
  step("given up");
  drag({120, 200}, {130, 250});
  drag({519, 394}, {529, 404});
  step("left, then the corner at the right and below");
  recorder().on("framed", WM_SIZING, [](const Message& sent) -> std::optional<LRESULT> {
    reinterpret_cast<RECT*>(sent.lparam)->bottom = 333;
    return TRUE;
  });
  drag({300, 404}, {300, 380});
  step("its handler may change the rectangle");
}

TEST_F(FrameMouseTest, SidesStopAtTheSmallestSize) {
  drag({100, 200}, {900, 200});
  EXPECT_THAT(window_rect(window_), test::is_rect(388, 100, 500, 400));
  recorder().on("framed", WM_GETMINMAXINFO, [](const Message& sent) -> std::optional<LRESULT> {
    reinterpret_cast<MINMAXINFO*>(sent.lparam)->ptMaxTrackSize = {300, 310};
    return 0;
  });
  drag({388, 399}, {0, 700});
  EXPECT_THAT(window_rect(window_), test::is_rect(200, 100, 500, 410));
  forget();
}

// The native window's capture goes on outside of it.
TEST_F(FrameMouseTest, PointerBeyondTheScreenDragsNoFurtherThanItsEdge) {
  move_to(kCaption);
  send_mouse(MOUSEEVENTF_LEFTDOWN);
  system::InputEvent event;
  event.position = {-5000, 9000};
  own().display.push(event);
  event.kind = system::InputKind::mouse_button;
  event.button = VK_LBUTTON;
  own().display.push(event);
  pump();
  EXPECT_THAT(window_rect(window_), test::is_rect(-100, 789, 300, 1089));
  forget();
}

TEST_F(FrameMouseTest, BoxesActWhenTheyAreReleasedOnThem) {
  recorder().on("framed", WM_CLOSE, [](const Message&) -> std::optional<LRESULT> { return 0; });
  drag(kClose, {300, 300});
  step("released elsewhere");
  drag(kClose, kClose, VK_ESCAPE);
  step("given up");
  drag(kClose, {490, 112});
  step("close");
  drag(kMaximize, kMaximize);
  EXPECT_NE(IsZoomed(window_), 0);
  step("maximize");
  drag({1240, 10}, {1240, 10});
  EXPECT_EQ(IsZoomed(window_), 0);
  step("restore");
  recorder().remove_hooks();
  drag(kClose, kClose);
  EXPECT_EQ(IsWindow(window_), 0);
  step("closed for good");
}

TEST_F(FrameMouseTest, PressedBoxLooksPressedWhileThePointerIsOnIt) {
  const auto box = [this] { return frame().at(490, 106); };
  const COLORREF plain = box();
  std::vector<COLORREF> seen;
  recorder().on("framed", WM_NCHITTEST, [&](const Message&) -> std::optional<LRESULT> {
    if (GetCapture() == window_) seen.push_back(box());
    return std::nullopt;
  });
  recorder().answer("framed", WM_CLOSE, 0);
  move_to(kClose);
  for (const POINT point : {kClose, POINT{300, 300}, kClose}) {
    send_mouse(MOUSEEVENTF_LEFTDOWN);
    SetCursorPos(point.x, point.y);
  }
  send_mouse(MOUSEEVENTF_LEFTUP);
  pump();
  const COLORREF pressed = GetSysColor(COLOR_HIGHLIGHT);
  EXPECT_EQ(plain, GetSysColor(COLOR_ACTIVECAPTION));
  ASSERT_GE(seen.size(), 5U);
  EXPECT_EQ(seen[1], pressed);
  EXPECT_EQ(seen[seen.size() - 3], plain);
  EXPECT_EQ(seen.back(), pressed);
  EXPECT_EQ(box(), plain);
  forget();
}

TEST_F(FrameMouseTest, DoubleClickOnTheCaptionMaximizesWhereThereIsABox) {
  double_click(kCaption);
  step("maximized");
  double_click({200, 10});
  step("restored");
  SetWindowLongW(window_, GWL_STYLE, static_cast<LONG>(WS_CAPTION | WS_VISIBLE));
  forget();
  double_click(kCaption);
  EXPECT_EQ(IsZoomed(window_), 0);
  forget();
}

TEST_F(FrameMouseTest, MaximizedWindowIsNeitherDraggedNorSized) {
  ShowWindow(window_, SW_MAXIMIZE);
  const RECT whole = window_rect(window_);
  EXPECT_THAT(whole, test::is_rect(-4, -4, 1284, 804));
  drag({200, 10}, {300, 300});
  SendMessageW(window_, WM_SYSCOMMAND, SC_SIZE | WMSZ_RIGHT, 0);
  EXPECT_THAT(window_rect(window_), test::same_rect(whole));
  own().display.resize({900, 700});
  pump();
  EXPECT_THAT(window_rect(window_), test::is_rect(-4, -4, 904, 704)) << "it follows the screen";
  POINT largest{400, 300};
  recorder().on("framed", WM_GETMINMAXINFO, [&](const Message& sent) -> std::optional<LRESULT> {
    reinterpret_cast<MINMAXINFO*>(sent.lparam)->ptMaxSize = largest;
    return 0;
  });
  own().display.resize({1000, 800});
  pump();
  EXPECT_THAT(window_rect(window_), test::is_rect(-4, -4, 396, 296)) << "as large as it may be";
  ShowWindow(window_, SW_SHOWNORMAL);
  EXPECT_THAT(window_rect(window_), test::is_rect(100, 100, 500, 400));
  largest = {32767, 32767};
  ShowWindow(window_, SW_MAXIMIZE);
  EXPECT_EQ(IsZoomed(window_), 0) << "no memory can hold it";
  EXPECT_THAT(window_rect(window_), test::is_rect(100, 100, 500, 400));
  forget();
}

TEST_F(FrameMouseTest, MinimizedWindowIsACaptionAndTakesItsOwnedWindowsAlong) {
  const HWND owned = settled_popup("owned", 600, 100, 50, 50, window_);
  const HWND other = settled_popup("other", 700, 100, 50, 50);
  drag(kMinimize, kMinimize);
  step("minimized");
  EXPECT_NE(IsIconic(window_), 0);
  EXPECT_EQ(IsWindowVisible(owned), 0);
  const HWND second = create("second", {.style = WS_OVERLAPPEDWINDOW | WS_MINIMIZE | WS_VISIBLE});
  EXPECT_THAT(window_rect(second), test::is_rect(160, 775, 320, 800));
  own().display.resize({170, 600});
  pump();
  EXPECT_THAT(window_rect(window_), test::is_rect(0, 575, 160, 600));
  EXPECT_THAT(window_rect(second), test::is_rect(0, 550, 160, 575)) << "one above the other";
  own().display.resize({1280, 800});
  pump();
  DestroyWindow(second);
  forget();
  double_click(30, 790);
  step("a double-click brings it back");
  EXPECT_NE(IsWindowVisible(owned), 0);
  ShowWindow(window_, SW_MAXIMIZE);
  ShowWindow(window_, SW_MINIMIZE);
  ShowWindow(window_, SW_RESTORE);
  EXPECT_NE(IsZoomed(window_), 0) << "as it was before";
  DestroyWindow(other);
  forget();
}

TEST_F(FrameMouseTest, HandlersMayEndTheWindowAndTheDesktopHasNoFrame) {
  EXPECT_EQ(DefWindowProcW(GetDesktopWindow(), WM_SYSCOMMAND, SC_MOVE | HTCAPTION, 0), 0);
  for (const UINT message : {WM_ENTERSIZEMOVE, WM_SIZING, WM_GETMINMAXINFO, WM_SIZE}) {
    const HWND each =
        create("each", {.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE, .place = {700, 100, 200, 200}});
    pump();
    recorder().before_default("each", message, [each] { DestroyWindow(each); });
    drag({899, 299}, {950, 350});
    EXPECT_EQ(IsWindow(each), 0) << message;
    recorder().remove_hooks();
  }
  forget();
}

}  // namespace
}  // namespace corvane::conformance
