// Push buttons, check boxes and radio buttons.
#include "tests/platform/conformance/controls/control_test.h"

namespace corvane::conformance {
namespace {

class ButtonTest : public ControlTest {
 protected:
  static LRESULT state(HWND button) { return SendMessageW(button, BM_GETSTATE, 0, 0); }
  static LRESULT check(HWND button) { return SendMessageW(button, BM_GETCHECK, 0, 0); }
  const POINT away_{450, 350};
};

TEST_F(ButtonTest, ClickIsAPressAndAReleaseInside) {
  HWND button = add_button(L"&Go", 0, 0);
  const POINT inside = middle_of(button);
  press_at(inside);
  EXPECT_EQ(state(button), BST_PUSHED | BST_FOCUS);
  EXPECT_EQ(GetCapture(), button);
  move_to(away_);
  EXPECT_EQ(state(button), BST_FOCUS);
  move_to(inside);
  EXPECT_EQ(told(), "");
  release();
  EXPECT_EQ(told(), "1:0 ");
  EXPECT_EQ(last_teller_, button);
  EXPECT_EQ(GetCapture(), nullptr);
  drag(inside, away_);
  drag(away_, inside);
  EXPECT_EQ(told(), "");
  double_click(inside);
  EXPECT_EQ(told(), "1:0 1:0 ");
}

TEST_F(ButtonTest, PressThatIsBrokenOffDoesNotClick) {
  HWND button = add_button(L"Go", 0, 0);
  HWND other = add_button(L"Other", 0, 1);
  const POINT inside = middle_of(button);
  const std::function<void()> breaks[] = {
      [&] { SetFocus(other); },
      [&] { SendMessageW(button, WM_CANCELMODE, 0, 0); },
      [&] { SetCapture(other); },
      [&] { ShowWindow(button, SW_HIDE); },
  };
  for (const auto& broken_off : breaks) {
    press_at(inside);
    broken_off();
    release_at(inside.x, inside.y);
    ReleaseCapture();
    EXPECT_EQ(told(), "");
    ShowWindow(button, SW_SHOW);
    key_down(VK_SPACE);
    broken_off();
    key_up(VK_SPACE);
    ReleaseCapture();
    ShowWindow(button, SW_SHOW);
    told();  // of the other one's space
    SetFocus(button);
  }
  EnableWindow(button, FALSE);
  click(inside);
  EXPECT_EQ(told(), "");
}

TEST_F(ButtonTest, SpaceClicksAndEnterDoesNot) {
  SetFocus(add_button(L"Go", 0, 0));
  key_down(VK_SPACE);
  EXPECT_EQ(told(), "");
  key_up(VK_SPACE);
  EXPECT_EQ(told(), "1:0 ");
  key(VK_RETURN);
  key(VK_ESCAPE);
  EXPECT_EQ(told(), "");
}

TEST_F(ButtonTest, EachKindSaysWhatItIsAndCountsItsChecks) {
  struct Case {
    DWORD type;
    LRESULT code;
    std::vector<LRESULT> checks;  // after each click
  };
  const Case cases[] = {
      {BS_PUSHBUTTON, 0x2020, {0, 0}},         {BS_DEFPUSHBUTTON, 0x2010, {0, 0}},
      {BS_CHECKBOX, 0x2000, {0, 0}},           {BS_AUTOCHECKBOX, 0x2000, {1, 0, 1}},
      {BS_AUTO3STATE, 0x2000, {1, 2, 0}},      {BS_RADIOBUTTON, 0x2040, {0, 0}},
      {BS_AUTORADIOBUTTON, 0x2040, {1, 1, 1}},
  };
  for (const Case& kind : cases) {
    SCOPED_TRACE(kind.type);
    HWND button = add_button(L"Kind", kind.type | WS_GROUP, 0);
    EXPECT_EQ(SendMessageW(button, WM_GETDLGCODE, 0, 0), kind.code);
    for (const LRESULT wanted : kind.checks) {
      click(middle_of(button));
      EXPECT_EQ(check(button), wanted);
      EXPECT_NE(told(), "");
    }
    SendMessageW(button, BM_SETCHECK, 9, 0);
    const LRESULT highest = kind.type == BS_AUTO3STATE ? 2 : (kind.code & 0xFF30) == 0x2000 ? 1 : 0;
    EXPECT_EQ(check(button), highest);
    DestroyWindow(button);
  }
}

TEST_F(ButtonTest, OneOfAGroupIsChosen) {
  HWND first = add_button(L"A", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, 0);
  HWND second = add_button(L"B", BS_AUTORADIOBUTTON, 1);
  HWND third = add_button(L"C", BS_AUTORADIOBUTTON | WS_GROUP, 2);
  for (HWND button : {third, first, second}) click(middle_of(button));
  EXPECT_EQ(check(first), 0);
  EXPECT_EQ(check(second), 1);
  EXPECT_EQ(check(third), 1);
  EXPECT_EQ(GetWindowLongW(first, GWL_STYLE) & WS_TABSTOP, 0u);
  EXPECT_NE(GetWindowLongW(second, GWL_STYLE) & WS_TABSTOP, 0u);
}

TEST_F(ButtonTest, LooksTellItsStates) {
  HWND button = add_button(L"", 0, 0);
  HWND box = add_button(L"", BS_AUTOCHECKBOX, 1);
  HWND radio = add_button(L"", BS_AUTORADIOBUTTON | WS_GROUP, 2);
  const auto looks = [this](HWND control) {
    const RECT rect = window_rect(control);
    const test::Frame shown = frame();
    std::vector<COLORREF> pixels;
    for (int y = rect.top; y < rect.bottom; ++y) {
      for (int x = rect.left; x < rect.left + 20; ++x) pixels.push_back(shown.at(x, y));
    }
    return pixels;
  };
  for (HWND control : {button, box, radio}) {
    const auto plain = looks(control);
    SetFocus(control);
    pump();
    const auto focused = looks(control);
    EXPECT_NE(plain, focused);
    press_at(middle_of(control));
    EXPECT_NE(looks(control), focused);
    release();
    EXPECT_EQ(looks(control) == focused, control == button);
    EnableWindow(control, FALSE);
    pump();
    EXPECT_NE(looks(control), focused);
  }
}

TEST_F(ButtonTest, MayBeDestroyedByItsOwnClick) {
  HWND button = add_button(L"Go", BS_AUTOCHECKBOX, 0);
  recorder().on("dialog", WM_COMMAND, [&](const Message&) { return DestroyWindow(button); });
  click(middle_of(button));
  EXPECT_FALSE(IsWindow(button));
}

}  // namespace
}  // namespace corvane::conformance
