#include "corvane/platform/system/user/windows/z_order.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <unordered_set>

namespace corvane::system {
namespace {

// What a topmost window owns is topmost with it.
bool topmost(System& state, const Window& window) {
  for (const Window* it = &window; it != nullptr; it = state.find(it->owner)) {
    if ((it->ex_style & WS_EX_TOPMOST) != 0) return true;
  }
  return false;
}

WindowList::iterator first_ordinary(System& state) {
  return std::find_if(state.desktop->children.begin(), state.desktop->children.end(),
                      [&](const Window* other) { return !topmost(state, *other); });
}

WindowList::iterator top_of_kind(System& state, const Window& window) {
  return topmost(state, window) ? state.desktop->children.begin() : first_ordinary(state);
}

Window* root_owner(System& state, Window& window) {
  Window* root = &window;
  while (Window* owner = state.find(root->owner)) root = owner;
  return root;
}

using WindowSet = std::unordered_set<const Window*>;

void collect_owned(const Window& head, WindowSet& group) {
  for (const Window* owned : head.owned) {
    if (is_top_level(*owned)) group.insert(owned);
    collect_owned(*owned, group);
  }
}

// Those of the group that stand in [first, end), top first.
std::vector<Window*> in_order(WindowList::const_iterator first, WindowList::const_iterator end,
                              const WindowSet& group) {
  std::vector<Window*> found;
  for (auto it = first; it != end && found.size() < group.size(); ++it) {
    if (group.count(*it) != 0) found.push_back(*it);
  }
  return found;
}

// A window and all that it owns, top first.
std::vector<Window*> group_of(const System& state, Window& head) {
  if (head.owned.empty()) return {&head};
  WindowSet group{&head};
  collect_owned(head, group);
  const WindowList& order = state.desktop->children;
  return in_order(order.begin(), order.end(), group);
}

const Window* above(const Window& window) {
  const bool first = window.place == window.parent->children.begin();
  return first ? nullptr : *std::prev(window.place);
}

std::vector<const Window*> all_above(const std::vector<Window*>& group) {
  std::vector<const Window*> result;
  result.reserve(group.size());
  for (const Window* member : group) result.push_back(above(*member));
  return result;
}

// Moves the window and all it owns to the top of their kinds, keeping their order.
bool lift_group(System& state, Window& head) {
  const std::vector<Window*> group = group_of(state, head);
  const std::vector<const Window*> before = all_above(group);
  WindowList& order = state.desktop->children;
  WindowList lifted;
  for (Window* member : group) lifted.splice(lifted.end(), order, member->place);
  for (auto member = group.rbegin(); member != group.rend(); ++member) {
    order.splice(top_of_kind(state, **member), lifted, (*member)->place);
  }
  return all_above(group) != before;
}

// A group that stands on top stays there until a window of another one comes or is moved; asking
// this first makes it cheap to raise one of very many windows with one owner.
bool lift_group_of_root(System& state, Window& root) {
  if (state.lifted == root.handle) return false;
  state.lifted = root.handle;
  return lift_group(state, root);
}

// Puts a window that was moved alone above its owner again, and what it owns above it.
bool restore_owners(System& state, Window& window) {
  WindowList& order = state.desktop->children;
  const Window* owner = state.find(window.owner);
  if (owner != nullptr && is_top_level(*owner) &&
      std::find(owner->place, order.end(), &window) != order.end()) {
    order.splice(owner->place, order, window.place);
  }
  if (window.owned.empty()) return false;
  WindowSet group;
  collect_owned(window, group);
  const std::vector<Window*> low = in_order(window.place, order.end(), group);
  for (const Window* member : low) order.splice(window.place, order, member->place);
  return !low.empty();
}

WindowList::iterator target_position(System& state, const Window& window, HWND after) {
  WindowList& order = window.parent->children;
  if (after == HWND_BOTTOM) return order.end();
  const Window* other = state.find(after);
  return other == nullptr ? order.begin() : std::next(other->place);
}

bool is_special(HWND after) {
  return after == HWND_TOP || after == HWND_BOTTOM || after == HWND_TOPMOST ||
         after == HWND_NOTOPMOST;
}

bool move_alone(System& state, Window& window, HWND after) {
  const Window* before = above(window);
  WindowList& order = window.parent->children;
  order.splice(target_position(state, window, after), order, window.place);
  const bool lifted = is_top_level(window) && restore_owners(state, window);
  return lifted || above(window) != before;
}

}  // namespace

void insert_top_level(System& state, Window& window, Window* owner) {
  assert(window.parent == nullptr && window.owner == nullptr);
  if (owner != nullptr) {
    window.owner = owner->handle;
    window.owned_place = owner->owned.insert(owner->owned.end(), &window);
  }
  window.parent = state.desktop;
  window.place = state.desktop->children.insert(top_of_kind(state, window), &window);
  if (root_owner(state, window)->handle != state.lifted) state.lifted = nullptr;
}

void insert_child(Window& parent, Window& window, Among siblings) {
  assert(window.parent == nullptr && window.owner == nullptr);
  window.parent = &parent;
  WindowList& order = parent.children;
  window.place = order.insert(siblings == Among::top ? order.begin() : order.end(), &window);
}

void detach(System& state, Window& window) {
  if (window.handle == state.lifted || !window.owned.empty()) state.lifted = nullptr;
  if (Window* owner = state.find(window.owner)) owner->owned.erase(window.owned_place);
  window.owner = nullptr;
  if (window.parent != nullptr) window.parent->children.erase(window.place);
  window.parent = nullptr;
}

void unlink(System& state, Window& window) {
  detach(state, window);
  for (Window* owned : window.owned) owned->owner = nullptr;
  window.owned.clear();
}

bool move_in_z_order(System& state, Window& window, HWND after) {
  if (window.parent == nullptr || after == window.handle) return false;
  if (!is_special(after)) {
    const Window* other = state.find(after);
    if (other == nullptr || other->parent != window.parent) return false;
  }
  if (after != HWND_TOP) state.lifted = nullptr;
  if (after == HWND_TOPMOST) window.ex_style |= WS_EX_TOPMOST;
  if (after == HWND_NOTOPMOST) window.ex_style &= ~WS_EX_TOPMOST;
  if (is_top_level(window) && is_special(after) && after != HWND_BOTTOM) {
    return raise(state, window);
  }
  return move_alone(state, window, after);
}

bool raise(System& state, Window& window) {
  Window& root = *root_owner(state, window);
  const bool moved = lift_group_of_root(state, root);
  return (&window != &root && lift_group(state, window)) || moved;
}

std::vector<HWND> owned_windows(const System& state, const Window& window) {
  if (window.owned.empty()) return {};
  const WindowSet group(window.owned.begin(), window.owned.end());
  const WindowList& order = state.desktop->children;
  std::vector<HWND> handles;
  for (const Window* each : in_order(order.begin(), order.end(), group)) {
    handles.push_back(each->handle);
  }
  return handles;
}

bool owned_by(System& state, const Window& owner, const Window& window) {
  for (const Window* it = &window; it != nullptr; it = state.find(it->owner)) {
    if (it->owner == owner.handle) return true;
  }
  return false;
}

int depth_of(const Window& window) {
  int depth = 0;
  for (const Window* it = &window; it->parent != nullptr; it = it->parent) ++depth;
  return depth;
}

int owners_of(System& state, const Window& window) {
  int count = 0;
  for (const Window* it = &window; it != nullptr; it = state.find(it->owner)) ++count;
  return count;
}

int depth_of_children(const Window& window) {
  int deepest = 0;
  for (const Window* child : window.children) {
    deepest = std::max(deepest, 1 + depth_of_children(*child));
  }
  return deepest;
}

}  // namespace corvane::system
