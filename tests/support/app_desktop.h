#pragma once
#include <tuple>
#include <utility>
#include <vector>

#include "corvane/platform/framework/framework.h"
#include "tests/support/desktop.h"

namespace corvane::test {

// A desktop with an application object, whose filters see each message first.
class AppDesktop : public Desktop {
 public:
  template <class Behind>  // what a Desktop is made of
  explicit AppDesktop(Behind behind) : Desktop(std::move(behind)) {
    filter_messages([this](MSG* message) {
      if (PreTranslateInput(message)) return true;
      const bool is_key = message->message == WM_KEYDOWN || message->message == WM_KEYUP;
      if (is_key) keys_.emplace_back(message->hwnd, message->message, message->wParam);
      return false;
    });
  }
  CWinApp& app() { return app_; }
  // Which keys went down and up at which windows since the last call: all that no filter swallowed.
  using Key = std::tuple<HWND, UINT, WPARAM>;
  std::vector<Key> take_keys() { return std::exchange(keys_, {}); }

 private:
  CWinApp app_;
  std::vector<Key> keys_;
};

}  // namespace corvane::test
