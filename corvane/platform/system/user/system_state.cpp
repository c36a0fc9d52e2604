#include "corvane/platform/system/user/system_state.h"

#include <cwctype>

#include "corvane/platform/geometry.h"

namespace corvane::system {

Window* System::find(HWND window) {
  auto it = windows.find(window);
  return it == windows.end() ? nullptr : it->second.get();
}

HWND System::new_handle() {
  last_handle += 4;
  return reinterpret_cast<HWND>(tag | last_handle);
}

System* system() {
  WindowSystem* current = WindowSystem::current();
  return current == nullptr ? nullptr : &current->impl();
}

Window* find(HWND window) {
  System* state = system();
  return state == nullptr ? nullptr : state->find(window);
}

Window* checked(HWND window) {
  Window* found = find(window);
  if (found == nullptr) SetLastError(ERROR_INVALID_WINDOW_HANDLE);
  return found;
}

bool is_top_level(const Window& window) {
  return window.parent != nullptr && window.parent->parent == nullptr;
}

Window* top_level_of(Window& window) {
  Window* top = &window;
  while (top->parent != nullptr && top->parent->parent != nullptr) top = top->parent;
  return top;
}

Window* surface_owner(Window& window) {
  Window* owner = &window;
  while (!is_top_level(*owner) && !owner->is_layered() && owner->parent != nullptr) {
    owner = owner->parent;
  }
  return owner;
}

bool shown_on_screen(const Window& window) {
  for (const Window* it = &window; it->parent != nullptr; it = it->parent) {
    if ((it->style & WS_VISIBLE) == 0) return false;
  }
  return true;
}

bool enabled_with_parents(const Window& window) {
  for (const Window* it = &window; it->parent != nullptr; it = it->parent) {
    if ((it->style & WS_DISABLED) != 0) return false;
  }
  return true;
}

bool is_descendant(const Window& ancestor, const Window& window) {
  for (const Window* it = window.parent; it != nullptr; it = it->parent) {
    if (it == &ancestor) return true;
  }
  return false;
}

std::vector<HWND> children_of(const Window& window) {
  std::vector<HWND> handles;
  handles.reserve(window.children.size());
  for (const Window* child : window.children) handles.push_back(child->handle);
  return handles;
}

POINT client_origin(const Window& window) {
  std::int64_t x = 0;
  std::int64_t y = 0;
  for (const Window* it = &window; it != nullptr; it = it->parent) {
    x += it->client.left;
    y += it->client.top;
  }
  // Far outside every surface; the difference of two still has a value.
  constexpr int kFarAway = 1 << 29;
  return {clamp_coordinate(x, -kFarAway, kFarAway), clamp_coordinate(y, -kFarAway, kFarAway)};
}

RECT frame_on_screen(const Window& window) {
  const POINT base = window.parent == nullptr ? POINT{0, 0} : client_origin(*window.parent);
  RECT rect = window.frame;
  OffsetRect(&rect, base.x, base.y);
  return rect;
}

RECT client_on_screen(const Window& window) {
  const POINT origin = client_origin(window);
  RECT rect = window.client_area();
  OffsetRect(&rect, origin.x, origin.y);
  return rect;
}

MSG make_message(const System& state, HWND window, UINT number, WPARAM wparam, LPARAM lparam) {
  return {window, number, wparam, lparam, static_cast<DWORD>(state.now()), state.input.pointer};
}

LPARAM packed(POINT point) {
  return MAKELPARAM(static_cast<WORD>(point.x), static_cast<WORD>(point.y));
}

std::wstring lower_case(std::wstring_view text) {
  std::wstring result(text);
  for (wchar_t& letter : result) {
    letter = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(letter)));
  }
  return result;
}

}  // namespace corvane::system
