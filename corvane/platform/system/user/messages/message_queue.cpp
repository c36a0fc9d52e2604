#include "corvane/platform/system/user/messages/message_queue.h"

#include <algorithm>

namespace corvane::system {
namespace {

constexpr std::size_t kMaxMessages = 10000;

}  // namespace

void MessageQueue::add_window(HWND window) {
  const std::lock_guard lock(mutex_);
  windows_.emplace(window, 0);
}

void MessageQueue::remove_window(HWND window) {
  const std::lock_guard lock(mutex_);
  const auto found = windows_.find(window);
  if (found == windows_.end()) return;
  const bool waited_for = found->second > 0;
  windows_.erase(found);
  if (!waited_for) return;
  std::erase_if(messages_, [window](const MSG& message) { return message.hwnd == window; });
}

MessageQueue::Posted MessageQueue::post(const MSG& message) {
  const std::lock_guard lock(mutex_);
  const auto found = windows_.find(message.hwnd);
  if (message.hwnd != nullptr && found == windows_.end()) return Posted::no_window;
  if (messages_.size() >= kMaxMessages) return Posted::full;
  messages_.push_back(message);
  if (message.hwnd != nullptr) ++found->second;
  return Posted::yes;
}

void MessageQueue::post_quit(int exit_code) {
  const std::lock_guard lock(mutex_);
  quit_ = exit_code;
}

std::optional<int> MessageQueue::take_quit(bool remove) {
  const std::lock_guard lock(mutex_);
  std::optional<int> result = quit_;
  if (remove) quit_.reset();
  return result;
}

}  // namespace corvane::system
