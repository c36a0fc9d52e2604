// corvane-capture [--library FOLDER] [--language NAME] [--script FOLDER] [PICTURE]
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include "apps/capture/capture_app.h"
#include "apps/capture/launch.h"
#include "apps/capture/main_window.h"
#include "apps/capture/scripted_session.h"
#include "apps/capture/texts.h"
#include "corvane/platform/base_services/installation.h"

namespace {

constexpr int kUsageError = 2;

class CProgram : public capture::CCaptureApp {
 public:
  explicit CProgram(capture::Beginning beginning) : beginning_(std::move(beginning)) {}

  bool InitInstance() override {
    SetMainWindow(&window_);
    opened_ = window_.Open(std::move(beginning_));
    return opened_;
  }
  int ExitInstance() override { return opened_ ? CWinApp::ExitInstance() : 1; }

  capture::CMainWindow& window() { return window_; }

 private:
  capture::Beginning beginning_;
  capture::CMainWindow window_;
  bool opened_ = false;
};

}  // namespace

int main(int count, char** values) {
#ifdef SIGXFSZ
  std::signal(SIGXFSZ, SIG_IGN);  // a file that may not grow is told like a full disk
#endif
  const capture::Arguments arguments = capture::parse_arguments(count, values);
  if (!arguments.valid) {
    std::fprintf(stderr,
                 "usage: corvane-capture [--library FOLDER] [--language NAME] [--script FOLDER] "
                 "[PICTURE]\n");
    return kUsageError;
  }
  const std::string& language = arguments.language;
  corvane::SetSkinLanguage(
      capture::wide(language.empty() ? capture::environment_language() : language));
  capture::Launch launch = capture::prepare_launch(arguments);
  if (!launch.error.empty()) {
    std::fprintf(stderr, "corvane-capture: %s\n", launch.error.c_str());
    return kUsageError;
  }
#ifndef _WIN32
  // Somebody is to see it, unless the environment says otherwise.
  if (arguments.script_folder.empty()) setenv("CORVANE_DISPLAY", "sdl", 0);
#endif
  CProgram app(std::move(launch.beginning));
  if (arguments.script_folder.empty()) return corvane::RunApp(app);
  if (!app.InitInstance()) return 1;
  return capture::play_scripted_session(app.window(), arguments.script_folder);
}
