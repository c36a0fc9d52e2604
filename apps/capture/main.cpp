// corvane-capture [--script FOLDER] PICTURE
#include <cstdio>
#include <cstring>
#include <string>

#include "apps/capture/main_window.h"
#include "apps/capture/scripted_session.h"

namespace {

constexpr int kUsageError = 2;

struct Arguments {
  std::string picture;
  std::string script_folder;  // empty: an ordinary session
  bool valid = false;
};

Arguments Parse(int count, char** values) {
  Arguments arguments;
  int next = 1;
  if (next + 1 < count && std::strcmp(values[next], "--script") == 0) {
    arguments.script_folder = values[next + 1];
    next += 2;
  }
  arguments.valid = next + 1 == count && std::strncmp(values[next], "--", 2) != 0;
  if (arguments.valid) arguments.picture = values[next];
  return arguments;
}

class CCaptureApp : public corvane::CWinApp {
 public:
  explicit CCaptureApp(std::unique_ptr<capture::CPicture> picture) : picture_(std::move(picture)) {}

  bool InitInstance() override {
    m_pMainWnd = &window_;
    opened_ = window_.Open(std::move(picture_));
    return opened_;
  }
  int ExitInstance() override { return opened_ ? CWinApp::ExitInstance() : 1; }

  capture::CMainWindow& window() { return window_; }

 private:
  std::unique_ptr<capture::CPicture> picture_;
  capture::CMainWindow window_;
  bool opened_ = false;
};

}  // namespace

int main(int count, char** values) {
  Arguments arguments = Parse(count, values);
  if (!arguments.valid) {
    std::fprintf(stderr, "usage: corvane-capture [--script FOLDER] PICTURE\n");
    return kUsageError;
  }
  std::unique_ptr<capture::CPicture> picture = capture::CPicture::Open(arguments.picture);
  if (picture == nullptr) {
    std::fprintf(stderr, "corvane-capture: cannot open the picture %s\n",
                 arguments.picture.c_str());
    return kUsageError;
  }
  CCaptureApp app(std::move(picture));
  if (arguments.script_folder.empty()) return corvane::RunApp(app);
  if (!app.InitInstance()) return 1;
  return capture::PlayScriptedSession(app.window(), arguments.script_folder);
}
