// Cursors by handle.
#include "corvane/platform/system/user/input/cursors.h"

#include <numeric>

#include "corvane/platform/system/shell/shell_api.h"
#include "corvane/platform/system/shell/wide_path.h"
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {
namespace {

// Times of cursors are in 1/60 s.
std::uint64_t sixtieths(std::uint64_t milliseconds) { return milliseconds * 60 / 1000; }
std::uint64_t milliseconds(std::uint64_t sixtieths) { return (sixtieths * 1000 + 59) / 60; }

struct Progress {
  const CursorStep* step = nullptr;
  std::uint64_t ends = 0;  // in 1/60 s since the cursor was first shown
};

// Where the shown cursor stands; no step when it does not move.
Progress progress_of(const System& state) {
  const auto found = state.cursors.loaded.find(state.input.cursor);
  if (found == state.cursors.loaded.end() || found->second.size() < 2) return {};
  const auto& steps = found->second;
  const std::uint64_t round = std::accumulate(
      steps.begin(), steps.end(), std::uint64_t{0},
      [](std::uint64_t sum, const CursorStep& step) { return sum + step.duration; });
  const std::uint64_t passed = sixtieths(state.now() - state.cursors.shown_since);
  std::uint64_t end = passed - passed % round;
  for (const CursorStep& step : steps) {
    end += step.duration;
    if (passed < end) return {&step, end};
  }
  return {};
}

void show_image(System& state, const std::shared_ptr<const CursorImage>& image) {
  if (state.cursors.image == image) return;
  state.cursors.image = image;
  state.display->set_cursor_image(image);
}

void show(System& state, HCURSOR cursor) {
  const auto loaded = state.cursors.loaded.find(cursor);
  state.cursors.shown_since = state.now();
  if (loaded != state.cursors.loaded.end()) {
    show_image(state, loaded->second.front().image);
    return;
  }
  state.cursors.image = nullptr;
  state.display->set_cursor(cursor == nullptr ? CursorShape::none
                                              : state.cursors.shapes.at(cursor));
}

}  // namespace

void advance_cursor(System& state) {
  if (const Progress progress = progress_of(state); progress.step != nullptr) {
    show_image(state, progress.step->image);
  }
}

std::optional<std::uint64_t> next_cursor_step(System& state) {
  if (!state.display->clock_runs()) return std::nullopt;
  const Progress progress = progress_of(state);
  if (progress.step == nullptr) return std::nullopt;
  return state.cursors.shown_since + milliseconds(progress.ends);
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

namespace {

struct SystemCursor {
  LPCWSTR name;
  CursorShape shape;
};
const SystemCursor kSystemCursors[] = {
    {IDC_ARROW, CursorShape::arrow},        {IDC_IBEAM, CursorShape::ibeam},
    {IDC_WAIT, CursorShape::wait},          {IDC_CROSS, CursorShape::cross},
    {IDC_SIZENWSE, CursorShape::size_nwse}, {IDC_SIZENESW, CursorShape::size_nesw},
    {IDC_SIZEWE, CursorShape::size_we},     {IDC_SIZENS, CursorShape::size_ns},
    {IDC_SIZEALL, CursorShape::size_all},   {IDC_NO, CursorShape::no},
    {IDC_HAND, CursorShape::hand},
};

}  // namespace

HCURSOR LoadCursorW(HINSTANCE, LPCWSTR name) {
  System* state = corvane::system::system();
  if (state == nullptr || !IS_INTRESOURCE(name)) return nullptr;
  for (const SystemCursor& row : kSystemCursors) {
    if (row.name != name) continue;
    for (const auto& [handle, shape] : state->cursors.shapes) {
      if (shape == row.shape) return handle;
    }
    auto handle = reinterpret_cast<HCURSOR>(state->new_handle());
    state->cursors.shapes[handle] = row.shape;
    return handle;
  }
  return nullptr;
}

HCURSOR LoadCursorFromFileW(LPCWSTR path) {
  return static_cast<HCURSOR>(
      LoadImageW(nullptr, path, IMAGE_CURSOR, 0, 0, LR_LOADFROMFILE | LR_DEFAULTSIZE));
}

HANDLE LoadImageW(HINSTANCE instance, LPCWSTR name, UINT kind, int width, int, UINT flags) {
  System* const state = corvane::system::system();
  if (state == nullptr || kind != IMAGE_CURSOR || name == nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  if ((flags & LR_LOADFROMFILE) == 0) return LoadCursorW(instance, name);
  if (IS_INTRESOURCE(name)) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  if (PathFileExistsW(name) == FALSE) return nullptr;  // says why
  auto steps = read_cursor_file(file_system_path(name), width > 0 ? width : kDefaultCursorSide);
  if (!steps) {
    SetLastError(ERROR_INVALID_DATA);
    return nullptr;
  }
  auto handle = reinterpret_cast<HCURSOR>(state->new_handle());
  state->cursors.loaded[handle] = std::move(*steps);
  return handle;
}

HCURSOR SetCursor(HCURSOR cursor) {
  System* state = corvane::system::system();
  if (state == nullptr) return nullptr;
  HCURSOR old = state->input.cursor;
  const auto& cursors = state->cursors;
  if (cursor != nullptr && cursors.shapes.count(cursor) + cursors.loaded.count(cursor) == 0) {
    SetLastError(ERROR_INVALID_CURSOR_HANDLE);
    return old;
  }
  if (cursor == old) return old;
  state->input.cursor = cursor;
  show(*state, cursor);
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

// The system's own stay.
BOOL DestroyCursor(HCURSOR cursor) {
  System* const state = corvane::system::system();
  if (state == nullptr) return FALSE;
  if (state->cursors.shapes.count(cursor) != 0) return TRUE;
  if (state->cursors.loaded.count(cursor) == 0) {
    SetLastError(ERROR_INVALID_CURSOR_HANDLE);
    return FALSE;
  }
  if (state->input.cursor == cursor) SetCursor(nullptr);
  state->cursors.loaded.erase(cursor);
  return TRUE;
}

}  // namespace corvane_system
