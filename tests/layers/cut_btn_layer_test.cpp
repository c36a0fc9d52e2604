#include "corvane/layers/crop/cut_btn_layer.h"

#include <vector>

#include "corvane/frame/layer_messages.h"
#include "tests/layers/support/crop_scene.h"

namespace corvane::test {
namespace {

using corvane::CCutBtnLayer;
using corvane::WM_CUT_CMD;

constexpr COLORREF white = RGB(255, 255, 255);

class CutBtnLayerTest : public HostTest {
 protected:
  void create() {
    ASSERT_TRUE(bar_.CreateEx(WS_EX_TOOLWINDOW, nullptr, L"bar", WS_POPUP | WS_THICKFRAME, 0, 0, 0,
                              0, host_, nullptr));
  }

  void show_at(int x, int y) {
    ::SetWindowPos(bar_, nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    bar_.ShowWindow(SW_SHOW);
    desktop_.pump();
  }

  HWND button(int number) const { return ::GetDlgItem(bar_, number); }
  LRESULT command(HWND sender) const {
    return bar_.SendMessageW(WM_COMMAND, 3, reinterpret_cast<LPARAM>(sender));
  }

  std::vector<int> shown_buttons() const {
    std::vector<int> shown;
    for (int number = 1; number <= 6; ++number) {
      const auto style = static_cast<DWORD>(::GetWindowLongW(button(number), GWL_STYLE));
      if ((style & WS_VISIBLE) != 0) shown.push_back(number);
    }
    return shown;
  }

  CCutBtnLayer bar_;
};

TEST_F(CutBtnLayerTest, ShowsItsRowsInTheCornerTheNormalOneFirst) {
  bar_.SetOCRMode(1);  // without a window it changes nothing
  create();
  EXPECT_EQ(bar_.GetStyle(), DWORD{WS_POPUP | WS_CLIPSIBLINGS});
  const std::vector<std::pair<int, RECT>> places = {{3, {0, 0, 60, 32}},   {4, {60, 0, 90, 28}},
                                                    {1, {90, 0, 130, 30}}, {2, {130, 0, 180, 30}},
                                                    {5, {0, 0, 80, 34}},   {6, {80, 0, 150, 20}}};
  for (const auto& [number, place] : places) {
    EXPECT_THAT(window_rect(button(number)), same_rect(place)) << number;
  }
  for (int round = 0; round < 2; ++round) {
    EXPECT_THAT(shown_buttons(), testing::ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(window_rect(bar_), is_rect(0, 0, 180, 32));
    show_at(200, 200);
    bar_.SetOCRMode(1);
    EXPECT_THAT(shown_buttons(), testing::ElementsAre(5, 6));
    EXPECT_THAT(window_rect(bar_), is_rect(0, 0, 150, 34));
    show_at(200, 200);
    bar_.SetOCRMode(0);
  }
}

TEST_F(CutBtnLayerTest, BackgroundIsWhiteAlsoBehindItsButtonsAndAfterAChangeOfSize) {
  create();
  show_at(200, 200);
  EXPECT_EQ(desktop_.pixel(200 + 100, 200 + 31), white) << "below button 1";
  EXPECT_EQ(desktop_.pixel(200 + 92, 200 + 2), white) << "button 1 is clear there";
  expect_caption_of_the_skin(desktop_, button(1));
  bar_.SetOCRMode(1);
  desktop_.pump();
  EXPECT_EQ(desktop_.pixel(100, 32), white) << "below button 6";
  EXPECT_EQ(bar_.SendMessageW(WM_ERASEBKGND), 1);
}

TEST_F(CutBtnLayerTest, ButtonsReturnToTheirPlacesWhenTheSizeChangesOrWhenTold) {
  create();
  show_at(200, 200);
  for (const bool told : {false, true}) {
    ::MoveWindow(button(3), 70, 10, 20, 10, TRUE);
    bar_.Invalidate(TRUE);
    desktop_.pump();
    EXPECT_THAT(window_rect(button(3)), is_rect(270, 210, 290, 220)) << "the size is the same";
    if (told) {
      bar_.SetRect();
    } else {
      bar_.SetWindowPos(nullptr, 0, 0, 180, 40, SWP_NOMOVE | SWP_NOZORDER);
    }
    desktop_.pump();
    EXPECT_THAT(window_rect(button(3)), is_rect(200, 200, 260, 232));
    EXPECT_NE(desktop_.pixel(203, 203), white) << "drawn";
    EXPECT_EQ(desktop_.pixel(280, 229), white) << "below button 4";
  }
}

TEST_F(CutBtnLayerTest, CommandsOfItsButtonsArePostedWithTheirNumbersOthersAreNot) {
  create();
  EXPECT_EQ(command(button(3)), 1) << "handled, though there is nobody to hear of it";
  bar_.SetParentHwnd(host_);
  EXPECT_EQ(command(nullptr), 0) << "menus are left to the default";
  EXPECT_EQ(command(host_), 1);
  desktop_.pump();
  EXPECT_EQ(host_.count(WM_CUT_CMD), 0U);
  for (int number = 1; number <= 6; ++number) {
    host_.forget();
    EXPECT_EQ(command(button(number)), 1);
    EXPECT_EQ(host_.count(WM_CUT_CMD), 0U) << "it comes with the next turn";
    desktop_.pump();
    const auto commands = host_.of(WM_CUT_CMD);
    ASSERT_EQ(commands.size(), 1U);
    EXPECT_EQ(commands[0].wparam, static_cast<WPARAM>(number));
    EXPECT_EQ(commands[0].lparam, 0);
  }
}

TEST_F(CutBtnLayerTest, MissingSkinLeavesAnEmptyBarUntilItIsCreatedAgain) {
  skin_.remove_files();
  create();
  EXPECT_THAT(client_rect(bar_), is_rect(0, 0, 0, 0));
  bar_.SetOCRMode(1);
  show_at(200, 200);
  bar_.DestroyWindow();
  const TestSkin skin;
  create();
  EXPECT_THAT(client_rect(bar_), is_rect(0, 0, 180, 32));
}

}  // namespace
}  // namespace corvane::test
