// A program whose application object and main window are of static storage. "nothing": it needs
// none of them. "runs": the window ends the loop. "leaves": the window is still there when main
// returns.
#include <cstdlib>
#include <string_view>

#include "corvane/platform/framework/framework.h"
#include "corvane/platform/system/user/window_system.h"

namespace {

enum Outcome { kGood, kOpenedTooEarly, kWindowLeft };

// The first static object, so the last to go.
struct LastLook {
  int windows = 0;
  ~LastLook() {
    if (windows != 0) std::_Exit(kWindowLeft);
  }
} last_look;

class CMainWindow : public corvane::CWnd {
 protected:
  LRESULT WindowProc(UINT message, WPARAM wparam, LPARAM lparam) override {
    if (message == WM_CREATE) ++last_look.windows;
    if (message == WM_DESTROY) --last_look.windows;
    if (message == WM_TIMER) ends_ ? static_cast<void>(DestroyWindow()) : ::PostQuitMessage(kGood);
    return CWnd::WindowProc(message, wparam, lparam);
  }

 public:
  bool ends_ = true;
};

class CStaticApp : public corvane::CWinApp {
 public:
  bool InitInstance() override {
    m_pMainWnd = &window;
    return window.CreateEx(0, nullptr, L"", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50, nullptr,
                           nullptr) &&
           window.SetTimer(1, 10, nullptr) != 0;
  }
  CMainWindow window;
} app;

}  // namespace

int main(int count, char** values) {
  const std::string_view wanted = count > 1 ? values[1] : "nothing";
  if (corvane::system::WindowSystem::current() != nullptr) return kOpenedTooEarly;
  if (wanted == "nothing") return kGood;
  app.window.ends_ = wanted == "runs";
  return corvane::RunApp(app);
}
