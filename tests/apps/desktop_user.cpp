#include "tests/apps/desktop_user.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <thread>

extern char** environ;

namespace capture {
namespace {

constexpr auto kPatience = std::chrono::seconds(10);
constexpr auto kLook = std::chrono::milliseconds(10);

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
    int difference = 0;
    for (const int shift : {0, 8, 16}) {
      const auto of_channel = static_cast<int>((seen >> shift & 0xFF) - (color >> shift & 0xFF));
      difference = std::max(difference, std::abs(of_channel));
    }
    return difference <= tolerance;
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
  MoveTo({(from.x + to.x) / 2, (from.y + to.y) / 2});
  MoveTo(to);
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
