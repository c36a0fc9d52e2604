// The messages of a window's creation. The orders were observed; the documentation leaves them
// open.
#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {
namespace {

class ObservedCreateOrder : public WindowTest {
 protected:
  HWND create_child(const std::string& name, HWND parent, DWORD extra_style) {
    return create(
        name,
        {.parent = parent, .style = WS_CHILD | extra_style, .place = {10, 20, 40, 30}, .id = 7});
  }
};

TEST_F(ObservedCreateOrder, Children) {
  const HWND parent = settled_popup("parent", 100, 100, 200, 150);
  RECT calculated{};
  recorder().on("visible", WM_NCCALCSIZE, [&](const Message& sent) -> std::optional<LRESULT> {
    calculated = *reinterpret_cast<const RECT*>(sent.lparam);
    return std::nullopt;
  });
  create_child("visible", parent, WS_VISIBLE);
  now_and_later("visible");
  EXPECT_EQ(text_of(calculated), "110,120,150,150") << "in screen coordinates";
  create_child("hidden", parent, 0);
  now_and_later("hidden, below its sibling");
  ShowWindow(parent, SW_HIDE);
  settle();
  create_child("inside", parent, WS_VISIBLE);
  now_and_later("in a hidden parent");
  ShowWindow(parent, SW_SHOW);
  now_and_later("its parent is shown");
}

TEST_F(ObservedCreateOrder, Popups) {
  recorder().record_activation_of_application();
  create("first", {.style = WS_POPUP | WS_VISIBLE});
  now_and_later("the first activation tells the application first");
  create("second", {.style = WS_POPUP | WS_VISIBLE, .place = {60, 70, 80, 90}});
  now_and_later("a visible one takes the activation");
  create("owned", {.parent = window("first"), .place = {5, 6, 0, 0}});
  now_and_later("hidden, without a size, not announced to its owner");
  create("nothing", {.place = {.width = 0, .height = 0}});
  now_and_later("size and move are sent for nothing at the origin");
}

TEST_F(ObservedCreateOrder, CaptionedWindowLearnsItsSizeAtTheEndOfItsFirstShowing) {
  const HWND main =
      create("main", {.style = WS_OVERLAPPED | WS_CAPTION, .place = {.width = 300, .height = 200}});
  now_and_later("it asks for its limits first");
  ShowWindow(main, SW_SHOW);
  now_and_later("the first showing");
  ShowWindow(main, SW_HIDE);
  settle();
  ShowWindow(main, SW_SHOW);
  now_and_later("the second");
}

TEST_F(ObservedCreateOrder, RefusedCreations) {
  const HWND parent = create("parent", {});
  forget();
  recorder().answer("nc", WM_NCCREATE, 0);
  step("by WM_NCCREATE", create("nc", {.style = WS_POPUP | WS_VISIBLE}));
  for (const std::string name : {"popup", "child"}) recorder().answer(name, WM_CREATE, -1);
  step("by a pop-up's WM_CREATE: not destroyed twice", create("popup", {}));
  step("by a child's WM_CREATE", create_child("child", parent, WS_VISIBLE));
}

}  // namespace
}  // namespace corvane::conformance
