// The order in which Tab and the arrow keys visit the controls of a window.
#include <algorithm>
#include <iterator>
#include <vector>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {
namespace {

bool usable(const Window& window) {
  return (window.style & WS_VISIBLE) != 0 && (window.style & WS_DISABLED) == 0;
}

// All controls in their order; those of a child with WS_EX_CONTROLPARENT stand in its place.
void collect(const Window& parent, std::vector<const Window*>& controls) {
  for (const Window* child : parent.children) {
    const bool holds_controls = (child->ex_style & WS_EX_CONTROLPARENT) != 0;
    if (!holds_controls) {
      controls.push_back(child);
    } else if (usable(*child)) {
      collect(*child, controls);
    }
  }
}

// The window and its brothers from the last WS_GROUP at or before it to the one after it.
std::vector<const Window*> group_of(const Window& control) {
  const auto& brothers = control.parent->children;
  const auto begins_group = [](const Window* window) { return (window->style & WS_GROUP) != 0; };
  auto first = std::find(brothers.begin(), brothers.end(), &control);
  const auto last = std::find_if(std::next(first), brothers.end(), begins_group);
  while (first != brothers.begin() && !begins_group(*first)) --first;
  return {first, last};
}

// The next one, round the end, that `wanted` accepts; may be the one itself. Null: there is none.
template <class Wanted>
HWND next_in(const std::vector<const Window*>& controls, const Window* from, BOOL previous,
             Wanted wanted) {
  const std::size_t count = controls.size();
  const auto found = std::find(controls.begin(), controls.end(), from);
  const auto place = static_cast<std::size_t>(found - controls.begin());
  // From outside, the first step reaches the first one, or the last one backwards.
  const std::size_t start = place < count ? place : previous != FALSE ? 0 : count - 1;
  for (std::size_t step = 1; step <= count; ++step) {
    const std::size_t at = (previous != FALSE ? start + count - step : start + step) % count;
    if (wanted(*controls[at])) return controls[at]->handle;
  }
  return nullptr;
}

}  // namespace
}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous) {
  const Window* found = checked(dialog);
  if (found == nullptr) return nullptr;
  std::vector<const Window*> controls;
  collect(*found, controls);
  const HWND next = next_in(controls, find(control), previous, [](const Window& window) {
    return usable(window) && (window.style & WS_TABSTOP) != 0;
  });
  return next != nullptr ? next : control;
}

HWND GetNextDlgGroupItem(HWND dialog, HWND control, BOOL previous) {
  const Window* found = checked(dialog);
  if (found == nullptr) return nullptr;
  const Window* from = find(control);
  if (from != nullptr && !is_descendant(*found, *from)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  if (from == nullptr && !found->children.empty()) from = found->children.front();
  if (from == nullptr) return nullptr;
  const HWND next = next_in(group_of(*from), from, previous, usable);
  return next != nullptr ? next : control;
}

}  // namespace corvane_system
