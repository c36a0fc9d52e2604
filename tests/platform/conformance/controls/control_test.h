#pragma once
// A window of 400 by 300 at (100, 100) with controls, and what they told it.
#include <string>
#include <vector>

#include "tests/platform/conformance/support/window_test.h"

namespace corvane::conformance {

class ControlTest : public WindowTest {
 protected:
  ControlTest() {
    const auto listen = [this](const Message& sent) -> std::optional<LRESULT> {
      const UINT low = LOWORD(sent.wparam);
      const UINT high = HIWORD(sent.wparam);
      told_ += sent.message == WM_COMMAND ? std::to_string(low) + ":" + std::to_string(high) + " "
                                          : "scroll " + std::to_string(low) + " ";
      if (sent.lparam != 0) last_teller_ = reinterpret_cast<HWND>(sent.lparam);
      return 0;
    };
    for (const UINT message : {WM_COMMAND, WM_VSCROLL, WM_HSCROLL}) {
      recorder().on("dialog", message, listen);
    }
  }

  // Ids count from 1 in the order of making.
  HWND add(const wchar_t* class_name, const wchar_t* text, DWORD style, const RECT& place) {
    HWND control = CreateWindowExW(0, class_name, text, WS_CHILD | WS_VISIBLE | style, place.left,
                                   place.top, place.right - place.left, place.bottom - place.top,
                                   dialog_, reinterpret_cast<HMENU>(++last_id_), nullptr, nullptr);
    pump();
    return control;
  }
  HWND add_button(const wchar_t* text, DWORD style, int row) {
    return add(L"BUTTON", text, style, {10, 10 + 40 * row, 130, 40 + 40 * row});
  }
  // On the screen.
  static POINT middle_of(HWND control) {
    const RECT rect = window_rect(control);
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
  }
  using test::Desktop::click;  // with a pause: the next one begins no double click
  // As id:code, and forgets it.
  std::string told() { return std::exchange(told_, {}); }

  const HWND dialog_ =
      create("dialog", {.style = WS_POPUP | WS_VISIBLE, .place = {100, 100, 400, 300}});
  HWND last_teller_ = nullptr;

 private:
  std::string told_;
  LONG_PTR last_id_ = 0;
};

}  // namespace corvane::conformance
