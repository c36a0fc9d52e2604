#pragma once
// The program's window on a display in memory, with a library of three pictures.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "apps/capture/capture_app.h"
#include "apps/capture/launch.h"
#include "apps/capture/main_window.h"
#include "corvane/platform/base_services/installation.h"
#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/system/shell/wide_path.h"
#include "tests/apps/test_pictures.h"
#include "tests/support/app_desktop.h"
#include "tests/support/own_system.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace capture {

using namespace corvane;
using corvane::test::TemporaryFolder;
using testing::ElementsAre;
using testing::HasSubstr;

inline constexpr int kRow = 30;  // height of a tree's row

class LibraryWindow : public testing::Test {
 protected:
  explicit LibraryWindow(SIZE monitor = {1280, 800}) : desktop_(on_monitor(monitor)) {
    SetSkinFolder(wide_path_of(corvane::test::source_folder() / "skins/default"));
    std::filesystem::create_directories(library_ / "一月" / "上旬");
    std::filesystem::create_directories(library_ / "二月");
    WriteTestPicture(library_ / "page.png", 600, 400);
    for (const char* name : {"a.png", "b.png"})
      WriteTestPicture(library_ / "一月" / name, 320, 200);
  }
  ~LibraryWindow() override {
    SetSkinFolder(L"");
    system::mount_drive(L'Q', "");  // where a test has mounted it
  }

  static std::unique_ptr<corvane::test::OwnSystem> on_monitor(SIZE size) {
    auto display = std::make_unique<system::HeadlessDisplay>(SIZE{1280, 800}, size);
    return std::make_unique<corvane::test::OwnSystem>(std::move(display));
  }

  // As with the program's arguments; empty: none.
  void Start(const std::string& picture = {}) {
    Launch launch = prepare_launch({library_, picture, {}, {}, true});
    ASSERT_EQ(launch.error, "");
    app_.SetMainWindow(&window_);
    ASSERT_TRUE(window_.Open(std::move(launch.beginning)));
    do {
      desktop_.pump();
    } while (window_.loading() && desktop_.wait_for_post(10000));
  }

  std::wstring Path(const wchar_t* below) const { return wide_path_of(library_) + below; }
  CPictureStrip& Strip() { return const_cast<CPictureStrip&>(window_.browser().strip()); }
  CTreeCtrlEx2& Tree() { return window_.browser().pane().tree(); }

  // The row that shows the folder.
  POINT RowOf(const wchar_t* below) {
    CPoint point(120, kRow / 2);
    for (_NODE* node; (node = Tree().HitTest(point)) != nullptr; point.y += kRow) {
      if (Tree().GetNodePath(node) == Path(below).c_str()) break;
    }
    Tree().ClientToScreen(&point);
    return point;
  }
  POINT CellInStrip(int cell) {
    CRect rect(Strip().layout().Picture(cell));
    Strip().ClientToScreen(rect);
    return rect.CenterPoint();
  }
  CRect PictureOnScreen() {
    WaitForSaving();
    CRect picture(window_.view().ShownRect());
    window_.view().ClientToScreen(picture);
    return picture;
  }
  void ClickButton(ToolbarButton button) {
    desktop_.click(window_.toolbar().ButtonOnScreen(button).CenterPoint());
  }
  // Crops the middle of the picture.
  void CropAndSave() {
    ClickButton(ToolbarButton::crop);
    const CRect picture = PictureOnScreen();
    desktop_.drag({picture.left + 100, picture.top + 100}, {picture.left + 300, picture.top + 250});
    desktop_.click(window_.CropButtonOnScreen(CropCommand::save).CenterPoint());
    WaitForSaving();
  }
  void WaitForSaving() {
    while (window_.opening() && desktop_.wait_for_post(10000)) desktop_.pump();
  }
  void Press(const std::vector<int>& keys) {
    for (const int key : keys) desktop_.key_down(key);
    for (const int key : keys) desktop_.key_up(key);
  }
  void ManyPictures(int count) {
    WriteTestPicture(library_ / "二月/0.png", 200, 100);
    for (int i = 1; i < count; ++i) {
      std::filesystem::create_hard_link(library_ / "二月/0.png",
                                        library_ / "二月" / (std::to_string(i) + ".png"));
    }
  }
  // Null when it is no picture or never comes.
  Thumbnail WaitForThumbnail(const std::wstring& name) {
    do {
      desktop_.pump();
      if (const Thumbnail* const found = Strip().thumbnails().Find(name)) return *found;
    } while (desktop_.wait_for_post(10000));
    return nullptr;
  }
  std::string Notice() {
    WaitForSaving();
    return native_path(window_.view().notice().AsStdString()).string();
  }
  std::string Opened() {
    WaitForSaving();
    return window_.picture() ? window_.picture()->name() : "";
  }

  TemporaryFolder folder_;
  std::filesystem::path library_ = folder_ / "图库";
  corvane::test::AppDesktop desktop_;
  CCaptureApp app_;
  CMainWindow window_;
};

}  // namespace capture
