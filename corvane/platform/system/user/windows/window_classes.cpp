// Window classes: registration and look-up, names without regard to case.
#include "corvane/platform/system/user/windows/window_classes.h"

#include <algorithm>
#include <cstring>

#include "corvane/platform/system/user/system_state.h"
#include "corvane/platform/system/user/windows/system_classes.h"

namespace corvane::system {
namespace {

constexpr ATOM kFirstAtom = 0xC000;

std::shared_ptr<WindowClass> find_in(const System::ClassesByName& classes, LPCWSTR name) {
  if (IS_INTRESOURCE(name)) {
    const ATOM atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(name));
    for (const auto& [key, window_class] : classes) {
      if (window_class->atom == atom) return window_class;
    }
    return nullptr;
  }
  auto it = classes.find(lower_case(name));
  return it == classes.end() ? nullptr : it->second;
}

ATOM free_atom(System& state) {
  const std::size_t used = state.classes.size() + state.system_classes.size();
  auto atom = static_cast<ATOM>(kFirstAtom + used + 1);
  while (find_class(state, MAKEINTRESOURCEW(atom)) != nullptr) ++atom;
  return atom;
}

}  // namespace

std::shared_ptr<WindowClass> find_class(System& state, LPCWSTR name) {
  if (name == nullptr) return nullptr;
  auto own = find_in(state.classes, name);
  return own != nullptr ? own : find_in(state.system_classes, name);
}

void add_system_classes(System& state) {
  for (const SystemClass& entry : system_classes()) {
    auto record = std::make_shared<WindowClass>();
    record->name = entry.name;
    record->style = entry.style;
    record->procedure = entry.procedure;
    record->window_extra = entry.window_extra;
    record->cursor = LoadCursorW(nullptr, IDC_ARROW);
    record->atom = free_atom(state);
    state.system_classes[lower_case(record->name)] = record;
  }
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
  if (find_in(state->classes, window_class->lpszClassName) != nullptr) {
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
  record->atom = free_atom(*state);
  state->classes[lower_case(record->name)] = record;
  return record->atom;
}

BOOL UnregisterClassW(LPCWSTR name, HINSTANCE) {
  System* state = corvane::system::system();
  const bool asked = state != nullptr && name != nullptr;
  auto record = asked ? find_in(state->classes, name) : nullptr;
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
