#pragma once
// Springs on one message of one window, wherever in the program's doings it comes, and does
// something terrible there. Knows every window from its creation on.
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "corvane/platform/platform.h"

namespace corvane::test {

// A message of a kind of window: a window is known by its text, a button of a skin as "button".
struct TrapPoint {
  std::string window;
  UINT message = 0;
  int occurrence = 0;  // 1: the first; 0: none
};

enum class TrapSide { before_handling, after_handling };

// At most one lives at a time; it is to be destroyed before the window system.
class MessageTrap {
 public:
  MessageTrap();
  ~MessageTrap();
  MessageTrap(const MessageTrap&) = delete;
  MessageTrap& operator=(const MessageTrap&) = delete;

  // `action` runs once.
  void set(const TrapPoint& point, TrapSide side, std::function<void()> action);
  bool sprung() const { return sprung_; }
  // From here on each message counts as one that comes for the first time. A session calls it
  // between its parts, and is broken off by an exception, SessionOver, when a whole part has passed
  // since the trap sprang: it shows nothing new.
  struct SessionOver {};
  void begin_phase();
  // The messages that were the first of their kind; of those that came while another one was being
  // handled, with code of ours on the stack, also the first of their kind in each phase.
  const std::vector<TrapPoint>& points() const { return points_; }

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
  bool is_set_on(const std::string& window, UINT message);  // counts it
  void spring();

  static MessageTrap* live;

  HHOOK hook_ = nullptr;
  std::map<HWND, Window> windows_;
  std::map<std::pair<UINT, std::string>, Seen> seen_;
  std::vector<TrapPoint> points_;
  int phase_ = 0;
  int depth_ = 0;  // messages that are being handled
  TrapPoint point_;
  TrapSide side_ = TrapSide::before_handling;
  std::function<void()> action_;
  bool sprung_ = false;
  int phases_since_ = 0;
};

}  // namespace corvane::test
