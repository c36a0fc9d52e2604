#include "corvane/platform/system/user/messages/timer_list.h"

#include <algorithm>
#include <cassert>

namespace corvane::system {
namespace {

constexpr UINT kMinPeriod = 10;
constexpr UINT kMaxPeriod = 0x7FFFFFFF;

}  // namespace

UINT_PTR TimerList::set(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure,
                        std::uint64_t now) {
  if (window == nullptr && !contains(window, id)) id = ++next_free_id_;
  kill(window, id);
  Timer timer{window, id, std::clamp(period, kMinPeriod, kMaxPeriod), 0, procedure, ++last_order_};
  timer.due = now + timer.period;
  by_due_.insert(due_of(timer));
  timers_[{window, id}] = timer;
  if (procedure != nullptr) procedures_.insert(procedure);
  return id == 0 ? 1 : id;
}

bool TimerList::kill(HWND window, UINT_PTR id) {
  const auto found = timers_.find({window, id});
  if (found == timers_.end()) return false;
  by_due_.erase(due_of(found->second));
  timers_.erase(found);
  assert(by_due_.size() == timers_.size());
  return true;
}

void TimerList::remove_window(HWND window) {
  auto it = timers_.lower_bound({window, 0});
  while (it != timers_.end() && it->first.first == window) {
    by_due_.erase(due_of(it->second));
    it = timers_.erase(it);
  }
}

std::optional<std::uint64_t> TimerList::next_due() const {
  if (by_due_.empty()) return std::nullopt;
  return by_due_.begin()->time;
}

void TimerList::move_due(Timer& timer, std::uint64_t due) {
  by_due_.erase(due_of(timer));
  timer.due = due;
  by_due_.insert(due_of(timer));
}

}  // namespace corvane::system
