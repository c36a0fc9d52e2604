#pragma once
// Springs on one message of one window, wherever in the program's doings it comes, and does
// something terrible there. Knows every window from its creation on.
#include <compare>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "corvane/platform/platform.h"

namespace corvane::test {

// A message of a kind of window: a window is known by its text, a button of a skin as "button".
struct TrapPoint {
  std::string window;
  UINT message = 0;
  auto operator<=>(const TrapPoint&) const = default;
};

enum class TrapSide { before_handling, after_handling };

// At most one lives at a time; it is to be destroyed before the window system.
class MessageTrap {
 public:
  MessageTrap();
  ~MessageTrap();
  MessageTrap(const MessageTrap&) = delete;
  MessageTrap& operator=(const MessageTrap&) = delete;

  // `action` runs once, at the given occurrence (1: the first) of the message.
  void set(const TrapPoint& point, int occurrence, TrapSide side, std::function<void()> action);
  bool sprung() const { return sprung_; }
  // From here on each message counts as one that comes for the first time.
  void begin_phase() { seen_in_phase_.clear(); }
  // For each message its occurrences that were the first ones of a phase.
  const std::map<TrapPoint, std::vector<int>>& firsts() const { return firsts_; }

 private:
  static LRESULT CALLBACK on_creation(int code, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK innermost(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK outermost(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void spring();

  int count(const TrapPoint& point);  // which occurrence this one is

  static MessageTrap* live;

  HHOOK hook_ = nullptr;
  std::map<HWND, WNDPROC> class_procedures_;  // which the windows' objects take for the class's
  std::map<HWND, WNDPROC> object_procedures_;
  std::map<HWND, std::string> names_;
  std::map<TrapPoint, int> seen_;
  std::set<TrapPoint> seen_in_phase_;
  std::map<TrapPoint, std::vector<int>> firsts_;
  TrapPoint point_;
  int occurrence_ = 0;  // 0: none is set
  TrapSide side_ = TrapSide::before_handling;
  std::function<void()> action_;
  bool sprung_ = false;
};

}  // namespace corvane::test
