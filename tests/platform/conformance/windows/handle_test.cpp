// Every function refuses stale and made-up window handles softly: its failure result, error 1400.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

struct HandleCall {
  const char* function;
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
SCROLLINFO info{sizeof(SCROLLINFO), SIF_ALL, 0, 9, 1, 3, 0};
const HandleCall kCalls[] = {
    {"DestroyWindow", [](HWND h) { return DestroyWindow(h) == 0; }},
    {"ShowWindow", [](HWND h) { return ShowWindow(h, SW_SHOW) == 0; }},
    {"MoveWindow", [](HWND h) { return MoveWindow(h, 0, 0, 5, 5, TRUE) == 0; }},
    {"SetWindowPos", [](HWND h) { return SetWindowPos(h, HWND_TOP, 0, 0, 5, 5, 0) == 0; }},
    {"BringWindowToTop", [](HWND h) { return BringWindowToTop(h) == 0; }},
    {"EnableWindow", [](HWND h) { return EnableWindow(h, FALSE) == 0; }},
    {"IsWindowVisible", [](HWND h) { return IsWindowVisible(h) == 0; }},
    {"IsWindowEnabled", [](HWND h) { return IsWindowEnabled(h) == 0; }},
    {"SetWindowTextW", [](HWND h) { return SetWindowTextW(h, L"x") == 0; }},
    {"GetWindowTextLengthW", [](HWND h) { return GetWindowTextLengthW(h) == 0; }},
    {"GetWindowTextW", [](HWND h) { return GetWindowTextW(h, text, 4) == 0; }},
    {"GetClassNameW", [](HWND h) { return GetClassNameW(h, text, 4) == 0; }},
    {"GetWindowLongW", [](HWND h) { return GetWindowLongW(h, GWL_STYLE) == 0; }},
    {"SetWindowLongW", [](HWND h) { return SetWindowLongW(h, GWL_STYLE, 1) == 0; }},
    {"GetWindowLongPtrW", [](HWND h) { return GetWindowLongPtrW(h, GWLP_USERDATA) == 0; }},
    {"SetWindowLongPtrW", [](HWND h) { return SetWindowLongPtrW(h, GWLP_USERDATA, 1) == 0; }},
    {"GetClassLongPtrW", [](HWND h) { return GetClassLongPtrW(h, GCL_STYLE) == 0; }},
    {"SetLayeredWindowAttributes",
     [](HWND h) { return SetLayeredWindowAttributes(h, 0, 9, LWA_ALPHA) == 0; }},
    {"GetLayeredWindowAttributes",
     [](HWND h) { return GetLayeredWindowAttributes(h, nullptr, nullptr, nullptr) == 0; }},
    {"UpdateLayeredWindow",
     [](HWND h) {
       return UpdateLayeredWindow(h, nullptr, nullptr, nullptr, nullptr, nullptr, 0, nullptr,
                                  ULW_ALPHA) == 0;
     }},
    {"GetWindowRect", [](HWND h) { return GetWindowRect(h, &rect) == 0; }},
    {"GetClientRect", [](HWND h) { return GetClientRect(h, &rect) == 0; }},
    {"ClientToScreen", [](HWND h) { return ClientToScreen(h, &point) == 0; }},
    {"ScreenToClient", [](HWND h) { return ScreenToClient(h, &point) == 0; }},
    {"GetParent", [](HWND h) { return GetParent(h) == nullptr; }},
    {"SetParent", [](HWND h) { return SetParent(h, nullptr) == nullptr; }},
    {"GetAncestor", [](HWND h) { return GetAncestor(h, GA_ROOT) == nullptr; }},
    {"GetWindow", [](HWND h) { return GetWindow(h, GW_HWNDNEXT) == nullptr; }},
    {"GetDlgItem", [](HWND h) { return GetDlgItem(h, 1) == nullptr; }},
    {"GetDlgCtrlID", [](HWND h) { return GetDlgCtrlID(h) == 0; }},
    {"ChildWindowFromPoint", [](HWND h) { return ChildWindowFromPoint(h, point) == nullptr; }},
    {"GetWindowThreadProcessId", [](HWND h) { return GetWindowThreadProcessId(h, nullptr) == 0; }},
    {"SendMessageW", [](HWND h) { return SendMessageW(h, WM_USER, 0, 0) == 0; }},
    {"SetForegroundWindow", [](HWND h) { return SetForegroundWindow(h) == 0; }},
    {"TrackMouseEvent",
     [](HWND h) {
       TRACKMOUSEEVENT request{sizeof(TRACKMOUSEEVENT), TME_LEAVE, h, 0};
       return TrackMouseEvent(&request) == 0;
     }},
    {"BeginPaint", [](HWND h) { return BeginPaint(h, &paint) == nullptr; }},
    {"SetScrollInfo", [](HWND h) { return SetScrollInfo(h, SB_VERT, &info, TRUE) == 0; }},
    {"GetScrollInfo", [](HWND h) { return GetScrollInfo(h, SB_VERT, &info) == 0; }},
    {"SetScrollPos", [](HWND h) { return SetScrollPos(h, SB_VERT, 5, TRUE) == 0; }},
    {"GetScrollPos", [](HWND h) { return GetScrollPos(h, SB_VERT) == 0; }},
    {"SetScrollRange", [](HWND h) { return SetScrollRange(h, SB_VERT, 0, 5, TRUE) == 0; }},
    {"ShowScrollBar", [](HWND h) { return ShowScrollBar(h, SB_VERT, TRUE) == 0; }},
    {"UpdateWindow", [](HWND h) { return UpdateWindow(h) == 0; }},
    {"GetUpdateRect", [](HWND h) { return GetUpdateRect(h, &rect, FALSE) == 0; }},
};

// To these no window at all means something.
const HandleCall kCallsWithNull[] = {
    {"MapWindowPoints", [](HWND h) { return MapWindowPoints(h, nullptr, &point, 1) == 0; }},
    {"GetTopWindow", [](HWND h) { return GetTopWindow(h) == nullptr; }},
    {"EnumChildWindows", [](HWND h) { return EnumChildWindows(h, &never_called, 0) == 0; }},
    {"PostMessageW", [](HWND h) { return PostMessageW(h, WM_USER, 0, 0) == 0; }},
    {"SetTimer", [](HWND h) { return SetTimer(h, 1, 10, nullptr) == 0; }},
    {"SetCapture", [](HWND h) { return SetCapture(h) == nullptr; }},
    {"SetFocus", [](HWND h) { return SetFocus(h) == nullptr; }},
    {"SetActiveWindow", [](HWND h) { return SetActiveWindow(h) == nullptr; }},
    {"GetDC", [](HWND h) { return GetDC(h) == nullptr; }},
    {"GetWindowDC", [](HWND h) { return GetWindowDC(h) == nullptr; }},
    {"InvalidateRect", [](HWND h) { return InvalidateRect(h, nullptr, TRUE) == 0; }},
    {"ValidateRect", [](HWND h) { return ValidateRect(h, nullptr) == 0; }},
    {"RedrawWindow", [](HWND h) { return RedrawWindow(h, nullptr, nullptr, RDW_INVALIDATE) == 0; }},
};

class HandleTest : public WindowTest {};

TEST_F(HandleTest, EveryFunctionRefusesWhatIsNoWindow) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  const HWND gone = settled_popup("gone", 60, 0, 50, 50, live);
  DestroyWindow(gone);
  settle();
  int local = 0;
  const auto expect_refused = [](const HandleCall& call, HWND handle) {
    SetLastError(0);
    EXPECT_TRUE(call.failed(handle)) << call.function << ' ' << handle;
    EXPECT_EQ(GetLastError(), 1400U) << call.function << ' ' << handle;
  };
  for (const UINT_PTR number : {reinterpret_cast<UINT_PTR>(gone), UINT_PTR{0x7FFF1234}, UINT_PTR{3},
                                ~UINT_PTR{0} - 7, reinterpret_cast<UINT_PTR>(&local)}) {
    const HWND handle = reinterpret_cast<HWND>(number);
    for (const HandleCall& call : kCalls) expect_refused(call, handle);
    for (const HandleCall& call : kCallsWithNull) expect_refused(call, handle);
    EXPECT_EQ(IsWindow(handle), 0);
  }
  for (const HandleCall& call : kCalls) expect_refused(call, nullptr);
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
  fill(released, {0, 0, 50, 50}, kBlack);
  EXPECT_EQ(pixel(10, 10), kWhite);
  const HDC dc = GetDC(live);
  DestroyWindow(live);
  fill(dc, {0, 0, 50, 50}, kWhite);
  ReleaseDC(live, dc);
  EXPECT_NE(pixel(10, 10), kWhite);
}

}  // namespace
}  // namespace corvane::conformance
