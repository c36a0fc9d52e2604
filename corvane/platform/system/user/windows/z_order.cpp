#include "corvane/platform/system/user/windows/z_order.h"

#include <algorithm>
#include <cassert>

namespace corvane::system {
namespace {

using Siblings = std::vector<Window*>;

// What a topmost window owns is topmost with it.
bool topmost(System& state, const Window& window) {
  const Window* it = &window;
  for (std::size_t step = 0; it != nullptr && step <= state.windows.size(); ++step) {
    if ((it->ex_style & WS_EX_TOPMOST) != 0) return true;
    it = state.find(it->owner);
  }
  return false;
}

Siblings::iterator top_of_kind(System& state, const Window& window) {
  Siblings& siblings = state.desktop->children;
  if (topmost(state, window)) return siblings.begin();
  return std::find_if(siblings.begin(), siblings.end(),
                      [&](const Window* other) { return !topmost(state, *other); });
}

// Moves every owned window that lies below its owner to just above it.
void lift_owned_windows(System& state) {
  Siblings& order = state.desktop->children;
  for (std::size_t step = 0; step < order.size(); ++step) {
    auto low = std::find_if(order.begin(), order.end(), [&](Window* window) {
      Window* owner = state.find(window->owner);
      return owner != nullptr && std::find(order.begin(), order.end(), owner) <
                                     std::find(order.begin(), order.end(), window);
    });
    if (low == order.end()) return;
    Window* window = *low;
    order.erase(low);
    order.insert(std::find(order.begin(), order.end(), state.find(window->owner)), window);
  }
}

Window* root_owner(System& state, Window& window) {
  Window* root = &window;
  for (std::size_t step = 0; step < state.windows.size(); ++step) {
    Window* owner = state.find(root->owner);
    if (owner == nullptr) break;
    root = owner;
  }
  return root;
}

bool owned_by(System& state, Window& owner, Window* window) {
  for (std::size_t step = 0; window != nullptr && step <= state.windows.size(); ++step) {
    if (window == &owner) return true;
    window = state.find(window->owner);
  }
  return false;
}

// Moves the window and all it owns to the top of its kind, keeping their order.
void lift_group(System& state, Window& head) {
  Siblings& order = state.desktop->children;
  Siblings group;
  std::copy_if(order.begin(), order.end(), std::back_inserter(group),
               [&](Window* window) { return owned_by(state, head, window); });
  std::erase_if(order, [&](Window* window) { return owned_by(state, head, window); });
  order.insert(top_of_kind(state, head), group.begin(), group.end());
}

Siblings::iterator target_position(System& state, Window& window, HWND after) {
  Siblings& order = window.parent->children;
  if (after == HWND_BOTTOM) return order.end();
  if (after == HWND_TOP || after == HWND_TOPMOST || after == HWND_NOTOPMOST) {
    return is_top_level(window) ? top_of_kind(state, window) : order.begin();
  }
  auto it = std::find_if(order.begin(), order.end(),
                         [after](Window* other) { return other->handle == after; });
  return it == order.end() ? it : it + 1;
}

}  // namespace

void insert_top_level(System& state, Window& window) {
  assert(window.parent == nullptr);
  window.parent = state.desktop;
  Siblings& order = state.desktop->children;
  order.insert(top_of_kind(state, window), &window);
  lift_owned_windows(state);
}

void insert_child(Window& parent, Window& window) {
  assert(window.parent == nullptr);
  window.parent = &parent;
  parent.children.push_back(&window);
}

void unlink(Window& window) {
  if (window.parent == nullptr) return;
  std::erase(window.parent->children, &window);
  window.parent = nullptr;
}

bool move_in_z_order(System& state, Window& window, HWND after) {
  if (window.parent == nullptr || after == window.handle) return false;
  Siblings& order = window.parent->children;
  const Siblings before = order;
  const bool special =
      after == HWND_TOP || after == HWND_BOTTOM || after == HWND_TOPMOST || after == HWND_NOTOPMOST;
  if (!special) {
    Window* other = state.find(after);
    if (other == nullptr || other->parent != window.parent) return false;
  }
  if (after == HWND_TOPMOST) window.ex_style |= WS_EX_TOPMOST;
  if (after == HWND_NOTOPMOST) window.ex_style &= ~WS_EX_TOPMOST;
  if (is_top_level(window) && special && after != HWND_BOTTOM) {
    raise(state, window);
  } else {
    std::erase(order, &window);
    order.insert(target_position(state, window, after), &window);
    if (is_top_level(window)) lift_owned_windows(state);
  }
  assert(order.size() == before.size());
  return order != before;
}

void raise(System& state, Window& window) {
  lift_group(state, *root_owner(state, window));
  lift_group(state, window);
  lift_owned_windows(state);
}

}  // namespace corvane::system
