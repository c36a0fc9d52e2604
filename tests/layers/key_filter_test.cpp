#include "corvane/frame/key_filter.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace {

using corvane::key_action;
using corvane::KeyAction;
using corvane::KeyFilter;

struct FilterCase {
  UINT message;
  WPARAM wparam;
  // In the order: to parent, to main window, drawing surface, swallow only.
  std::array<KeyAction, 4> actions;
};

constexpr std::array<KeyAction, 4> everywhere(KeyAction action) {
  return {action, action, action, action};
}

TEST(KeyFilter, Table) {
  const std::vector<FilterCase> cases = {
      {WM_KEYDOWN, VK_RETURN, everywhere(KeyAction::swallow)},
      {WM_KEYUP, VK_RETURN, everywhere(KeyAction::swallow)},
      {WM_KEYDOWN,
       VK_ESCAPE,
       {KeyAction::post_to_parent, KeyAction::post_to_main_window, KeyAction::post_to_parent,
        KeyAction::swallow}},
      {WM_KEYUP, VK_ESCAPE, everywhere(KeyAction::swallow)},
      {WM_KEYDOWN, VK_SPACE, everywhere(KeyAction::pass)},
      {WM_KEYUP, VK_TAB, everywhere(KeyAction::pass)},
      {WM_CHAR, VK_ESCAPE, everywhere(KeyAction::pass)},
      {WM_CHAR, VK_RETURN, everywhere(KeyAction::pass)},
      {WM_SYSKEYDOWN, VK_RETURN, everywhere(KeyAction::pass)},
      {WM_SYSKEYDOWN, VK_ESCAPE, everywhere(KeyAction::pass)},
      {WM_MOUSEWHEEL,
       MAKEWPARAM(0, 120),
       {KeyAction::pass, KeyAction::pass, KeyAction::send_to_layer, KeyAction::pass}},
      {WM_MOUSEWHEEL,
       VK_ESCAPE,
       {KeyAction::pass, KeyAction::pass, KeyAction::send_to_layer, KeyAction::pass}},
      {WM_LBUTTONDOWN, VK_RETURN, everywhere(KeyAction::pass)}};
  constexpr std::array<KeyFilter, 4> filters = {KeyFilter::to_parent, KeyFilter::to_main_window,
                                                KeyFilter::drawing_surface,
                                                KeyFilter::swallow_only};
  for (const FilterCase& test : cases) {
    for (std::size_t i = 0; i < filters.size(); ++i) {
      EXPECT_EQ(key_action(filters[i], test.message, test.wparam), test.actions[i])
          << "message " << test.message << " key " << test.wparam << " filter " << i;
    }
  }
}

}  // namespace
