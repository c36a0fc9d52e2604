// Changing parents and owners, data kept with a window, and the creation hook.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class RelationTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    left_ = settled_popup("left", 100, 100, 200, 200);
    child_ = settled_child("child", left_, 10, 20, 50, 50);
    inner_ = settled_child("inner", child_, 5, 5, 10, 10);
    right_ = settled_popup("right", 400, 100, 200, 200);
  }
  HWND left_ = nullptr;
  HWND child_ = nullptr;
  HWND inner_ = nullptr;
  HWND right_ = nullptr;
};

TEST_F(RelationTest, NewParentShowsTheChildAtTheSameClientPosition) {
  EXPECT_EQ(SetParent(child_, right_), left_);
  EXPECT_EQ(GetParent(child_), right_);
  EXPECT_EQ(text_of(window_rect(child_)), "410,120,460,170");
  EXPECT_EQ(GetTopWindow(left_), nullptr);
  EXPECT_EQ(WindowFromPoint({420, 130}), inner_);
  EXPECT_EQ(WindowFromPoint({120, 130}), left_);
  DestroyWindow(left_);
  EXPECT_NE(IsWindow(child_), 0);
}

TEST_F(RelationTest, APopUpThatWasGivenAParentIsOrderedAmongItsNewSiblings) {
  const HWND pop_up = settled_popup("pop-up", 0, 0, 20, 20);
  SetParent(pop_up, left_);
  for (const HWND after : {HWND_TOP, HWND_BOTTOM, HWND_NOTOPMOST, HWND_TOP}) {
    EXPECT_NE(SetWindowPos(pop_up, after, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE), 0);
    const bool lowest = after == HWND_BOTTOM;
    EXPECT_EQ(GetTopWindow(left_), lowest ? child_ : pop_up);
    EXPECT_EQ(GetWindow(child_, lowest ? GW_HWNDNEXT : GW_HWNDPREV), pop_up);
  }
}

TEST_F(RelationTest, AWindowCannotGetItsOwnDescendantAsParent) {
  EXPECT_EQ(SetParent(child_, inner_), nullptr);
  EXPECT_EQ(SetParent(child_, child_), nullptr);
  EXPECT_EQ(GetParent(child_), left_);
  EXPECT_EQ(GetParent(inner_), child_);
}

TEST_F(RelationTest, OwnersInACircleDoNoHarm) {
  const HWND owned = settled_popup("owned", 150, 150, 50, 50, left_);
  SetWindowLongPtrW(left_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owned));
  SetWindowLongPtrW(right_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(right_));
  BringWindowToTop(left_);
  SetActiveWindow(right_);
  ShowWindow(right_, SW_HIDE);
  DestroyWindow(left_);
  DestroyWindow(right_);
  pump();
  EXPECT_EQ(IsWindow(left_), 0);
  EXPECT_EQ(IsWindow(right_), 0);
}

TEST_F(RelationTest, WindowDataIsKept) {
  const LONG_PTR data = reinterpret_cast<LONG_PTR>(this);
  EXPECT_EQ(SetWindowLongPtrW(child_, GWLP_USERDATA, data), 0);
  EXPECT_EQ(GetWindowLongPtrW(child_, GWLP_USERDATA), data);
  EXPECT_EQ(GetWindowLongPtrW(inner_, GWLP_USERDATA), 0);
  EXPECT_EQ(SetWindowLongPtrW(child_, GWLP_ID, 77), 0);
  EXPECT_EQ(GetDlgItem(left_, 77), child_);
  EXPECT_EQ(GetClassLongPtrW(child_, GCL_STYLE), 0U);
  EXPECT_EQ(GetWindowLongPtrW(child_, GWLP_HWNDPARENT), reinterpret_cast<LONG_PTR>(left_));
  EXPECT_EQ(GetWindowThreadProcessId(child_, nullptr), GetCurrentThreadId());
}

struct HookCall {
  HWND window;
  int width;
};
std::vector<HookCall> hook_calls;
bool hook_refuses = false;

LRESULT CALLBACK creation_hook(int code, WPARAM wparam, LPARAM lparam) {
  if (code != HCBT_CREATEWND) return CallNextHookEx(nullptr, code, wparam, lparam);
  const auto* creation = reinterpret_cast<const CBT_CREATEWNDW*>(lparam);
  hook_calls.push_back({reinterpret_cast<HWND>(wparam), creation->lpcs->cx});
  return hook_refuses ? 1 : 0;
}

class CreationHookTest : public WindowTest {
 protected:
  void SetUp() override {
    WindowTest::SetUp();
    hook_calls.clear();
    hook_refuses = false;
    hook_ = SetWindowsHookExW(WH_CBT, &creation_hook, nullptr, GetCurrentThreadId());
    ASSERT_NE(hook_, nullptr);
  }
  void TearDown() override {
    UnhookWindowsHookEx(hook_);
    WindowTest::TearDown();
  }
  HHOOK hook_ = nullptr;
};

TEST_F(CreationHookTest, SeesTheWindowBeforeItsFirstMessage) {
  bool seen_first = false;
  recorder().before_default("pop", WM_NCCREATE, [&] { seen_first = hook_calls.size() == 1; });
  const HWND popup = create("pop", {.place = {.width = 123}});
  EXPECT_TRUE(seen_first);
  ASSERT_EQ(hook_calls.size(), 1U);
  EXPECT_EQ(hook_calls[0].window, popup);
  EXPECT_EQ(hook_calls[0].width, 123);
}

TEST_F(CreationHookTest, MayRefuse) {
  hook_refuses = true;
  EXPECT_EQ(create("pop", {}), nullptr);
  EXPECT_EQ(recorder().count("pop", WM_CREATE), 0);
}

TEST_F(CreationHookTest, IsNotCalledAfterItsRemoval) {
  EXPECT_NE(UnhookWindowsHookEx(hook_), 0);
  EXPECT_EQ(UnhookWindowsHookEx(hook_), 0);
  create("pop", {});
  EXPECT_TRUE(hook_calls.empty());
}

}  // namespace
}  // namespace corvane::conformance
