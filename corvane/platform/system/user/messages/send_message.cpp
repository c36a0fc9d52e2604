#include "corvane/platform/system/user/messages/send_message.h"

#include <algorithm>
#include <utility>

#include "corvane/platform/system/user/system_registry.h"

namespace corvane::system {
namespace {

constexpr UINT kFirstRegistered = 0xC000;
constexpr std::size_t kMostRegistered = 0x3FFF;

// Deeper nesting of sent messages than any program means to have; further ones fail softly.
constexpr int kDeepestSend = 400;
thread_local int send_depth = 0;

// How many hooks before the running one were called; the newest hook comes first.
thread_local std::size_t running_hook = 0;

struct DepthGuard {
  DepthGuard() { ++send_depth; }
  ~DepthGuard() { --send_depth; }
};

}  // namespace

LRESULT call_hook(std::size_t position, int code, WPARAM wparam, LPARAM lparam) {
  System* state = system();
  if (state == nullptr || position >= state->hooks.size()) return 0;
  HOOKPROC procedure = state->hooks[state->hooks.size() - 1 - position].procedure;
  std::size_t outer = std::exchange(running_hook, position);
  LRESULT result = procedure(code, wparam, lparam);
  running_hook = outer;
  return result;
}

LRESULT send(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  Window* found = find(window);
  if (found == nullptr || found->procedure == nullptr || send_depth >= kDeepestSend) return 0;
  DepthGuard guard;
  return found->procedure(window, message, wparam, lparam);
}

bool post(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  System* state = system();
  if (state == nullptr) return false;
  return state->queue.post(
      MSG{window, message, wparam, lparam, static_cast<DWORD>(state->now()), state->input.pointer});
}

bool ask_creation_hooks(HWND window, CREATESTRUCTW& create) {
  CBT_CREATEWNDW info{&create, HWND_TOP};
  return call_hook(0, HCBT_CREATEWND, reinterpret_cast<WPARAM>(window),
                   reinterpret_cast<LPARAM>(&info)) == 0;
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

LRESULT SendMessageW(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  return checked(window) == nullptr ? 0 : send(window, message, wparam, lparam);
}

BOOL PostMessageW(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  System* state = corvane::system::system();
  DWORD time = state == nullptr ? 0 : static_cast<DWORD>(state->now());
  POINT pointer = state == nullptr ? POINT{} : state->input.pointer;
  MSG posted{window, message, wparam, lparam, time, pointer};
  if (state != nullptr && state->queue.post(posted)) return TRUE;
  if (window != nullptr && post_from_any_thread(posted)) return TRUE;
  SetLastError(ERROR_INVALID_WINDOW_HANDLE);
  return FALSE;
}

void PostQuitMessage(int exit_code) {
  if (System* state = corvane::system::system()) state->queue.post_quit(exit_code);
}

LRESULT DispatchMessageW(const MSG* message) {
  if (message == nullptr) return 0;
  if (message->message == WM_TIMER && message->lParam != 0) {
    auto procedure = reinterpret_cast<TIMERPROC>(message->lParam);
    System* state = corvane::system::system();
    if (state != nullptr && state->timers.knows(procedure)) {
      procedure(message->hwnd, WM_TIMER, message->wParam, GetTickCount());
    }
    return 0;
  }
  if (message->hwnd == nullptr || checked(message->hwnd) == nullptr) return 0;
  return send(message->hwnd, message->message, message->wParam, message->lParam);
}

LRESULT CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wparam,
                        LPARAM lparam) {
  return procedure == nullptr ? 0 : procedure(window, message, wparam, lparam);
}

UINT RegisterWindowMessageW(LPCWSTR name) {
  System* state = corvane::system::system();
  if (state == nullptr || name == nullptr || *name == 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  auto& known = state->registered_messages;
  std::wstring key = lower_case(name);
  auto it = known.find(key);
  if (it != known.end()) return it->second;
  if (known.size() > kMostRegistered) return 0;
  UINT number = kFirstRegistered + static_cast<UINT>(known.size());
  known[key] = number;
  return number;
}

HHOOK SetWindowsHookExW(int kind, HOOKPROC procedure, HINSTANCE, DWORD) {
  System* state = corvane::system::system();
  if (state == nullptr || kind != WH_CBT || procedure == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  auto handle = reinterpret_cast<HHOOK>(state->new_handle());
  state->hooks.push_back(Hook{handle, kind, procedure});
  return handle;
}

BOOL UnhookWindowsHookEx(HHOOK hook) {
  System* state = corvane::system::system();
  return state != nullptr &&
         std::erase_if(state->hooks, [hook](const Hook& it) { return it.handle == hook; }) > 0;
}

LRESULT CallNextHookEx(HHOOK, int code, WPARAM wparam, LPARAM lparam) {
  return call_hook(running_hook + 1, code, wparam, lparam);
}

DWORD GetTickCount() {
  System* state = corvane::system::system();
  return state == nullptr ? 0 : static_cast<DWORD>(state->now());
}

UINT_PTR SetTimer(HWND window, UINT_PTR id, UINT period, TIMERPROC procedure) {
  System* state = corvane::system::system();
  if (state == nullptr || (window != nullptr && checked(window) == nullptr)) return 0;
  return state->timers.set(window, id, period, procedure, state->now());
}

BOOL KillTimer(HWND window, UINT_PTR id) {
  System* state = corvane::system::system();
  return state != nullptr && state->timers.kill(window, id);
}

}  // namespace corvane_system
