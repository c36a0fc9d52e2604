// Keys and characters.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class KeyboardTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    top_ = settled_popup("top", 100, 100, 200, 200);
    child_ = settled_child("child", top_, 0, 0, 50, 50);
    recorder().only({WM_KEYDOWN, WM_CHAR, WM_KEYUP, WM_SYSKEYDOWN, WM_SYSCHAR, WM_SYSKEYUP});
  }
  HWND top_ = nullptr;
  HWND child_ = nullptr;
};

TEST_F(KeyboardTest, GoToTheFocusWindow) {
  SetFocus(child_);
  key('A');
  EXPECT_TRUE(log_is("child (q) WM_KEYDOWN 0x41 > (q) WM_CHAR 0x61 > (q) WM_KEYUP 0x41"));
}

struct KeyCharacter {
  const char* label;
  int key;
  const char* character;  // empty: none
};

class KeyCharacterTest : public KeyboardTest, public testing::WithParamInterface<KeyCharacter> {};

TEST_P(KeyCharacterTest, OrderAndCharacter) {
  key(GetParam().key);
  ASSERT_FALSE(recorder().log().empty());
  std::vector<std::string> characters;
  for (const LogLine& line : recorder().log()) {
    const std::size_t at = line.text.find("WM_CHAR ");
    if (at != std::string::npos) characters.push_back(line.text.substr(at + 8));
  }
  const std::string expected = GetParam().character;
  EXPECT_EQ(characters,
            expected.empty() ? std::vector<std::string>{} : std::vector<std::string>{expected});
  EXPECT_EQ(recorder().log().size(), expected.empty() ? 2U : 3U);
  EXPECT_NE(recorder().log().front().text.find("WM_KEYDOWN"), std::string::npos);
  EXPECT_NE(recorder().log().back().text.find("WM_KEYUP"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    , KeyCharacterTest,
    testing::Values(KeyCharacter{"Letter", 'A', "0x61"}, KeyCharacter{"Digit", '7', "0x37"},
                    KeyCharacter{"Return", VK_RETURN, "0xD"},
                    KeyCharacter{"Escape", VK_ESCAPE, "0x1B"},
                    KeyCharacter{"Backspace", VK_BACK, "0x8"}, KeyCharacter{"Tab", VK_TAB, "0x9"},
                    KeyCharacter{"Space", VK_SPACE, "0x20"}, KeyCharacter{"Left", VK_LEFT, ""},
                    KeyCharacter{"Up", VK_UP, ""}, KeyCharacter{"Right", VK_RIGHT, ""},
                    KeyCharacter{"Down", VK_DOWN, ""}, KeyCharacter{"Home", VK_HOME, ""},
                    KeyCharacter{"End", VK_END, ""}, KeyCharacter{"Delete", VK_DELETE, ""},
                    KeyCharacter{"F1", VK_F1, ""}, KeyCharacter{"F12", VK_F12, ""}),
    [](const auto& instance) { return instance.param.label; });

TEST_F(KeyboardTest, ShiftAndControlChangeTheCharacter) {
  recorder().only({WM_CHAR});
  send_key(VK_SHIFT, true);
  key('A');
  send_key(VK_SHIFT, false);
  send_key(VK_CONTROL, true);
  key('A');
  send_key(VK_CONTROL, false);
  pump();
  EXPECT_TRUE(log_is("top (q) WM_CHAR 0x41 > (q) WM_CHAR 0x1"));
}

TEST_F(KeyboardTest, UnicodeInputBecomesItsCharacter) {
  recorder().only({WM_CHAR});
  INPUT input{};
  input.type = INPUT_KEYBOARD;
  input.ki.wScan = 0x4E2D;
  input.ki.dwFlags = KEYEVENTF_UNICODE;
  EXPECT_EQ(SendInput(1, &input, sizeof(input)), 1U);
  input.ki.dwFlags = KEYEVENTF_UNICODE | KEYEVENTF_KEYUP;
  EXPECT_EQ(SendInput(1, &input, sizeof(input)), 1U);
  pump();
  EXPECT_TRUE(log_is("top (q) WM_CHAR 0x4E2D"));
}

TEST_F(KeyboardTest, RepeatAndReleaseAreMarkedInTheParameters) {
  std::vector<LPARAM> downs;
  std::vector<LPARAM> ups;
  recorder().on("top", WM_KEYDOWN, [&](const Message& sent) -> std::optional<LRESULT> {
    downs.push_back(sent.lparam);
    return 0;
  });
  recorder().on("top", WM_KEYUP, [&](const Message& sent) -> std::optional<LRESULT> {
    ups.push_back(sent.lparam);
    return 0;
  });
  key_down('A');
  key_down('A');
  key_down('A');
  key_up('A');
  constexpr LPARAM was_down = LPARAM{1} << 30;
  constexpr LPARAM goes_up = LPARAM{1} << 31;
  ASSERT_EQ(downs.size(), 3U);
  EXPECT_EQ(downs[0] & (was_down | goes_up), 0);
  EXPECT_EQ(downs[0] & 0xFFFF, 1);
  EXPECT_EQ(downs[1] & (was_down | goes_up), was_down);
  EXPECT_EQ(downs[2] & (was_down | goes_up), was_down);
  ASSERT_EQ(ups.size(), 1U);
  EXPECT_EQ(ups[0] & (was_down | goes_up), was_down | goes_up);
  EXPECT_EQ(recorder().count("top", WM_CHAR), 3) << "one for each repeat";
}

TEST_F(KeyboardTest, WithoutFocusTheActiveWindowGetsSystemKeys) {
  SetFocus(nullptr);
  key('A');
  EXPECT_TRUE(log_is("top (q) WM_SYSKEYDOWN 0x41 > (q) WM_SYSCHAR 0x61 > (q) WM_SYSKEYUP 0x41"));
}

TEST_F(KeyboardTest, AltMakesSystemKeys) {
  send_key(VK_MENU, true);
  pump();
  recorder().clear();
  key('A');
  EXPECT_TRUE(log_is("top (q) WM_SYSKEYDOWN 0x41 > (q) WM_SYSCHAR 0x61 > (q) WM_SYSKEYUP 0x41"));
  send_key(VK_MENU, false);
  pump();
}

TEST_F(KeyboardTest, StateIsThatOfTheRetrievedMessageAndOfNow) {
  send_key(VK_SHIFT, true);
  EXPECT_NE(GetAsyncKeyState(VK_SHIFT) & 0x8000, 0);
  pump();
  EXPECT_LT(GetKeyState(VK_SHIFT), 0);
  send_key(VK_SHIFT, false);
  EXPECT_LT(GetKeyState(VK_SHIFT), 0) << "not retrieved yet";
  EXPECT_EQ(GetAsyncKeyState(VK_SHIFT) & 0x8000, 0);
  pump();
  EXPECT_GE(GetKeyState(VK_SHIFT), 0);
}

TEST_F(KeyboardTest, KeysWithoutAnyWindowGoNowhere) {
  DestroyWindow(top_);
  recorder().clear();
  key('A');
  EXPECT_TRUE(log_is(""));
}

TEST_F(KeyboardTest, FocusMayMoveBetweenKeyAndCharacter) {
  recorder().before_default("top", WM_KEYDOWN, [&] { SetFocus(child_); });
  key_down('A');
  EXPECT_TRUE(log_is("top (q) WM_KEYDOWN 0x41 > (q) WM_CHAR 0x61"))
      << "the character was posted to the window that got the key";
}

}  // namespace
}  // namespace corvane::conformance
