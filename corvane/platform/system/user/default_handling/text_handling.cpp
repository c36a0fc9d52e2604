// The default handling of a window's text and icons.
#include <algorithm>
#include <utility>

#include "corvane/platform/system/user/default_handling/default_handlers.h"
#include "corvane/platform/system/user/frames/frame_painting.h"
#include "corvane/platform/system/user/frames/window_frame.h"

namespace corvane::system {
namespace {

bool names_the_program(const Window& window) {
  return is_top_level(window) && window.owner == nullptr;
}

}  // namespace

LRESULT default_nc_create(const SentMessage& sent) {
  auto* create = reinterpret_cast<const CREATESTRUCTW*>(sent.lparam);
  if (create != nullptr && create->lpszName != nullptr && !IS_INTRESOURCE(create->lpszName)) {
    default_set_text({sent.window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(create->lpszName)});
  }
  return TRUE;
}

LRESULT default_set_text(const SentMessage& sent) {
  Window* found = find(sent.window);
  auto* text = reinterpret_cast<LPCWSTR>(sent.lparam);
  found->text = text == nullptr ? L"" : text;
  if (names_the_program(*found)) system()->display->set_title(found->text.c_str());
  const FrameLayout layout = frame_layout(*found);
  if (!IsRectEmpty(&layout.caption())) paint_frame(*found);
  return TRUE;
}

LRESULT default_get_text(const SentMessage& sent) {
  const Window* found = find(sent.window);
  auto* buffer = reinterpret_cast<wchar_t*>(sent.lparam);
  if (buffer == nullptr || sent.wparam == 0) return 0;
  const std::size_t length = std::min<std::size_t>(found->text.size(), sent.wparam - 1);
  found->text.copy(buffer, length);
  buffer[length] = 0;
  return static_cast<LRESULT>(length);
}

LRESULT default_get_text_length(const SentMessage& sent) {
  return static_cast<LRESULT>(find(sent.window)->text.size());
}

LRESULT default_get_icon(const SentMessage& sent) {
  const Window* found = find(sent.window);
  if (sent.wparam >= found->icons.size()) return 0;
  return reinterpret_cast<LRESULT>(found->icons[sent.wparam]);
}

LRESULT default_set_icon(const SentMessage& sent) {
  Window* found = find(sent.window);
  if (sent.wparam >= found->icons.size()) return 0;
  auto* const icon = reinterpret_cast<HICON>(sent.lparam);
  HICON former = std::exchange(found->icons[sent.wparam], icon);
  System& state = *system();
  const std::shared_ptr<const Surface> pixels = state.gdi.icon(icon);
  if (sent.wparam == ICON_BIG && names_the_program(*found) && pixels != nullptr) {
    state.display->set_icon(*pixels);
  }
  return reinterpret_cast<LRESULT>(former);
}

}  // namespace corvane::system
