// DefWindowProcW: which function handles which message.
#include <algorithm>
#include <iterator>

#include "corvane/platform/system/user/default_handling/default_handlers.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

struct DefaultHandling {
  UINT number;
  LRESULT (*handle)(const SentMessage& sent);
};

// In the order of the numbers. A message that is not here answers 0.
constexpr DefaultHandling kDefaultHandling[] = {
    {WM_ACTIVATE, default_activate},
    {WM_SETREDRAW, default_set_redraw},
    {WM_SETTEXT, default_set_text},
    {WM_GETTEXT, default_get_text},
    {WM_GETTEXTLENGTH, default_get_text_length},
    {WM_PAINT, default_paint},
    {WM_CLOSE, default_close},
    {WM_ERASEBKGND, default_erase},
    {WM_CANCELMODE, default_cancel_mode},
    {WM_SETCURSOR, default_set_cursor},
    {WM_MOUSEACTIVATE, default_mouse_activate},
    {WM_WINDOWPOSCHANGING, default_position_changing},
    {WM_WINDOWPOSCHANGED, default_position_changed},
    {WM_CONTEXTMENU, give_to_parent},
    {WM_GETICON, default_get_icon},
    {WM_SETICON, default_set_icon},
    {WM_NCCREATE, default_nc_create},
    {WM_NCCALCSIZE, default_nc_calc_size},
    {WM_NCHITTEST, default_nc_hit_test},
    {WM_NCPAINT, default_nc_paint},
    {WM_NCACTIVATE, default_nc_activate},
    {WM_NCLBUTTONDOWN, default_nc_press},
    {WM_NCLBUTTONDBLCLK, default_nc_double_click},
    {WM_SYSKEYDOWN, default_system_key_down},
    {WM_SYSKEYUP, default_system_key_up},
    {WM_SYSCOMMAND, default_system_command},
    {WM_CTLCOLOREDIT, default_control_color},
    {WM_CTLCOLORBTN, default_control_color},
    {WM_CTLCOLORDLG, default_control_color},
    {WM_CTLCOLORSTATIC, default_control_color},
    {WM_RBUTTONUP, default_right_release},
    {WM_MOUSEWHEEL, give_to_parent},
};
static_assert(std::ranges::is_sorted(kDefaultHandling, {}, &DefaultHandling::number));

}  // namespace

LRESULT DefWindowProcW(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  const Window* found = checked(window);
  if (found == nullptr || found->parent == nullptr) return 0;
  const auto* row =
      std::ranges::lower_bound(kDefaultHandling, message, {}, &DefaultHandling::number);
  if (row == std::end(kDefaultHandling) || row->number != message) return 0;
  return row->handle({window, message, wparam, lparam});
}

}  // namespace corvane_system
