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

const HandleCall creation_and_state[] = {
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
    {"GetWindowTextW", Null::fails,
     [](HWND h) {
       wchar_t text[4] = L"abc";
       return GetWindowTextW(h, text, 4) == 0;
     }},
    {"GetClassNameW", Null::fails,
     [](HWND h) {
       wchar_t text[4] = L"abc";
       return GetClassNameW(h, text, 4) == 0;
     }},
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
};

const HandleCall geometry_and_relations[] = {
    {"GetWindowRect", Null::fails,
     [](HWND h) {
       RECT rect{};
       return GetWindowRect(h, &rect) == 0;
     }},
    {"GetClientRect", Null::fails,
     [](HWND h) {
       RECT rect{};
       return GetClientRect(h, &rect) == 0;
     }},
    {"ClientToScreen", Null::fails,
     [](HWND h) {
       POINT point{};
       return ClientToScreen(h, &point) == 0;
     }},
    {"ScreenToClient", Null::fails,
     [](HWND h) {
       POINT point{};
       return ScreenToClient(h, &point) == 0;
     }},
    {"MapWindowPoints", Null::has_meaning,
     [](HWND h) {
       POINT point{};
       return MapWindowPoints(h, nullptr, &point, 1) == 0;
     }},
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
};

const HandleCall messages_and_input[] = {
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
    {"BeginPaint", Null::fails,
     [](HWND h) {
       PAINTSTRUCT paint{};
       return BeginPaint(h, &paint) == nullptr;
     }},
    {"GetDC", Null::has_meaning, [](HWND h) { return GetDC(h) == nullptr; }},
    {"GetWindowDC", Null::has_meaning, [](HWND h) { return GetWindowDC(h) == nullptr; }},
    {"InvalidateRect", Null::has_meaning,
     [](HWND h) { return InvalidateRect(h, nullptr, TRUE) == 0; }},
    {"ValidateRect", Null::has_meaning, [](HWND h) { return ValidateRect(h, nullptr) == 0; }},
    {"RedrawWindow", Null::has_meaning,
     [](HWND h) { return RedrawWindow(h, nullptr, nullptr, RDW_INVALIDATE) == 0; }},
    {"UpdateWindow", Null::fails, [](HWND h) { return UpdateWindow(h) == 0; }},
    {"GetUpdateRect", Null::fails,
     [](HWND h) {
       RECT rect{};
       return GetUpdateRect(h, &rect, FALSE) == 0;
     }},
};

std::string call_name(const testing::TestParamInfo<HandleCall>& instance) {
  return instance.param.function;
}

class HandleTest : public WindowTest, public testing::WithParamInterface<HandleCall> {
 protected:
  void expect_refused(HWND handle, const char* kind) {
    SetLastError(0);
    EXPECT_TRUE(GetParam().failed(handle)) << kind;
    EXPECT_EQ(GetLastError(), 1400U) << kind;
  }
};

TEST_P(HandleTest, RefusesWhatIsNoWindow) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  const HWND gone = settled_popup("gone", 60, 0, 50, 50, live);
  DestroyWindow(gone);
  settle();
  expect_refused(gone, "destroyed");
  expect_refused(reinterpret_cast<HWND>(UINT_PTR{0x7FFF1234}), "made up");
  expect_refused(reinterpret_cast<HWND>(UINT_PTR{3}), "small number");
  expect_refused(reinterpret_cast<HWND>(~UINT_PTR{0} - 7), "all ones");
  int local = 0;
  expect_refused(reinterpret_cast<HWND>(&local), "some address");
  if (GetParam().null == Null::fails) expect_refused(nullptr, "null");
  EXPECT_NE(IsWindow(live), 0);
  EXPECT_EQ(GetFocus(), live);
  EXPECT_EQ(GetActiveWindow(), live);
  EXPECT_EQ(GetCapture(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(State, HandleTest, testing::ValuesIn(creation_and_state), call_name);
INSTANTIATE_TEST_SUITE_P(Relations, HandleTest, testing::ValuesIn(geometry_and_relations),
                         call_name);
INSTANTIATE_TEST_SUITE_P(Messages, HandleTest, testing::ValuesIn(messages_and_input), call_name);

class HandleArgumentTest : public WindowTest {};

TEST_F(HandleArgumentTest, IsWindowOnlyForLiveWindows) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  EXPECT_NE(IsWindow(live), 0);
  EXPECT_EQ(IsWindow(nullptr), 0);
  EXPECT_EQ(IsWindow(reinterpret_cast<HWND>(UINT_PTR{0x7FFF1234})), 0);
  DestroyWindow(live);
  EXPECT_EQ(IsWindow(live), 0);
}

TEST_F(HandleArgumentTest, RefusedParentsAndNeighbours) {
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

TEST_F(HandleArgumentTest, NullPointersAreRefused) {
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

TEST_F(HandleArgumentTest, ReleasedDeviceContextsCannotBeUsedAgain) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  const HDC dc = GetDC(live);
  EXPECT_EQ(ReleaseDC(live, dc), 1);
  EXPECT_EQ(ReleaseDC(live, dc), 0);
  const RECT rect{0, 0, 50, 50};
  FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
  EXPECT_EQ(pixel(10, 10), RGB(255, 255, 255));
}

TEST_F(HandleArgumentTest, DrawingIntoAWindowDestroyedMeanwhileIsHarmless) {
  const HWND live = settled_popup("live", 0, 0, 50, 50);
  const HDC dc = GetDC(live);
  DestroyWindow(live);
  const RECT rect{0, 0, 50, 50};
  FillRect(dc, &rect, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH)));
  ReleaseDC(live, dc);
  EXPECT_NE(pixel(10, 10), RGB(255, 255, 255));
}

}  // namespace
}  // namespace corvane::conformance
