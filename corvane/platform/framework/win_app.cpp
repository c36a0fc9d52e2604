#include "corvane/platform/framework/win_app.h"

#include "corvane/platform/framework/platform_session.h"
#include "corvane/platform/framework/thread_state.h"

namespace corvane {
namespace {

thread_local CWinApp* live_app = nullptr;
thread_local bool thread_is_ending = false;

void release_temporaries() {
  ThreadState& state = ThreadState::current();
  if (state.depth == 0) state.handles.release_temporaries();
}

// Most messages of one PumpMessages, so that a program that keeps posting to itself still comes
// back to its host.
constexpr int kMaxMessagesPerTurn = 10000;

// Asks the windows from the message's own up to its top-level one, or to the main window.
bool swallowed_on_the_way_up(MSG* message, HWND main_window) {
  for (HWND window = message->hwnd; window != nullptr;) {
    CWnd* object = CWnd::FromHandlePermanent(window);
    if (object != nullptr && object->PreTranslateMessage(message)) return true;
    const bool child = (::GetWindowLongW(window, GWL_STYLE) & static_cast<LONG>(WS_CHILD)) != 0;
    if (!child || window == main_window) return false;
    window = ::GetParent(window);
  }
  return false;
}

void handle(MSG* message) {
  if (PreTranslateInput(message)) return;
  ::TranslateMessage(message);
  ::DispatchMessageW(message);
}

}  // namespace

// Closes the windows of application objects that outlive their thread while everything that their
// handlers use is still there.
struct SessionEnd {
  SessionEnd() { ThreadState::current(); }  // is made before this and so ends after it
  ~SessionEnd() {
    thread_is_ending = true;
    for (CWinApp* app = live_app; app != nullptr; app = app->previous_) app->session_.reset();
  }
};

bool open_platform_session() {
  CWinApp* keeper = live_app;
  if (keeper == nullptr || thread_is_ending) return false;
  while (keeper->previous_ != nullptr) keeper = keeper->previous_;
  thread_local const SessionEnd end;
  if (keeper->session_ == nullptr) keeper->session_ = std::make_unique<PlatformSession>();
  return true;
}

CWinApp::CWinApp() : previous_(live_app) { live_app = this; }

CWinApp::~CWinApp() {
  if (live_app == this) live_app = previous_;
}

bool CWinApp::InitInstance() { return true; }

int CWinApp::ExitInstance() { return exit_code_; }

bool CWinApp::OnIdle(LONG) { return false; }

int CWinApp::Run() {
  open_platform_session();
  MSG message{};
  for (;;) {
    LONG idle_count = 0;
    while (!::PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE) && OnIdle(idle_count)) {
      ++idle_count;
    }
    if (::GetMessageW(&message, nullptr, 0, 0) <= 0) break;
    handle(&message);
  }
  exit_code_ = message.message == WM_QUIT ? static_cast<int>(message.wParam) : 0;
  return ExitInstance();
}

BOOL CWinApp::PreTranslateMessage(MSG* message) {
  if (message == nullptr || message->hwnd == nullptr) return FALSE;
  const HWND main_window = m_pMainWnd != nullptr ? m_pMainWnd->GetSafeHwnd() : nullptr;
  const bool of_main = ::GetAncestor(message->hwnd, GA_ROOT) == main_window;
  if (swallowed_on_the_way_up(message, main_window)) return TRUE;
  // A filter may have destroyed the main window.
  return m_pMainWnd != nullptr && !of_main && (m_pMainWnd->PreTranslateMessage(message) != 0)
             ? TRUE
             : FALSE;
}

CWinApp* AfxGetApp() { return live_app; }

CWnd* AfxGetMainWnd() { return live_app != nullptr ? live_app->m_pMainWnd : nullptr; }

HINSTANCE AfxGetInstanceHandle() { return ::GetModuleHandleW(nullptr); }

bool PreTranslateInput(MSG* message) {
  release_temporaries();
  if (message == nullptr) return false;
  if (live_app != nullptr) return live_app->PreTranslateMessage(message) != 0;
  return swallowed_on_the_way_up(message, nullptr);
}

bool PumpMessages() {
  open_platform_session();
  MSG message{};
  for (int i = 0; i < kMaxMessagesPerTurn && ::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);
       ++i) {
    if (message.message == WM_QUIT) return false;
    handle(&message);
  }
  return true;
}

int RunApp(CWinApp& app) {
  open_platform_session();
  return app.InitInstance() ? app.Run() : app.ExitInstance();
}

}  // namespace corvane
