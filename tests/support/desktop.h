#pragma once
// A desktop for tests, with what a user can do on it and what can be seen there, in the platform's
// terms. Behind it stands our window system in memory. What only that can answer is asked through
// own(): the tests that include own_system.h are those that run on it alone.
#include <functional>
#include <memory>

#include "corvane/platform/platform.h"
#include "tests/support/frame.h"

namespace corvane::test {

struct OwnSystem;

class Desktop {
 public:
  explicit Desktop(SIZE size = {1280, 800});
  explicit Desktop(std::unique_ptr<OwnSystem> system);
  ~Desktop();  // destroys what windows are left
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  // Sees each message before it is translated and swallows it by returning true. A test with an
  // application object gives corvane::PreTranslateInput.
  using Filter = std::function<bool(MSG*)>;
  void filter_messages(Filter filter) { filter_ = std::move(filter); }
  // Retrieves, filters, translates and dispatches until the queue is empty, of which it despairs
  // after thousands of messages with an exception. False: WM_QUIT was among them.
  bool pump();
  void advance(unsigned milliseconds);  // the clock, which stands still otherwise
  // Until another thread has posted something; false when that takes longer. Real time.
  bool wait_for_post(int milliseconds);

  // The screen.
  Frame frame();
  COLORREF pixel(int x, int y);  // for several of them take a frame
  COLORREF pixel(POINT point) { return pixel(point.x, point.y); }
  int living_windows() const;
  int living_drawing_objects() const;

  // Input that waits for the next pump. Screen coordinates, here and below; SetCursorPos moves.
  static void send_mouse(DWORD flags, int data = 0);
  static void send_key(int virtual_key, bool down);

  // Input and a pump.
  void move_to(int x, int y);
  void move_to(POINT point) { move_to(point.x, point.y); }
  void press(DWORD flag = MOUSEEVENTF_LEFTDOWN);
  void release(DWORD flag = MOUSEEVENTF_LEFTUP) { press(flag); }
  void press_at(int x, int y);
  void press_at(POINT point) { press_at(point.x, point.y); }
  void release_at(int x, int y);
  void wheel(int distance);  // positive: away from the user
  void wheel_at(int x, int y, int distance);
  void key_down(int virtual_key);
  void key_up(int virtual_key);
  void key(int virtual_key);  // down and up before the pump
  // Gestures, each followed by a pause: the next press begins no double click.
  void click(int x, int y);
  void click(POINT point) { click(point.x, point.y); }
  void double_click(int x, int y);
  void double_click(POINT point) { double_click(point.x, point.y); }
  void drag(POINT from, POINT to, int steps = 2);

  OwnSystem& own() { return *system_; }

 private:
  void pause() { advance(2 * ::GetDoubleClickTime()); }

  std::unique_ptr<OwnSystem> system_;
  Filter filter_;
};

}  // namespace corvane::test
