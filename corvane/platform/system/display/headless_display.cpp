#include "corvane/platform/system/display/headless_display.h"

#include <algorithm>
#include <cstring>

namespace corvane::system {

namespace {

SIZE checked(SIZE size) { return {std::max<LONG>(size.cx, 0), std::max<LONG>(size.cy, 0)}; }

}  // namespace

HeadlessDisplay::HeadlessDisplay(SIZE size) : HeadlessDisplay(size, size) {}

HeadlessDisplay::HeadlessDisplay(SIZE size, SIZE full_size)
    : size_(checked(size)), full_size_(checked(full_size)), frame_(size_.cx, size_.cy) {}

void HeadlessDisplay::set_full_screen(bool full) {
  if (full) former_size_ = size_;
  resize(full ? full_size_ : former_size_);
}

void HeadlessDisplay::present(const Surface& frame, const Region& damage) {
  Region shown = damage;
  shown.intersect(frame.rect());
  shown.intersect(frame_.rect());
  std::vector<Pixel> scratch;
  for (const RECT& rect : shown.rects()) {
    const auto bytes = static_cast<std::size_t>(rect.right - rect.left) * sizeof(Pixel);
    for (int y = rect.top; y < rect.bottom; ++y) {
      std::memcpy(frame_.row(y) + rect.left, frame.read_row(y, scratch) + rect.left, bytes);
    }
  }
  ++presents_;
}

void HeadlessDisplay::poll(std::vector<InputEvent>& events) {
  wake_.clear();
  events.insert(events.end(), pending_.begin(), pending_.end());
  pending_.clear();
}

bool HeadlessDisplay::wait(std::optional<std::uint64_t> deadline) {
  if (wake_.clear() || !pending_.empty()) return true;
  if (!deadline) return false;
  now_ = std::max(now_, *deadline);
  return true;
}

bool HeadlessDisplay::set_clipboard_text(const std::string& utf8) {
  if (refuses_clipboard_ && !utf8.empty()) return false;
  clipboard_ = utf8;
  return true;
}

void HeadlessDisplay::copy_on_desktop(const std::string& utf8) {
  clipboard_ = utf8;
  InputEvent event;
  event.kind = InputKind::clipboard;
  push(event);
}

void HeadlessDisplay::set_cursor(CursorShape shape) {
  cursor_ = shape;
  cursor_image_ = nullptr;
}

void HeadlessDisplay::push(const InputEvent& event) {
  pending_.push_back(event);
  wake_.set();
}

void HeadlessDisplay::resize(SIZE size) {
  size_ = checked(size);
  frame_.resize(size_.cx, size_.cy);
  InputEvent event;
  event.kind = InputKind::resize;
  event.position = {size_.cx, size_.cy};
  push(event);
}

}  // namespace corvane::system
