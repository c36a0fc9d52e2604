// Window classes: registration and look-up, names without regard to case.
#include "corvane/platform/system/user/windows/window_classes.h"

#include <algorithm>
#include <cstring>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {
namespace {

constexpr ATOM kFirstAtom = 0xC000;

}  // namespace

std::shared_ptr<WindowClass> find_class(System& state, LPCWSTR name) {
  if (name == nullptr) return nullptr;
  if (IS_INTRESOURCE(name)) {
    const ATOM atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(name));
    for (auto& [key, window_class] : state.classes) {
      if (window_class->atom == atom) return window_class;
    }
    return nullptr;
  }
  auto it = state.classes.find(lower_case(name));
  return it == state.classes.end() ? nullptr : it->second;
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

ATOM RegisterClassW(const WNDCLASSW* window_class) {
  System* state = corvane::system::system();
  if (state == nullptr || window_class == nullptr || window_class->lpszClassName == nullptr ||
      IS_INTRESOURCE(window_class->lpszClassName) || window_class->lpfnWndProc == nullptr ||
      window_class->cbWndExtra < 0 || window_class->cbWndExtra > 4096) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  if (find_class(*state, window_class->lpszClassName) != nullptr) {
    SetLastError(ERROR_CLASS_ALREADY_EXISTS);
    return 0;
  }
  auto record = std::make_shared<WindowClass>();
  record->name = window_class->lpszClassName;
  record->style = window_class->style;
  record->procedure = window_class->lpfnWndProc;
  record->window_extra = window_class->cbWndExtra;
  record->instance = window_class->hInstance;
  record->cursor = window_class->hCursor;
  record->background = window_class->hbrBackground;
  record->atom = static_cast<ATOM>(kFirstAtom + state->classes.size() + 1);
  while (find_class(*state, MAKEINTRESOURCEW(record->atom)) != nullptr) ++record->atom;
  state->classes[lower_case(record->name)] = record;
  return record->atom;
}

BOOL UnregisterClassW(LPCWSTR name, HINSTANCE) {
  System* state = corvane::system::system();
  auto record = state == nullptr ? nullptr : find_class(*state, name);
  if (record == nullptr) {
    SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
    return FALSE;
  }
  const bool in_use =
      std::any_of(state->windows.begin(), state->windows.end(),
                  [&](const auto& entry) { return entry.second->window_class == record; });
  if (in_use) return FALSE;
  state->classes.erase(lower_case(record->name));
  return TRUE;
}

BOOL GetClassInfoW(HINSTANCE, LPCWSTR name, WNDCLASSW* out) {
  System* state = corvane::system::system();
  auto record = state == nullptr ? nullptr : find_class(*state, name);
  if (record == nullptr || out == nullptr) {
    SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
    return FALSE;
  }
  *out = WNDCLASSW{
      record->style,  record->procedure,  0,       record->window_extra, record->instance, nullptr,
      record->cursor, record->background, nullptr, record->name.c_str()};
  return TRUE;
}

int GetClassNameW(HWND window, LPWSTR buffer, int size) {
  Window* found = checked(window);
  if (found == nullptr || buffer == nullptr || size <= 0) return 0;
  const std::wstring& name = found->window_class->name;
  const std::size_t length = std::min(name.size(), static_cast<std::size_t>(size - 1));
  name.copy(buffer, length);
  buffer[length] = 0;
  return static_cast<int>(length);
}

ULONG_PTR GetClassLongPtrW(HWND window, int index) {
  Window* found = checked(window);
  if (found == nullptr) return 0;
  switch (index) {
    case GCL_STYLE:
      return found->window_class->style;
    case GCLP_HBRBACKGROUND:
      return reinterpret_cast<ULONG_PTR>(found->window_class->background);
    case GCLP_HCURSOR:
      return reinterpret_cast<ULONG_PTR>(found->window_class->cursor);
    case GCLP_WNDPROC:
      return reinterpret_cast<ULONG_PTR>(found->window_class->procedure);
    default:
      SetLastError(ERROR_INVALID_PARAMETER);
      return 0;
  }
}

}  // namespace corvane_system
