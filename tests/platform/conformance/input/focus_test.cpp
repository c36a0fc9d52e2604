// Keyboard focus.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class FocusTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    other_ = settled_popup("other", 500, 100, 100, 100);
    other_child_ = settled_child("other_child", other_, 0, 0, 20, 20);
    top_ = settled_popup("top", 100, 100, 200, 200);
    first_ = settled_child("first", top_, 0, 0, 50, 50);
    second_ = settled_child("second", top_, 50, 0, 50, 50);
    inner_ = settled_child("inner", second_, 0, 0, 10, 10);
    recorder().only({WM_SETFOCUS, WM_KILLFOCUS, WM_ACTIVATE});
    settle();
  }
  HWND other_ = nullptr;
  HWND other_child_ = nullptr;
  HWND top_ = nullptr;
  HWND first_ = nullptr;
  HWND second_ = nullptr;
  HWND inner_ = nullptr;
};

TEST_F(FocusTest, OldIsToldThenNewAndTheOldIsReturned) {
  EXPECT_EQ(SetFocus(first_), top_);
  EXPECT_TRUE(log_is("top WM_KILLFOCUS first > first WM_SETFOCUS top"));
  recorder().clear();
  EXPECT_EQ(SetFocus(second_), first_);
  EXPECT_TRUE(log_is("first WM_KILLFOCUS second > second WM_SETFOCUS first"));
  EXPECT_EQ(GetFocus(), second_);
}

TEST_F(FocusTest, ObservedThatTheLoserSeesTheNewFocus) {
  HWND seen = nullptr;
  recorder().before_default("top", WM_KILLFOCUS, [&] { seen = GetFocus(); });
  SetFocus(first_);
  EXPECT_EQ(seen, first_);
}

TEST_F(FocusTest, SameWindowNoMessage) {
  SetFocus(first_);
  recorder().clear();
  EXPECT_EQ(SetFocus(first_), first_);
  EXPECT_TRUE(log_is(""));
}

TEST_F(FocusTest, ToAndFromNothing) {
  EXPECT_EQ(SetFocus(nullptr), top_);
  EXPECT_TRUE(log_is("top WM_KILLFOCUS none"));
  EXPECT_EQ(GetFocus(), nullptr);
  recorder().clear();
  EXPECT_EQ(SetFocus(first_), nullptr);
  EXPECT_TRUE(log_is("first WM_SETFOCUS none"));
}

TEST_F(FocusTest, DisabledWindowsAndWhatIsInsideThemRefuse) {
  EnableWindow(second_, FALSE);
  recorder().clear();
  EXPECT_EQ(SetFocus(second_), nullptr);
  EXPECT_EQ(SetFocus(inner_), nullptr);
  EXPECT_EQ(GetFocus(), top_);
  EXPECT_TRUE(log_is(""));
}

TEST_F(FocusTest, HiddenChildMayTakeIt) {
  ShowWindow(first_, SW_HIDE);
  EXPECT_EQ(SetFocus(first_), top_);
  EXPECT_EQ(GetFocus(), first_);
}

TEST_F(FocusTest, ObservedThatFocusInAnotherTopLevelActivatesItFirst) {
  SetFocus(first_);
  recorder().clear();
  SetFocus(other_child_);
  EXPECT_TRUE(
      log_is("top WM_ACTIVATE 0 other > other WM_ACTIVATE 1 top {"
             "  first WM_KILLFOCUS other > other WM_SETFOCUS first } >"
             "other WM_KILLFOCUS other_child > other_child WM_SETFOCUS other"));
  EXPECT_EQ(GetActiveWindow(), other_);
}

TEST_F(FocusTest, ObservedThatItIsNotRememberedPerTopLevelWindow) {
  SetFocus(first_);
  const HWND popup = settled_popup("pop", 0, 0, 20, 20, top_);
  EXPECT_EQ(GetFocus(), popup);
  ShowWindow(popup, SW_HIDE);
  EXPECT_EQ(GetActiveWindow(), top_);
  EXPECT_EQ(GetFocus(), top_);
}

TEST_F(FocusTest, ObservedThatHidingTheFocusedChildGivesItToTheParent) {
  SetFocus(first_);
  recorder().only({WM_SETFOCUS, WM_KILLFOCUS, WM_WINDOWPOSCHANGED});
  recorder().clear();
  ShowWindow(first_, SW_HIDE);
  EXPECT_TRUE(log_is("first WM_WINDOWPOSCHANGED > WM_KILLFOCUS top > top WM_SETFOCUS first"));
}

TEST_F(FocusTest, ObservedThatHidingAParentOfTheFocusedChildLeavesIt) {
  SetFocus(inner_);
  recorder().clear();
  ShowWindow(second_, SW_HIDE);
  EXPECT_EQ(GetFocus(), inner_);
  EXPECT_TRUE(log_is(""));
}

TEST_F(FocusTest, LoserMayMoveItElsewhere) {
  SetFocus(first_);
  recorder().before_default("first", WM_KILLFOCUS, [&] {
    if (GetFocus() == second_) SetFocus(inner_);
  });
  recorder().clear();
  SetFocus(second_);
  EXPECT_EQ(GetFocus(), inner_);
  ASSERT_FALSE(recorder().log().empty());
  EXPECT_EQ(recorder().log().back().text.rfind("inner WM_SETFOCUS", 0), 0U)
      << "the last one told is the one that has it\n"
      << recorder().text();
}

class ActivationTest : public FocusTest {};

TEST_F(ActivationTest, OldThenNewWithTheFocusChangeInside) {
  SetFocus(first_);
  recorder().only({WM_NCACTIVATE, WM_ACTIVATE, WM_SETFOCUS, WM_KILLFOCUS});
  recorder().clear();
  EXPECT_EQ(SetActiveWindow(other_), top_);
  EXPECT_TRUE(
      log_is("top WM_NCACTIVATE 0 > WM_ACTIVATE 0 other >"
             "other WM_NCACTIVATE 1 > WM_ACTIVATE 1 top {"
             "  first WM_KILLFOCUS other > other WM_SETFOCUS first }"));
  EXPECT_EQ(GetActiveWindow(), other_);
  EXPECT_EQ(GetForegroundWindow(), other_);
}

TEST_F(ActivationTest, FocusChangeIsTheDefaultHandlings) {
  SetFocus(first_);
  recorder().answer("other", WM_ACTIVATE, 0);
  recorder().clear();
  SetActiveWindow(other_);
  EXPECT_EQ(recorder().count("other", WM_SETFOCUS), 0);
}

TEST_F(ActivationTest, SameWindowNoMessage) {
  EXPECT_EQ(SetActiveWindow(top_), top_);
  EXPECT_TRUE(log_is(""));
}

TEST_F(ActivationTest, LoserMayActivateYetAnother) {
  const HWND third = settled_popup("third", 0, 300, 20, 20);
  SetActiveWindow(top_);
  recorder().before_default("top", WM_ACTIVATE, [&] {
    if (GetActiveWindow() == other_) SetActiveWindow(third);
  });
  recorder().only({WM_ACTIVATE});
  recorder().clear();
  SetActiveWindow(other_);
  EXPECT_EQ(GetActiveWindow(), third);
  EXPECT_EQ(GetFocus(), third);
  ASSERT_FALSE(recorder().log().empty());
  EXPECT_EQ(recorder().log().back().text.rfind("third WM_ACTIVATE 1", 0), 0U)
      << "the last one told is the one that is active\n"
      << recorder().text();
}

TEST_F(ActivationTest, RaisesTheWindow) {
  settled_popup("cover", 500, 100, 100, 100);
  EXPECT_EQ(WindowFromPoint({550, 150}), window("cover"));
  SetForegroundWindow(other_);
  EXPECT_EQ(GetActiveWindow(), other_);
  EXPECT_EQ(WindowFromPoint({550, 150}), other_);
}

class EnableTest : public FocusTest {
 protected:
  void SetUp() override {
    FocusTest::SetUp();
    recorder().only({WM_ENABLE, WM_CANCELMODE, WM_KILLFOCUS, WM_SETFOCUS});
  }
};

TEST_F(EnableTest, DisablingTheFocusedWindow) {
  SetFocus(first_);
  recorder().clear();
  EXPECT_EQ(EnableWindow(first_, FALSE), 0) << "was not disabled before";
  EXPECT_TRUE(log_is("first WM_CANCELMODE > WM_KILLFOCUS none > WM_ENABLE 0"));
  EXPECT_EQ(GetFocus(), nullptr);
  recorder().clear();
  EXPECT_NE(EnableWindow(first_, TRUE), 0) << "was disabled before";
  EXPECT_TRUE(log_is("first WM_ENABLE 1"));
  EXPECT_EQ(GetFocus(), nullptr) << "not given back";
}

TEST_F(EnableTest, DisablingAWindowWithoutTheFocus) {
  EnableWindow(first_, FALSE);
  EXPECT_TRUE(log_is("first WM_CANCELMODE > WM_ENABLE 0"));
  EXPECT_EQ(GetFocus(), top_);
}

TEST_F(EnableTest, NoChangeNoMessage) {
  EXPECT_EQ(EnableWindow(first_, TRUE), 0);
  EXPECT_TRUE(log_is(""));
  EnableWindow(first_, FALSE);
  recorder().clear();
  EXPECT_NE(EnableWindow(first_, FALSE), 0);
  EXPECT_TRUE(log_is(""));
}

TEST_F(EnableTest, FocusedDescendantLosesTheFocusToo) {
  SetFocus(inner_);
  recorder().clear();
  EnableWindow(second_, FALSE);
  EXPECT_EQ(GetFocus(), nullptr);
  EXPECT_EQ(recorder().count("inner", WM_KILLFOCUS), 1);
}

TEST_F(EnableTest, ChildrenOfADisabledWindowStillReportEnabled) {
  EnableWindow(second_, FALSE);
  EXPECT_NE(IsWindowEnabled(inner_), 0);
  EXPECT_EQ(IsWindowEnabled(second_), 0);
  EXPECT_NE(GetWindowLongW(second_, GWL_STYLE) & static_cast<LONG>(WS_DISABLED), 0);
}

TEST_F(EnableTest, HidingThePopupOfADisabledOwnerActivatesAnother) {
  const HWND popup = settled_popup("pop", 0, 0, 20, 20, top_);
  EnableWindow(top_, FALSE);
  ShowWindow(popup, SW_HIDE);
  EXPECT_EQ(GetActiveWindow(), other_);
}

TEST_F(EnableTest, EnablingTheOwnerFirstBringsItBack) {
  const HWND popup = settled_popup("pop", 0, 0, 20, 20, top_);
  EnableWindow(top_, FALSE);
  EnableWindow(top_, TRUE);
  ShowWindow(popup, SW_HIDE);
  EXPECT_EQ(GetActiveWindow(), top_);
}

}  // namespace
}  // namespace corvane::conformance
