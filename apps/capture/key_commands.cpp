#include "apps/capture/key_commands.h"

#include <algorithm>
#include <array>

namespace capture {
namespace {

struct Binding {
  KeyPress press;
  KeyCommand command;
};

constexpr std::array<Binding, 26> kBindings = {{
    {{VK_ESCAPE, false, false}, KeyCommand::cancel},
    {{VK_RIGHT, false, false}, KeyCommand::next_picture},
    {{VK_LEFT, false, false}, KeyCommand::previous_picture},
    {{VK_UP, false, false}, KeyCommand::folder_above},
    {{VK_DOWN, false, false}, KeyCommand::folder_below},
    {{VK_RIGHT, false, true}, KeyCommand::open_folder},
    {{VK_LEFT, false, true}, KeyCommand::close_folder},
    {{'O', true, false}, KeyCommand::open_picture},
    {{'S', true, false}, KeyCommand::save},
    {{'A', true, false}, KeyCommand::select_all},
    {{'C', true, false}, KeyCommand::copy},
    {{VK_F11, false, false}, KeyCommand::full_screen},
    // With Shift on many keyboards; with Control as in browsers.
    {{VK_OEM_PLUS, false, true}, KeyCommand::zoom_in},
    {{VK_OEM_PLUS, false, false}, KeyCommand::zoom_in},
    {{VK_OEM_PLUS, true, false}, KeyCommand::zoom_in},
    {{VK_ADD, false, false}, KeyCommand::zoom_in},
    {{VK_OEM_MINUS, false, false}, KeyCommand::zoom_out},
    {{VK_OEM_MINUS, true, false}, KeyCommand::zoom_out},
    {{VK_SUBTRACT, false, false}, KeyCommand::zoom_out},
    {{'0', false, false}, KeyCommand::zoom_to_fit},
    {{'0', true, false}, KeyCommand::zoom_to_fit},
    {{VK_NUMPAD0, false, false}, KeyCommand::zoom_to_fit},
    {{'1', false, false}, KeyCommand::zoom_to_own_size},
    {{VK_NUMPAD1, false, false}, KeyCommand::zoom_to_own_size},
    {{VK_TAB, false, false}, KeyCommand::next_part},
    {{VK_TAB, false, true}, KeyCommand::previous_part},
}};

bool held(int key) { return ::GetKeyState(key) < 0; }

}  // namespace

KeyPress key_press(UINT key) { return {key, held(VK_CONTROL), held(VK_SHIFT)}; }

std::optional<KeyCommand> key_command(const KeyPress& press) {
  const auto found = std::find_if(kBindings.begin(), kBindings.end(), [&](const Binding& binding) {
    return binding.press.key == press.key && binding.press.control == press.control &&
           binding.press.shift == press.shift;
  });
  if (found == kBindings.end()) return std::nullopt;
  return found->command;
}

}  // namespace capture
