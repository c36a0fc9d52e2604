#pragma once
// Window timers: due times on the display's clock, in milliseconds.
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <tuple>
#include <utility>

#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

struct Timer {
  HWND window = nullptr;
  UINT_PTR id = 0;
  std::uint64_t period = 0;
  std::uint64_t due = 0;
  TIMERPROC procedure = nullptr;
  std::uint64_t order = 0;  // of its setting: the older comes first when two fall due together
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
    for (const Due& due : by_due_) {
      if (due.time > now) break;
      const auto found = timers_.find(due.key);
      if (!matches(found->second)) continue;
      if (restart) move_due(found->second, now + found->second.period);
      return found->second;
    }
    return std::nullopt;
  }
  std::optional<std::uint64_t> next_due() const;
  bool contains(HWND window, UINT_PTR id) const { return timers_.count({window, id}) != 0; }
  // False for a procedure that no timer was ever set with: a made-up WM_TIMER must not call it.
  bool knows(TIMERPROC procedure) const { return procedures_.count(procedure) != 0; }
  int count() const { return static_cast<int>(timers_.size()); }

 private:
  using Key = std::pair<HWND, UINT_PTR>;
  struct Due {
    std::uint64_t time;
    std::uint64_t order;
    Key key;
    bool operator<(const Due& other) const {
      return std::tie(time, order) < std::tie(other.time, other.order);
    }
  };
  static Due due_of(const Timer& timer) {
    return {timer.due, timer.order, {timer.window, timer.id}};
  }
  void move_due(Timer& timer, std::uint64_t due);

  std::map<Key, Timer> timers_;
  std::set<Due> by_due_;  // one for each timer
  std::set<TIMERPROC> procedures_;
  UINT_PTR next_free_id_ = 0x7F00;
  std::uint64_t last_order_ = 0;
};

}  // namespace corvane::system
