// System cursors by handle.
#include <cstdint>

#include "corvane/platform/system/user/system_state.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

struct SystemCursor {
  int id;
  CursorShape shape;
};
constexpr SystemCursor kSystemCursors[] = {
    {32512, CursorShape::arrow},   {32513, CursorShape::ibeam},     {32514, CursorShape::wait},
    {32515, CursorShape::cross},   {32642, CursorShape::size_nwse}, {32643, CursorShape::size_nesw},
    {32644, CursorShape::size_we}, {32645, CursorShape::size_ns},   {32646, CursorShape::size_all},
    {32648, CursorShape::no},      {32649, CursorShape::hand},
};

}  // namespace

HCURSOR LoadCursorW(HINSTANCE, LPCWSTR name) {
  System* state = corvane::system::system();
  if (state == nullptr || !IS_INTRESOURCE(name)) return nullptr;
  auto id = static_cast<int>(reinterpret_cast<ULONG_PTR>(name));
  for (const SystemCursor& row : kSystemCursors) {
    if (row.id != id) continue;
    for (const auto& [handle, shape] : state->cursors) {
      if (shape == row.shape) return handle;
    }
    auto handle = reinterpret_cast<HCURSOR>(state->new_handle());
    state->cursors[handle] = row.shape;
    return handle;
  }
  return nullptr;
}

HCURSOR LoadCursorFromFileW(LPCWSTR) {
  SetLastError(ERROR_INVALID_PARAMETER);
  return nullptr;
}

HCURSOR SetCursor(HCURSOR cursor) {
  System* state = corvane::system::system();
  if (state == nullptr) return nullptr;
  HCURSOR old = state->input.cursor;
  auto known = state->cursors.find(cursor);
  if (cursor != nullptr && known == state->cursors.end()) return old;
  if (cursor == old) return old;
  state->input.cursor = cursor;
  state->display->set_cursor(cursor == nullptr ? CursorShape::none : known->second);
  return old;
}

HCURSOR GetCursor() {
  System* state = corvane::system::system();
  return state == nullptr ? nullptr : state->input.cursor;
}

BOOL GetCursorInfo(CURSORINFO* info) {
  const System* const state = corvane::system::system();
  if (state == nullptr || info == nullptr || info->cbSize != sizeof(CURSORINFO)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return FALSE;
  }
  HCURSOR const cursor = state->input.cursor;
  *info = {sizeof(CURSORINFO), cursor != nullptr ? CURSOR_SHOWING : 0, cursor,
           state->input.pointer};
  return TRUE;
}

BOOL DestroyCursor(HCURSOR) { return TRUE; }

}  // namespace corvane_system
