#pragma once
// Changing where windows are: frame, client area, surfaces and what must be painted after it.
#include "corvane/platform/geometry.h"
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

inline constexpr int kMaxWindowSize = 32767;  // of one side; both as large no surface can hold

// Positions and sizes that are out of bounds are cut, so that sums of them stay in 32 bits.
constexpr int window_coordinate(int value) {
  constexpr int kMaxCoordinate = 0x3FFFFFF;
  return corvane::clamp_coordinate(value, -kMaxCoordinate, kMaxCoordinate);
}
constexpr int window_size(int value) { return corvane::clamp_coordinate(value, 0, kMaxWindowSize); }

// Asks the window for its client area by WM_NCCALCSIZE, at creation (wParam 0).
void calculate_first_client(HWND window);

struct Move {
  RECT frame{};              // new, in the parent's client coordinates
  bool redraw = true;        // false: nothing is copied or invalidated
  bool recalculate = false;  // ask for the client area even if the size stays
};
struct Moved {
  bool client_moved = false;
  bool client_resized = false;
};
// Sends WM_NCCALCSIZE (1) when the size changes, moves the pixels along, records what is to be
// painted. The window may be gone afterwards.
Moved apply_move(HWND window, const Move& move, WINDOWPOS* position);

// Marks the screen area of a top-level or layered window for composing.
void damage_frame(System& state, const Window& window);

LPARAM client_size_lparam(const Window& window);      // of WM_SIZE
LPARAM client_position_lparam(const Window& window);  // of WM_MOVE

}  // namespace corvane::system
