#pragma once
// The pop-ups that lie over a host's picture.
#include "corvane/platform/framework/window_watch.h"
#include "corvane/platform/framework/wnd.h"

namespace corvane {

// The name of the window class of the library's overlays: double clicks, redrawn on every change of
// size, the arrow cursor, a nearly white background (white itself is the colour key).
// Registered once however many overlays come and go; null when it cannot be registered.
const wchar_t* overlay_class();

// Creates an overlay's window as a hidden pop-up of that class, without a size, that `owner` owns.
// An overlay that cannot be made leaves the owner without one. False: the owner did not outlive it.
template <class Overlay>
bool create_overlay(Overlay& overlay, const wchar_t* name, CWnd& owner) {
  const WindowWatch watch(owner);
  overlay.CreateEx(WS_EX_TOOLWINDOW, overlay_class(), name, WS_POPUP, 0, 0, 0, 0, owner.m_hWnd,
                   nullptr);
  if (watch.object_gone()) return false;
  if (overlay.GetSafeHwnd() != nullptr) overlay.ShowWindow(SW_HIDE);
  return !watch.window_gone();
}

}  // namespace corvane
