#pragma once
// The application object around the main window.
#include "apps/capture/main_window.h"
#include "corvane/platform/framework/win_app.h"

namespace capture {

class CCaptureApp : public corvane::CWinApp {
 public:
  // Must outlive the object, or be taken away again with null.
  void SetMainWindow(CMainWindow* window) { m_pMainWnd = window_ = window; }

  // Enter clicks the button that has the focus; the layers would swallow it.
  BOOL PreTranslateMessage(MSG* message) override {
    const bool enter = message->message == WM_KEYDOWN && message->wParam == VK_RETURN;
    if (enter && window_ != nullptr && window_->ClickFocusedButton()) return TRUE;
    return CWinApp::PreTranslateMessage(message);
  }

 private:
  CMainWindow* window_ = nullptr;
};

}  // namespace capture
