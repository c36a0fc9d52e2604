// IsDialogMessageW: the keys among the controls of a window.
#include "tests/platform/conformance/controls/control_test.h"

namespace corvane::conformance {
namespace {

class DialogKeysTest : public ControlTest {
 protected:
  DialogKeysTest() {
    filter_messages([this](MSG* message) { return IsDialogMessageW(dialog_, message) != FALSE; });
    ok_ = add_button(L"&Save", BS_DEFPUSHBUTTON | WS_TABSTOP, 0);                // 1
    cancel_ = add_button(L"&Leave", WS_TABSTOP, 1);                              // 2
    label_ = add(L"STATIC", L"&Name", 0, {150, 10, 250, 40});                    // 3
    red_ = add_button(L"Red", BS_AUTORADIOBUTTON | WS_GROUP | WS_TABSTOP, 2);    // 4
    blue_ = add_button(L"Blue", BS_AUTORADIOBUTTON, 3);                          // 5
    check_ = add_button(L"Chec&k", BS_AUTOCHECKBOX | WS_GROUP | WS_TABSTOP, 4);  // 6
    SetFocus(ok_);
  }
  int focus() { return GetDlgCtrlID(GetFocus()); }
  int after_tab(bool back = false) {
    if (back) key_down(VK_SHIFT);
    key(VK_TAB);
    if (back) key_up(VK_SHIFT);
    return focus();
  }
  static LRESULT code(HWND control) { return SendMessageW(control, WM_GETDLGCODE, 0, 0); }

  HWND ok_, cancel_, label_, red_, blue_, check_;
};

TEST_F(DialogKeysTest, TabVisitsTheStopsThatCanBeUsed) {
  EXPECT_EQ(after_tab(), 2);
  EXPECT_EQ(after_tab(), 4);
  EXPECT_EQ(after_tab(), 6);
  EXPECT_EQ(after_tab(), 1);
  EXPECT_EQ(after_tab(true), 6);
  EnableWindow(ok_, FALSE);
  ShowWindow(cancel_, SW_HIDE);
  EXPECT_EQ(after_tab(), 4);
  HWND panel = CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 10,
                               10, dialog_, nullptr, nullptr, nullptr);
  CreateWindowExW(0, L"BUTTON", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 0, 0, 10, 10, panel,
                  reinterpret_cast<HMENU>(LONG_PTR{9}), nullptr, nullptr);
  EXPECT_EQ(after_tab(), 6);
  EXPECT_EQ(after_tab(), 9);
  EXPECT_EQ(after_tab(), 4);
  EXPECT_EQ(GetNextDlgTabItem(dialog_, nullptr, FALSE), red_);
}

TEST_F(DialogKeysTest, ArrowsChooseInAGroup) {
  SetFocus(red_);
  key(VK_DOWN);
  EXPECT_EQ(focus(), 5);
  EXPECT_EQ(told(), "5:0 ");
  EXPECT_EQ(IsDlgButtonChecked(dialog_, 5), BST_CHECKED);
  key(VK_RIGHT);
  EXPECT_EQ(focus(), 4);
  key(VK_UP);
  EXPECT_EQ(focus(), 5);
  CheckRadioButton(dialog_, 4, 5, 4);
  EXPECT_EQ(IsDlgButtonChecked(dialog_, 5), BST_UNCHECKED);
  SetFocus(check_);
  key(VK_DOWN);
  EXPECT_EQ(focus(), 6);
}

TEST_F(DialogKeysTest, EnterPressesTheDefaultButtonAndEscapeCancels) {
  SetFocus(check_);
  key(VK_RETURN);
  EXPECT_EQ(told(), "1:0 ");
  EXPECT_EQ(last_teller_, ok_);
  SetFocus(ok_);
  EXPECT_EQ(after_tab(), 2);
  EXPECT_EQ(code(ok_), 0x2020);
  EXPECT_EQ(code(cancel_), 0x2010);
  key(VK_RETURN);
  EXPECT_EQ(told(), "2:0 ");
  key(VK_ESCAPE);
  EXPECT_EQ(told(), "2:0 ");
  SetFocus(check_);
  drag(middle_of(ok_), {450, 350});  // a press, but no click
  EXPECT_EQ(code(cancel_), 0x2020);
  key(VK_RETURN);
  EXPECT_EQ(told(), "1:0 ");
  EnableWindow(cancel_, FALSE);
  key(VK_ESCAPE);
  EXPECT_EQ(told(), "");
  SetFocus(ok_);
  DestroyWindow(cancel_);
  key(VK_ESCAPE);
  EXPECT_EQ(told(), "2:0 ");
  SendMessageW(ok_, BM_SETSTYLE, BS_PUSHBUTTON, TRUE);
  SetFocus(check_);
  key(VK_RETURN);
  EXPECT_EQ(told(), "1:0 ");  // IDOK
  recorder().answer("dialog", DM_GETDEFID, MAKELONG(1, DC_HASDEFID));
  EnableWindow(ok_, FALSE);
  key(VK_RETURN);
  EXPECT_EQ(told(), "");
}

TEST_F(DialogKeysTest, MnemonicsChooseAControlAndItsLabelTheNextOne) {
  struct Case {
    int key;
    int focus;
    std::string told;
  };
  const Case cases[] = {
      {'N', 4, ""}, {'K', 6, "6:0 "}, {'L', 2, "2:0 "}, {'X', 2, ""}, {'S', 1, "1:0 "}};
  for (const bool with_alt : {true, false}) {
    for (const Case& letter : cases) {
      SCOPED_TRACE(letter.key);
      if (with_alt) key_down(VK_MENU);
      key(letter.key);
      if (with_alt) key_up(VK_MENU);
      EXPECT_EQ(focus(), letter.focus);
      EXPECT_EQ(told(), letter.told);
    }
  }
  HWND second = add_button(L"&Leave too", WS_TABSTOP, 5);
  add(L"STATIC", L"&X", SS_NOPREFIX, {150, 60, 250, 90});
  create("editor", {.parent = dialog_, .style = WS_CHILD | WS_VISIBLE});
  SetWindowTextW(window("editor"), L"a&x");
  for (HWND wanted : {cancel_, second, cancel_}) {
    key('L');
    EXPECT_EQ(GetFocus(), wanted);
  }
  key('X');
  EXPECT_EQ(GetFocus(), cancel_);
  EXPECT_EQ(told(), "");
}

TEST_F(DialogKeysTest, ControlsMayWantTheirKeys) {
  HWND editor = create("editor", {.parent = dialog_, .style = WS_CHILD | WS_VISIBLE | WS_TABSTOP});
  recorder().answer("editor", WM_GETDLGCODE, DLGC_WANTALLKEYS | DLGC_WANTCHARS | DLGC_WANTTAB);
  SetFocus(editor);
  recorder().only({WM_KEYDOWN, WM_CHAR});
  recorder().clear();
  for (const int wanted : {VK_TAB, VK_DOWN, VK_RETURN, VK_ESCAPE, int{'S'}}) key(wanted);
  EXPECT_EQ(recorder().count("editor", WM_KEYDOWN), 5);
  EXPECT_EQ(GetFocus(), editor);
  EXPECT_EQ(told(), "");
  MSG foreign{nullptr, WM_KEYDOWN, VK_TAB, 0, 0, {}};
  EXPECT_FALSE(IsDialogMessageW(dialog_, &foreign));
}

}  // namespace
}  // namespace corvane::conformance
