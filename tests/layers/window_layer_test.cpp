#include "corvane/layers/buttons/window_layer.h"

#include <vector>

#include "corvane/frame/layer_messages.h"
#include "tests/layers/support/crop_scene.h"

namespace corvane::test {
namespace {

using corvane::CRect;
using corvane::CWindowLayer;
using corvane::CXmlListMgr;
using corvane::WM_LAYER_BTN_CLICK;

constexpr RECT layer_place = {20, 20, 320, 120};  // client coordinates of the host
constexpr POINT layer_corner = {60, 50};          // of the layer, on the screen
constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF blue = RGB(0, 0, 255);

POINT on_screen(int x, int y) { return {layer_corner.x + x, layer_corner.y + y}; }

class WindowLayerTest : public HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    lists_.Load({TestSkin::button_list});
  }

  void create(const std::vector<int>& ids) {
    layer_.SetXmlListMgr(&lists_);
    for (const int id : ids) layer_.AddBtn(id);
    create_window();
  }

  void create_window() {
    ASSERT_TRUE(layer_.CreateEx(0, nullptr, L"layer", WS_CHILD, layer_place, &host_, 0));
    layer_.ShowWindow(SW_SHOW);
    desktop_.pump();
    host_.forget();
  }

  // Presses the layer and drags what the press takes hold of.
  void drag_by_layer(POINT from, POINT to) {
    host_.on_message = [this, to](UINT message, WPARAM) {
      if (message != WM_ENTERSIZEMOVE) return;
      ::SetCursorPos(to.x, to.y);
      desktop_.send_mouse(MOUSEEVENTF_LEFTUP);
    };
    desktop_.press_at(from);
  }

  void resize_layer(int width, int height) {
    layer_.MoveWindow(layer_place.left, layer_place.top, width, height, TRUE);
    desktop_.pump();
  }

  LRESULT command(HWND sender) const {
    return layer_.SendMessageW(WM_COMMAND, 12, reinterpret_cast<LPARAM>(sender));
  }
  COLORREF background_pixel() { return desktop_.pixel(on_screen(200, 80)); }

  CXmlListMgr lists_;
  DWORD pixel_ = 0xFF0000FF;  // of the image, which is blue
  Gdiplus::Bitmap image_{1, 1, 4, PixelFormat32bppARGB, reinterpret_cast<BYTE*>(&pixel_)};
  CWindowLayer layer_;
};

TEST_F(WindowLayerTest, KeepsItsButtonsInAList) {
  EXPECT_EQ(layer_.AddBtn(11), 1);
  EXPECT_EQ(layer_.AddBtn(12), 2);
  EXPECT_EQ(layer_.AddBtn(11), 3);
  layer_.SetBtnRect(11, CRect(1, 2, 3, 4));
  layer_.SetBtnRect(99, CRect(5, 6, 7, 8));
  EXPECT_THAT(layer_.GetBtnRect(11), is_rect(1, 2, 3, 4));
  for (const int id : {12, 99}) EXPECT_THAT(layer_.GetBtnRect(id), is_rect(0, 0, 0, 0));
  layer_.DelAllBtn();
  EXPECT_EQ(layer_.AddBtn(12), 1);
}

TEST_F(WindowLayerTest, ButtonsComeFromTheSkin) {
  create({11, 12, 77});
  EXPECT_THAT(layer_.GetBtnRect(11), same_rect(TestSkin::button_11));
  EXPECT_THAT(layer_.GetBtnRect(12), same_rect(TestSkin::button_12));
  EXPECT_THAT(layer_.GetBtnRect(77), is_rect(0, 0, 0, 0)) << "not in the skin";
  const HWND button = ::GetDlgItem(layer_, 12);
  ASSERT_NE(button, nullptr);
  const POINT corner = on_screen(TestSkin::button_12.left, TestSkin::button_12.top);
  EXPECT_THAT(window_rect(button), is_rect(corner.x, corner.y, corner.x + 60, corner.y + 30));
  EXPECT_NE(desktop_.pixel(corner.x + 5, corner.y + 5), white) << "drawn at once";
  EXPECT_EQ(layer_.AddBtn(13), 4);
  EXPECT_EQ(::GetDlgItem(layer_, 13), nullptr) << "too late for a window";
}

TEST_F(WindowLayerTest, SetBtnRectMovesTheFirstButtonOfThatId) {
  create({11, 11});
  const HWND first = ::GetDlgItem(layer_, 11);
  layer_.SetBtnRect(11, CRect(200, 50, 240, 70));
  const POINT corner = on_screen(200, 50);
  EXPECT_THAT(window_rect(first), is_rect(corner.x, corner.y, corner.x + 40, corner.y + 20));
  desktop_.pump();
  EXPECT_NE(desktop_.pixel(corner.x + 5, corner.y + 5), white);
  desktop_.click(corner.x + 5, corner.y + 5);
  desktop_.click(on_screen(20, 20));  // the second stands where it stood
  const auto clicks = host_.of(WM_LAYER_BTN_CLICK);
  ASSERT_EQ(clicks.size(), 2U);
  for (const auto& click : clicks) EXPECT_EQ(click.wparam, 11U);
  EXPECT_EQ(clicks[0].lparam, reinterpret_cast<LPARAM>(first));
  EXPECT_NE(clicks[1].lparam, reinterpret_cast<LPARAM>(first));
  layer_.SetBtnRect(11, CRect(250, 50, 290, 70));
  desktop_.pump();
  EXPECT_EQ(desktop_.pixel(corner), white) << "no longer covered";
}

TEST_F(WindowLayerTest, AMovedButtonShowsWhatLiesBehindItsNewPlace) {
  DWORD halves[] = {0xFF0000FF, 0xFF00FF00};
  Gdiplus::Bitmap image(2, 1, 8, PixelFormat32bppARGB, reinterpret_cast<BYTE*>(halves));
  layer_.SetBgImage(&image, CRect());
  create({13});
  layer_.SetBtnRect(13, CRect(220, 50, 280, 90));
  desktop_.pump();
  EXPECT_EQ(desktop_.pixel(on_screen(222, 52)), desktop_.pixel(on_screen(222, 45)));
}

TEST_F(WindowLayerTest, ClickPostsOnceAndDragsNothing) {
  create({11, 12});
  EXPECT_EQ(command(nullptr), 0) << "commands of others are left to the default";
  EXPECT_EQ(command(host_), 0);
  const HWND button = ::GetDlgItem(layer_, 12);
  click_middle_of(desktop_, button);
  const auto clicks = host_.of(WM_LAYER_BTN_CLICK);
  ASSERT_EQ(clicks.size(), 1U);
  EXPECT_EQ(clicks[0].wparam, 12U);
  EXPECT_EQ(clicks[0].lparam, reinterpret_cast<LPARAM>(button));
  EXPECT_EQ(host_.count(WM_SYSCOMMAND), 0U);
  EXPECT_EQ(command(button), 1);
  EXPECT_EQ(host_.count(WM_LAYER_BTN_CLICK), 1U) << "the next comes with the next turn";
  desktop_.pump();
  EXPECT_EQ(host_.count(WM_LAYER_BTN_CLICK), 2U);
}

TEST_F(WindowLayerTest, PressBesideTheButtonsDragsTheParentInFull) {
  create({11});
  ::SystemParametersInfoW(SPI_SETDRAGFULLWINDOWS, FALSE, nullptr, 0);
  drag_by_layer(on_screen(200, 80), on_screen(225, 70));
  EXPECT_THAT(window_rect(host_), is_rect(host_place.left + 25, host_place.top - 10,
                                          host_place.right + 25, host_place.bottom - 10));
  EXPECT_EQ(host_.count(WM_LAYER_BTN_CLICK), 0U);
  const auto commands = host_.of(WM_SYSCOMMAND);
  ASSERT_EQ(commands.size(), 1U);
  EXPECT_EQ(commands[0].wparam, 0xF012U);
  EXPECT_EQ(commands[0].lparam, 0);
  drag_by_layer(on_screen(225, 70), on_screen(200, 80));
  host_.forget();
  layer_.SendMessageW(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200, 80));
  EXPECT_EQ(host_.count(WM_SYSCOMMAND), 1U) << "sent, not posted";
  BOOL in_full = FALSE;
  ::SystemParametersInfoW(SPI_GETDRAGFULLWINDOWS, 0, &in_full, 0);
  EXPECT_TRUE(in_full);
}

TEST_F(WindowLayerTest, OnlyShowCountsAsShown) {
  EXPECT_EQ(layer_.IsShowWindow(), 0);
  create({});
  const std::vector<std::pair<int, int>> cases = {
      {SW_SHOWNORMAL, 0}, {SW_SHOW, 1}, {SW_SHOWNA, 0}, {SW_HIDE, 0}};
  for (const auto& [command, shown] : cases) {
    EXPECT_NE(layer_.ShowWindow(command), 0) << "was visible";
    EXPECT_EQ(layer_.IsShowWindow(), shown) << command;
  }
  EXPECT_EQ(layer_.ShowWindow(SW_SHOW), 0) << "was hidden";
}

TEST_F(WindowLayerTest, ImageFillsTheLayerAndShowsThroughItsButtonsFromTheFirst) {
  layer_.SetBgImage(&image_, CRect(0, 0, 1, 1));
  create({13, 11});
  EXPECT_EQ(background_pixel(), blue);
  EXPECT_EQ(desktop_.pixel(on_screen(2, 95)), blue) << "the rectangle has no effect";
  EXPECT_EQ(desktop_.pixel(on_screen(12, 52)), blue) << "button 13 is clear there";
  expect_caption_of_the_skin(desktop_, ::GetDlgItem(layer_, 13));
}

TEST_F(WindowLayerTest, BackgroundIsBuiltAnewOnlyWhenTheSizeChanges) {
  create({11});
  EXPECT_EQ(background_pixel(), white);
  layer_.SetBgImage(&image_, CRect());
  EXPECT_FALSE(waits_for_paint(layer_));
  EXPECT_EQ(layer_.SendMessageW(WM_ERASEBKGND), 1);
  layer_.Invalidate(TRUE);
  desktop_.pump();
  EXPECT_EQ(background_pixel(), white);
  resize_layer(300, 100);
  EXPECT_EQ(background_pixel(), white) << "the same size";
  resize_layer(301, 100);
  EXPECT_EQ(background_pixel(), blue) << "also where the window was before";
}

TEST_F(WindowLayerTest, ChangeOfSizePutsButtonsBackToTheirRectangles) {
  create({11});
  const HWND button = ::GetDlgItem(layer_, 11);
  ::MoveWindow(button, 150, 60, 20, 20, TRUE);
  layer_.Invalidate(TRUE);
  desktop_.pump();
  EXPECT_EQ(client_rect(button).right, 20) << "the second erase at the same size does nothing";
  resize_layer(310, 110);
  const POINT corner = on_screen(TestSkin::button_11.left, TestSkin::button_11.top);
  EXPECT_THAT(window_rect(button), is_rect(corner.x, corner.y, corner.x + 60, corner.y + 30));
}

TEST_F(WindowLayerTest, EscapeGoesToTheMainWindowNotToTheParentAndEnterToNobody) {
  HostWindow parent;
  ASSERT_TRUE(parent.open({0, 0, 400, 300}));
  layer_.SetXmlListMgr(&lists_);
  layer_.AddBtn(11);
  ASSERT_TRUE(
      layer_.CreateEx(0, nullptr, L"layer", WS_CHILD | WS_VISIBLE, layer_place, &parent, 0));
  for (const HWND focus : {layer_.GetSafeHwnd(), ::GetDlgItem(layer_, 11)}) {
    ::SetFocus(focus);
    desktop_.key(VK_RETURN);
    desktop_.key(VK_ESCAPE);
    EXPECT_THAT(desktop_.take_keys(),
                testing::ElementsAre(AppDesktop::Key(host_, WM_KEYDOWN, VK_ESCAPE)));
  }
  host_.DestroyWindow();
  desktop_.key(VK_ESCAPE);
  EXPECT_THAT(desktop_.take_keys(),
              testing::ElementsAre(AppDesktop::Key(parent, WM_KEYDOWN, VK_ESCAPE)))
      << "without a main window it goes to the top-level window above";
}

TEST_F(WindowLayerTest, DestroyedAndCreatedAgain) {
  create({11});
  layer_.DestroyWindow();
  EXPECT_EQ(layer_.AddBtn(12), 1) << "the buttons went with the window";
  layer_.SetBgImage(&image_, CRect());
  create_window();
  EXPECT_NE(::GetDlgItem(layer_, 12), nullptr);
  EXPECT_EQ(background_pixel(), blue);
}

TEST_F(WindowLayerTest, HostTakesTheSkinBackOrEmptiesTheListWhileButtonsAreCreated) {
  for (const bool empties : {false, true}) {
    layer_.DestroyWindow();
    host_.on_message = [&](UINT message, WPARAM wparam) {
      if (message != WM_PARENTNOTIFY || wparam != MAKEWPARAM(WM_CREATE, 11)) return;
      empties ? layer_.DelAllBtn() : layer_.SetXmlListMgr(nullptr);
    };
    create({11, 12});
    EXPECT_EQ(::GetDlgItem(layer_, 12), nullptr);
  }
}

}  // namespace
}  // namespace corvane::test
