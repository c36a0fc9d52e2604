#include "apps/capture/scripted_session.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <thread>
#include <vector>

#include "corvane/platform/system/gdi/image_encoder.h"
#include "corvane/platform/system/user/window_system.h"

namespace capture {
namespace {

using namespace corvane;
namespace fs = std::filesystem;

constexpr int kStepsOfADrag = 12;
constexpr auto kRecognitionPause = std::chrono::milliseconds(50);
constexpr int kMostRecognitionPauses = 1200;

class Session {
 public:
  Session(CMainWindow& window, fs::path folder) : window_(window), folder_(std::move(folder)) {}

  int Play() {
    Pump();
    Frame("the picture");
    ClickToolbar(ToolbarButton::crop);
    CRect stage = Stage();
    Drag(At(stage, 20, 25), At(stage, 55, 60));
    Frame("a rectangle was drawn, its bar is shown");
    Drag(Corner(), {Corner().x + stage.Width() / 10, Corner().y + stage.Height() / 8});
    Frame("the lower right handle was dragged");
    Drag(Middle(), {Middle().x - stage.Width() / 20, Middle().y - stage.Height() / 20});
    Frame("the rectangle was moved");
    ClickCropBar(static_cast<int>(CropCommand::save));
    Frame("the part was saved");
    CopyCrop();
    ClickToolbar(ToolbarButton::text);
    Frame("text recognition asks for a region");
    CRect picture = Picture();
    Drag(At(picture, 9, 23), At(picture, 57, 76));
    Frame("the region for text recognition");
    ClickCropBar(static_cast<int>(CropCommand::read));
    WaitForRecognition();
    Frame("what was recognised");
    Key(VK_ESCAPE);
    Frame("Escape closed the box");
    return failed_ ? 1 : 0;
  }

 private:
  void Pump() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (message.message == WM_QUIT) return;
      if (PreTranslateInput(&message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }

  void Frame(const char* what) {
    Pump();
    const system::Surface& screen = system::WindowSystem::current()->frame();
    char name[32];
    std::snprintf(name, sizeof(name), "frame_%02d.png", ++frames_);
    Write(name, system::encode_png(screen, screen.rect()), what);
  }

  void Write(const char* name, const std::vector<std::uint8_t>& bytes, const char* what) {
    fs::path path = folder_ / name;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file || bytes.empty()) {
      failed_ = true;
      std::fprintf(stderr, "corvane-capture: cannot write %s\n", path.c_str());
      return;
    }
    std::printf("%s: %s\n", path.c_str(), what);
  }

  void CopyCrop() {
    std::ifstream saved(window_.last_saved(), std::ios::binary);
    std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(saved),
                                    std::istreambuf_iterator<char>()};
    Write("crop.png", bytes, ("the cropped picture, saved as " + window_.last_saved()).c_str());
  }

  void WaitForRecognition() {
    Pump();
    for (int i = 0; window_.recognising() && i < kMostRecognitionPauses; ++i) {
      std::this_thread::sleep_for(kRecognitionPause);
      system::WindowSystem::current()->display().wait(
          system::WindowSystem::current()->display().now() + 100);
      Pump();
    }
  }

  CRect Stage() const {
    CRect rect;
    window_.view().GetWindowRect(rect);
    return rect;
  }

  CRect Picture() const {
    CRect rect(window_.view().ShownRect());
    CRect stage = Stage();
    rect.OffsetRect(stage.left, stage.top);
    return rect;
  }

  static POINT At(const CRect& rect, int percent_x, int percent_y) {
    return {rect.left + rect.Width() * percent_x / 100, rect.top + rect.Height() * percent_y / 100};
  }

  CRect Framed() const {
    CRect rect = window_.crop().GetCutRect();
    CRect stage = Stage();
    rect.OffsetRect(stage.left, stage.top);
    return rect;
  }
  POINT Corner() const { return {Framed().right, Framed().bottom}; }
  POINT Middle() const {
    CRect framed = Framed();
    return {framed.left + framed.Width() / 3, framed.top + framed.Height() / 3};
  }

  void MoveTo(POINT point) {
    SetCursorPos(point.x, point.y);
    Pump();
  }

  void Button(DWORD flag) {
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flag;
    SendInput(1, &input, sizeof(input));
    Pump();
  }

  void Click(POINT point) {
    MoveTo(point);
    Button(MOUSEEVENTF_LEFTDOWN);
    Button(MOUSEEVENTF_LEFTUP);
  }

  void Drag(POINT from, POINT to) {
    MoveTo(from);
    Button(MOUSEEVENTF_LEFTDOWN);
    for (int i = 1; i <= kStepsOfADrag; ++i) {
      MoveTo({from.x + (to.x - from.x) * i / kStepsOfADrag,
              from.y + (to.y - from.y) * i / kStepsOfADrag});
    }
    Button(MOUSEEVENTF_LEFTUP);
  }

  void Key(int virtual_key) {
    for (DWORD flags : {DWORD{0}, KEYEVENTF_KEYUP}) {
      INPUT input{};
      input.type = INPUT_KEYBOARD;
      input.ki.wVk = static_cast<WORD>(virtual_key);
      input.ki.dwFlags = flags;
      SendInput(1, &input, sizeof(input));
    }
    Pump();
  }

  void ClickToolbar(ToolbarButton button) {
    CRect rect = window_.toolbar().GetBtnRect(static_cast<int>(button));
    window_.toolbar().ClientToScreen(rect);
    Click(rect.CenterPoint());
  }

  // The bar is an owned window of the crop rectangle's window, which the background owns.
  void ClickCropBar(int id) {
    HWND bar = FindOwned(FindOwned(window_.crop().GetSafeHwnd()));
    RECT rect{};
    if (bar == nullptr || !GetWindowRect(GetDlgItem(bar, id), &rect)) {
      failed_ = true;
      return;
    }
    Click({(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2});
  }

  static HWND FindOwned(HWND owner) {
    for (HWND it = GetTopWindow(nullptr); it != nullptr; it = GetWindow(it, GW_HWNDNEXT)) {
      if (GetWindow(it, GW_OWNER) == owner) return it;
    }
    return nullptr;
  }

  CMainWindow& window_;
  fs::path folder_;
  int frames_ = 0;
  bool failed_ = false;
};

}  // namespace

int PlayScriptedSession(CMainWindow& window, const std::string& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) {
    std::fprintf(stderr, "corvane-capture: cannot make the folder %s: %s\n", folder.c_str(),
                 error.message().c_str());
    return 1;
  }
  return Session(window, folder).Play();
}

}  // namespace capture
