#pragma once
// Who is whose parent and owner, and the order of siblings, top first. An owned window is always
// above its owner.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// A pop-up on top of its kind, owned by a window or by none (null).
void insert_top_level(System& state, Window& window, Window* owner = nullptr);
enum class Among { top, bottom };
void insert_child(Window& parent, Window& window, Among siblings = Among::bottom);
// Ends its place among its siblings and above its owner; what it owns has no owner any more.
void unlink(System& state, Window& window);
// The same, but it keeps what it owns.
void detach(System& state, Window& window);

// True when the order changed. `after` as SetWindowPos takes it; a stale handle changes nothing.
bool move_in_z_order(System& state, Window& window, HWND after);
// Brings a top-level window with its owners and owned windows to the top of its kind.
bool raise(System& state, Window& window);

// What a window owns itself, top first.
std::vector<HWND> owned_windows(const System& state, const Window& window);
// Whether `owner` is one of the window's owners, or their owners.
bool owned_by(System& state, const Window& owner, const Window& window);

// The platform refuses windows that lie deeper in others than this, and as long chains of owners.
inline constexpr int kMaxNesting = 50;
int depth_of(const Window& window);                  // 1: a top-level window
int depth_of_children(const Window& window);         // below it; 0: it has none
int owners_of(System& state, const Window& window);  // the window included

}  // namespace corvane::system
