#pragma once
// Springs on one message of one window, wherever in the program's doings it comes, and does
// something terrible there. Knows every window from its creation on.
#include <compare>
#include <functional>
#include <map>
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
  bool sprung() const { return sprung_at_ != nullptr; }
  HWND sprung_at() const { return sprung_at_; }  // the window whose message it was

  // From here on each message counts as one that comes for the first time. When sessions are broken
  // off, it throws SessionOver after a whole phase since the trap sprang: more shows nothing new.
  void begin_phase();
  struct SessionOver {};
  void break_off_sessions() { breaks_off_ = true; }
  // For each message its first occurrence, and those that were the first ones of a phase while
  // another message was being handled: then code of ours is on the stack.
  const std::map<TrapPoint, std::vector<int>>& firsts() const { return firsts_; }

 private:
  struct Window {
    std::string name;
    WNDPROC class_procedure = nullptr;  // which the window's object takes for the class's
    WNDPROC object_procedure = nullptr;
  };
  struct Seen {
    int times = 0;
    int phase = -1;  // of the last one
  };

  static LRESULT CALLBACK on_creation(int code, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK innermost(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK outermost(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  bool is_set_on(const TrapPoint& point);  // counts it
  void spring(HWND window);

  static MessageTrap* live;

  HHOOK hook_ = nullptr;
  std::map<HWND, Window> windows_;
  std::map<TrapPoint, Seen> seen_;
  std::map<TrapPoint, std::vector<int>> firsts_;
  int phase_ = 0;
  int depth_ = 0;  // messages that are being handled
  TrapPoint point_;
  int occurrence_ = 0;  // 0: none is set
  TrapSide side_ = TrapSide::before_handling;
  std::function<void()> action_;
  HWND sprung_at_ = nullptr;
  bool breaks_off_ = false;
  int phases_since_ = 0;
};

}  // namespace corvane::test
