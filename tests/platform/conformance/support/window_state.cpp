#include "tests/platform/conformance/support/window_state.h"

#include <sstream>

#include "tests/support/rects.h"

namespace corvane::conformance {

namespace {

class StateReader {
 public:
  explicit StateReader(const std::map<std::string, HWND>& windows) : windows_(windows) {
    for (const auto& [name, window] : windows) names_[window] = name;
  }

  WindowState read() {
    state_["focus"] = name_of(GetFocus());
    state_["active"] = name_of(GetActiveWindow());
    state_["capture"] = name_of(GetCapture());
    add_order("order", nullptr);
    for (const auto& [name, window] : windows_) {
      state_[name] = "gone";
      if (IsWindow(window) != 0) add_window(name, window);
    }
    return std::move(state_);
  }

 private:
  std::string name_of(HWND window) const {
    const auto found = names_.find(window);
    return found != names_.end() ? found->second : window == nullptr ? "none" : "a stranger";
  }

  // Whatever else the desktop shows is passed over.
  void add_order(const std::string& fact, HWND parent) {
    std::string order;
    for (HWND each = GetTopWindow(parent); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
      if (names_.contains(each)) order += (order.empty() ? "" : " ") + name_of(each);
    }
    if (!order.empty()) state_[fact] = order;
  }

  void add_window(const std::string& name, HWND window) {
    const DWORD style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
    const bool marked = (style & WS_VISIBLE) != 0;
    state_[name] = IsWindowVisible(window) != 0 ? "shown"
                   : marked                     ? "in a hidden parent"
                                                : "hidden";
    state_[name + " enabled"] = IsWindowEnabled(window) != 0 ? "yes" : "no";
    state_[name + " styles"] = hexadecimal(style & ~(WS_VISIBLE | WS_DISABLED)) + " " +
                               hexadecimal(static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE)));
    state_[name + " at"] = place(window, style);
    RECT invalid{};
    state_[name + " to paint"] = "nothing";
    if (GetUpdateRect(window, &invalid, FALSE) != 0) {
      state_[name + " to paint"] = test::text_of(invalid);
    }
    add_order(name + " children", window);
  }

  // In the parent's client area, or on the screen.
  static std::string place(HWND window, DWORD style) {
    RECT rect = test::window_rect(window);
    const RECT client = test::client_rect(window);
    const SIZE size = {rect.right - rect.left, rect.bottom - rect.top};
    if ((style & WS_CHILD) != 0) {
      MapWindowPoints(nullptr, GetAncestor(window, GA_PARENT), reinterpret_cast<POINT*>(&rect), 2);
    }
    std::ostringstream text;
    text << rect.left << ',' << rect.top << ' ' << size.cx << 'x' << size.cy;
    if (client.right != size.cx || client.bottom != size.cy) {
      text << " client " << client.right << 'x' << client.bottom;
    }
    return text.str();
  }

  static std::string hexadecimal(DWORD value) {
    std::ostringstream text;
    text << std::hex << value;
    return text.str();
  }

  const std::map<std::string, HWND>& windows_;
  std::map<HWND, std::string> names_;
  WindowState state_;
};

bool says_nothing(const std::string& fact, const std::string& value) {
  return value == "nothing" || value == "none" || (fact.ends_with(" enabled") && value == "yes");
}

}  // namespace

WindowState window_state(const std::map<std::string, HWND>& windows) {
  return StateReader(windows).read();
}

std::vector<std::string> state_changes(const WindowState& before, const WindowState& after) {
  std::vector<std::string> changes;
  for (const auto& [fact, value] : after) {
    const auto former = before.find(fact);
    const bool same = former == before.end() ? says_nothing(fact, value) : former->second == value;
    if (!same) changes.push_back("= " + fact + " " + value);
  }
  return changes;
}

}  // namespace corvane::conformance
