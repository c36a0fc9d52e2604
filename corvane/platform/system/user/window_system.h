#pragma once
// One window system: all windows, the queue, timers, focus, capture, cursor and display of one
// user-interface thread. The platform-named functions act on the calling thread's current one.
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "corvane/platform/system/display/display.h"
#include "corvane/platform/system/gdi/gdi.h"
#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

class WindowSystem {
 public:
  // Becomes the thread's current one; the destructor destroys all windows and makes the newest of
  // the others current.
  explicit WindowSystem(std::unique_ptr<Display> display);
  ~WindowSystem();
  WindowSystem(const WindowSystem&) = delete;
  WindowSystem& operator=(const WindowSystem&) = delete;

  static WindowSystem* current();  // null: the thread has none
  // Makes this one current (two systems in one thread); returns the previous one.
  WindowSystem* make_current();

  Display& display();
  Gdi& gdi();

  // For a host with a loop of its own: dispatches all that is pending (input, posted messages,
  // paints, due timers), shows the result, and says in how many milliseconds the next timer is due
  // (nothing: only input or a posted message can bring work). *quit is set when WM_QUIT came. The
  // filter sees each message first and swallows it by returning true: a host of layers passes
  // corvane::PreTranslateInput.
  std::optional<std::uint64_t> process_pending(bool* quit = nullptr,
                                               const std::function<bool(MSG*)>& filter = {});
  // Becomes readable when there is work: input, or a message posted from another thread. -1 where
  // the desktop gives no such descriptor (neither X11 nor Wayland): process_pending is to be called
  // every few milliseconds then. On Wayland a key that is held repeats only while it is called.
  int event_fd() const;

  // Composes what is damaged and shows it on the display.
  void present();
  // The finished frame; composes first. Valid until the next call or change of size.
  const Surface& frame();

  // One line per window, top first, children indented: class "text" id, screen rectangle, state.
  std::string window_tree() const;
  int live_windows() const;
  int live_timers() const;

  struct Impl;
  Impl& impl() { return *impl_; }

 private:
  std::unique_ptr<Impl> impl_;
  WindowSystem* older_;  // of the same thread
};

}  // namespace corvane::system
