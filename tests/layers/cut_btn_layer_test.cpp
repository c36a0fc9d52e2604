#include "corvane/layers/crop/cut_btn_layer.h"

#include <numeric>
#include <vector>

#include "corvane/frame/layer_messages.h"
#include "tests/support/host_test.h"

namespace corvane::test {
namespace {

using corvane::CCutBtnLayer;
using corvane::WM_CUT_CMD;

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

  std::vector<int> shown_buttons() const {
    std::vector<int> shown;
    for (int number = 1; number <= 6; ++number) {
      const auto style = static_cast<DWORD>(::GetWindowLongW(button(number), GWL_STYLE));
      if (style & WS_VISIBLE) shown.push_back(number);
    }
    return shown;
  }

  void click_middle_of(int number) {
    const RECT place = window_rect(button(number));
    desktop_.click(std::midpoint(place.left, place.right), std::midpoint(place.top, place.bottom));
  }

  CCutBtnLayer bar_;
};

TEST_F(CutBtnLayerTest, NewBarShowsTheNormalRow) {
  bar_.SetOCRMode(1);  // without a window it changes nothing
  create();
  EXPECT_THAT(shown_buttons(), testing::ElementsAre(1, 2, 3, 4));
  EXPECT_THAT(window_rect(bar_), is_rect(0, 0, 180, 32));
  EXPECT_EQ(bar_.GetStyle() & WS_THICKFRAME, 0U);
}

TEST_F(CutBtnLayerTest, ButtonsStandInTheirRows) {
  create();
  const std::vector<std::pair<int, RECT>> places = {{3, {0, 0, 60, 32}},   {4, {60, 0, 90, 28}},
                                                    {1, {90, 0, 130, 30}}, {2, {130, 0, 180, 30}},
                                                    {5, {0, 0, 80, 34}},   {6, {80, 0, 150, 20}}};
  for (const auto& [number, place] : places) {
    EXPECT_THAT(window_rect(button(number)), same_rect(place)) << number;
  }
}

TEST_F(CutBtnLayerTest, SwitchesBetweenItsRows) {
  create();
  for (int round = 0; round < 2; ++round) {
    show_at(200, 200);
    bar_.SetOCRMode(1);
    EXPECT_THAT(shown_buttons(), testing::ElementsAre(5, 6));
    EXPECT_THAT(window_rect(bar_), is_rect(0, 0, 150, 34));
    bar_.SetOCRMode(0);
    EXPECT_THAT(shown_buttons(), testing::ElementsAre(1, 2, 3, 4));
    EXPECT_THAT(window_rect(bar_), is_rect(0, 0, 180, 32));
  }
}

TEST_F(CutBtnLayerTest, EachClickPostsItsOwnNumber) {
  create();
  bar_.SetParentHwnd(host_);
  for (const int number : {3, 4, 1, 2, 5, 6}) {
    bar_.SetOCRMode(number >= 5);
    show_at(200, 200);
    host_.forget();
    click_middle_of(number);
    const auto commands = host_.of(WM_CUT_CMD);
    ASSERT_EQ(commands.size(), 1U) << number;
    EXPECT_EQ(commands[0].wparam, static_cast<WPARAM>(number));
    EXPECT_EQ(commands[0].lparam, 0);
  }
}

TEST_F(CutBtnLayerTest, WithoutAParentClicksPostNothingButAreHandled) {
  create();
  show_at(200, 200);
  click_middle_of(3);
  EXPECT_EQ(host_.count(WM_CUT_CMD), 0U);
  EXPECT_EQ(bar_.SendMessageW(WM_COMMAND, 3, reinterpret_cast<LPARAM>(button(3))), 1);
}

TEST_F(CutBtnLayerTest, CommandsOfOthers) {
  create();
  bar_.SetParentHwnd(host_);
  EXPECT_EQ(bar_.SendMessageW(WM_COMMAND, 3, 0), 0) << "menus are left to the default";
  EXPECT_EQ(bar_.SendMessageW(WM_COMMAND, 3, reinterpret_cast<LPARAM>(host_.GetSafeHwnd())), 1);
  desktop_.pump();
  EXPECT_EQ(host_.count(WM_CUT_CMD), 0U);
}

TEST_F(CutBtnLayerTest, KeysOfItsButtonsGoToItsOwner) {
  create();
  show_at(200, 200);
  ::SetFocus(button(3));
  host_.forget();
  desktop_.key(VK_ESCAPE);
  desktop_.key(VK_RETURN);
  EXPECT_EQ(host_.count(WM_KEYDOWN), 1U);
  EXPECT_EQ(host_.count(WM_KEYUP), 0U);
}

TEST_F(CutBtnLayerTest, MissingSkinLeavesAnEmptyBar) {
  skin_.remove_files();
  create();
  EXPECT_THAT(client_rect(bar_), is_rect(0, 0, 0, 0));
  bar_.SetOCRMode(1);
  show_at(200, 200);
}

TEST_F(CutBtnLayerTest, DestroyedAndCreatedAgain) {
  create();
  show_at(200, 200);
  bar_.DestroyWindow();
  create();
  bar_.SetParentHwnd(host_);
  show_at(200, 200);
  click_middle_of(4);
  EXPECT_EQ(host_.count(WM_CUT_CMD), 1U);
}

}  // namespace
}  // namespace corvane::test
