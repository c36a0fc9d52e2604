// Every function refuses stale and made-up window handles softly: its failure result, error 1400.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

enum class Null { fails, has_meaning };

struct HandleCall {
  const char* function;
  Null null;
  bool (*failed)(HWND);  // calls it; true: it returned its failure result
};

BOOL CALLBACK never_called(HWND, LPARAM) {
  ADD_FAILURE() << "enumerated something";
  return FALSE;
}

// What the calls would fill.
RECT rect;
POINT point;
PAINTSTRUCT paint;
wchar_t text[4] = L"abc";

const HandleCall kCalls[] = {
    {"DestroyWindow", Null::fails, [](HWND h) { return DestroyWindow(h) == 0; }},
    {"ShowWindow", Null::fails, [](HWND h) { return ShowWindow(h, SW_SHOW) == 0; }},
    {"MoveWindow", Null::fails, [](HWND h) { return MoveWindow(h, 0, 0, 5, 5, TRUE) == 0; }},
    {"SetWindowPos", Null::fails,
     [](HWND h) { return SetWindowPos(h, HWND_TOP, 0, 0, 5, 5, 0) == 0; }},
    {"BringWindowToTop", Null::fails, [](HWND h) { return BringWindowToTop(h) == 0; }},
    {"EnableWindow", Null::fails, [](HWND h) { return EnableWindow(h, FALSE) == 0; }},
    {"IsWindowVisible", Null::fails, [](HWND h) { return IsWindowVisible(h) == 0; }},
    {"IsWindowEnabled", Null::fails, [](HWND h) { return IsWindowEnabled(h) == 0; }},
    {"SetWindowTextW", Null::fails, [](HWND h) { return SetWindowTextW(h, L"x") == 0; }},
    {"GetWindowTextLengthW", Null::fails, [](HWND h) { return GetWindowTextLengthW(h) == 0; }},
    {"GetWindowTextW", Null::fails, [](HWND h) { return GetWindowTextW(h, text, 4) == 0; }},
    {"GetClassNameW", Null::fails, [](HWND h) { return GetClassNameW(h, text, 4) == 0; }},
    {"GetWindowLongW", Null::fails, [](HWND h) { return GetWindowLongW(h, GWL_STYLE) == 0; }},
    {"SetWindowLongW", Null::fails, [](HWND h) { return SetWindowLongW(h, GWL_STYLE, 1) == 0; }},
    {"GetWindowLongPtrW", Null::fails,
     [](HWND h) { return GetWindowLongPtrW(h, GWLP_USERDATA) == 0; }},
    {"SetWindowLongPtrW", Null::fails,
     [](HWND h) { return SetWindowLongPtrW(h, GWLP_USERDATA, 1) == 0; }},
    {"GetClassLongPtrW", Null::fails, [](HWND h) { return GetClassLongPtrW(h, GCL_STYLE) == 0; }},
    {"SetLayeredWindowAttributes", Null::fails,
     [](HWND h) { return SetLayeredWindowAttributes(h, 0, 9, LWA_ALPHA) == 0; }},
    {"GetLayeredWindowAttributes", Null::fails,
     [](HWND h) { return GetLayeredWindowAttributes(h, nullptr, nullptr, nullptr) == 0; }},
    {"UpdateLayeredWindow", Null::fails,
     [](HWND h) {
       return UpdateLayeredWindow(h, nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr,
                                  ULW_ALPHA) == 0;
     }},
    {"GetWindowRect", Null::fails, [](HWND h) { return GetWindowRect(h, &rect) == 0; }},
    {"GetClientRect", Null::fails, [](HWND h) { return GetClientRect(h, &rect) == 0; }},
    {"ClientToScreen", Null::fails, [](HWND h) { return ClientToScreen(h, &point) == 0; }},
    {"ScreenToClient", Null::fails, [](HWND h) { return ScreenToClient(h, &point) == 0; }},
    {"MapWindowPoints", Null::has_meaning,
     [](HWND h) { return MapWindowPoints(h, nullptr, &point, 1) == 0; }},
    {"GetParent", Null::fails, [](HWND h) { return GetParent(h) == nullptr; }},
    {"SetParent", Null::fails, [](HWND h) { return SetParent(h, nullptr) == nullptr; }},
    {"GetAncestor", Null::fails, [](HWND h) { return GetAncestor(h, GA_ROOT) == nullptr; }},
    {"GetWindow", Null::fails, [](HWND h) { return GetWindow(h, GW_HWNDNEXT) == nullptr; }},
    {"GetTopWindow", Null::has_meaning, [](HWND h) { return GetTopWindow(h) == nullptr; }},
    {"GetDlgItem", Null::fails, [](HWND h) { return GetDlgItem(h, 1) == nullptr; }},
    {"GetDlgCtrlID", Null::fails, [](HWND h) { return GetDlgCtrlID(h) == 0; }},
    {"EnumChildWindows", Null::has_meaning,
     [](HWND h) {
       EnumChildWindows(h, &never_called, 0);
       return true;
     }},
    {"ChildWindowFromPoint", Null::fails,
     [](HWND h) {
       return ChildWindowFromPoint(h, {0, 0}) == nullptr;
     }},
    {"GetWindowThreadProcessId", Null::fails,
     [](HWND h) { return GetWindowThreadProcessId(h, nullptr) == 0; }},
    {"SendMessageW", Null::fails, [](HWND h) { return SendMessageW(h, WM_USER, 0, 0) == 0; }},
    {"PostMessageW", Null::has_meaning, [](HWND h) { return PostMessageW(h, WM_USER, 0, 0) == 0; }},
    {"SetTimer", Null::has_meaning, [](HWND h) { return SetTimer(h, 1, 10, nullptr) == 0; }},
    {"SetCapture", Null::has_meaning, [](HWND h) { return SetCapture(h) == nullptr; }},
    {"SetFocus", Null::has_meaning, [](HWND h) { return SetFocus(h) == nullptr; }},
    {"SetActiveWindow", Null::has_meaning, [](HWND h) { return SetActiveWindow(h) == nullptr; }},
    {"SetForegroundWindow", Null::fails, [](HWND h) { return SetForegroundWindow(h) == 0; }},
    {"TrackMouseEvent", Null::fails,
     [](HWND h) {
       TRACKMOUSEEVENT request{};
       request.cbSize = sizeof(request);
       request.dwFlags = TME_LEAVE;
       request.hwndTrack = h;
       return TrackMouseEvent(&request) == 0;
     }},
    {"BeginPaint", Null::fails, [](HWND h) { return BeginPaint(h, &paint) == nullptr; }},
    {"GetDC", Null::has_meaning, [](HWND h) { return GetDC(h) == nullptr; }},
    {"GetWindowDC", Null::has_meaning, [](HWND h) { return GetWindowDC(h) == nullptr; }},
    {"InvalidateRect", Null::has_meaning,
     [](HWND h) { return InvalidateRect(h, nullptr, TRUE) == 0; }},
    {"ValidateRect", Null::has_meaning, [](HWND h) { return ValidateRect(h, nullptr) == 0; }},
    {"RedrawWindow", Null::has_meaning,
     [](HWND h) { return RedrawWindow(h, nullptr, nullptr, RDW_INVALIDATE) == 0; }},
    {"UpdateWindow", Null::fails, [](HWND h) { return UpdateWindow(h) == 0; }},
    {"GetUpdateRect", Null::fails, [](HWND h) { return GetUpdateRect(h, &rect, FALSE) == 0; }},
};

class HandleTest : public WindowTest {};

TEST_F(HandleTest, EveryFunctionRefusesWhatIsNoWindow) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  const HWND gone = settled_popup("gone", 60, 0, 50, 50, live);
  DestroyWindow(gone);
  settle();
  int local = 0;
  const HWND no_windows[] = {gone,
                             reinterpret_cast<HWND>(UINT_PTR{0x7FFF1234}),
                             reinterpret_cast<HWND>(UINT_PTR{3}),
                             reinterpret_cast<HWND>(~UINT_PTR{0} - 7),
                             reinterpret_cast<HWND>(&local),
                             nullptr};
  for (const HandleCall& call : kCalls) {
    for (const HWND handle : no_windows) {
      if (handle == nullptr && call.null == Null::has_meaning) continue;
      SetLastError(0);
      EXPECT_TRUE(call.failed(handle)) << call.function << ' ' << handle;
      EXPECT_EQ(GetLastError(), 1400U) << call.function << ' ' << handle;
    }
  }
  for (const HWND handle : no_windows) EXPECT_EQ(IsWindow(handle), 0);
  EXPECT_NE(IsWindow(live), 0);
  step();
}

TEST_F(HandleTest, RefusedParentsAndNeighbours) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  const HWND gone = settled_popup("gone", 60, 0, 50, 50);
  DestroyWindow(gone);
  SetLastError(0);
  EXPECT_EQ(create("child", {.parent = gone, .style = WS_CHILD}), nullptr);
  EXPECT_EQ(GetLastError(), 1400U);
  SetLastError(0);
  EXPECT_EQ(create("owned", {.parent = gone}), nullptr);
  EXPECT_EQ(GetLastError(), 1400U);
  SetLastError(0);
  EXPECT_EQ(SetWindowPos(live, gone, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE), 0);
  EXPECT_EQ(GetLastError(), 1400U);
  EXPECT_EQ(IsChild(gone, live), 0);
  EXPECT_EQ(IsChild(live, gone), 0);
}

TEST_F(HandleTest, NullPointersAreRefused) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  EXPECT_EQ(GetWindowRect(live, nullptr), 0);
  EXPECT_EQ(GetClientRect(live, nullptr), 0);
  EXPECT_EQ(ClientToScreen(live, nullptr), 0);
  EXPECT_EQ(ScreenToClient(live, nullptr), 0);
  EXPECT_EQ(BeginPaint(live, nullptr), nullptr);
  EXPECT_EQ(EndPaint(live, nullptr), 0);
  EXPECT_EQ(GetCursorPos(nullptr), 0);
  EXPECT_EQ(RegisterClassW(nullptr), 0);
  EXPECT_EQ(TrackMouseEvent(nullptr), 0);
  EXPECT_EQ(RegisterWindowMessageW(nullptr), 0U);
  EXPECT_EQ(SendInput(1, nullptr, sizeof(INPUT)), 0U);
  EXPECT_EQ(GetWindowTextW(live, nullptr, 10), 0);
  EXPECT_EQ(PeekMessageW(nullptr, nullptr, 0, 0, PM_REMOVE), 0);
  EXPECT_EQ(
      CreateWindowExW(0, nullptr, L"", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr),
      nullptr);
}

TEST_F(HandleTest, ReleasedDeviceContextsAndThoseOfDestroyedWindowsDrawNothing) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  const HDC released = GetDC(live);
  EXPECT_EQ(ReleaseDC(live, released), 1);
  EXPECT_EQ(ReleaseDC(live, released), 0);
  fill(released, {0, 0, 50, 50}, RGB(0, 0, 0));
  EXPECT_EQ(pixel(10, 10), RGB(255, 255, 255));
  const HDC dc = GetDC(live);
  DestroyWindow(live);
  fill(dc, {0, 0, 50, 50}, RGB(255, 255, 255));
  ReleaseDC(live, dc);
  EXPECT_NE(pixel(10, 10), RGB(255, 255, 255));
}

}  // namespace
}  // namespace corvane::conformance
