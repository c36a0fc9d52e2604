#include "apps/capture/scripted_session.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <thread>
#include <vector>

#include "apps/capture/picture_folder.h"
#include "apps/capture/synthetic_user.h"
#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/system/gdi/image_encoder.h"
#include "corvane/platform/system/user/window_system.h"

namespace capture {
namespace {

using namespace corvane;
namespace fs = std::filesystem;

constexpr auto kPause = std::chrono::milliseconds(20);
constexpr int kMaxPauses = 3000;
constexpr int kRowHeight = 30;  // of the tree

POINT At(const CRect& rect, int percent_x, int percent_y) {
  return {rect.left + rect.Width() * percent_x / 100, rect.top + rect.Height() * percent_y / 100};
}

CRect OnScreen(const CWnd& window) {
  CRect rect;
  window.GetWindowRect(rect);
  return rect;
}

class Session {
 public:
  Session(CMainWindow& window, fs::path folder) : window_(window), folder_(std::move(folder)) {}

  int Play() {
    HandleWaitingMessages();
    Frame("the picture, its folder and the folder's pictures");
    if (window_.picture() == nullptr) return failed_ ? 1 : 0;
    Crop();
    Recognise();
    BrowseTheLibrary();
    return failed_ ? 1 : 0;
  }

 private:
  void Crop() {
    ClickToolbar(ToolbarButton::crop);
    CRect picture = Picture();
    Drag(At(picture, 9, 20), At(picture, 43, 60));
    Frame("a rectangle was drawn, its bar is shown");
    Drag(Corner(), {Corner().x + picture.Width() / 8, Corner().y + picture.Height() / 10});
    Frame("the lower right handle was dragged");
    Drag(Middle(), {Middle().x + picture.Width() / 40, Middle().y + picture.Height() / 80});
    Frame("the rectangle was moved");
    ClickCropBar(CropCommand::save);
    Frame("the part was saved in the current folder");
    CopyCrop();
  }

  void Recognise() {
    ClickToolbar(ToolbarButton::text);
    Frame("text recognition asks for a region");
    CRect picture = Picture();
    Drag(At(picture, 9, 23), At(picture, 57, 76));
    Frame("the region for text recognition");
    ClickCropBar(CropCommand::read);
    WaitWhile([this] {
      LetTimePass(100);
      return window_.recognising();
    });
    Frame("what was recognised");
    PressKey(VK_ESCAPE);
    Frame("Escape closed the box");
  }

  // Goes down to the first folder in the first folder of the root, where the library has one, and
  // crops a picture there.
  void BrowseTheLibrary() {
    std::wstring outer = FirstFolderIn(window_.browser().pane().root());
    std::wstring inner = FirstFolderIn(outer);
    if (inner.empty()) return;
    const _NODE* node = window_.browser().pane().tree().FindNode(outer.c_str(), nullptr);
    if (node != nullptr && !node->expanded()) {
      DoubleClick(RowOf(outer));
      Frame("a double click on a folder shows those in it");
    }
    Click(RowOf(inner));
    Frame("a click on a folder shows its pictures");
    CRect strip = OnScreen(window_.browser().strip());
    TurnWheel(strip.CenterPoint(), -4);
    Frame("the wheel moves the row of pictures");
    TurnWheel(strip.CenterPoint(), 4);
    TurnWheel(OnScreen(window_.browser().pane().tree()).CenterPoint(), -9);
    Frame("the wheel moves the tree");
    if (window_.browser().strip().names().empty()) return;
    Click(PictureInStrip(0));
    Frame("a click on a picture opens it");
    ClickToolbar(ToolbarButton::crop);
    CRect picture = Picture();
    Drag(At(picture, 20, 20), At(picture, 80, 70));
    ClickCropBar(CropCommand::save);
    Frame("a part of it was saved beside it");
  }

  template <class Condition>
  static void WaitWhile(const Condition& condition) {
    for (int i = 0; condition() && i < kMaxPauses; ++i) {
      std::this_thread::sleep_for(kPause);
      HandleWaitingMessages();
    }
  }

  bool ThumbnailsAreMissing() const {
    const CPictureStrip& strip = window_.browser().strip();
    CellRange visible = strip.layout().Visible();
    for (int cell = visible.first; cell < visible.last; ++cell) {
      const std::wstring& name = strip.names()[static_cast<std::size_t>(cell)];
      if (strip.thumbnails().Find(name) == nullptr) return true;
    }
    return false;
  }

  void Frame(const char* what) {
    HandleWaitingMessages();
    WaitWhile([this] { return ThumbnailsAreMissing(); });
    const system::Surface& screen = system::WindowSystem::current()->frame();
    char name[32];
    std::snprintf(name, sizeof(name), "frame_%02d.png", ++frames_);
    Write(name, system::encode_png(screen, screen.rect()), what);
  }

  void Write(const char* name, const std::vector<std::uint8_t>& bytes, const std::string& what) {
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
    std::printf("%s: %s\n", path.c_str(), what.c_str());
  }

  void CopyCrop() {
    fs::path path = native_path(window_.last_saved());
    std::ifstream saved(path, std::ios::binary);
    std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(saved),
                                    std::istreambuf_iterator<char>()};
    Write("crop.png", bytes, "the cropped picture, saved as " + path.string());
  }

  CRect Picture() const {
    CRect rect(window_.view().ShownRect());
    rect.OffsetRect(OnScreen(window_.view()).TopLeft());
    return rect;
  }

  CRect Framed() const {
    CRect rect = window_.crop().GetCutRect();
    rect.OffsetRect(OnScreen(window_.view()).TopLeft());
    return rect;
  }
  POINT Corner() const { return {Framed().right, Framed().bottom}; }
  POINT Middle() const { return At(Framed(), 33, 33); }

  POINT PictureInStrip(int cell) const {
    const CPictureStrip& strip = window_.browser().strip();
    CRect rect(strip.layout().Picture(cell));
    strip.ClientToScreen(rect);
    return rect.CenterPoint();
  }

  static std::wstring FirstFolderIn(const std::wstring& folder) {
    auto entries = ReadFolder(folder);
    if (!entries || entries->folders.empty()) return {};
    return folder + L'\\' + entries->folders.front();
  }

  // On the screen; where nothing is, when the tree does not show the folder.
  POINT RowOf(const std::wstring& folder) {
    CTreeCtrlEx2& tree = window_.browser().pane().tree();
    CPoint point(100, kRowHeight / 2);
    for (_NODE* node; (node = tree.HitTest(point)) != nullptr; point.y += kRowHeight) {
      if (tree.GetNodePath(node) == folder.c_str()) break;
    }
    tree.ClientToScreen(&point);
    return point;
  }

  void ClickToolbar(ToolbarButton button) {
    Click(window_.toolbar().ButtonOnScreen(button).CenterPoint());
  }

  void ClickCropBar(CropCommand command) {
    CRect button = window_.CropButtonOnScreen(command);
    failed_ = failed_ || button.IsRectEmpty();
    Click(button.CenterPoint());
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
