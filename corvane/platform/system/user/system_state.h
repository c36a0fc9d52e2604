#pragma once
// Everything that one window system holds, and the look-ups all other files of the room share.
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "corvane/platform/system/gdi/gdi.h"
#include "corvane/platform/system/user/clipboard/clipboard.h"
#include "corvane/platform/system/user/input/cursors.h"
#include "corvane/platform/system/user/input/input_state.h"
#include "corvane/platform/system/user/messages/message_queue.h"
#include "corvane/platform/system/user/messages/timer_list.h"
#include "corvane/platform/system/user/window_system.h"
#include "corvane/platform/system/user/windows/window.h"

namespace corvane::system {

struct Hook {
  HHOOK handle = nullptr;
  int kind = 0;
  HOOKPROC procedure = nullptr;
};

struct SystemParameters {
  BOOL drag_full_windows = FALSE;
  UINT wheel_lines = 3;
  DWORD wheel_routing = MOUSEWHEEL_ROUTING_MOUSE_POS;
};

// How deep the sent messages that have not returned are nested.
struct SendNesting {
  int depth = 0;
  int base = 0;            // where the message that is being dispatched came in
  bool exhausted = false;  // it was too deep since
};

struct WindowSystem::Impl {
  explicit Impl(std::unique_ptr<Display> new_display);

  std::unique_ptr<Display> display;
  Gdi gdi;
  std::uintptr_t tag = 0;  // upper bits of this system's handles
  std::uintptr_t last_handle = 0;

  std::unordered_map<HWND, std::unique_ptr<Window>> windows;
  Window* desktop = nullptr;
  HWND lifted = nullptr;  // whose group stands on top already, see z_order.cpp
  using ClassesByName = std::map<std::wstring, std::shared_ptr<WindowClass>>;  // lower case
  ClassesByName classes;                                                       // of programs
  ClassesByName system_classes;                      // hidden by a program's class of the same name
  std::map<std::wstring, UINT> registered_messages;  // by lower-case name
  std::vector<Hook> hooks;
  std::size_t running_hook = 0;  // how many were called before it; the newest comes first
  SendNesting sends;
  CursorState cursors;

  MessageQueue queue;
  MSG last_message{};  // that was retrieved
  TimerList timers;
  InputState input;
  SystemParameters parameters;
  ClipboardState clipboard;

  Surface frame;
  Region frame_damage;  // besides what the surfaces marked
  std::uint64_t last_present = 0;
  bool display_shown = false;
  RECT work_area{};          // the screen, as it is while no window fills the monitor
  bool full_screen = false;  // a window does

  Window* find(HWND window);
  HWND new_handle();
  std::uint64_t now() const { return display->now(); }
};
using System = WindowSystem::Impl;

// The calling thread's system, or null.
System* system();
// The window behind a handle; null (and error 1400) when it is none of the current system's.
Window* checked(HWND window);
// The same without setting an error.
Window* find(HWND window);

// --- Where windows are
bool is_top_level(const Window& window);
Window* top_level_of(Window& window);
Window* surface_owner(Window& window);       // the window whose surface it draws into
bool shown_on_screen(const Window& window);  // visible with all its parents
bool enabled_with_parents(const Window& window);
bool is_descendant(const Window& ancestor, const Window& window);
// A copy, top first: whatever is sent to one of them may change the order or end others.
std::vector<HWND> children_of(const Window& window);
RECT monitor_rect(const System& state);     // what a window covers to fill the monitor
POINT client_origin(const Window& window);  // screen coordinates
RECT frame_on_screen(const Window& window);
RECT client_on_screen(const Window& window);

// A message of now, at the pointer's present position.
MSG make_message(const System& state, HWND window, UINT number, WPARAM wparam, LPARAM lparam);
// As messages carry a point: its halves are 16 bits wide.
LPARAM packed(POINT point);
std::wstring lower_case(std::wstring_view text);

}  // namespace corvane::system
