#include "corvane/frame/key_filter.h"

#include <array>

namespace corvane {
namespace {

struct FilterRule {
  KeyAction escape_down;
  KeyAction wheel;
};

// In the order of KeyFilter.
constexpr std::array<FilterRule, 4> kRules = {
    {{KeyAction::post_to_parent, KeyAction::pass},
     {KeyAction::post_to_main_window, KeyAction::pass},
     {KeyAction::post_to_parent, KeyAction::send_to_layer},
     {KeyAction::swallow, KeyAction::pass}}};

}  // namespace

KeyAction key_action(KeyFilter filter, UINT message, WPARAM wparam) {
  const FilterRule& rule = kRules[static_cast<std::size_t>(filter)];
  if (message == WM_MOUSEWHEEL) return rule.wheel;
  if (message != WM_KEYDOWN && message != WM_KEYUP) return KeyAction::pass;
  if (wparam == VK_RETURN) return KeyAction::swallow;
  if (wparam != VK_ESCAPE) return KeyAction::pass;
  return message == WM_KEYDOWN ? rule.escape_down : KeyAction::swallow;
}

}  // namespace corvane
