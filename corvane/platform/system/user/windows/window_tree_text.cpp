#include "corvane/platform/system/user/windows/window_tree_text.h"

#include <sstream>

namespace corvane::system {
namespace {

void append_utf8(std::string& out, std::wstring_view text) {
  for (const wchar_t letter : text) {
    auto code = static_cast<std::uint32_t>(letter);
    if (code < 0x80) {
      out += static_cast<char>(code);
    } else if (code < 0x800) {
      out += static_cast<char>(0xC0 | (code >> 6));
      out += static_cast<char>(0x80 | (code & 0x3F));
    } else if (code < 0x10000) {
      out += static_cast<char>(0xE0 | (code >> 12));
      out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
      out += static_cast<char>(0xF0 | ((code >> 18) & 0x07));
      out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
      out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (code & 0x3F));
    }
  }
}

void describe(const System& state, const Window& window, int depth, std::string& out) {
  const RECT frame = frame_on_screen(window);
  std::ostringstream line;
  line << " (" << frame.left << ',' << frame.top << ")-(" << frame.right << ',' << frame.bottom
       << ')';
  out.append(static_cast<std::size_t>(depth) * 2, ' ');
  append_utf8(out, window.window_class->name);
  out += " \"";
  append_utf8(out, window.text);
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
