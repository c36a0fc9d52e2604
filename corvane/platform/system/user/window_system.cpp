#include "corvane/platform/system/user/window_system.h"

#include <cassert>
#include <utility>

#include "corvane/platform/system/user/input/text_input.h"
#include "corvane/platform/system/user/messages/get_message.h"
#include "corvane/platform/system/user/painting/presenting.h"
#include "corvane/platform/system/user/system_registry.h"
#include "corvane/platform/system/user/system_state.h"
#include "corvane/platform/system/user/windows/destroy_window.h"
#include "corvane/platform/system/user/windows/window_classes.h"
#include "corvane/platform/system/user/windows/window_tree_text.h"

namespace corvane::system {
namespace {

// Plain pointers: a system of static storage ends after the thread's own objects.
thread_local WindowSystem* current_system = nullptr;
thread_local WindowSystem* newest_system = nullptr;

// Most messages one call of process_pending dispatches, so that a program that keeps posting to
// itself still comes back to its host.
constexpr int kMaxMessagesPerTurn = 10000;

void add_desktop(System& state) {
  auto desktop = std::make_unique<Window>();
  desktop->window_class = std::make_shared<WindowClass>();
  desktop->window_class->name = L"#32769";
  desktop->handle = state.new_handle();
  desktop->procedure = [](HWND, UINT, WPARAM, LPARAM) -> LRESULT { return 0; };
  desktop->style = WS_VISIBLE;
  desktop->frame = state.frame.rect();
  desktop->client = desktop->frame;
  state.desktop = desktop.get();
  state.windows[desktop->handle] = std::move(desktop);
}

}  // namespace

WindowSystem::Impl::Impl(std::unique_ptr<Display> new_display)
    : display(std::move(new_display)), frame(display->size().cx, display->size().cy) {
  tag = register_system(this);
  add_desktop(*this);
  work_area = desktop->frame;
  frame_damage.unite(frame.rect());
}

WindowSystem::WindowSystem(std::unique_ptr<Display> display)
    : impl_(std::make_unique<Impl>(std::move(display))),
      older_(std::exchange(newest_system, this)) {
  make_current();
  add_system_classes(*impl_);
}

WindowSystem::~WindowSystem() {
  make_current();
  while (!impl_->desktop->children.empty()) {
    HWND top = impl_->desktop->children.back()->handle;
    try {
      if (!DestroyWindow(top)) forget_window(top);
    } catch (...) {
      // The window is gone, and nobody is left to whom its handler could tell.
      assert(impl_->find(top) == nullptr);
    }
  }
  assert(impl_->windows.size() == 1 && "only the desktop is left");
  unregister_system(impl_->tag);
  WindowSystem** link = &newest_system;
  while (*link != this) link = &(*link)->older_;
  *link = older_;
  current_system = nullptr;
  Gdi::set_current(nullptr);
  if (newest_system != nullptr) newest_system->make_current();
}

WindowSystem* WindowSystem::current() { return current_system; }

WindowSystem* WindowSystem::make_current() {
  WindowSystem* previous = current_system;
  current_system = this;
  Gdi::set_current(&impl_->gdi);
  return previous;
}

Display& WindowSystem::display() { return *impl_->display; }

Gdi& WindowSystem::gdi() { return impl_->gdi; }

std::optional<std::uint64_t> WindowSystem::process_pending(
    bool* quit, const std::function<bool(MSG*)>& filter) {
  if (quit != nullptr) *quit = false;
  for (int i = 0; i < kMaxMessagesPerTurn; ++i) {
    auto message = retrieve(*impl_, {}, true);
    if (!message) break;
    if (message->message == WM_QUIT) {
      if (quit != nullptr) *quit = true;
      break;
    }
    if (filter && filter(&*message)) continue;
    TranslateMessage(&*message);
    DispatchMessageW(&*message);
  }
  update_text_input(*impl_);
  present_now(*impl_);
  auto due = next_due(*impl_);
  if (!due) return std::nullopt;
  const std::uint64_t now = impl_->now();
  return *due > now ? *due - now : 0;
}

int WindowSystem::event_fd() const { return impl_->display->event_fd(); }

void WindowSystem::present() { present_now(*impl_); }

const Surface& WindowSystem::frame() {
  if (impl_->display_shown) {
    present_now(*impl_);
  } else {
    // The display gets this damage when it is first shown.
    impl_->frame_damage = compose_damage(*impl_);
  }
  return impl_->frame;
}

std::string WindowSystem::window_tree() const { return window_tree_text(*impl_); }

int WindowSystem::live_windows() const { return static_cast<int>(impl_->windows.size()) - 1; }

int WindowSystem::live_timers() const { return impl_->timers.count(); }

}  // namespace corvane::system
