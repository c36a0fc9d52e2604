#include "corvane/platform/system/user/messages/timer_list.h"

#include <algorithm>

namespace corvane::system {
namespace {

constexpr UINT kMinPeriod = 10;
constexpr UINT kMaxPeriod = 0x7FFFFFFF;

}  // namespace

UINT_PTR TimerList::set(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure,
                        std::uint64_t now) {
  if (window == nullptr && !contains(window, id)) id = ++next_free_id_;
  Timer timer{window, id, std::clamp(period, kMinPeriod, kMaxPeriod), 0, procedure};
  timer.due = now + timer.period;
  kill(window, id);
  timers_.push_back(timer);
  if (procedure != nullptr) procedures_.insert(procedure);
  return id == 0 ? 1 : id;
}

bool TimerList::kill(HWND window, UINT_PTR id) {
  return std::erase_if(timers_, [&](const Timer& timer) {
           return timer.window == window && timer.id == id;
         }) > 0;
}

void TimerList::remove_window(HWND window) {
  std::erase_if(timers_, [&](const Timer& timer) { return timer.window == window; });
}

std::optional<std::uint64_t> TimerList::next_due() const {
  std::optional<std::uint64_t> next;
  for (const Timer& timer : timers_) {
    if (!next || timer.due < *next) next = timer.due;
  }
  return next;
}

bool TimerList::contains(HWND window, UINT_PTR id) const {
  return std::any_of(timers_.begin(), timers_.end(),
                     [&](const Timer& timer) { return timer.window == window && timer.id == id; });
}

}  // namespace corvane::system
