#include "corvane/platform/system/display/sdl/sdl_display.h"

#include <SDL.h>

#include <algorithm>
#include <climits>
#include <clocale>
#include <cstring>
#include <string_view>

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/display/sdl/clipboard_watch.h"
#include "corvane/platform/system/display/sdl/presenter.h"
#include "corvane/platform/system/display/sdl/sdl_cursors.h"
#include "corvane/platform/system/display/sdl/sdl_driver.h"
#include "corvane/platform/system/display/sdl/sdl_events.h"
#include "corvane/platform/system/display/sdl/sdl_full_screen.h"
#include "corvane/platform/system/display/sdl/sdl_icon.h"
#include "corvane/platform/system/display/sdl/sdl_native_pointer.h"
#include "corvane/platform/system/display/sdl/sdl_waiter.h"
#include "corvane/platform/system/display/sdl/start_size.h"

namespace corvane::system {

namespace {

class VideoSession {
 public:
  VideoSession() : started_(SDL_InitSubSystem(SDL_INIT_VIDEO) == 0) {}
  ~VideoSession() {
    if (started_) SDL_QuitSubSystem(SDL_INIT_VIDEO);
  }
  VideoSession(const VideoSession&) = delete;
  VideoSession& operator=(const VideoSession&) = delete;
  // SDL's last resort is a desktop that nobody sees.
  bool reaches_a_desktop() const {
    return started_ && !is_driver("offscreen") && !is_driver("dummy") && !is_driver("evdev");
  }

 private:
  bool started_;
};

struct WindowDeleter {
  void operator()(SDL_Window* window) const { SDL_DestroyWindow(window); }
};

struct Hint {
  const char* name;
  const char* value;
};

constexpr Hint kHints[] = {
    // The process, its signals, and the desktop's habits belong to the host.
    {SDL_HINT_NO_SIGNAL_HANDLERS, "1"},
    {SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1"},
    {SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0"},
    {SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0"},
    // The press that activates the window counts.
    {SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1"},
    {SDL_HINT_IME_SHOW_UI, "1"},
};

// Bytes. SDL ends the process over what an X server takes in no single request, 16 MB.
constexpr std::size_t kMaxClipboardText = std::size_t{8} << 20;

// Wayland tells no program where its windows or the pointer are.
bool knows_desktop_positions() { return !is_driver("wayland"); }

// Where the pointer is in the window; SDL's own answer is as old as the last motion in it.
POINT pointer_in(SDL_Window* window) {
  int x = 0;
  int y = 0;
  if (!knows_desktop_positions()) {
    SDL_GetMouseState(&x, &y);
    return {x, y};
  }
  SDL_GetWindowPosition(window, &x, &y);
  const POINT pointer = native_pointer_position(window);
  return {pointer.x - x, pointer.y - y};
}

// X writes titles and reads input methods in the process's character set, and refuses Chinese ones
// while that is still the plain "C" that every process starts with.
void use_unicode_locale() {
  const char* const now = std::setlocale(LC_CTYPE, nullptr);
  if (now == nullptr || std::strcmp(now, "C") != 0) return;
  const char* const users = std::setlocale(LC_CTYPE, "");
  if (users == nullptr || std::strcmp(users, "C") == 0) std::setlocale(LC_CTYPE, "C.UTF-8");
}

}  // namespace

struct SdlDisplay::Native {
  VideoSession session;
  std::unique_ptr<SDL_Window, WindowDeleter> window;
  std::unique_ptr<Presenter> presenter;
  std::unique_ptr<SdlWaiter> waiter;
  std::optional<SdlFullScreen> full_screen;
  SdlCursors cursors;
  SdlEvents events;
  ClipboardWatch clipboard;
};

std::unique_ptr<SdlDisplay> SdlDisplay::open(SIZE size) {
  use_unicode_locale();
  for (const Hint& hint : kHints) SDL_SetHint(hint.name, hint.value);
  auto native = std::make_unique<Native>();
  if (!native->session.reaches_a_desktop()) return nullptr;
  SDL_Rect usable{};
  if (size.cx <= 0 && SDL_GetDisplayUsableBounds(0, &usable) == 0) {
    size = start_size({usable.w, usable.h});
  }
  const SIZE real{std::max(size.cx, kMinWindowSize.cx), std::max(size.cy, kMinWindowSize.cy)};
  native->window.reset(SDL_CreateWindow("", SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED,
                                        real.cx, real.cy,
                                        SDL_WINDOW_HIDDEN | SDL_WINDOW_RESIZABLE));
  if (!native->window) return nullptr;
  native->presenter = open_presenter(native->window.get());
  if (native->presenter == nullptr) return nullptr;
  SDL_SetWindowMinimumSize(native->window.get(), kMinWindowSize.cx, kMinWindowSize.cy);
  native->clipboard.start(native->window.get());
  native->waiter = std::make_unique<SdlWaiter>(native->window.get());
  native->full_screen.emplace(native->window.get());
  std::unique_ptr<SdlDisplay> display(new SdlDisplay(std::move(native), real));
  display->set_text_input(std::nullopt);  // SDL begins with it
  return display;
}

SdlDisplay::SdlDisplay(std::unique_ptr<Native> native, SIZE size)
    : native_(std::move(native)), size_(size), start_(std::chrono::steady_clock::now()) {}

SdlDisplay::~SdlDisplay() = default;

SIZE SdlDisplay::size() const { return size_; }

void SdlDisplay::present(const Surface& frame, const Region& damage) {
  native_->presenter->present(frame, damage);
  native_->waiter->notice_queued_events();
}

std::uint64_t SdlDisplay::now() const {
  const auto passed = std::chrono::steady_clock::now() - start_;
  return static_cast<std::uint64_t>(
      std::chrono::duration_cast<std::chrono::milliseconds>(passed).count());
}

void SdlDisplay::poll(std::vector<InputEvent>& events) {
  native_->waiter->clear_wake();
  SDL_Event event;
  while (SDL_PollEvent(&event)) {
    const std::size_t before = events.size();
    native_->events.translate(event, events);
    if (native_->clipboard.tells_of_change(event)) {
      events.emplace_back().kind = InputKind::clipboard;
    }
    if (event.type == SDL_WINDOWEVENT && event.window.event == SDL_WINDOWEVENT_EXPOSED) {
      native_->presenter->repaint();
    }
    if (events.size() > before && events.back().kind == InputKind::drop) {
      events.back().position = pointer_in(native_->window.get());
    }
    if (events.size() > before && events.back().kind == InputKind::resize) {
      size_ = {events.back().position.x, events.back().position.y};
      native_->presenter->resized();
    }
  }
  native_->events.finish(events);
}

bool SdlDisplay::wait(std::optional<std::uint64_t> deadline) {
  std::optional<int> timeout;
  if (deadline) {
    const std::uint64_t start = now();
    const std::uint64_t rest = *deadline > start ? *deadline - start : 0;
    timeout = static_cast<int>(std::min<std::uint64_t>(rest, INT_MAX));
  }
  native_->waiter->wait(timeout);
  return true;
}

void SdlDisplay::wake() { native_->waiter->wake(); }

int SdlDisplay::event_fd() const { return native_->waiter->fd(); }

void SdlDisplay::set_cursor(CursorShape shape) { native_->cursors.show(shape); }

void SdlDisplay::set_cursor_image(const std::shared_ptr<const CursorImage>& image) {
  native_->cursors.show(image);
}

// On X11 input methods see the keys while SDL's text events are on. Elsewhere these are the
// layout's text too, and input methods have a switch of their own.
void SdlDisplay::set_text_input(const std::optional<RECT>& caret) {
  native_->waiter->look_often(caret.has_value());
  if (!caret) {
    SDL_StopTextInput();
    if (!is_driver("x11")) SDL_EventState(SDL_TEXTINPUT, SDL_ENABLE);
    return;
  }
  const SDL_Rect place{caret->left, caret->top, std::max(clamp_coordinate(width_of(*caret)), 1),
                       std::max(clamp_coordinate(height_of(*caret)), 1)};
  SDL_SetTextInputRect(&place);
  SDL_StartTextInput();
}

void SdlDisplay::set_title(const wchar_t* title) {
  const std::wstring_view text = title != nullptr ? title : L"";
  char* const utf8 =
      SDL_iconv_string("UTF-8", "WCHAR_T", reinterpret_cast<const char*>(text.data()),
                       (text.size() + 1) * sizeof(wchar_t));
  if (utf8 != nullptr) SDL_SetWindowTitle(native_->window.get(), utf8);
  SDL_free(utf8);
}

void SdlDisplay::set_icon(const Surface& pixels) {
  show_icon(native_->window.get(), pixels);
  native_->waiter->notice_queued_events();
}

void SdlDisplay::set_capture(bool capture) { SDL_CaptureMouse(capture ? SDL_TRUE : SDL_FALSE); }

SIZE SdlDisplay::full_size() const {
  const SIZE monitor = native_->full_screen->monitor_size();
  return monitor.cx > 0 && monitor.cy > 0 ? monitor : size_;
}

void SdlDisplay::set_full_screen(bool full) {
  native_->full_screen->set(full);
  native_->waiter->notice_queued_events();
}

bool SdlDisplay::drag_native_window(POINT grip) {
  if (!knows_desktop_positions() || native_->full_screen->active()) return false;
  const POINT pointer = native_pointer_position(native_->window.get());
  int x = 0;
  int y = 0;
  SDL_GetWindowPosition(native_->window.get(), &x, &y);
  const POINT target{pointer.x - grip.x, pointer.y - grip.y};
  if (target.x != x || target.y != y) {
    SDL_SetWindowPosition(native_->window.get(), target.x, target.y);
  }
  native_->waiter->notice_queued_events();
  return true;
}

// Before the window is shown nobody can say how this desktop does it; nearly all of them do.
bool SdlDisplay::has_native_frame() const { return is_driver("x11") || is_driver("wayland"); }

bool SdlDisplay::warp_pointer(POINT point) {
  if (!(SDL_GetWindowFlags(native_->window.get()) & SDL_WINDOW_SHOWN)) return false;
  SDL_WarpMouseInWindow(native_->window.get(), point.x, point.y);
  native_->waiter->notice_queued_events();
  return true;
}

std::string SdlDisplay::clipboard_text() {
  char* const text = SDL_GetClipboardText();
  std::string copy = text != nullptr ? text : "";
  SDL_free(text);
  native_->waiter->notice_queued_events();
  return copy;
}

bool SdlDisplay::set_clipboard_text(const std::string& utf8) {
  return utf8.size() <= kMaxClipboardText && SDL_SetClipboardText(utf8.c_str()) == 0;
}

void SdlDisplay::show() {
  SDL_ShowWindow(native_->window.get());
  native_->presenter->shown();
  native_->waiter->notice_queued_events();
}

}  // namespace corvane::system
