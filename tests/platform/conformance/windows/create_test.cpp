// Creating windows: results, styles, relations and texts.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class CreateWindowTest : public WindowTest {};

TEST_F(CreateWindowTest, CreationDataIsWhatTheCallerGave) {
  const HWND parent = create("parent", {.place = {.width = 300, .height = 300}});
  int payload = 0;
  const WindowPlan plan = {.parent = parent,
                           .style = WS_CHILD | WS_VISIBLE | WS_TABSTOP,
                           .place = {-3, 4, 50, 60},
                           .ex_style = WS_EX_TRANSPARENT,
                           .id = 21,
                           .parameter = &payload};
  const std::wstring class_name = recorder().class_for(plan);
  int seen = 0;
  for (const UINT message : {WM_NCCREATE, WM_CREATE}) {
    recorder().on("child", message, [&](const Message& sent) -> std::optional<LRESULT> {
      ++seen;
      const auto& data = *reinterpret_cast<const CREATESTRUCTW*>(sent.lparam);
      EXPECT_EQ(static_cast<DWORD>(data.style), plan.style);
      EXPECT_EQ(data.dwExStyle, plan.ex_style);
      EXPECT_EQ(text_of(RECT{data.x, data.y, data.cx, data.cy}), "-3,4,50,60");
      EXPECT_EQ(data.hwndParent, parent);
      EXPECT_EQ(data.lpCreateParams, &payload);
      EXPECT_EQ(reinterpret_cast<UINT_PTR>(data.hMenu), 21U);
      EXPECT_EQ(data.lpszName, std::wstring(L"child"));
      EXPECT_EQ(data.lpszClass, class_name);
      return std::nullopt;
    });
  }
  DestroyWindow(create("child", plan));
  EXPECT_EQ(seen, 2);
  recorder().on("child", WM_CREATE, [](const Message&) -> std::optional<LRESULT> { throw 1; });
  EXPECT_THROW(create("child", plan), int);
  EXPECT_EQ(GetWindow(parent, GW_CHILD), nullptr) << "nobody has its handle";
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

class ClassTest : public CreateWindowTest {
 protected:
  ClassTest() {
    given_.style = CS_VREDRAW;
    given_.lpfnWndProc = &DefWindowProcW;
    given_.cbWndExtra = 16;
    given_.hInstance = GetModuleHandleW(nullptr);
    given_.hCursor = LoadCursorW(nullptr, IDC_HAND);
    given_.hbrBackground = static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH));
    given_.lpszClassName = L"Given";
  }
  WNDCLASSW given_{};
};

TEST_F(ClassTest, WhatItWasGivenIsKept) {
  const ATOM atom = RegisterClassW(&given_);
  WNDCLASSW found{};
  EXPECT_NE(GetClassInfoW(given_.hInstance, L"GIVEN", &found), 0);
  EXPECT_EQ(found.style, given_.style);
  EXPECT_EQ(found.lpfnWndProc, given_.lpfnWndProc);
  EXPECT_EQ(found.cbWndExtra, given_.cbWndExtra);
  EXPECT_EQ(found.hInstance, given_.hInstance);
  EXPECT_EQ(found.hCursor, given_.hCursor);
  EXPECT_EQ(found.hbrBackground, given_.hbrBackground);
  const HWND window = CreateWindowExW(0, MAKEINTRESOURCEW(atom), L"its text", WS_POPUP, 0, 0, 5, 5,
                                      nullptr, nullptr, given_.hInstance, nullptr);
  wchar_t text[16] = L"~~~~~~~~~~~~~~~";
  EXPECT_EQ(GetWindowTextW(window, text, 16), 8);
  EXPECT_STREQ(text, L"its text");
  EXPECT_EQ(GetClassNameW(window, text, 16), 5);
  EXPECT_STREQ(text, L"Given");
  EXPECT_EQ(GetClassNameW(window, text, 3), 2);
  EXPECT_STREQ(text, L"Gi");
  EXPECT_EQ(GetClassLongPtrW(window, GCL_STYLE), given_.style);
  EXPECT_EQ(GetClassLongPtrW(window, GCLP_HCURSOR), reinterpret_cast<ULONG_PTR>(given_.hCursor));
  EXPECT_EQ(GetClassLongPtrW(window, GCLP_HBRBACKGROUND),
            reinterpret_cast<ULONG_PTR>(given_.hbrBackground));
  EXPECT_EQ(GetClassLongPtrW(window, GCLP_WNDPROC),
            reinterpret_cast<ULONG_PTR>(given_.lpfnWndProc));
  EXPECT_EQ(GetWindowLongPtrW(window, GWLP_WNDPROC),
            reinterpret_cast<LONG_PTR>(given_.lpfnWndProc));
  EXPECT_EQ(GetWindowLongPtrW(window, GWLP_HINSTANCE),
            reinterpret_cast<LONG_PTR>(given_.hInstance));
  // The extra bytes hold two values.
  for (const int index : {0, 8}) EXPECT_EQ(SetWindowLongPtrW(window, index, -7 - index), 0);
  for (const int index : {0, 8}) EXPECT_EQ(GetWindowLongPtrW(window, index), -7 - index);
  for (const int index : {-1, 9, 16, 1000}) {
    SetLastError(0);
    EXPECT_EQ(SetWindowLongPtrW(window, index, 1), 0) << index;
    EXPECT_EQ(GetLastError(), 87U) << index;
    EXPECT_EQ(GetWindowLongPtrW(window, index), 0) << index;
  }
  EXPECT_EQ(UnregisterClassW(L"Given", given_.hInstance), 0) << "in use";
  DestroyWindow(window);
  EXPECT_NE(UnregisterClassW(L"Given", given_.hInstance), 0);
  EXPECT_EQ(UnregisterClassW(L"Given", given_.hInstance), 0);
  EXPECT_EQ(GetClassInfoW(given_.hInstance, L"Given", &found), 0);
}

TEST_F(ClassTest, RegisteredOnceAndNeverWithNonsense) {
  const auto error = [&](WNDPROC procedure, int extra, LPCWSTR name) {
    given_.lpfnWndProc = procedure;
    given_.cbWndExtra = extra;
    given_.lpszClassName = name;
    SetLastError(0);
    return RegisterClassW(&given_) != 0 ? 0 : GetLastError();
  };
  EXPECT_EQ(error(&DefWindowProcW, 4096, L"Most"), 0U);
  EXPECT_EQ(error(&DefWindowProcW, 0, L"MOST"), 1410U);
  EXPECT_EQ(error(&DefWindowProcW, 4097, L"Other"), 87U);
  EXPECT_EQ(error(&DefWindowProcW, -1, L"Other"), 87U);
  EXPECT_EQ(error(nullptr, 0, L"Other"), 87U);
  EXPECT_EQ(error(&DefWindowProcW, 0, MAKEINTRESOURCEW(5)), 87U);
  EXPECT_EQ(error(&DefWindowProcW, 0, nullptr), 87U);
}

TEST_F(CreateWindowTest, ParentAndOwnerRelations) {
  const HWND main = create("main", {});
  const HWND child = create("child", {.parent = main, .style = WS_CHILD});
  const HWND grandchild = create("grandchild", {.parent = child, .style = WS_CHILD});
  const HWND owned = create("owned", {.parent = main});
  const HWND deeper = create("deeper", {.parent = owned});
  const HWND from_child = create("from_child", {.parent = grandchild});
  const HWND desktop = GetDesktopWindow();
  struct Relations {
    HWND window, parent, owner, ancestor, root, root_owner;
  };
  for (const Relations& each : {
           Relations{main, nullptr, nullptr, desktop, main, main},
           Relations{child, main, nullptr, main, main, main},
           Relations{grandchild, child, nullptr, child, main, main},
           Relations{owned, main, main, desktop, owned, main},
           Relations{deeper, owned, owned, desktop, deeper, main},
           // Owned by the child's top-level ancestor.
           Relations{from_child, main, main, desktop, from_child, main},
       }) {
    SCOPED_TRACE(name_of(each.window));
    EXPECT_EQ(GetParent(each.window), each.parent);
    EXPECT_EQ(GetWindow(each.window, GW_OWNER), each.owner);
    EXPECT_EQ(GetAncestor(each.window, GA_PARENT), each.ancestor);
    EXPECT_EQ(GetAncestor(each.window, GA_ROOT), each.root);
    EXPECT_EQ(GetAncestor(each.window, GA_ROOTOWNER), each.root_owner);
    EXPECT_EQ(IsChild(main, each.window) != 0, each.window != main && each.root == main);
  }
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
