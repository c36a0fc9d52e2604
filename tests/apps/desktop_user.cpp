#include "tests/apps/desktop_user.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdlib>
#include <thread>

extern char** environ;

namespace capture {
namespace {

constexpr auto kPatience = std::chrono::seconds(10);
constexpr auto kLook = std::chrono::milliseconds(10);
constexpr int kStepsOfADrag = 10;

void Tool(const std::string& arguments) {
  [[maybe_unused]] int status = std::system(("xdotool " + arguments).c_str());
}

}  // namespace

DesktopUser::DesktopUser(const std::string& program, const std::string& picture) {
  const char* arguments[] = {program.c_str(), picture.c_str(), nullptr};
  if (posix_spawn(&process_, program.c_str(), nullptr, nullptr, const_cast<char* const*>(arguments),
                  environ) != 0) {
    process_ = 0;
  }
}

DesktopUser::~DesktopUser() {
  if (process_ == 0) return;
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

bool DesktopUser::Waits(const std::function<bool()>& condition) {
  auto end = std::chrono::steady_clock::now() + kPatience;
  while (!condition()) {
    if (std::chrono::steady_clock::now() > end) return false;
    std::this_thread::sleep_for(kLook);
  }
  return true;
}

bool DesktopUser::SeesWindow(const std::string& title) {
  return Waits([&] {
    window_ = screen_.window_named(title);
    return window_ != 0 && Place().shown;
  });
}

bool DesktopUser::SeesPixel(POINT point, std::uint32_t color, int tolerance) const {
  return Waits([&] {
    const std::uint32_t seen = screen_.pixel(window_, point.x, point.y);
    const auto differs = [&](int shift) {
      const int difference = static_cast<int>((seen >> shift & 0xFF) - (color >> shift & 0xFF));
      return std::abs(difference) > tolerance;
    };
    return !differs(0) && !differs(8) && !differs(16);
  });
}

void DesktopUser::MoveTo(POINT point) {
  if (!pressed_) place_ = Place();
  Tool("mousemove " + std::to_string(place_.x + point.x) + " " +
       std::to_string(place_.y + point.y));
}

void DesktopUser::Press() {
  Tool("mousedown 1");
  pressed_ = true;
}

void DesktopUser::Release() {
  Tool("mouseup 1");
  pressed_ = false;
}

void DesktopUser::Click(POINT point) {
  MoveTo(point);
  Press();
  Release();
}

void DesktopUser::Drag(POINT from, POINT to) {
  MoveTo(from);
  Press();
  for (int i = 1; i <= kStepsOfADrag; ++i) {
    MoveTo({from.x + (to.x - from.x) * i / kStepsOfADrag,
            from.y + (to.y - from.y) * i / kStepsOfADrag});
  }
  Release();
}

void DesktopUser::Key(const std::string& name) const { Tool("key " + name); }

std::optional<int> DesktopUser::ExitStatus() {
  int status = 0;
  bool ended = Waits([&] { return waitpid(process_, &status, WNOHANG) == process_; });
  if (!ended) return std::nullopt;
  process_ = 0;
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace capture
