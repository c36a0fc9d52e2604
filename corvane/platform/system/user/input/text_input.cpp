#include "corvane/platform/system/user/input/text_input.h"

#include "corvane/platform/geometry.h"
#include "corvane/platform/system/user/input/ime_api.h"

namespace corvane::system {
namespace {

// Where the window with the focus edits text, screen coordinates.
std::optional<RECT> wanted_caret(System& state) {
  const Window* const focus = state.find(state.input.focus);
  if (focus == nullptr || focus->input_method_off || !focus->text_caret) return std::nullopt;
  const RECT& caret = *focus->text_caret;
  const POINT origin = client_origin(*focus);
  const auto moved = [](std::int64_t side, int by) { return clamp_coordinate(side + by); };
  return RECT{moved(caret.left, origin.x), moved(caret.top, origin.y), moved(caret.right, origin.x),
              moved(caret.bottom, origin.y)};
}

bool same(const std::optional<RECT>& a, const std::optional<RECT>& b) {
  return a.has_value() == b.has_value() && (!a || EqualRect(&*a, &*b) != FALSE);
}

}  // namespace

void set_text_caret(Window& window, std::optional<RECT> caret) { window.text_caret = caret; }

void update_text_input(System& state) {
  const std::optional<RECT> caret = wanted_caret(state);
  if (same(caret, state.input.text_caret)) return;
  state.input.text_caret = caret;
  state.display->set_text_input(caret);
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

namespace {

// A context is its window's.
HIMC context_of(HWND window) { return reinterpret_cast<HIMC>(window); }
HWND window_of(HIMC context) { return reinterpret_cast<HWND>(context); }

// The context says where the text is, but not how high a line of it.
BOOL place_caret(HIMC context, RECT caret) {
  Window* const window = checked(window_of(context));
  if (window == nullptr) return FALSE;
  set_text_caret(*window, caret);
  return TRUE;
}

RECT point_caret(POINT point) {
  return {point.x, point.y, corvane::clamp_coordinate(std::int64_t{point.x} + 1),
          corvane::clamp_coordinate(std::int64_t{point.y} + 1)};
}

}  // namespace

HIMC ImmGetContext(HWND window) {
  const Window* const found = checked(window);
  return found == nullptr || found->input_method_off ? nullptr : context_of(window);
}

BOOL ImmReleaseContext(HWND window, HIMC context) {
  return context != nullptr && window_of(context) == window && find(window) != nullptr ? TRUE
                                                                                       : FALSE;
}

HIMC ImmAssociateContext(HWND window, HIMC context) {
  Window* const found = checked(window);
  if (found == nullptr || (context != nullptr && window_of(context) != window)) return nullptr;
  HIMC const previous = ImmGetContext(window);
  found->input_method_off = context == nullptr;
  return previous;
}

BOOL ImmSetCompositionWindow(HIMC context, COMPOSITIONFORM* form) {
  return form != nullptr ? place_caret(context, point_caret(form->ptCurrentPos)) : FALSE;
}

BOOL ImmSetCandidateWindow(HIMC context, CANDIDATEFORM* form) {
  if (form == nullptr) return FALSE;
  const bool knows_caret = form->dwStyle == CFS_EXCLUDE;
  return place_caret(context, knows_caret ? form->rcArea : point_caret(form->ptCurrentPos));
}

}  // namespace corvane_system
