// A whole crop as a user does it: the picture is known, the mouse is real, and the screen is read.
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "corvane/frame/layer_messages.h"
#include "corvane/platform/base_services/set_font.h"
#include "tests/layers/support/crop_scene.h"
#include "tests/support/source_folder.h"

namespace corvane::test {
namespace {

using corvane::CRect;
using corvane::WM_CUT_CMD;

constexpr int dimming = 120;
constexpr RECT middle = {150, 200, 550, 300};
constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF black = RGB(0, 0, 0);
constexpr COLORREF white = RGB(255, 255, 255);

class WholeCropTest : public CropTest {
 protected:
  COLORREF pixel(int x, int y) { return desktop_.pixel(on_screen(x, y)); }
  // What the overlay itself draws, in its own coordinates: a line of signs for each row, '#' green,
  // '.' black, ' ' white, which is clear.
  std::string layer_picture(const RECT& area) const {
    const HDC dc = ::GetDC(rect_layer());
    std::string text;
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x) {
        const COLORREF seen = ::GetPixel(dc, x, y);
        text += seen == green ? '#' : seen == black ? '.' : seen == white ? ' ' : '?';
      }
      text += '\n';
    }
    ::ReleaseDC(rect_layer(), dc);
    return text;
  }
  char layer_sign(int x, int y) const { return layer_picture({x, y, x + 1, y + 1})[0]; }
  bool has_green(const RECT& area) const {
    return layer_picture(area).find('#') != std::string::npos;
  }
};

TEST_F(WholeCropTest, CreationMakesTheWindowsOfAStack) {
  EXPECT_THAT(window_rect(rect_layer()), same_rect(host_place));
  EXPECT_FALSE(::IsWindowVisible(rect_layer()));
  EXPECT_FALSE(bar_is_shown());
  const auto attributes_of = [](HWND window) {
    std::tuple<COLORREF, BYTE, DWORD> found;
    auto& [key, alpha, flags] = found;
    ::GetLayeredWindowAttributes(window, &key, &alpha, &flags);
    return found;
  };
  EXPECT_EQ(attributes_of(background_), std::tuple(white, BYTE{1}, DWORD{LWA_ALPHA}));
  EXPECT_EQ(attributes_of(rect_layer()),
            std::tuple(white, BYTE{dimming}, DWORD{LWA_COLORKEY | LWA_ALPHA}));
  for (const HWND window : {background_.GetSafeHwnd(), rect_layer()}) {
    EXPECT_NE(::GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYERED, 0);
  }
  for (const HWND window : {rect_layer(), bar()}) {
    EXPECT_EQ(::GetClassLongPtrW(window, GCL_STYLE),
              ULONG_PTR{CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW});
    constexpr RECT dot = {0, 0, 1, 1};
    corvane::CBufferDC drawn;
    drawn.CreateBufferDC(nullptr, dot);
    ::FillRect(drawn, &dot,
               reinterpret_cast<HBRUSH>(::GetClassLongPtrW(window, GCLP_HBRBACKGROUND)));
    EXPECT_EQ(::GetPixel(drawn, 0, 0) & 0xFFFFFF, RGB(254, 254, 254)) << "white would be clear";
  }
}

TEST_F(WholeCropTest, TextRecognitionFromStartToEnd) {
  start(true, true);
  EXPECT_TRUE(has_green(middle)) << "the hint";
  drag({100, 80}, {400, 280});
  EXPECT_THAT(background_.GetCutRect(), is_rect(100, 80, 400, 280));
  EXPECT_FALSE(has_green({120, 100, 380, 260})) << "no hint in the frame";
  ASSERT_TRUE(bar_is_shown());
  const POINT corner = on_screen(400 - 150, 280);
  EXPECT_THAT(window_rect(bar()), is_rect(corner.x, corner.y, corner.x + 150, corner.y + 34));
  click_middle_of(desktop_, ::GetDlgItem(bar(), 5));
  const auto commands = host_.of(WM_CUT_CMD);
  ASSERT_EQ(commands.size(), 1U);
  EXPECT_EQ(commands[0].wparam, 5U);
  EXPECT_NE(background_.ShowWindow(SW_HIDE), 0);
  desktop_.pump();
  EXPECT_EQ(pixel(50, 50), picture_color(50, 50));
}

// The same text drawn here into a black picture of the same size.
TEST_F(WholeCropTest, HintIsBoldGreenAndInTheMiddle) {
  start(true, true);
  CRect client(0, 0, 700, 500);
  corvane::CBufferDC expected;
  expected.CreateBufferDC(nullptr, client);
  ::SetTextColor(expected, green);
  ::SetBkMode(expected, TRANSPARENT);
  {
    const corvane::CSetFont font(expected, 32, 0, 700, L"宋体");
    ::DrawTextW(expected, L"请按住鼠标左键框选识别文字", -1, client,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE);
  }
  const HDC hint = ::GetDC(rect_layer());
  int ink = 0;
  for (int y = 220; y < 280; ++y) {
    for (int x = 100; x < 600; ++x) {
      const COLORREF color = ::GetPixel(expected, x, y) & 0xFFFFFF;
      ASSERT_EQ(::GetPixel(hint, x, y), color) << x << ", " << y;
      ink += color != black;
    }
  }
  ::ReleaseDC(rect_layer(), hint);
  EXPECT_GT(ink, 2000);
}

TEST_F(WholeCropTest, FrameIsClearWithAGreenOutlineAndEightHandlesInADimmedPicture) {
  start(false);
  EXPECT_FALSE(has_green(middle)) << "no hint in normal mode";
  drag({20, 15}, {61, 46});
  EXPECT_EQ(layer_picture({12, 8, 69, 53}), source_text("tests/layers/crop_frame.txt"));
  for (const auto& [x, y] : {std::pair{0, 0}, {699, 0}, {0, 499}, {699, 499}}) {
    EXPECT_EQ(layer_sign(x, y), '.') << x << ", " << y;
    const COLORREF seen = pixel(x, y), picture = picture_color(x, y);
    EXPECT_NEAR(GetRValue(seen), GetRValue(picture) * (255 - dimming) / 255, 1);
    EXPECT_NEAR(GetBValue(seen), GetBValue(picture) * (255 - dimming) / 255, 1);
  }
  EXPECT_NEAR(GetRValue(pixel(30, 30)), GetRValue(picture_color(30, 30)), 1);
  EXPECT_NEAR(GetBValue(pixel(30, 30)), GetBValue(picture_color(30, 30)), 1);
}

TEST_F(WholeCropTest, FrameIsDrawnOnAnyDeviceContextAndLeavesItsPen) {
  const HDC dc = ::GetDC(host_);
  const HGDIOBJ pen = ::GetCurrentObject(dc, OBJ_PEN);
  corvane::CCutRectLayer layer;
  layer.DrawGreenFrame(dc);
  EXPECT_EQ(::GetPixel(dc, 3, 3), green) << "the handles around (0, 0)";
  EXPECT_EQ(::GetCurrentObject(dc, OBJ_PEN), pen);
  ::ReleaseDC(host_, dc);
}

TEST_F(WholeCropTest, MouseInTheClearFrameMovesItAndItsBar) {
  start();
  drag({100, 80}, {400, 280});
  ASSERT_TRUE(bar_is_shown());
  const COLORREF button = pixel(400 - 175, 285);
  const POINT inside = on_screen(300, 150);
  EXPECT_EQ(::WindowFromPoint(inside), background_.GetSafeHwnd()) << "through the clear frame";
  EXPECT_EQ(::WindowFromPoint(on_screen(50, 50)), rect_layer());
  desktop_.press_at(inside);
  desktop_.move_to(on_screen(310, 160));
  EXPECT_THAT(background_.GetCutRect(), is_rect(110, 90, 410, 290));
  EXPECT_EQ(layer_sign(408, 200), ' ');
  EXPECT_EQ(layer_sign(103, 200), '.') << "where it was";
  const POINT corner = on_screen(410 - 180, 290);
  EXPECT_THAT(window_rect(bar()), is_rect(corner.x, corner.y, corner.x + 180, corner.y + 32));
  EXPECT_EQ(pixel(410 - 175, 295), button);
  desktop_.release();
  EXPECT_TRUE(bar_is_shown());
  EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(WholeCropTest, CursorTellsWhatADragWouldDo) {
  start(false);
  drag({100, 80}, {400, 280});
  const std::vector<std::pair<POINT, LPCWSTR>> cases = {
      {{50, 50}, IDC_CROSS}, {{400, 80}, IDC_SIZENESW}, {{300, 150}, IDC_SIZEALL}};
  for (const auto& [point, shape] : cases) {
    desktop_.move_to(on_screen(point.x, point.y));
    EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, shape)) << point.x << ", " << point.y;
  }
  background_.ShowWindow(SW_SHOW);
  desktop_.press();
  EXPECT_EQ(::GetCursor(), ::LoadCursorW(nullptr, IDC_CROSS)) << "there is no frame any more";
}

TEST_F(WholeCropTest, BarComesOnlyAfterANewFrameAndOnlyWhenItIsUsed) {
  start();
  for (const int left : {600, 500}) {
    desktop_.press_at(on_screen(left, 450));
    desktop_.move_to(on_screen(755, 570));
    EXPECT_FALSE(bar_is_shown());
    desktop_.release();
    EXPECT_THAT(background_.GetCutRect(), is_rect(left, 450, 755, 569)) << "to the screen's end";
    EXPECT_TRUE(bar_is_shown());
    EXPECT_EQ(window_rect(bar()).bottom, host_place.bottom) << "lifted at the bottom";
  }
  desktop_.click(on_screen(300, 200));
  EXPECT_THAT(background_.GetCutRect(), is_rect(300, 200, 300, 200)) << "a click frames nothing";
  EXPECT_FALSE(bar_is_shown());
  background_.ShowBtn(0);
  drag({100, 80}, {400, 280});
  EXPECT_FALSE(bar_is_shown());
  background_.ShowBtn(1);
  drag({300, 150}, {310, 160});
  EXPECT_FALSE(bar_is_shown()) << "the frame is not a new one";
}

TEST_F(WholeCropTest, InvertedFrameIsNeitherCutOutNorOutlined) {
  start(false);
  drag({100, 80}, {400, 280});
  drag({100, 180}, {450, 180});
  EXPECT_THAT(background_.GetCutRect(), is_rect(450, 80, 400, 280));
  EXPECT_EQ(layer_picture({90, 70, 460, 290}).find_first_not_of(".\n"), std::string::npos);
}

TEST_F(WholeCropTest, ShowingAndHidingEmptyTheFrame) {
  EXPECT_EQ(background_.GetShowWindow(), 0);
  for (const int command : {SW_SHOW, SW_HIDE, SW_SHOWNA}) {
    start();
    drag({100, 80}, {400, 280});
    ASSERT_TRUE(bar_is_shown());
    background_.ShowWindow(command);
    EXPECT_EQ(background_.GetShowWindow(), command);
    EXPECT_THAT(background_.GetCutRect(), is_rect(0, 0, 0, 0));
    EXPECT_FALSE(bar_is_shown());
    EXPECT_EQ(::IsWindowVisible(rect_layer()) != 0, command != SW_HIDE);
  }
}

TEST_F(WholeCropTest, AFrameThatIsGoneIsNotSeenAnyMore) {
  const RECT everything = {0, 0, 700, 500};
  start();
  drag({100, 80}, {400, 280});
  background_.SetOCRMode(1);
  background_.ShowWindow(SW_SHOW);
  desktop_.pump();
  EXPECT_FALSE(has_green({90, 70, 140, 290}));
  EXPECT_TRUE(has_green(middle)) << "the hint is back";
  background_.SetOCRMode(0);
  drag({100, 80}, {400, 280});
  desktop_.click(on_screen(500, 400));
  EXPECT_FALSE(has_green(everything)) << "a click frames nothing";
}

TEST_F(WholeCropTest, ADragEndsWithItsCapture) {
  for (const bool hide : {true, false}) {
    start();
    desktop_.press_at(on_screen(hide ? 100 : 150, 80));
    desktop_.move_to(on_screen(400, 280));
    if (hide) {
      background_.ShowWindow(SW_HIDE);
    } else {
      ::SetCapture(host_);
    }
    EXPECT_EQ(bar_is_shown(), !hide) << "a frame that was drawn can be saved";
    EXPECT_EQ(::GetCapture(), hide ? nullptr : host_.GetSafeHwnd());
    ::ReleaseCapture();
    desktop_.release();
    EXPECT_EQ(bar_is_shown(), !hide);
    start();
    desktop_.move_to(on_screen(200, 200));
    EXPECT_THAT(background_.GetCutRect(), is_rect(0, 0, 0, 0)) << "hovering draws nothing";
  }
}

TEST_F(WholeCropTest, ABarThatIsShownStaysWithItsFrameAndGoesWithItsUse) {
  start();
  drag({100, 80}, {400, 280});
  const auto expect_bar = [this](POINT end, int width, int height) {
    EXPECT_THAT(window_rect(bar()), is_rect(end.x - width, end.y, end.x, end.y + height));
  };
  background_.SetOCRMode(1);
  expect_bar(on_screen(400, 280), 150, 34);
  background_.SetWindowPos(nullptr, 100, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  expect_bar({500, 330}, 150, 34);
  background_.SetWindowPos(nullptr, 0, 0, 700, 300, SWP_NOMOVE | SWP_NOZORDER);
  expect_bar({500, 350 - 34}, 150, 34);
  background_.ShowBtn(0);
  EXPECT_TRUE(bar_is_shown()) << "nothing is hidden at once";
  desktop_.press_at({300, 200});
  desktop_.move_to({310, 200});
  EXPECT_FALSE(bar_is_shown());
}

TEST_F(WholeCropTest, AHostMayFrameAPartItself) {
  start();
  background_.SetCutRect(CRect(300, 50, 600, 200));
  EXPECT_THAT(background_.GetCutRect(), is_rect(300, 50, 600, 200));
  EXPECT_TRUE(bar_is_shown());
  desktop_.pump();
  EXPECT_EQ(layer_sign(450, 100), ' ');
  drag({450, 100}, {460, 100});
  EXPECT_THAT(background_.GetCutRect(), is_rect(310, 50, 610, 200)) << "it is like a drawn one";
  background_.SetCutRect(CRect(5, 5, 5, 5));
  desktop_.pump();
  EXPECT_FALSE(bar_is_shown());
  EXPECT_EQ(layer_sign(450, 100), '.');
}

TEST_F(WholeCropTest, OnlyADragIsRepaintedAndNotBeforeTheNextTurn) {
  start();
  drag({100, 80}, {400, 280});
  const auto repaints = [this] {
    const bool waits = waits_for_paint(rect_layer());
    desktop_.pump();
    return waits;
  };
  background_.ShowBtn(0);
  background_.SetOCRMode(1);
  EXPECT_FALSE(repaints());
  background_.OnMouseMove(0, {50, 50});
  background_.OnLButtonDown(MK_LBUTTON, {300, 150});
  EXPECT_FALSE(repaints());
  background_.OnMouseMove(MK_LBUTTON, {310, 150});
  EXPECT_TRUE(repaints());
  background_.OnLButtonUp(0, {310, 150});
  EXPECT_FALSE(repaints());
  EXPECT_EQ(::SendMessageW(rect_layer(), WM_ERASEBKGND, 0, 0), 0) << "painting covers everything";
}

TEST_F(WholeCropTest, RectLayerFollowsTheBackground) {
  start();
  drag({100, 80}, {400, 280});
  background_.SetWindowPos(nullptr, 100, 50, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
  EXPECT_THAT(window_rect(rect_layer()), is_rect(100, 50, 800, 550));
  desktop_.pump();
  EXPECT_THAT(background_.GetCutRect(), is_rect(100, 80, 400, 280));
  EXPECT_EQ(layer_sign(300, 200), ' ') << "the frame goes along";
  EXPECT_EQ(pixel(10, 10), picture_color(10, 10)) << "no longer covered";
  background_.SetWindowPos(nullptr, 0, 0, 500, 400, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_THAT(window_rect(rect_layer()), is_rect(100, 50, 600, 450));
}

TEST_F(WholeCropTest, EscapeReachesTheHostOnceAndEnterNobody) {
  start(true, true);
  drag({100, 80}, {400, 280});
  for (const HWND focus :
       {background_.GetSafeHwnd(), rect_layer(), bar(), ::GetDlgItem(bar(), 5)}) {
    ::SetFocus(focus);
    desktop_.key(VK_ESCAPE);
    desktop_.key(VK_RETURN);
    EXPECT_THAT(desktop_.take_keys(),
                testing::ElementsAre(AppDesktop::Key(host_, WM_KEYDOWN, VK_ESCAPE)));
  }
}

TEST_F(WholeCropTest, WithoutItsWindowTheBackgroundStillAnswers) {
  background_.DestroyWindow();
  EXPECT_EQ(rect_layer_of(background_), nullptr);
  EXPECT_EQ(background_.ShowWindow(SW_SHOW), 0);
  EXPECT_EQ(background_.GetShowWindow(), SW_SHOW);
  background_.SetOCRMode(1);
  background_.OnLButtonDown(MK_LBUTTON, {1, 1});
  background_.OnMouseMove(MK_LBUTTON, {50, 50});
  background_.OnLButtonUp(0, {50, 50});
  EXPECT_THAT(background_.GetCutRect(), is_rect(0, 0, 0, 0));
}

TEST_F(WholeCropTest, BearsPointsFarOutsideTheScreen) {
  start();
  constexpr int lowest = std::numeric_limits<int>::min();
  constexpr int highest = std::numeric_limits<int>::max();
  const std::pair<POINT, POINT> drags[] = {{{lowest, lowest}, {highest, highest}},
                                           {{50, highest}, {lowest, 50}}};
  for (const auto& [from, to] : drags) {
    background_.OnLButtonDown(MK_LBUTTON, from);
    background_.OnMouseMove(MK_LBUTTON, to);
    desktop_.pump();
    background_.OnLButtonUp(0, to);
  }
  background_.ShowWindow(SW_SHOW);
  drag({100, 80}, {400, 280});
  EXPECT_EQ(layer_sign(300, 150), ' ');
}

TEST_F(WholeCropTest, BackgroundDeletedWhileItTakesTheCapture) {
  auto background = std::make_unique<corvane::CCutBgLayer>();
  ASSERT_TRUE(create_over(*background, host_));
  host_.on_message = [&](UINT message, WPARAM) {
    if (message == WM_CAPTURECHANGED) background.reset();
  };
  host_.SetCapture();
  background->OnLButtonDown(MK_LBUTTON, {10, 10});
  EXPECT_EQ(background, nullptr);
}

TEST_F(WholeCropTest, ManyCropsLeaveNothingBehind) {
  std::vector<std::pair<int, int>> left;
  for (int round = 0; round < 3; ++round) {
    start();
    drag({100, 80}, {400, 280});
    EXPECT_TRUE(bar_is_shown());
    background_.DestroyWindow();
    left.emplace_back(desktop_.living_windows(), desktop_.living_drawing_objects());
    ASSERT_TRUE(create_over(background_, host_));
  }
  EXPECT_EQ(left[2], left[1]);
}

}  // namespace
}  // namespace corvane::test
