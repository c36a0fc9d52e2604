#pragma once
// What GetMessageW and PeekMessageW return, in the platform's order.
#include <optional>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

struct MessageFilter {
  HWND window = nullptr;  // with its children; null: every message
  UINT first = 0;         // 0 and 0: every number
  UINT last = 0;
  bool matches(const System& state, const MSG& message) const;
};

std::optional<MSG> take_posted(System& state, const MessageFilter& filter, bool remove);
std::optional<MSG> take_input(System& state, const MessageFilter& filter, bool remove);
std::optional<MSG> take_paint(System& state, const MessageFilter& filter);
std::optional<MSG> take_timer(System& state, const MessageFilter& filter, bool remove);
// All of them in order: posted, input, WM_QUIT, WM_PAINT, WM_TIMER.
std::optional<MSG> retrieve(System& state, const MessageFilter& filter, bool remove);
// When the next timer or step of the cursor is due, milliseconds; nothing: never.
std::optional<std::uint64_t> next_due(System& state);
// Shows what was painted and sleeps until there may be work, or until that time of the display's
// clock; false when nothing can ever come.
bool sleep_until_work(System& state, std::optional<std::uint64_t> deadline = std::nullopt);

}  // namespace corvane::system
