// Finding and listing top-level windows, and what programs hang onto windows by name.
#include "corvane/platform/system/user/system_state.h"
#include "corvane/platform/system/user/windows/window_classes.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

// Names go without regard to case; an atom is its number.
std::wstring property_key(LPCWSTR name) {
  if (name == nullptr) return {};
  if (!IS_INTRESOURCE(name)) return lower_case(name);
  return L"#" + std::to_wstring(reinterpret_cast<ULONG_PTR>(name));
}

}  // namespace

HWND FindWindowW(LPCWSTR class_name, LPCWSTR text) {
  System* const state = corvane::system::system();
  if (state == nullptr) return nullptr;
  const auto wanted = class_name == nullptr ? nullptr : find_class(*state, class_name);
  if (class_name != nullptr && wanted == nullptr) {
    SetLastError(ERROR_CANNOT_FIND_WND_CLASS);
    return nullptr;
  }
  for (const Window* const top : state->desktop->children) {
    if (wanted != nullptr && top->window_class != wanted) continue;
    if (text == nullptr || lower_case(top->text) == lower_case(text)) return top->handle;
  }
  return nullptr;
}

BOOL EnumWindows(WNDENUMPROC callback, LPARAM parameter) {
  const System* const state = corvane::system::system();
  if (state == nullptr || callback == nullptr) return FALSE;
  for (HWND top : children_of(*state->desktop)) {
    if (find(top) != nullptr && callback(top, parameter) == FALSE) return FALSE;
  }
  return TRUE;
}

BOOL SetPropW(HWND window, LPCWSTR name, HANDLE value) {
  Window* const found = checked(window);
  if (found == nullptr) return FALSE;
  const std::wstring key = property_key(name);
  if (key.empty()) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  found->properties[key] = value;
  return TRUE;
}

HANDLE GetPropW(HWND window, LPCWSTR name) {
  const Window* const found = checked(window);
  if (found == nullptr) return nullptr;
  const auto property = found->properties.find(property_key(name));
  return property == found->properties.end() ? nullptr : property->second;
}

HANDLE RemovePropW(HWND window, LPCWSTR name) {
  HANDLE const value = GetPropW(window, name);
  if (Window* const found = find(window)) found->properties.erase(property_key(name));
  return value;
}

}  // namespace corvane_system
