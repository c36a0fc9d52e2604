#include "corvane/platform/framework/message_map.h"

#include "corvane/platform/framework/scroll_bar.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {
namespace {

template <class Fits>
MessageMatch first_match(const MessageMap* map, const Fits& fits) {
  for (; map != nullptr; map = map->base) {
    for (const MessageEntry& entry : map->entries) {
      if (fits(entry)) return {&entry, map->table};
    }
  }
  return {};
}

}  // namespace

MessageMatch MessageMap::find(UINT message) const {
  return first_match(this, [message](const MessageEntry& entry) {
    if (entry.kind == MessageKind::window_message) return entry.number == message;
    return entry.kind == MessageKind::registered_message && *entry.registered != 0 &&
           *entry.registered == message;
  });
}

MessageMatch MessageMap::find_command(UINT id, UINT code) const {
  return first_match(this, [id, code](const MessageEntry& entry) {
    return entry.kind == MessageKind::command && entry.number == id && entry.code == code;
  });
}

CWnd* wnd_from_parameter(WPARAM window) { return CWnd::FromHandle(reinterpret_cast<HWND>(window)); }

CWnd* wnd_from_parameter(LPARAM window) { return CWnd::FromHandle(reinterpret_cast<HWND>(window)); }

CScrollBar* scroll_bar_from_parameter(LPARAM window) {
  CWnd* bar = CWnd::FromHandlePermanent(reinterpret_cast<HWND>(window));
  const bool is_bar = bar != nullptr && bar->IsKindOf(&CScrollBar::classCScrollBar);
  return is_bar ? static_cast<CScrollBar*>(bar) : nullptr;
}

}  // namespace corvane
