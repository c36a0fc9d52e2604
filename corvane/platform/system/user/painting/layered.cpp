// SetLayeredWindowAttributes and UpdateLayeredWindow.
#include <algorithm>
#include <new>

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/user/frames/window_frame.h"
#include "corvane/platform/system/user/windows/window_geometry.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

bool usable(HWND window) {
  Window* found = checked(window);
  if (found == nullptr) return false;
  if (found->is_layered()) return true;
  SetLastError(ERROR_INVALID_PARAMETER);
  return false;
}

// Copies the program's pixels into a new surface. What lies beyond them is clear. Null when they do
// not fit into memory.
std::shared_ptr<Surface> content_of(const Surface& pixels, POINT from, SIZE size) try {
  auto content = std::make_shared<Surface>(size.cx, size.cy);
  const int first = std::max<int>(0, -from.x);
  const int last = std::min<int>(size.cx, pixels.width() - from.x);
  std::vector<Pixel> scratch;
  for (int y = 0; y < size.cy && first < last; ++y) {
    const Pixel* row = pixels.read_row(from.y + y, scratch);
    if (row != nullptr) {
      std::copy(row + from.x + first, row + from.x + last, content->row(y) + first);
    }
  }
  return content;
} catch (const std::bad_alloc&) {
  return nullptr;
}

void place(Window& window, const POINT* position, SIZE size) {
  const POINT corner = position == nullptr
                           ? POINT{window.frame.left, window.frame.top}
                           : POINT{window_coordinate(position->x), window_coordinate(position->y)};
  window.frame = {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
  window.client = window.frame;
  leave_room_for_frame(window, window.client);
}

}  // namespace

BOOL SetLayeredWindowAttributes(HWND window, COLORREF key, BYTE alpha, DWORD flags) {
  if (!usable(window)) return FALSE;
  Window* found = find(window);
  if (found->layered.content) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  found->layered.attributes = true;
  found->layered.key = key;
  found->layered.flags = flags;
  found->layered.keyed = (flags & LWA_COLORKEY) != 0;
  found->layered.alpha = (flags & LWA_ALPHA) != 0 ? alpha : BYTE{255};
  damage_frame(*corvane::system::system(), *found);
  return TRUE;
}

BOOL GetLayeredWindowAttributes(HWND window, COLORREF* key, BYTE* alpha, DWORD* flags) {
  Window* found = checked(window);
  if (found == nullptr || !found->layered.attributes) return FALSE;
  if (key != nullptr) *key = found->layered.key;
  if (alpha != nullptr) *alpha = found->layered.alpha;
  if (flags != nullptr) *flags = found->layered.flags;
  return TRUE;
}

BOOL UpdateLayeredWindow(HWND window, HDC, POINT* position, SIZE* size, HDC source,
                         POINT* source_point, COLORREF key, BLENDFUNCTION* blend, DWORD flags) {
  if (!usable(window)) return FALSE;
  Window* found = find(window);
  const bool sized = size == nullptr || (size->cx > 0 && size->cy > 0 &&
                                         size->cx <= kMaxWindowSize && size->cy <= kMaxWindowSize);
  const bool supplied = source == nullptr || (size != nullptr && source_point != nullptr);
  if (found->layered.attributes || !sized || !supplied) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  System& state = *corvane::system::system();
  POINT origin{};
  const std::shared_ptr<Surface> pixels = state.gdi.dc_surface(source, &origin);
  if (source != nullptr && pixels == nullptr) {
    SetLastError(ERROR_INVALID_HANDLE);
    return FALSE;
  }
  const SIZE extent = size == nullptr ? SIZE{found->width(), found->height()} : *size;
  if (pixels != nullptr) {
    const POINT from{corvane::clamp_to_summable(std::int64_t{origin.x} + source_point->x),
                     corvane::clamp_to_summable(std::int64_t{origin.y} + source_point->y)};
    auto content =
        Surface::can_hold(extent.cx, extent.cy) ? content_of(*pixels, from, extent) : nullptr;
    if (content == nullptr) {
      SetLastError(ERROR_NOT_ENOUGH_MEMORY);
      return FALSE;
    }
    damage_frame(state, *found);
    found->surface = std::move(content);
  }
  damage_frame(state, *found);
  place(*found, position, extent);
  LayeredState& layered = found->layered;
  layered.content = true;
  layered.keyed = (flags & ULW_COLORKEY) != 0;
  layered.key = key;
  const bool blends = (flags & ULW_ALPHA) != 0 && blend != nullptr;
  layered.alpha = blends ? blend->SourceConstantAlpha : BYTE{255};
  layered.pixel_alpha = blends && (blend->AlphaFormat & AC_SRC_ALPHA) != 0;
  damage_frame(state, *found);
  return TRUE;
}

}  // namespace corvane_system
