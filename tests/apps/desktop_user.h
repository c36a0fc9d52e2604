#pragma once
// A person in front of the program: starts it, points, presses, waits until something is seen.
// Points are window coordinates, of the window as it stood when no button was pressed.
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <thread>

#include "corvane/platform/platform.h"
#include "tests/platform/display/x_client.h"

extern char** environ;

namespace capture {

class DesktopUser {
 public:
  DesktopUser(const std::string& program, const std::string& picture) {
    const char* arguments[] = {program.c_str(), picture.c_str(), nullptr};
    if (posix_spawn(&process_, program.c_str(), nullptr, nullptr,
                    const_cast<char* const*>(arguments), environ) != 0) {
      process_ = 0;
    }
  }
  // Ends the program when it still runs.
  ~DesktopUser() {
    if (process_ == 0) return;
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
  }

  // Looks again and again; false when it is still not so after ten seconds.
  static bool Waits(const std::function<bool()>& condition) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (!condition()) {
      if (std::chrono::steady_clock::now() > end) return false;
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return true;
  }
  // The window with this title, or the Wayland desktop that it fills (scripts/with-weston).
  bool SeesWindow(const std::string& title) {
    const char* const desktop = std::getenv("CORVANE_DESKTOP_WINDOW");
    return Waits([&] {
      window_ = screen_.window_named(desktop != nullptr ? desktop : title);
      return window_ != 0 && Place().shown;
    });
  }
  bool SeesPixel(POINT point, std::uint32_t color, int tolerance = 0) const {  // 0x00RRGGBB
    return Waits([&] {
      const std::uint32_t seen = screen_.pixel(window_, point.x, point.y);
      int difference = 0;
      for (const int shift : {0, 8, 16}) {
        const auto of_channel = static_cast<int>((seen >> shift & 0xFF) - (color >> shift & 0xFF));
        difference = std::max(difference, std::abs(of_channel));
      }
      return difference <= tolerance;
    });
  }
  std::vector<unsigned long> Icon() const { return screen_.icon(window_); }
  corvane::system::XClient::Place Place() const { return screen_.place(window_); }

  void MoveTo(POINT point) {
    if (!pressed_) place_ = Place();
    Tool("mousemove " + std::to_string(place_.x + point.x) + " " +
         std::to_string(place_.y + point.y));
  }
  void Press() {
    Tool("mousedown 1");
    pressed_ = true;
  }
  void Release() {
    Tool("mouseup 1");
    pressed_ = false;
  }
  void Click(POINT point) {
    MoveTo(point);
    Press();
    Release();
  }
  void Drag(POINT from, POINT to) {
    MoveTo(from);
    Press();
    MoveTo({(from.x + to.x) / 2, (from.y + to.y) / 2});
    MoveTo(to);
    Release();
  }
  static void Key(const std::string& name) { Tool("key " + name); }

  // The program's exit status, once it ended.
  std::optional<int> ExitStatus() {
    int status = 0;
    if (!Waits([&] { return waitpid(process_, &status, WNOHANG) == process_; })) return {};
    process_ = 0;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  }

 private:
  static void Tool(const std::string& arguments) {
    [[maybe_unused]] const int status = std::system(("xdotool " + arguments).c_str());
  }

  corvane::system::XClient screen_;
  unsigned long window_ = 0;
  pid_t process_ = 0;
  bool pressed_ = false;
  corvane::system::XClient::Place place_{};
};

}  // namespace capture
