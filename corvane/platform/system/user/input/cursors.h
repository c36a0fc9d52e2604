#pragma once
// What a window system keeps of its cursors: the system's own, and those loaded from files, which
// may move.
#include <cstdint>
#include <map>
#include <optional>
#include <vector>

#include "corvane/platform/system/display/display.h"
#include "corvane/platform/system/gdi/cursor_file.h"
#include "corvane/platform/system/types.h"
#include "corvane/platform/system/user/window_system.h"

namespace corvane::system {

struct CursorState {
  std::map<HCURSOR, CursorShape> shapes;
  std::map<HCURSOR, std::vector<CursorStep>> loaded;
  std::uint64_t shown_since = 0;             // milliseconds
  std::shared_ptr<const CursorImage> image;  // on the screen; null: a shape
};

// Shows the step of the cursor that is due by now.
void advance_cursor(WindowSystem::Impl& state);
// When the next step is; nothing: it does not move, or nobody sees it.
std::optional<std::uint64_t> next_cursor_step(WindowSystem::Impl& state);

}  // namespace corvane::system
