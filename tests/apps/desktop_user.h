#pragma once
// A person in front of the program: starts it, points, presses, waits until something is seen.
// Points are window coordinates, of the window as it stood when no button was pressed.
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

  // Looks again and again; false when it is still not so after ten seconds.
  static bool Waits(const std::function<bool()>& condition);
  // A window whose title ends with this one.
  bool SeesWindow(const std::string& title);
  bool SeesPixel(POINT point, std::uint32_t color, int tolerance = 0) const;  // 0x00RRGGBB
  corvane::system::XClient::Place Place() const { return screen_.place(window_); }

  void MoveTo(POINT point);
  void Press();
  void Release();
  void Click(POINT point);
  void Drag(POINT from, POINT to);
  void Key(const std::string& name) const;
  // The program's exit status, once it ended.
  std::optional<int> ExitStatus();

 private:
  corvane::system::XClient screen_;
  unsigned long window_ = 0;
  pid_t process_ = 0;
  bool pressed_ = false;
  corvane::system::XClient::Place place_{};
};

}  // namespace capture
