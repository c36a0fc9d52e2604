#pragma once
// What the keys of the program do.
#include <optional>

#include "corvane/platform/platform.h"

namespace capture {

enum class KeyCommand {
  cancel,
  next_picture,
  previous_picture,
  folder_above,  // the row above in the tree, as it stands
  folder_below,
  open_folder,  // shows the folders in the current one
  close_folder,
  open_picture,
  save,
  select_all,  // of the recognised text
  copy,
  full_screen,  // there and back
  zoom_in,
  zoom_out,
  zoom_to_fit,
  zoom_to_own_size,
  next_part,  // of the window: where the keys go
  previous_part,
};

struct KeyPress {
  UINT key = 0;  // a virtual key
  bool control = false;
  bool shift = false;
};
KeyPress key_press(UINT key);  // with the keys held as of the message last retrieved

// Nothing: the key is not the program's.
std::optional<KeyCommand> key_command(const KeyPress& press);

}  // namespace capture
