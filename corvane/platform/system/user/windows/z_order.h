#pragma once
// The order of siblings, top first. An owned window is always above its owner.
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

void insert_top_level(System& state, Window& window);  // on top of its kind
void insert_child(Window& parent, Window& window);     // below its siblings
void unlink(Window& window);
// True when the order changed. `after` as SetWindowPos takes it; a stale handle changes nothing.
bool move_in_z_order(System& state, Window& window, HWND after);
// Brings a top-level window with its owners and owned windows to the top of its kind.
void raise(System& state, Window& window);

}  // namespace corvane::system
