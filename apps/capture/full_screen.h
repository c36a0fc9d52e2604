#pragma once
// The picture alone on the whole screen; the other parts come when the pointer touches the edge
// behind which they are, or a key needs them.
#include "apps/capture/window_layout.h"
#include "corvane/platform/platform.h"

namespace capture {

struct ShownParts {
  bool toolbar = true;
  bool library = true;
  bool strip = true;
};

// Which parts the pointer (client coordinates) brings or leaves there: one stays as long as the
// pointer is over it.
ShownParts parts_at(const ShownParts& now, const WindowLayout& layout, SIZE client, POINT pointer);

class CFullScreen {
 public:
  bool active() const { return active_; }
  // Makes the window fill its monitor, or puts it back where it was.
  void Toggle(HWND window);
  // True when something else, as the desktop can, has given the window another size meanwhile:
  // then it is over.
  bool TakenFrom(HWND window);

 private:
  bool active_ = false;
  RECT former_{};  // screen coordinates
};

}  // namespace capture
