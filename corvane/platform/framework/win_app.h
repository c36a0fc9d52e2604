#pragma once
// The application object of a user-interface thread: start, message loop, end. It may be of static
// storage: its constructor opens nothing. What it needs of the platform, off Windows a window
// system when the thread has none, is there from the first need on (see platform_session.h) until
// it ends; when its thread ends first, the windows that are left are destroyed then.
#include <memory>

#include "corvane/platform/framework/wnd.h"
#include "corvane/platform/platform.h"

namespace corvane {

class PlatformSession;

class CWinApp {
 public:
  CWinApp();
  virtual ~CWinApp();
  CWinApp(const CWinApp&) = delete;
  CWinApp& operator=(const CWinApp&) = delete;

  // False ends the program before the loop; sets m_pMainWnd.
  virtual bool InitInstance();
  virtual int ExitInstance();  // the exit code; the base returns that of WM_QUIT
  // The message loop; returns ExitInstance's result when WM_QUIT came (or nothing can ever come).
  virtual int Run();
  // The loop's look at each message before it is dispatched; non-zero swallows it. The base asks
  // the message's window and its parents up to the main window, or for a window of another
  // top-level window up to that one and then the main window.
  virtual BOOL PreTranslateMessage(MSG* message);
  // Called while no message waits, with a count from 0; false: nothing more to do until a message.
  virtual bool OnIdle(LONG count);

  CWnd* m_pMainWnd = nullptr;  // borrowed; its destruction ends the loop

 private:
  friend bool open_platform_session();
  friend struct SessionEnd;

  std::unique_ptr<PlatformSession> session_;
  CWinApp* previous_;
  int exit_code_ = 0;
};

// The calling thread's live application object, or null.
CWinApp* AfxGetApp();
// Its main window, or null.
CWnd* AfxGetMainWnd();
HINSTANCE AfxGetInstanceHandle();

// For a host with a loop of its own: to be called for each message that it takes out; true: the
// message is swallowed, do not dispatch it. Frees the temporary objects of earlier turns.
bool PreTranslateInput(MSG* message);

// For a host with a loop of its own, in place of the above: handles all messages that wait as Run
// does. False: WM_QUIT was among them.
bool PumpMessages();

// The body of main: InitInstance, Run, and the exit code.
int RunApp(CWinApp& app);

}  // namespace corvane
