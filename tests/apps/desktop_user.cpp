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

int Channel(std::uint32_t color, int shift) { return static_cast<int>((color >> shift) & 0xFF); }

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
    std::uint32_t seen = Pixel(point);
    for (int shift : {0, 8, 16}) {
      if (std::abs(Channel(seen, shift) - Channel(color, shift)) > tolerance) return false;
    }
    return true;
  });
}

void DesktopUser::MoveTo(POINT point) const {
  auto place = Place();
  Tool("mousemove " + std::to_string(place.x + point.x) + " " + std::to_string(place.y + point.y));
}

void DesktopUser::Press() const { Tool("mousedown 1"); }
void DesktopUser::Release() const { Tool("mouseup 1"); }

void DesktopUser::Click(POINT point) const {
  MoveTo(point);
  Press();
  Release();
}

void DesktopUser::Drag(POINT from, POINT to) const {
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
