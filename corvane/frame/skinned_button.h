#pragma once
// The skinned buttons of a layer.
#include <algorithm>
#include <functional>
#include <ranges>

#include "corvane/platform/controls/gdi_btn_ex.h"
#include "corvane/platform/framework/rect.h"
#include "corvane/platform/framework/window_watch.h"
#include "corvane/skin/xml_list_mgr.h"

namespace corvane {

struct SkinnedButton {
  CGdiBtnEx control;
  CRect rect;  // client coordinates of the layer
};

// Creates the buttons as the controls `first_id`, `first_id` + 1 ... of the skin and fills their
// rectangles. False: the layer was deleted meanwhile.
template <std::ranges::forward_range Buttons>
bool load_buttons(const CXmlListMgr& skin, Buttons& buttons, CWnd& layer, int first_id = 1) {
  const WindowWatch watch(layer);
  int id = first_id;
  for (SkinnedButton& button : buttons) {
    skin.LoadGdiBtn(button.control, button.rect, &layer, id++);
    if (watch.object_gone()) return false;
  }
  return true;
}

// The first of the buttons, in their order, that sent a WM_COMMAND with this `lparam`; the end for
// the command of a menu or of another window. `control_of` gives a button's window.
template <std::ranges::forward_range Buttons, class ControlOf>
auto find_sender(Buttons& buttons, LPARAM lparam, ControlOf control_of) {
  const auto sender = reinterpret_cast<HWND>(lparam);
  return std::ranges::find_if(buttons, [&](const auto& button) {
    return sender != nullptr && std::invoke(control_of, button).GetSafeHwnd() == sender;
  });
}

}  // namespace corvane
