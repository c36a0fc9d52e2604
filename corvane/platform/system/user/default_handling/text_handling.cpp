// The default handling of a window's text.
#include <algorithm>

#include "corvane/platform/system/user/default_handling/default_handlers.h"
#include "corvane/platform/system/user/frames/frame_painting.h"
#include "corvane/platform/system/user/frames/window_frame.h"

namespace corvane::system {

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
  const bool names_the_program = is_top_level(*found) && found->owner == nullptr;
  if (names_the_program) system()->display->set_title(found->text.c_str());
  if (!IsRectEmpty(&frame_layout(*found).caption())) paint_frame(*found);
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

}  // namespace corvane::system
