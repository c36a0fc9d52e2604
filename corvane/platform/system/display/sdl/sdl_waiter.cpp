#include "corvane/platform/system/display/sdl/sdl_waiter.h"

#include <SDL_syswm.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/timerfd.h>
#include <unistd.h>
#include <wayland-client.h>

#include <algorithm>
#include <cstdint>

namespace corvane::system {

namespace {

SDL_SysWMinfo native(SDL_Window* window) {
  SDL_SysWMinfo info{};
  SDL_VERSION(&info.version);
  if (!SDL_GetWindowWMInfo(window, &info)) info.subsystem = SDL_SYSWM_UNKNOWN;
  return info;
}

int connection_of(SDL_Window* window) {
  [[maybe_unused]] const SDL_SysWMinfo info = native(window);
#ifdef SDL_VIDEO_DRIVER_X11
  if (info.subsystem == SDL_SYSWM_X11) return ConnectionNumber(info.info.x11.display);
#endif
#ifdef SDL_VIDEO_DRIVER_WAYLAND
  if (info.subsystem == SDL_SYSWM_WAYLAND) return wl_display_get_fd(info.info.wl.display);
#endif
  return -1;
}

bool watch(int watcher, int fd) {
  epoll_event interest{};
  interest.events = EPOLLIN;
  return epoll_ctl(watcher, EPOLL_CTL_ADD, fd, &interest) == 0;
}

constexpr int kTick = 40;  // milliseconds

// One descriptor for all, or -1.
int watcher_of(int connection, int wake, int ticks) {
  if (connection < 0 || wake < 0) return -1;
  const int watcher = epoll_create1(EPOLL_CLOEXEC);
  if (watcher < 0) return -1;
  const bool watches = watch(watcher, connection) && watch(watcher, wake);
  if (watches && (ticks < 0 || watch(watcher, ticks))) return watcher;
  close(watcher);
  return -1;
}

bool has_events() {
  SDL_PumpEvents();
  return SDL_HasEvents(SDL_FIRSTEVENT, SDL_LASTEVENT) == SDL_TRUE;
}

}  // namespace

SdlWaiter::SdlWaiter(SDL_Window* window)
    : sleeps_on_it_(native(window).subsystem == SDL_SYSWM_X11),
      ticks_(timerfd_create(CLOCK_MONOTONIC, TFD_NONBLOCK | TFD_CLOEXEC)),
      watched_(watcher_of(connection_of(window), wake_.fd(), ticks_)) {
  sleeps_on_it_ = sleeps_on_it_ && watched_ >= 0;
}

SdlWaiter::~SdlWaiter() {
  if (watched_ >= 0) close(watched_);
  if (ticks_ >= 0) close(ticks_);
}

void SdlWaiter::clear_wake() {
  std::uint64_t ticks = 0;
  wake_.clear();
  if (often_ && read(ticks_, &ticks, sizeof(ticks)) < 0) return;  // none since
}

void SdlWaiter::look_often(bool often) {
  if (often_ == often || ticks_ < 0) return;
  often_ = often;
  const timespec period{0, often ? kTick * 1'000'000 : 0};
  const itimerspec timer{period, period};
  timerfd_settime(ticks_, 0, &timer, nullptr);
}

void SdlWaiter::wait(std::optional<int> milliseconds) {
  if (has_events()) return;
  if (often_) milliseconds = std::min(milliseconds.value_or(kTick), kTick);
  if (sleeps_on_it_) {
    pollfd watched{watched_, POLLIN, 0};
    poll(&watched, 1, milliseconds.value_or(-1));
  } else if (milliseconds) {
    SDL_WaitEventTimeout(nullptr, *milliseconds);
  } else {
    SDL_WaitEvent(nullptr);
  }
}

void SdlWaiter::wake() {
  wake_.set();
  if (sleeps_on_it_) return;
  SDL_Event event{};
  event.type = SDL_USEREVENT;
  SDL_PushEvent(&event);
}

void SdlWaiter::notice_queued_events() {
  if (watched_ >= 0 && has_events()) wake_.set();
}

}  // namespace corvane::system
