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

POINT at(const CRect& rect, int percent_x, int percent_y) {
  return {rect.left + rect.Width() * percent_x / 100, rect.top + rect.Height() * percent_y / 100};
}

CRect on_screen(const CWnd& window) {
  CRect rect;
  window.GetWindowRect(rect);
  return rect;
}

class Session {
 public:
  Session(CMainWindow& window, fs::path folder) : window_(window), folder_(std::move(folder)) {}

  int play() {
    wait_while([this] { return window_.loading(); });
    frame("the picture, its folder and the folder's pictures");
    if (window_.picture() == nullptr) return failed_ ? 1 : 0;
    crop();
    recognise();
    browse_the_library();
    return failed_ ? 1 : 0;
  }

 private:
  void crop() {
    click_toolbar(ToolbarButton::crop);
    const CRect picture = shown_picture();
    drag(at(picture, 9, 20), at(picture, 43, 60));
    frame("a rectangle was drawn, its bar is shown");
    drag(corner(), {corner().x + picture.Width() / 8, corner().y + picture.Height() / 10});
    frame("the lower right handle was dragged");
    drag(middle(), {middle().x + picture.Width() / 40, middle().y + picture.Height() / 80});
    frame("the rectangle was moved");
    click_crop_bar(CropCommand::save);
    wait_while([this] { return window_.saving(); });
    frame("the part was saved in the current folder");
    copy_crop();
  }

  void recognise() {
    click_toolbar(ToolbarButton::text);
    frame("text recognition asks for a region");
    const CRect picture = shown_picture();
    drag(at(picture, 9, 23), at(picture, 57, 76));
    frame("the region for text recognition");
    click_crop_bar(CropCommand::read);
    wait_while([this] {
      let_time_pass(100);
      return window_.recognising();
    });
    frame("what was recognised");
    press_key(VK_ESCAPE);
    frame("Escape closed the box");
  }

  // Goes down to the first folder in the first folder of the root, where the library has one, and
  // crops a picture there.
  void browse_the_library() {
    const std::wstring outer = first_folder_in(window_.browser().pane().root());
    const std::wstring inner = first_folder_in(outer);
    if (inner.empty()) return;
    const _NODE* node = window_.browser().pane().tree().FindNode(outer.c_str(), nullptr);
    if (node != nullptr && !node->expanded()) {
      double_click(row_of(outer));
      frame("a double click on a folder shows those in it");
    }
    click(row_of(inner));
    frame("a click on a folder shows its pictures");
    const CRect strip = on_screen(window_.browser().strip());
    turn_wheel(strip.CenterPoint(), -4);
    frame("the wheel moves the row of pictures");
    turn_wheel(strip.CenterPoint(), 4);
    turn_wheel(on_screen(window_.browser().pane().tree()).CenterPoint(), -9);
    frame("the wheel moves the tree");
    if (window_.browser().strip().names().empty()) return;
    click(picture_in_strip(0));
    wait_while([this] { return window_.opening(); });
    frame("a click on a picture opens it");
    click_toolbar(ToolbarButton::crop);
    const CRect picture = shown_picture();
    drag(at(picture, 20, 20), at(picture, 80, 70));
    click_crop_bar(CropCommand::save);
    wait_while([this] { return window_.saving(); });
    frame("a part of it was saved beside it");
  }

  template <class Condition>
  static void wait_while(const Condition& condition) {
    for (int i = 0; condition() && i < kMaxPauses; ++i) {
      std::this_thread::sleep_for(kPause);
      handle_waiting_messages();
    }
  }

  bool thumbnails_are_missing() const {
    const CPictureStrip& strip = window_.browser().strip();
    const CellRange visible = strip.layout().Visible();
    for (int cell = visible.first; cell < visible.last; ++cell) {
      const std::wstring& name = strip.names()[static_cast<std::size_t>(cell)];
      if (strip.thumbnails().Find(name) == nullptr) return true;
    }
    return false;
  }

  void frame(const char* what) {
    handle_waiting_messages();
    wait_while([this] { return thumbnails_are_missing(); });
    const system::Surface& screen = system::WindowSystem::current()->frame();
    char name[32];
    std::snprintf(name, sizeof(name), "frame_%02d.png", ++frames_);
    write(name, system::encode_png(screen, screen.rect()), what);
  }

  void write(const char* name, const std::vector<std::uint8_t>& bytes, const std::string& what) {
    const fs::path path = folder_ / name;
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

  void copy_crop() {
    const fs::path path = native_path(window_.last_saved());
    std::ifstream saved(path, std::ios::binary);
    const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(saved),
                                          std::istreambuf_iterator<char>()};
    write("crop.png", bytes, "the cropped picture, saved as " + path.string());
  }

  CRect shown_picture() const {
    CRect rect(window_.view().ShownRect());
    rect.OffsetRect(on_screen(window_.view()).TopLeft());
    return rect;
  }

  CRect framed_part() const {
    CRect rect = window_.crop().GetCutRect();
    rect.OffsetRect(on_screen(window_.view()).TopLeft());
    return rect;
  }
  POINT corner() const { return {framed_part().right, framed_part().bottom}; }
  POINT middle() const { return at(framed_part(), 33, 33); }

  POINT picture_in_strip(int cell) const {
    const CPictureStrip& strip = window_.browser().strip();
    CRect rect(strip.layout().Picture(cell));
    strip.ClientToScreen(rect);
    return rect.CenterPoint();
  }

  static std::wstring first_folder_in(const std::wstring& folder) {
    auto entries = read_folder(folder);
    if (!entries || entries->folders.empty()) return {};
    return path_in(folder, entries->folders.front());
  }

  // On the screen; where nothing is, when the tree does not show the folder.
  POINT row_of(const std::wstring& folder) {
    CTreeCtrlEx2& tree = window_.browser().pane().tree();
    CPoint point(100, kRowHeight / 2);
    for (_NODE* node; (node = tree.HitTest(point)) != nullptr; point.y += kRowHeight) {
      if (tree.GetNodePath(node) == folder.c_str()) break;
    }
    tree.ClientToScreen(&point);
    return point;
  }

  void click_toolbar(ToolbarButton button) {
    click(window_.toolbar().ButtonOnScreen(button).CenterPoint());
  }

  void click_crop_bar(CropCommand command) {
    const CRect button = window_.CropButtonOnScreen(command);
    failed_ = failed_ || button.IsRectEmpty();
    click(button.CenterPoint());
  }

  CMainWindow& window_;
  fs::path folder_;
  int frames_ = 0;
  bool failed_ = false;
};

}  // namespace

int play_scripted_session(CMainWindow& window, const std::string& folder) {
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) {
    std::fprintf(stderr, "corvane-capture: cannot make the folder %s: %s\n", folder.c_str(),
                 error.message().c_str());
    return 1;
  }
  return Session(window, folder).play();
}

}  // namespace capture
