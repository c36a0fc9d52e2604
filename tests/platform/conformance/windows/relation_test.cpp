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
  recorder().only({WM_PAINT});
  const HWND former = SetParent(child_, right_);
  pump();
  step("moved", former);
  EXPECT_EQ(GetParent(child_), right_);
  EXPECT_EQ(text_of(window_rect(child_)), "410,120,460,170");
  EXPECT_EQ(WindowFromPoint({420, 130}), inner_);
  EXPECT_EQ(WindowFromPoint({120, 130}), left_);
  step("its own descendant", SetParent(child_, inner_));
  step("itself", SetParent(child_, child_));
  DestroyWindow(left_);
  EXPECT_NE(IsWindow(child_), 0);
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

TEST_F(RelationTest, CreationHookSeesTheWindowBeforeItsFirstMessage) {
  hook_calls.clear();
  hook_refuses = false;
  const HHOOK hook = SetWindowsHookExW(WH_CBT, &creation_hook, nullptr, GetCurrentThreadId());
  ASSERT_NE(hook, nullptr);
  recorder().before_default("pop", WM_NCCREATE, [&] { EXPECT_EQ(hook_calls.size(), 1U); });
  const HWND popup = create("pop", {.place = {.width = 123}});
  ASSERT_EQ(hook_calls.size(), 1U);
  EXPECT_EQ(hook_calls[0].window, popup);
  EXPECT_EQ(hook_calls[0].width, 123);
  hook_refuses = true;
  EXPECT_EQ(create("refused", {}), nullptr);
  EXPECT_EQ(recorder().count("refused", WM_CREATE), 0);
  EXPECT_NE(UnhookWindowsHookEx(hook), 0);
  EXPECT_EQ(UnhookWindowsHookEx(hook), 0);
  EXPECT_NE(create("after its removal", {}), nullptr);
  EXPECT_EQ(hook_calls.size(), 2U);
}

}  // namespace
}  // namespace corvane::conformance
