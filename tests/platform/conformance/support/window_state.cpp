#include "tests/platform/conformance/support/window_state.h"

#include <sstream>

#include "tests/support/rects.h"

namespace corvane::conformance {

namespace {

// From the top; what the desktop shows of others is passed over.
std::string children_of(HWND parent, const MessageRecorder& recorder) {
  std::string order;
  for (HWND each = GetTopWindow(parent); each != nullptr; each = GetWindow(each, GW_HWNDNEXT)) {
    const std::string name = recorder.name_of(each);
    if (name != "?") order += (order.empty() ? "" : " ") + name;
  }
  return order;
}

// In the parent's client area, or on the screen.
std::string place_of(HWND window, DWORD style) {
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

void add_window(const std::string& name, HWND window, WindowState& state) {
  const auto style = static_cast<DWORD>(GetWindowLongW(window, GWL_STYLE));
  const char* const unseen = (style & WS_VISIBLE) != 0 ? "in a hidden parent" : "hidden";
  state[name] = IsWindowVisible(window) != 0 ? "shown" : unseen;
  state[name + " enabled"] = IsWindowEnabled(window) != 0 ? "yes" : "no";
  std::ostringstream styles;
  styles << std::hex << (style & ~(WS_VISIBLE | WS_DISABLED)) << ' '
         << static_cast<DWORD>(GetWindowLongW(window, GWL_EXSTYLE));
  state[name + " styles"] = styles.str();
  state[name + " at"] = place_of(window, style);
  RECT invalid{};
  const bool to_paint = GetUpdateRect(window, &invalid, FALSE) != 0;
  state[name + " to paint"] = to_paint ? test::text_of(invalid) : "nothing";
}

bool says_nothing(const std::string& fact, const std::string& value) {
  return value == "nothing" || value == "none" || (fact.ends_with(" enabled") && value == "yes");
}

}  // namespace

WindowState window_state(const MessageRecorder& recorder) {
  WindowState state = {{"focus", recorder.name_of(GetFocus())},
                       {"active", recorder.name_of(GetActiveWindow())},
                       {"capture", recorder.name_of(GetCapture())},
                       {"order", children_of(nullptr, recorder)}};
  for (const auto& [name, window] : recorder.windows()) {
    state[name] = "gone";
    if (IsWindow(window) == 0) continue;
    add_window(name, window, state);
    state[name + " children"] = children_of(window, recorder);
  }
  std::erase_if(state, [](const auto& each) { return each.second.empty(); });
  return state;
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
