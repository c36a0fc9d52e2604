#pragma once
// Window timers: due times on the display's clock, in milliseconds.
#include <cstdint>
#include <optional>
#include <set>
#include <vector>

#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

struct Timer {
  HWND window = nullptr;
  UINT_PTR id = 0;
  std::uint64_t period = 0;
  std::uint64_t due = 0;
  TIMERPROC procedure = nullptr;
};

class TimerList {
 public:
  // Replaces a timer of the same window and id; the interval starts anew. Without a window an
  // unused id is made up unless the id names an existing one. Returns the id (0 becomes 1).
  UINT_PTR set(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure, std::uint64_t now);
  bool kill(HWND window, UINT_PTR id);
  void remove_window(HWND window);

  // The timer that fell due first and that `matches`; starts its next interval when `restart`.
  template <typename Predicate>
  std::optional<Timer> take_due(std::uint64_t now, const Predicate& matches, bool restart) {
    Timer* first = nullptr;
    for (Timer& timer : timers_) {
      if (timer.due <= now && matches(timer) && (first == nullptr || timer.due < first->due)) {
        first = &timer;
      }
    }
    if (first == nullptr) return std::nullopt;
    if (restart) first->due = now + first->period;
    return *first;
  }
  std::optional<std::uint64_t> next_due() const;
  bool contains(HWND window, UINT_PTR id) const;
  // False for a procedure that no timer was ever set with: a made-up WM_TIMER must not call it.
  bool knows(TIMERPROC procedure) const { return procedures_.count(procedure) != 0; }
  int count() const { return static_cast<int>(timers_.size()); }

 private:
  std::vector<Timer> timers_;
  std::set<TIMERPROC> procedures_;
  UINT_PTR next_free_id_ = 0x7F00;
};

}  // namespace corvane::system
