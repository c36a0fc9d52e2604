#include "corvane/platform/system/user/messages/hooks.h"

#include <utility>

namespace corvane::system {
namespace {

// Calls the hook at that position, the newest being at 0; 0 when there is none.
LRESULT call_hook(std::size_t position, int code, WPARAM wparam, LPARAM lparam) {
  System* state = system();
  if (state == nullptr || position >= state->hooks.size()) return 0;
  const HOOKPROC procedure = state->hooks[state->hooks.size() - 1 - position].procedure;
  const std::size_t outer = std::exchange(state->running_hook, position);
  const LRESULT result = procedure(code, wparam, lparam);
  state->running_hook = outer;
  return result;
}

}  // namespace

bool ask_creation_hooks(HWND window, CREATESTRUCTW& create) {
  CBT_CREATEWNDW info{&create, HWND_TOP};
  return call_hook(0, HCBT_CREATEWND, reinterpret_cast<WPARAM>(window),
                   reinterpret_cast<LPARAM>(&info)) == 0;
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

HHOOK SetWindowsHookExW(int kind, HOOKPROC procedure, HINSTANCE, DWORD) {
  System* state = corvane::system::system();
  if (state == nullptr || kind != WH_CBT || procedure == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  const auto handle = reinterpret_cast<HHOOK>(state->new_handle());
  state->hooks.push_back(Hook{handle, kind, procedure});
  return handle;
}

BOOL UnhookWindowsHookEx(HHOOK hook) {
  System* state = corvane::system::system();
  if (state == nullptr) return FALSE;
  const auto removed =
      std::erase_if(state->hooks, [hook](const Hook& each) { return each.handle == hook; });
  return removed > 0 ? TRUE : FALSE;
}

LRESULT CallNextHookEx(HHOOK, int code, WPARAM wparam, LPARAM lparam) {
  const System* state = corvane::system::system();
  return state == nullptr ? 0 : call_hook(state->running_hook + 1, code, wparam, lparam);
}

}  // namespace corvane_system
