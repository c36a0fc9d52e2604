#include "corvane/platform/system/user/messages/message_queue.h"

#include <algorithm>

namespace corvane::system {
namespace {

constexpr std::size_t kMaxMessages = 10000;

}  // namespace

void MessageQueue::add_window(HWND window) {
  const std::lock_guard lock(mutex_);
  windows_.insert(window);
}

void MessageQueue::remove_window(HWND window) {
  const std::lock_guard lock(mutex_);
  windows_.erase(window);
  std::erase_if(messages_, [window](const MSG& message) { return message.hwnd == window; });
}

bool MessageQueue::post(const MSG& message) {
  const std::lock_guard lock(mutex_);
  if (message.hwnd != nullptr && windows_.count(message.hwnd) == 0) return false;
  if (messages_.size() >= kMaxMessages) return false;
  messages_.push_back(message);
  return true;
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
