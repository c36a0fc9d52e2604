#pragma once
// What the window system needs from the outside: a screen, a clock, input and sleep.
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "corvane/platform/system/display/input_event.h"
#include "corvane/platform/system/gdi/cursor_file.h"
#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/gdi/surface.h"
#include "corvane/platform/system/types.h"

namespace corvane::system {

enum class CursorShape {
  none,
  arrow,
  ibeam,
  wait,
  cross,
  size_nwse,
  size_nesw,
  size_we,
  size_ns,
  size_all,
  no,
  hand
};

class Display {
 public:
  virtual ~Display() = default;
  virtual SIZE size() const = 0;  // of the screen, pixels
  // Shows the damaged part of the frame. The frame has the display's size and lives until return.
  virtual void present(const Surface& frame, const Region& damage) = 0;
  // Milliseconds since some fixed start; never goes back.
  virtual std::uint64_t now() const = 0;
  // Appends the input that has arrived. Called on the user-interface thread.
  virtual void poll(std::vector<InputEvent>& events) = 0;
  // Sleeps until input, wake() or the deadline (milliseconds of now(); none: for ever).
  // A display whose clock moves only when told moves it to the deadline and returns; without a
  // deadline it returns false at once: nothing can ever happen.
  virtual bool wait(std::optional<std::uint64_t> deadline) = 0;
  virtual bool clock_runs() const { return true; }  // by itself
  virtual void wake() {}                            // ends a wait from any thread
  // A file descriptor that becomes readable when poll() may have something, or -1: there is none.
  virtual int event_fd() const { return -1; }

  virtual void set_cursor(CursorShape) {}
  virtual void set_cursor_image(const std::shared_ptr<const CursorImage>&) {}
  // Input methods and dead keys are at work while text is edited at this caret; off at first. Keys
  // that write bring their text either way.
  virtual void set_text_input(const std::optional<RECT>& /*caret*/) {}
  virtual void set_title(const wchar_t*) {}
  virtual void set_icon(const Surface& /*pixels*/) {}
  virtual void set_capture(bool) {}  // keep receiving the mouse outside the native window
  // Moves the native window so that this point of the screen lies under the pointer, wherever the
  // pointer is on the native desktop by now. False: there is no native window to move.
  virtual bool drag_native_window(POINT /*grip*/) { return false; }
  // Whether the desktop puts a caption and sizing borders around the native window.
  virtual bool has_native_frame() const { return false; }
  virtual bool warp_pointer(POINT) { return false; }
  // The desktop's clipboard: text in UTF-8, empty when it holds none. Asking may take a round trip
  // to the program that owns it. False: the desktop does not take such a text.
  virtual std::string clipboard_text() { return {}; }
  virtual bool set_clipboard_text(const std::string& /*utf8*/) { return false; }
  // The size that the screen has when the native window fills its monitor.
  virtual SIZE full_size() const { return size(); }
  // Fills the monitor or stands among the desktop's windows again. The screen's other size arrives
  // as a resize event.
  virtual void set_full_screen(bool) {}
  // The first top-level window was shown: an on-screen display opens its native window now.
  virtual void show() {}
};

}  // namespace corvane::system
