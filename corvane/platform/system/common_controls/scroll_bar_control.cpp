#include "corvane/platform/system/common_controls/scroll_bar_control.h"

#include "corvane/platform/system/user/scroll_bars/scroll_loop.h"
#include "corvane/platform/system/user/scroll_bars/scroll_painting.h"

namespace corvane::system {
namespace {

struct KeyCode {
  WPARAM key;
  UINT code;
};
constexpr KeyCode kKeyCodes[] = {
    {VK_UP, SB_LINEUP},    {VK_LEFT, SB_LINEUP},   {VK_DOWN, SB_LINEDOWN}, {VK_RIGHT, SB_LINEDOWN},
    {VK_PRIOR, SB_PAGEUP}, {VK_NEXT, SB_PAGEDOWN}, {VK_HOME, SB_TOP},      {VK_END, SB_BOTTOM},
};

const KeyCode* code_of_key(WPARAM key) {
  for (const KeyCode& code : kKeyCodes) {
    if (code.key == key) return &code;
  }
  return nullptr;
}

}  // namespace

const ControlMessage<ScrollBarControl> ScrollBarControl::kMessages[] = {
    {WM_CREATE, &ScrollBarControl::on_create},
    {WM_LBUTTONDOWN, &ScrollBarControl::on_press},
    {WM_LBUTTONDBLCLK, &ScrollBarControl::on_press},
    {WM_KEYDOWN, &ScrollBarControl::on_key_down},
    {WM_KEYUP, &ScrollBarControl::on_key_up},
    {WM_SETFOCUS, &ScrollBarControl::on_focus},
    {WM_KILLFOCUS, &ScrollBarControl::on_focus},
    {WM_GETDLGCODE, &ScrollBarControl::on_dialog_code},
    {SBM_SETPOS, &ScrollBarControl::on_set_position},
    {SBM_GETPOS, &ScrollBarControl::on_get_position},
    {SBM_SETRANGE, &ScrollBarControl::on_set_range},
    {SBM_SETRANGEREDRAW, &ScrollBarControl::on_set_range_redraw},
    {SBM_GETRANGE, &ScrollBarControl::on_get_range},
    {SBM_SETSCROLLINFO, &ScrollBarControl::on_set_info},
    {SBM_GETSCROLLINFO, &ScrollBarControl::on_get_info},
};

LRESULT ScrollBarControl::handle(UINT message, WPARAM wparam, LPARAM lparam) {
  const auto* entry = entry_for(kMessages, message);
  return entry != nullptr ? (this->*entry->handler)(wparam, lparam)
                          : handle_shared(message, wparam, lparam);
}

BarTarget ScrollBarControl::bar() const { return {find(window()), axis_}; }

SCROLLINFO ScrollBarControl::info(UINT mask) const {
  SCROLLINFO result{sizeof(SCROLLINFO), mask, 0, 0, 0, 0, 0};
  if (const BarTarget target = bar()) get_bar_info(target, &result);
  return result;
}

void ScrollBarControl::tell(UINT code) const {
  SendMessageW(GetParent(window()), axis_ == ScrollAxis::vertical ? WM_VSCROLL : WM_HSCROLL, code,
               reinterpret_cast<LPARAM>(window()));
}

LRESULT ScrollBarControl::on_create(WPARAM, LPARAM) {
  axis_ = (style() & SBS_VERT) != 0 ? ScrollAxis::vertical : ScrollAxis::horizontal;
  const BarTarget target = bar();
  target.window->scroll_control = axis_;
  target.bar().model = ScrollModel{.maximum = 0};
  return 0;
}

LRESULT ScrollBarControl::on_press(WPARAM, LPARAM lparam) {
  POINT press{GET_X_LPARAM(lparam), GET_Y_LPARAM(lparam)};
  ClientToScreen(window(), &press);
  if ((style() & WS_TABSTOP) != 0) SetFocus(window());
  run_scroll_loop(window(), axis_, press);
  return 0;
}

LRESULT ScrollBarControl::on_key_down(WPARAM key, LPARAM lparam) {
  const KeyCode* code = code_of_key(key);
  if (code == nullptr) return DefWindowProcW(window(), WM_KEYDOWN, key, lparam);
  tell(code->code);
  return 0;
}

LRESULT ScrollBarControl::on_key_up(WPARAM key, LPARAM lparam) {
  if (code_of_key(key) == nullptr) return DefWindowProcW(window(), WM_KEYUP, key, lparam);
  tell(SB_ENDSCROLL);
  return 0;
}

LRESULT ScrollBarControl::on_focus(WPARAM, LPARAM) {
  redraw();
  return 0;
}

LRESULT ScrollBarControl::on_dialog_code(WPARAM, LPARAM) { return DLGC_WANTARROWS; }

LRESULT ScrollBarControl::on_set_position(WPARAM position, LPARAM redraw) {
  const int previous = info(SIF_POS).nPos;
  const SCROLLINFO wanted{sizeof(SCROLLINFO), SIF_POS, 0, 0, 0, static_cast<int>(position), 0};
  if (const BarTarget target = bar()) set_bar_info(target, &wanted, redraw != 0 ? TRUE : FALSE);
  return previous;
}

LRESULT ScrollBarControl::on_get_position(WPARAM, LPARAM) { return info(SIF_POS).nPos; }

LRESULT ScrollBarControl::on_set_range(WPARAM minimum, LPARAM maximum) {
  const int previous = info(SIF_POS).nPos;
  const SCROLLINFO wanted{
      sizeof(SCROLLINFO), SIF_RANGE, static_cast<int>(minimum), static_cast<int>(maximum), 0, 0, 0};
  if (const BarTarget target = bar()) set_bar_info(target, &wanted, FALSE);
  const int position = info(SIF_POS).nPos;
  return position != previous ? previous : 0;
}

LRESULT ScrollBarControl::on_set_range_redraw(WPARAM minimum, LPARAM maximum) {
  const LRESULT result = on_set_range(minimum, maximum);
  redraw();
  return result;
}

LRESULT ScrollBarControl::on_get_range(WPARAM minimum, LPARAM maximum) {
  const SCROLLINFO range = info(SIF_RANGE);
  if (auto* out = reinterpret_cast<int*>(minimum)) *out = range.nMin;
  if (auto* out = reinterpret_cast<int*>(maximum)) *out = range.nMax;
  return 0;
}

LRESULT ScrollBarControl::on_set_info(WPARAM redraw, LPARAM wanted) {
  const BarTarget target = bar();
  const auto* given = reinterpret_cast<LPCSCROLLINFO>(wanted);
  return target ? set_bar_info(target, given, redraw != 0 ? TRUE : FALSE) : 0;
}

LRESULT ScrollBarControl::on_get_info(WPARAM, LPARAM out) {
  const BarTarget target = bar();
  return target ? get_bar_info(target, reinterpret_cast<LPSCROLLINFO>(out)) : FALSE;
}

void ScrollBarControl::paint(HDC dc) {
  if (const BarTarget target = bar()) draw_bar(*target.window, axis_, dc, client());
}

}  // namespace corvane::system
