#pragma once
// Where the parts of the main window stand below the toolbar.
#include "corvane/platform/platform.h"

namespace capture {

struct WindowLayout {  // client coordinates, pixels
  RECT library{};      // at the left, the whole height
  RECT stage{};        // the picture
  RECT strip{};        // below the picture
};

// On a window too small for all, the stage gets what there is. `library_width`: as wide as asked
// for, as far as the stage keeps its least size; 0: by the window's width.
WindowLayout lay_out(SIZE client, int toolbar_height, int library_width = 0);

}  // namespace capture
