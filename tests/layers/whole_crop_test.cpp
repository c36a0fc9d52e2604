// A whole crop as a user does it: the picture is known, the mouse is real, and the screen is read.
#include <algorithm>
#include <cstdlib>
#include <limits>
#include <memory>
#include <vector>

#include "corvane/frame/layer_messages.h"
#include "tests/layers/support/crop_scene.h"
#include "tests/support/own_system.h"

namespace corvane::test {
namespace {

using corvane::CRect;
using corvane::WM_CUT_CMD;
using corvane::system::CursorShape;

constexpr int dimming = 120;
constexpr int client_width = 700;
constexpr int client_height = 500;

int under_layer(int channel, int layer_channel) {
  return (layer_channel * dimming + channel * (255 - dimming) + 127) / 255;
}

// Where the overlay has this colour; the background at alpha 1 changes a channel by one at most.
bool is_near(COLORREF seen, COLORREF expected) {
  return std::max({std::abs(GetRValue(seen) - GetRValue(expected)),
                   std::abs(GetGValue(seen) - GetGValue(expected)),
                   std::abs(GetBValue(seen) - GetBValue(expected))}) <= 1;
}

testing::AssertionResult shows(COLORREF seen, COLORREF expected) {
  if (is_near(seen, expected)) return testing::AssertionSuccess();
  return testing::AssertionFailure() << std::hex << "shows " << seen << ", not " << expected;
}

COLORREF picture_under(int x, int y, COLORREF layer) {
  const COLORREF picture = picture_color(x, y);
  return RGB(under_layer(GetRValue(picture), GetRValue(layer)),
             under_layer(GetGValue(picture), GetGValue(layer)),
             under_layer(GetBValue(picture), GetBValue(layer)));
}

constexpr COLORREF green = RGB(0, 255, 0);
constexpr COLORREF black = RGB(0, 0, 0);

class WholeCropTest : public CropTest {
 protected:
  testing::AssertionResult is_dimmed(int x, int y) {
    return shows(pixel(x, y), picture_under(x, y, black));
  }
  testing::AssertionResult is_green(int x, int y) {
    return shows(pixel(x, y), picture_under(x, y, green));
  }
  testing::AssertionResult is_clear(int x, int y) {
    return shows(pixel(x, y), picture_color(x, y));
  }
  // `ink` becomes the smallest rectangle around them.
  int count_green(const CRect& area, CRect* ink = nullptr) {
    const Frame screen = desktop_.frame();
    int count = 0;
    CRect found;
    for (int y = area.top; y < area.bottom; ++y) {
      for (int x = area.left; x < area.right; ++x) {
        if (!is_near(screen.at(on_screen(x, y)), picture_under(x, y, green))) continue;
        ++count;
        found |= CRect(x, y, x + 1, y + 1);
      }
    }
    if (ink != nullptr) *ink = found;
    return count;
  }
  void click_button(int number) {
    const RECT place = window_rect(::GetDlgItem(bar(), number));
    desktop_.click((place.left + place.right) / 2, (place.top + place.bottom) / 2);
  }
};

TEST_F(WholeCropTest, CreationMakesTheWindowsOfAStack) {
  EXPECT_THAT(window_rect(rect_layer()), same_rect(host_place));
  EXPECT_FALSE(::IsWindowVisible(rect_layer()));
  EXPECT_FALSE(bar_is_shown());
  EXPECT_EQ(background_.GetExStyle() & (WS_EX_LAYERED | WS_EX_APPWINDOW), DWORD{WS_EX_LAYERED});
  struct Attributes {
    COLORREF key;
    BYTE alpha;
    DWORD flags;
  };
  const auto attributes_of = [](HWND window) {
    Attributes found{};
    ::GetLayeredWindowAttributes(window, &found.key, &found.alpha, &found.flags);
    return found;
  };
  EXPECT_EQ(attributes_of(background_).alpha, 1);
  EXPECT_EQ(attributes_of(background_).flags, DWORD{LWA_ALPHA});
  EXPECT_EQ(attributes_of(rect_layer()).key, 0xFFFFFFU);
  EXPECT_EQ(attributes_of(rect_layer()).alpha, dimming);
  EXPECT_EQ(attributes_of(rect_layer()).flags, DWORD{LWA_COLORKEY | LWA_ALPHA});
  constexpr UINT redrawn_with_double_clicks = CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW;
  for (const HWND window : {rect_layer(), bar()}) {
    EXPECT_EQ(::GetClassLongPtrW(window, GCL_STYLE), redrawn_with_double_clicks);
  }
}

TEST_F(WholeCropTest, TextRecognitionFromStartToEnd) {
  start(true, true);
  EXPECT_TRUE(is_dimmed(5, 5));
  EXPECT_GT(count_green(CRect(150, 200, 550, 300)), 500) << "the hint";
  drag({100, 80}, {400, 280});
  EXPECT_THAT(background_.GetCutRect(), is_rect(100, 80, 400, 280));
  EXPECT_EQ(count_green(CRect(120, 100, 380, 260)), 0) << "no hint in the frame";
  ASSERT_TRUE(bar_is_shown());
  const POINT corner = on_screen(400 - 150, 280);
  EXPECT_THAT(window_rect(bar()), is_rect(corner.x, corner.y, corner.x + 150, corner.y + 34));
  click_button(5);
  const auto commands = host_.of(WM_CUT_CMD);
  ASSERT_EQ(commands.size(), 1U);
  EXPECT_EQ(commands[0].wparam, 5U);
  EXPECT_EQ(commands[0].lparam, 0);
  EXPECT_THAT(background_.GetCutRect(), is_rect(100, 80, 400, 280));
  EXPECT_NE(background_.ShowWindow(SW_HIDE), 0);
  desktop_.pump();
  EXPECT_EQ(pixel(50, 50), picture_color(50, 50));
  EXPECT_THAT(background_.GetCutRect(), is_rect(0, 0, 0, 0));
  EXPECT_FALSE(bar_is_shown());
}

TEST_F(WholeCropTest, HintStandsInTheMiddle) {
  start(true, true);
  CRect ink;
  count_green(CRect(0, 0, client_width, client_height), &ink);
  EXPECT_NEAR(ink.left, client_width - ink.right, 8);
  EXPECT_NEAR(ink.top, client_height - ink.bottom, 8);
  EXPECT_GT(ink.Width(), 12 * ink.Height()) << "one line of thirteen characters";
  EXPECT_NEAR(ink.Height(), 30, 5) << "in a cell of 32 pixels";
}

TEST_F(WholeCropTest, NormalModeHasNoHint) {
  start();
  EXPECT_EQ(count_green(CRect(150, 200, 550, 300)), 0);
  drag({100, 80}, {400, 280});
  click_button(3);
  ASSERT_EQ(host_.count(WM_CUT_CMD), 1U);
  EXPECT_EQ(host_.of(WM_CUT_CMD)[0].wparam, 3U);
}

TEST_F(WholeCropTest, PictureIsDimmedAroundTheFrameAndUntouchedInIt) {
  start(false);
  drag({100, 80}, {400, 281});
  constexpr RECT frame = {100, 80, 400, 281};
  // Outline and handles touch nothing farther than this from an edge.
  constexpr int reach = corvane::CropFrame::kHandleReach + 1;
  int dimmed = 0, clear = 0;
  for (int y = 0; y < client_height; y += 3) {
    for (int x = 0; x < client_width; x += 3) {
      const CRect inner(frame.left + reach, frame.top + reach, frame.right - reach,
                        frame.bottom - reach);
      const CRect outer(frame.left - reach, frame.top - reach, frame.right + reach,
                        frame.bottom + reach);
      if (inner.PtInRect({x, y})) {
        ASSERT_TRUE(is_clear(x, y)) << x << ", " << y;
        ++clear;
      } else if (!outer.PtInRect({x, y})) {
        ASSERT_TRUE(is_dimmed(x, y)) << x << ", " << y;
        ++dimmed;
      }
    }
  }
  EXPECT_GT(clear, 5000);
  EXPECT_GT(dimmed, 20000);
}

TEST_F(WholeCropTest, FrameIsTwoPixelsWideWithEightHandles) {
  start(false);
  drag({100, 80}, {400, 280});
  struct Sample {
    int x, y;
    char look;  // green, clear or dimmed
  };
  const std::vector<Sample> samples = {
      // Across the top edge, the bottom edge, the left edge and the right edge.
      {180, 78, 'd'},
      {180, 79, 'g'},
      {180, 80, 'g'},
      {180, 81, 'c'},
      {180, 278, 'c'},
      {180, 279, 'g'},
      {180, 280, 'g'},
      {180, 281, 'd'},
      {98, 120, 'd'},
      {99, 120, 'g'},
      {100, 120, 'g'},
      {101, 120, 'c'},
      {398, 120, 'c'},
      {399, 120, 'g'},
      {400, 120, 'g'},
      {401, 120, 'd'},
      // The corners of handles: 8 x 8 pixels around their points.
      {96, 76, 'g'},
      {103, 83, 'g'},
      {95, 76, 'd'},
      {104, 83, 'c'},
      {103, 75, 'd'},
      {246, 76, 'g'},
      {253, 83, 'g'},
      {254, 83, 'c'},
      {245, 83, 'c'},
      {403, 76, 'g'},
      {404, 76, 'd'},
      {396, 176, 'g'},
      {403, 183, 'g'},
      {403, 184, 'd'},
      {395, 180, 'c'},
      {403, 283, 'g'},
      {404, 284, 'd'},
      {246, 283, 'g'},
      {246, 284, 'd'},
      {96, 283, 'g'},
      {96, 183, 'g'},
      {96, 184, 'd'}};
  for (const Sample& sample : samples) {
    const auto seen = sample.look == 'g'   ? is_green(sample.x, sample.y)
                      : sample.look == 'c' ? is_clear(sample.x, sample.y)
                                           : is_dimmed(sample.x, sample.y);
    EXPECT_TRUE(seen) << sample.look << " at " << sample.x << ", " << sample.y;
  }
}

TEST_F(WholeCropTest, MouseInTheClearFrameMovesIt) {
  start();
  drag({100, 80}, {400, 280});
  const POINT inside = on_screen(300, 150);
  EXPECT_EQ(::WindowFromPoint(inside), background_.GetSafeHwnd()) << "through the clear frame";
  EXPECT_EQ(::WindowFromPoint(on_screen(50, 50)), rect_layer());
  drag({300, 150}, {330, 140});
  EXPECT_THAT(background_.GetCutRect(), is_rect(130, 70, 430, 270));
  EXPECT_TRUE(is_clear(425, 200));
  EXPECT_TRUE(is_dimmed(105, 200)) << "where it was";
}

TEST_F(WholeCropTest, BarFollowsMovesAndIsHiddenWhileANewFrameIsDrawn) {
  start();
  drag({100, 80}, {400, 280});
  ASSERT_TRUE(bar_is_shown());
  desktop_.press_at(on_screen(300, 150));
  desktop_.move_to(on_screen(310, 160));
  const POINT corner = on_screen(410 - 180, 290);
  EXPECT_THAT(window_rect(bar()), is_rect(corner.x, corner.y, corner.x + 180, corner.y + 32));
  EXPECT_TRUE(bar_is_shown());
  desktop_.release();
  EXPECT_TRUE(bar_is_shown());
  desktop_.press_at(on_screen(600, 450));
  EXPECT_FALSE(bar_is_shown());
  desktop_.move_to(on_screen(500, 490));
  EXPECT_FALSE(bar_is_shown());
  desktop_.release();
  EXPECT_TRUE(bar_is_shown());
  EXPECT_EQ(window_rect(bar()).bottom, host_place.bottom) << "lifted at the bottom";
}

TEST_F(WholeCropTest, HandlesResize) {
  start(false);
  struct ResizeCase {
    POINT grip;
    RECT after;  // dragged by (-20, 10)
  };
  const std::vector<ResizeCase> cases = {
      {{100, 80}, {80, 90, 400, 280}},   {{250, 80}, {100, 90, 400, 280}},
      {{400, 80}, {100, 90, 380, 280}},  {{400, 180}, {100, 80, 380, 280}},
      {{400, 280}, {100, 80, 380, 290}}, {{250, 280}, {100, 80, 400, 290}},
      {{100, 280}, {80, 80, 400, 290}},  {{100, 180}, {80, 80, 400, 280}}};
  for (const ResizeCase& test : cases) {
    background_.ShowWindow(SW_SHOW);
    drag({100, 80}, {400, 280});
    drag(test.grip, {test.grip.x - 20, test.grip.y + 10});
    EXPECT_THAT(background_.GetCutRect(), same_rect(test.after));
  }
}

TEST_F(WholeCropTest, CursorTellsWhatADragWouldDo) {
  start(false);
  drag({100, 80}, {400, 280});
  const std::vector<std::pair<POINT, CursorShape>> cases = {
      {{50, 50}, CursorShape::cross},     {{100, 80}, CursorShape::size_nwse},
      {{250, 80}, CursorShape::size_ns},  {{400, 80}, CursorShape::size_nesw},
      {{400, 180}, CursorShape::size_we}, {{400, 280}, CursorShape::size_nwse},
      {{250, 280}, CursorShape::size_ns}, {{100, 280}, CursorShape::size_nesw},
      {{100, 180}, CursorShape::size_we}, {{300, 150}, CursorShape::size_all}};
  for (const auto& [point, shape] : cases) {
    desktop_.move_to(on_screen(point.x, point.y));
    EXPECT_EQ(desktop_.own().display.cursor(), shape) << point.x << ", " << point.y;
  }
}

TEST_F(WholeCropTest, DragGoesOnOutsideTheArea) {
  start();
  drag({600, 400}, {755, 570});
  EXPECT_THAT(background_.GetCutRect(), is_rect(600, 400, 755, 569)) << "the screen ends there";
  drag({600, 400}, {560, 390});
  EXPECT_EQ(background_.GetCutRect().left, 560);
}

TEST_F(WholeCropTest, ClickAloneFramesNothingAndShowsNoBar) {
  start();
  desktop_.click(on_screen(300, 200));
  EXPECT_THAT(background_.GetCutRect(), is_rect(300, 200, 300, 200));
  EXPECT_FALSE(bar_is_shown());
}

TEST_F(WholeCropTest, InvertedFrameIsNeitherCutOutNorOutlined) {
  start(false);
  drag({100, 80}, {400, 280});
  drag({100, 180}, {450, 180});
  EXPECT_THAT(background_.GetCutRect(), is_rect(450, 80, 400, 280));
  EXPECT_TRUE(is_dimmed(250, 180));
  EXPECT_TRUE(is_dimmed(425, 180));
  EXPECT_EQ(count_green(CRect(90, 70, 460, 290)), 0);
}

TEST_F(WholeCropTest, WithoutTheBarNothingShowsIt) {
  start(false);
  drag({100, 80}, {400, 280});
  EXPECT_FALSE(bar_is_shown());
}

TEST_F(WholeCropTest, ShowingAndHidingEmptyTheFrame) {
  EXPECT_EQ(background_.GetShowWindow(), 0);
  for (const int command : {SW_SHOW, SW_HIDE, SW_SHOWNA}) {
    start();
    drag({100, 80}, {400, 280});
    ASSERT_TRUE(bar_is_shown());
    background_.ShowWindow(command);
    desktop_.pump();
    EXPECT_EQ(background_.GetShowWindow(), command);
    EXPECT_THAT(background_.GetCutRect(), is_rect(0, 0, 0, 0));
    EXPECT_FALSE(bar_is_shown());
    EXPECT_EQ(::IsWindowVisible(rect_layer()) != 0, command != SW_HIDE);
  }
}

TEST_F(WholeCropTest, RectLayerFollowsTheBackground) {
  start();
  drag({100, 80}, {400, 280});
  background_.MoveWindow(100, 50, 500, 400, TRUE);
  desktop_.pump();
  EXPECT_THAT(window_rect(rect_layer()), is_rect(100, 50, 600, 450));
  EXPECT_THAT(background_.GetCutRect(), is_rect(100, 80, 400, 280));
  EXPECT_EQ(desktop_.pixel(110, 60), pixel(110 - host_place.left, 60 - host_place.top));
  // The picture stays, the frame goes along: (100, 80) of it is now at (200, 130) on the screen.
  EXPECT_TRUE(is_green(200 - host_place.left, 160 - host_place.top));
  EXPECT_TRUE(is_clear(300 - host_place.left, 200 - host_place.top));
  EXPECT_EQ(desktop_.pixel(50, 40), picture_color(10, 10)) << "no longer covered";
}

TEST_F(WholeCropTest, EscapeReachesTheHostOnceAndEnterNever) {
  start(true, true);
  drag({100, 80}, {400, 280});
  for (const HWND focus :
       {background_.GetSafeHwnd(), rect_layer(), bar(), ::GetDlgItem(bar(), 5)}) {
    ::SetFocus(focus);
    host_.forget();
    desktop_.key(VK_ESCAPE);
    desktop_.key(VK_RETURN);
    const auto downs = host_.of(WM_KEYDOWN);
    ASSERT_EQ(downs.size(), 1U);
    EXPECT_EQ(downs[0].wparam, static_cast<WPARAM>(VK_ESCAPE));
    EXPECT_EQ(host_.count(WM_KEYUP), 0U);
    EXPECT_EQ(host_.count(WM_CUT_CMD), 0U);
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
  const std::vector<corvane::CPoint> points = {{lowest, lowest}, {highest, highest}, {lowest, 50},
                                               {50, highest},    {-40000, 40000},    {50, 50}};
  for (const auto& from : points) {
    for (const auto& to : points) {
      background_.OnLButtonDown(MK_LBUTTON, from);
      background_.OnMouseMove(MK_LBUTTON, to);
      desktop_.pump();
      desktop_.frame();
      background_.OnLButtonUp(0, to);
      background_.OnMouseMove(0, {60, 60});
      desktop_.pump();
    }
  }
  background_.ShowWindow(SW_SHOW);
  drag({100, 80}, {400, 280});
  EXPECT_TRUE(is_clear(300, 150));
}

TEST_F(WholeCropTest, BackgroundDeletedWhileItTakesTheCapture) {
  auto background = std::make_unique<corvane::CCutBgLayer>();
  ASSERT_TRUE(create_over(*background, host_));
  host_.on_capture_lost = [&] { background.reset(); };
  host_.SetCapture();
  background->OnLButtonDown(MK_LBUTTON, {10, 10});
  EXPECT_EQ(background, nullptr);
}

TEST_F(WholeCropTest, ManyCropsOneAfterTheOther) {
  const int windows = desktop_.living_windows();
  for (int round = 0; round < 20; ++round) {
    background_.DestroyWindow();
    ASSERT_TRUE(create_over(background_, host_));
    start();
    drag({100, 80}, {400, 280});
    ASSERT_TRUE(bar_is_shown());
  }
  EXPECT_EQ(desktop_.living_windows(), windows);
}

}  // namespace
}  // namespace corvane::test
