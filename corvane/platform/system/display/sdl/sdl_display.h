#pragma once
// One window of the native desktop that shows the whole screen of a window system.
#include <chrono>
#include <memory>
#include <string>

#include "corvane/platform/system/display/display.h"

namespace corvane::system {

class SdlDisplay : public Display {
 public:
  // The window stays hidden until show(). Null when the native desktop cannot be reached or
  // the window could show nothing. A process whose LC_CTYPE is still the "C" of its start gets the
  // user's, or else C.UTF-8.
  // `size` of the screen; empty: as the desktop's work area wants it (start_size).
  static std::unique_ptr<SdlDisplay> open(SIZE size);
  ~SdlDisplay() override;

  SIZE size() const override;
  void present(const Surface& frame, const Region& damage) override;
  std::uint64_t now() const override;
  void poll(std::vector<InputEvent>& events) override;
  bool wait(std::optional<std::uint64_t> deadline) override;
  void wake() override;
  int event_fd() const override;

  void set_cursor(CursorShape shape) override;
  void set_cursor_image(const std::shared_ptr<const CursorImage>& image) override;
  void set_text_input(const std::optional<RECT>& caret) override;
  void set_title(const wchar_t* title) override;
  void set_icon(const Surface& pixels) override;
  void set_capture(bool capture) override;
  bool drag_native_window(POINT grip) override;
  bool has_native_frame() const override;
  bool warp_pointer(POINT point) override;
  std::string clipboard_text() override;
  bool set_clipboard_text(const std::string& utf8) override;
  void show() override;
  SIZE full_size() const override;
  void set_full_screen(bool full) override;

 private:
  struct Native;
  SdlDisplay(std::unique_ptr<Native> native, SIZE size);

  std::unique_ptr<Native> native_;
  SIZE size_;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace corvane::system
