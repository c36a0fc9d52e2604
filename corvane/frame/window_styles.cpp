#include "corvane/frame/window_styles.h"

#include "corvane/platform/framework/window_watch.h"

namespace corvane {

bool become_overlay(CWnd& window) {
  const WindowWatch watch(window);
  window.ModifyStyleEx(WS_EX_APPWINDOW, WS_EX_LAYERED);
  return !watch.window_gone();
}

bool lose_sizing_border(CWnd& window) {
  const WindowWatch watch(window);
  window.ModifyStyle(WS_THICKFRAME, 0, SWP_FRAMECHANGED);
  return !watch.window_gone();
}

}  // namespace corvane
