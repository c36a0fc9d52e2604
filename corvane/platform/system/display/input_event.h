#pragma once
// What a display or SendInput hands to the window system: raw input in screen coordinates.
#include <string>
#include <vector>

#include "corvane/platform/system/types.h"

namespace corvane::system {

enum class InputKind {
  mouse_move,
  mouse_button,
  mouse_wheel,
  mouse_leave,
  key,
  text,
  close,
  resize,
  focus,
  drop,
  clipboard  // the desktop's may hold something else now
};

struct InputEvent {
  InputKind kind = InputKind::mouse_move;
  POINT position{};        // mouse, drop: screen coordinates; resize: the new size
  int button = 0;          // mouse_button: VK_LBUTTON, VK_RBUTTON, VK_MBUTTON
  bool down = false;       // mouse_button, key; focus: gained
  int wheel = 0;           // mouse_wheel: 120 per notch, positive away from the user
  int virtual_key = 0;     // key
  bool repeat = false;     // key: auto-repeat
  bool makes_char = true;  // key: TranslateMessage makes the WM_CHAR (false when text follows)
  std::vector<std::string> files;  // drop: absolute paths of the file system, as bytes
  std::wstring text;               // text: what an input method or the keyboard layout composed
};

}  // namespace corvane::system
