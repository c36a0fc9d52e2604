#pragma once
// A display in memory with a clock that moves only when told (or when a wait would sleep).
#include "corvane/platform/system/display/display.h"
#include "corvane/platform/system/display/wake_event.h"

namespace corvane::system {

class HeadlessDisplay : public Display {
 public:
  explicit HeadlessDisplay(SIZE size = {1280, 800});
  // In memory of a monitor that is larger than the window on it.
  HeadlessDisplay(SIZE size, SIZE full_size);
  SIZE size() const override { return size_; }
  void present(const Surface& frame, const Region& damage) override;
  std::uint64_t now() const override { return now_; }
  void poll(std::vector<InputEvent>& events) override;
  bool wait(std::optional<std::uint64_t> deadline) override;
  void wake() override { wake_.set(); }
  int event_fd() const override { return wake_.fd(); }
  bool has_native_frame() const override { return native_frame_; }
  void set_capture(bool captured) override { captured_ = captured; }
  bool clock_runs() const override { return false; }
  void set_cursor(CursorShape shape) override;
  void set_cursor_image(const std::shared_ptr<const CursorImage>& image) override {
    cursor_image_ = image;
  }
  std::string clipboard_text() override { return clipboard_; }
  bool set_clipboard_text(const std::string& utf8) override;
  SIZE full_size() const override { return full_size_; }
  void set_full_screen(bool full) override;
  void set_text_input(const std::optional<RECT>& caret) override { text_caret_ = caret; }

  // As if its native window had a frame; none has one from the start.
  void set_native_frame(bool framed) { native_frame_ = framed; }
  void advance(std::uint64_t milliseconds) { now_ += milliseconds; }
  void push(const InputEvent& event);
  void resize(SIZE size);  // arrives as a resize event
  // Another program copies: the text in UTF-8. And whether texts are taken from here.
  void copy_on_desktop(const std::string& utf8);
  void refuse_clipboard(bool refuse) { refuses_clipboard_ = refuse; }
  CursorShape cursor() const { return cursor_; }
  bool captured() const { return captured_; }
  const std::optional<RECT>& text_input() const { return text_caret_; }
  // Null while a shape is shown.
  const CursorImage* cursor_image() const { return cursor_image_.get(); }
  const Surface& frame() const { return frame_; }  // what was last presented
  int presents() const { return presents_; }

 private:
  SIZE size_;
  bool native_frame_ = false;
  SIZE full_size_;
  SIZE former_size_{};
  std::uint64_t now_ = 1000;
  CursorShape cursor_ = CursorShape::arrow;
  bool captured_ = false;
  std::shared_ptr<const CursorImage> cursor_image_;
  std::optional<RECT> text_caret_;
  std::string clipboard_;
  bool refuses_clipboard_ = false;
  Surface frame_;
  int presents_ = 0;
  std::vector<InputEvent> pending_;
  WakeEvent wake_;
};

}  // namespace corvane::system
