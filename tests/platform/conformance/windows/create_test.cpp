// Creating windows: results, styles, relations and texts.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class CreateWindowTest : public WindowTest {};

struct SeenCreation {
  CREATESTRUCTW data{};
  std::wstring name;
  std::wstring class_name;
};

TEST_F(CreateWindowTest, CreationDataIsWhatTheCallerGave) {
  const HWND parent = create("parent", {.place = {.width = 300, .height = 300}});
  std::vector<SeenCreation> seen;
  const auto remember = [&](const Message& sent) -> std::optional<LRESULT> {
    const auto* data = reinterpret_cast<const CREATESTRUCTW*>(sent.lparam);
    seen.push_back({*data, data->lpszName, data->lpszClass});
    return std::nullopt;
  };
  recorder().on("child", WM_NCCREATE, remember);
  recorder().on("child", WM_CREATE, remember);
  int payload = 0;
  const WindowPlan plan = {.parent = parent,
                           .style = WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                           .place = {-3, 4, 50, 60},
                           .ex_style = WS_EX_TRANSPARENT,
                           .id = 21,
                           .parameter = &payload};
  create("child", plan);
  ASSERT_EQ(seen.size(), 2U);
  for (const SeenCreation& creation : seen) {
    EXPECT_EQ(static_cast<DWORD>(creation.data.style), plan.style);
    EXPECT_EQ(creation.data.dwExStyle, plan.ex_style);
    EXPECT_EQ(creation.data.x, -3);
    EXPECT_EQ(creation.data.y, 4);
    EXPECT_EQ(creation.data.cx, 50);
    EXPECT_EQ(creation.data.cy, 60);
    EXPECT_EQ(creation.data.hwndParent, parent);
    EXPECT_EQ(creation.data.lpCreateParams, &payload);
    EXPECT_EQ(reinterpret_cast<UINT_PTR>(creation.data.hMenu), 21U);
    EXPECT_EQ(creation.name, L"child");
    EXPECT_EQ(creation.class_name, recorder().class_for(plan));
  }
}

TEST_F(CreateWindowTest, PopupsClipSiblingsAndChildrenKeepTheirStyle) {
  const HWND popup = create("pop", {});
  const HWND child = create("child", {.parent = popup, .style = WS_CHILD | WS_BORDER});
  EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(popup, GWL_STYLE)), WS_POPUP | WS_CLIPSIBLINGS);
  EXPECT_EQ(static_cast<DWORD>(GetWindowLongW(child, GWL_STYLE)), WS_CHILD | WS_BORDER);
}

TEST_F(CreateWindowTest, RefusedWithNullAndTheError) {
  struct Refused {
    bool known_class;
    DWORD style;
    DWORD error;
  };
  for (const Refused& each :
       {Refused{false, WS_POPUP, 1411}, Refused{false, WS_OVERLAPPED, 1411},
        Refused{true, WS_CHILD, 1406}, Refused{true, WS_CHILD | WS_VISIBLE, 1406}}) {
    const std::wstring class_name = each.known_class ? recorder().class_for({}) : L"NoSuchClass";
    SetLastError(0);
    EXPECT_EQ(CreateWindowExW(0, class_name.c_str(), L"", each.style, 0, 0, 10, 10, nullptr,
                              nullptr, GetModuleHandleW(nullptr), nullptr),
              nullptr);
    EXPECT_EQ(GetLastError(), each.error);
  }
  EXPECT_TRUE(recorder().log().empty());
}

TEST_F(CreateWindowTest, ClassesAreRegisteredOnce) {
  WNDCLASSW window_class{};
  window_class.lpfnWndProc = &DefWindowProcW;
  window_class.hInstance = GetModuleHandleW(nullptr);
  window_class.lpszClassName = L"RegisteredTwice";
  EXPECT_NE(RegisterClassW(&window_class), 0);
  SetLastError(0);
  EXPECT_EQ(RegisterClassW(&window_class), 0);
  EXPECT_EQ(GetLastError(), 1410U);
  WNDCLASSW found{};
  EXPECT_NE(GetClassInfoW(window_class.hInstance, L"RegisteredTwice", &found), 0);
  EXPECT_EQ(found.lpfnWndProc, &DefWindowProcW);
  EXPECT_NE(UnregisterClassW(L"RegisteredTwice", window_class.hInstance), 0);
  EXPECT_EQ(UnregisterClassW(L"RegisteredTwice", window_class.hInstance), 0);
  EXPECT_EQ(GetClassInfoW(window_class.hInstance, L"RegisteredTwice", &found), 0);
}

TEST_F(CreateWindowTest, ParentAndOwnerRelations) {
  const HWND main = create("main", {});
  const HWND child = create("child", {.parent = main, .style = WS_CHILD});
  const HWND grandchild = create("grandchild", {.parent = child, .style = WS_CHILD});
  const HWND owned = create("owned", {.parent = main});
  const HWND deeper = create("deeper", {.parent = owned});
  const HWND from_child = create("from_child", {.parent = grandchild});

  EXPECT_EQ(GetParent(main), nullptr);
  EXPECT_EQ(GetParent(child), main);
  EXPECT_EQ(GetParent(grandchild), child);
  EXPECT_EQ(GetParent(owned), main);
  EXPECT_EQ(GetParent(deeper), owned);
  EXPECT_EQ(GetParent(from_child), main) << "owned by the child's top-level ancestor";

  EXPECT_EQ(GetWindow(child, GW_OWNER), nullptr);
  EXPECT_EQ(GetWindow(owned, GW_OWNER), main);
  EXPECT_EQ(GetWindow(from_child, GW_OWNER), main);

  EXPECT_EQ(GetAncestor(grandchild, GA_PARENT), child);
  EXPECT_EQ(GetAncestor(grandchild, GA_ROOT), main);
  EXPECT_EQ(GetAncestor(deeper, GA_ROOT), deeper);
  EXPECT_EQ(GetAncestor(deeper, GA_ROOTOWNER), main);
  EXPECT_EQ(GetAncestor(owned, GA_PARENT), GetDesktopWindow());

  EXPECT_NE(IsChild(main, grandchild), 0);
  EXPECT_EQ(IsChild(main, owned), 0);
  EXPECT_EQ(IsChild(main, main), 0);
}

TEST_F(CreateWindowTest, DialogItemsAreFoundByTheirNumber) {
  const HWND parent = create("parent", {});
  const HWND five = create("five", {.parent = parent, .style = WS_CHILD, .id = 5});
  create("nine", {.parent = five, .style = WS_CHILD, .id = 9});
  EXPECT_EQ(GetDlgItem(parent, 5), five);
  EXPECT_EQ(GetDlgItem(parent, 6), nullptr);
  EXPECT_EQ(GetDlgItem(parent, 9), nullptr) << "immediate children only";
  EXPECT_EQ(GetDlgCtrlID(five), 5);
}

TEST_F(CreateWindowTest, TextIsSetByOneMessageAndCopiedTruncated) {
  const HWND popup = create("pop", {});
  forget();
  step("", SetWindowTextW(popup, L"abcdef"));
  EXPECT_EQ(GetWindowTextLengthW(popup), 6);
  struct Copy {
    int size;
    const wchar_t* text;
    int length;
  };
  for (const Copy& copy :
       {Copy{4, L"abc", 3}, Copy{7, L"abcdef", 6}, Copy{16, L"abcdef", 6}, Copy{1, L"", 0}}) {
    wchar_t buffer[16] = L"~~~~~~~~~~~~~~~";
    EXPECT_EQ(GetWindowTextW(popup, buffer, copy.size), copy.length) << copy.size;
    EXPECT_STREQ(buffer, copy.text);
  }
}

TEST_F(CreateWindowTest, ChildrenAreEnumeratedAllTheWayDownUntilTheCallbackStops) {
  const HWND parent = create("parent", {});
  const HWND first = create("first", {.parent = parent, .style = WS_CHILD});
  const HWND inner = create("inner", {.parent = first, .style = WS_CHILD});
  const HWND second = create("second", {.parent = parent, .style = WS_CHILD});
  std::vector<HWND> seen;
  EnumChildWindows(
      parent,
      [](HWND window, LPARAM list) -> BOOL {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&seen));
  EXPECT_EQ(seen, (std::vector<HWND>{first, inner, second}));
  int calls = 0;
  EnumChildWindows(
      parent,
      [](HWND, LPARAM counter) -> BOOL {
        ++*reinterpret_cast<int*>(counter);
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&calls));
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace corvane::conformance
