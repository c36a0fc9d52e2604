#include "apps/capture/window_icon.h"

#include "corvane/platform/base_services/installation.h"

namespace capture {

void CWindowIcon::Give(HWND window) {
  const corvane::CString path = corvane::Installation::find().image_folder() + L"\\app_icon.png";
  Gdiplus::Bitmap picture(static_cast<const wchar_t*>(path));
  if (picture.GetHICON(&icon_) != Gdiplus::Ok) return;
  for (const WPARAM size : {WPARAM{ICON_BIG}, WPARAM{ICON_SMALL}}) {
    SendMessageW(window, WM_SETICON, size, reinterpret_cast<LPARAM>(icon_));
  }
}

void CWindowIcon::TakeBack(HWND window) {
  if (icon_ == nullptr) return;
  for (const WPARAM size : {WPARAM{ICON_BIG}, WPARAM{ICON_SMALL}}) {
    SendMessageW(window, WM_SETICON, size, 0);
  }
  DestroyIcon(icon_);
  icon_ = nullptr;
}

}  // namespace capture
