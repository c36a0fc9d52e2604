// Changing parents and owners, data kept with a window, and the creation hook.
#include "tests/platform/conformance/support/family_test.h"

namespace corvane::conformance {
namespace {

class RelationTest : public FamilyTest {};
TEST_F(RelationTest, NewParentShowsTheChildAtTheSameClientPosition) {
  recorder().only({WM_PAINT});
  const HWND former = SetParent(parent_, other_);
  pump();
  step("moved", former);
  EXPECT_EQ(GetParent(parent_), other_);
  EXPECT_EQ(text_of(window_rect(parent_)), "520,120,620,220");
  EXPECT_EQ(WindowFromPoint({535, 135}), child_);
  EXPECT_EQ(WindowFromPoint({135, 135}), top_);
  step("its own descendant", SetParent(parent_, child_));
  step("itself", SetParent(parent_, parent_));
  DestroyWindow(top_);
  EXPECT_NE(IsWindow(parent_), 0);
}

TEST_F(RelationTest, OwnersInACircleDoNoHarm) {
  const HWND owned = settled_popup("owned", 150, 150, 50, 50, top_);
  SetWindowLongPtrW(top_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(owned));
  SetWindowLongPtrW(other_, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(other_));
  BringWindowToTop(top_);
  SetActiveWindow(other_);
  ShowWindow(other_, SW_HIDE);
  DestroyWindow(top_);
  DestroyWindow(other_);
  pump();
  EXPECT_EQ(IsWindow(top_), 0);
  EXPECT_EQ(IsWindow(other_), 0);
}

TEST_F(RelationTest, AWindowInsideOneThatItOwnsWouldBeACircle) {
  ASSERT_EQ(SetParent(parent_, nullptr), top_) << "a child among the top-level windows";
  const HWND owned = settled_popup("owned", 150, 150, 50, 50, parent_);
  const HWND inner = settled_child("inner", owned, 0, 0, 20, 20);
  for (const HWND target : {owned, inner}) EXPECT_EQ(SetParent(parent_, target), nullptr);
  EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
  EXPECT_EQ(GetAncestor(inner, GA_ROOTOWNER), GetDesktopWindow());
}

TEST_F(RelationTest, ANewTopLevelWindowStaysBelowTheTopmostOnes) {
  const HWND topmost =
      create("topmost", {.style = WS_POPUP | WS_VISIBLE, .ex_style = WS_EX_TOPMOST});
  SetParent(child_, nullptr);
  EXPECT_EQ(GetTopWindow(nullptr), topmost);
  EXPECT_EQ(GetWindow(topmost, GW_HWNDNEXT), child_);
}

TEST_F(RelationTest, WindowDataIsKept) {
  const LONG_PTR data = reinterpret_cast<LONG_PTR>(this);
  EXPECT_EQ(SetWindowLongPtrW(parent_, GWLP_USERDATA, data), 0);
  EXPECT_EQ(GetWindowLongPtrW(parent_, GWLP_USERDATA), data);
  EXPECT_EQ(GetWindowLongPtrW(child_, GWLP_USERDATA), 0);
  EXPECT_EQ(SetWindowLongPtrW(parent_, GWLP_ID, 77), 0);
  EXPECT_EQ(GetDlgItem(top_, 77), parent_);
  EXPECT_EQ(GetClassLongPtrW(parent_, GCL_STYLE), 0U);
  EXPECT_EQ(GetWindowLongPtrW(parent_, GWLP_HWNDPARENT), reinterpret_cast<LONG_PTR>(top_));
  EXPECT_EQ(GetWindowThreadProcessId(parent_, nullptr), GetCurrentThreadId());
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
