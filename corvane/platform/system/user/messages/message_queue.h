#pragma once
// Posted messages in posting order and the pending WM_QUIT. Posting is safe from any thread.
#include <deque>
#include <mutex>
#include <optional>
#include <unordered_map>

#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

class MessageQueue {
 public:
  // The windows that may be posted to; the queue drops a window's messages when it goes.
  void add_window(HWND window);
  void remove_window(HWND window);

  enum class Posted {
    yes,
    no_window,  // the window is not one of this queue's; null is one: for thread messages
    full        // more messages wait than a program that retrieves any would leave
  };
  Posted post(const MSG& message);
  void post_quit(int exit_code);

  // The first message that `matches`; erases it when `remove` is set.
  template <typename Predicate>
  std::optional<MSG> take(const Predicate& matches, bool remove) {
    const std::lock_guard lock(mutex_);
    for (auto it = messages_.begin(); it != messages_.end(); ++it) {
      if (!matches(*it)) continue;
      MSG found = *it;
      if (remove) {
        if (found.hwnd != nullptr) --windows_.at(found.hwnd);
        messages_.erase(it);
      }
      return found;
    }
    return std::nullopt;
  }
  std::optional<int> take_quit(bool remove);

 private:
  std::mutex mutex_;
  std::deque<MSG> messages_;
  std::unordered_map<HWND, int> windows_;  // and how many messages wait for each
  std::optional<int> quit_;
};

}  // namespace corvane::system
