#pragma once
// A person in front of the program: starts it, points, presses, waits until something is seen.
#include <sys/types.h>

#include <functional>
#include <optional>
#include <string>

#include "corvane/platform/platform.h"
#include "tests/platform/display/x_client.h"

namespace capture {

class DesktopUser {
 public:
  DesktopUser(const std::string& program, const std::string& picture);
  ~DesktopUser();  // ends the program when it still runs

  // Until a window whose title ends with this one is shown; false after ten seconds.
  bool SeesWindow(const std::string& title);
  corvane::system::XClient::Place Place() const { return screen_.place(window_); }
  // 0x00RRGGBB, window coordinates.
  std::uint32_t Pixel(POINT point) const { return screen_.pixel(window_, point.x, point.y); }
  // Looks again and again; false when it is still not so after ten seconds.
  static bool Waits(const std::function<bool()>& condition);
  bool SeesPixel(POINT point, std::uint32_t color, int tolerance = 0) const;

  void MoveTo(POINT point) const;  // window coordinates
  void Press() const;
  void Release() const;
  void Click(POINT point) const;
  void Drag(POINT from, POINT to) const;
  void Key(const std::string& name) const;
  // The program's exit status, once it ended; nothing after ten seconds.
  std::optional<int> ExitStatus();

 private:
  corvane::system::XClient screen_;
  unsigned long window_ = 0;
  pid_t process_ = 0;
};

}  // namespace capture
