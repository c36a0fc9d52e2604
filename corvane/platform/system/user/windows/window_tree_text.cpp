#include "corvane/platform/system/user/windows/window_tree_text.h"

#include <sstream>

#include "corvane/platform/system/gdi/text_utf8.h"

namespace corvane::system {
namespace {

void describe(const System& state, const Window& window, int depth, std::string& out) {
  const RECT frame = frame_on_screen(window);
  std::ostringstream line;
  line << " (" << frame.left << ',' << frame.top << ")-(" << frame.right << ',' << frame.bottom
       << ')';
  out.append(static_cast<std::size_t>(depth) * 2, ' ');
  out += to_utf8(window.window_class->name);
  out += " \"";
  out += to_utf8(window.text);
  out += '"';
  if (window.is_child()) out += " id=" + std::to_string(static_cast<int>(window.id));
  out += line.str();
  if ((window.style & WS_VISIBLE) == 0) out += " hidden";
  if ((window.style & WS_DISABLED) != 0) out += " disabled";
  if (window.is_layered()) out += " layered";
  if (state.input.focus == window.handle) out += " focus";
  if (state.input.active == window.handle) out += " active";
  if (state.input.capture == window.handle) out += " capture";
  out += '\n';
  for (const Window* child : window.children) describe(state, *child, depth + 1, out);
}

}  // namespace

std::string window_tree_text(const System& state) {
  std::string out;
  for (const Window* top : state.desktop->children) describe(state, *top, 0, out);
  return out;
}

}  // namespace corvane::system
