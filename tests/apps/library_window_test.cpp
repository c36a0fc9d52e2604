// The program's window on a display in memory, driven by mouse and wheel: folders, pictures, crops.
#include "tests/apps/library_window.h"

#include <sys/stat.h>

#include <algorithm>
#include <cstdlib>

#include "apps/capture/clipboard.h"

namespace capture {
namespace {

TEST_F(LibraryWindow, AClickOnAFolderShowsItsPicturesAndOneOnAPictureOpensIt) {
  Start();
  EXPECT_EQ(window_.browser().Folder(), Path(L""));
  EXPECT_THAT(Strip().names(), ElementsAre(L"page.png"));
  desktop_.click(RowOf(L"\\一月"));
  EXPECT_EQ(window_.browser().Folder(), Path(L"\\一月"));
  EXPECT_THAT(Strip().names(), ElementsAre(L"a.png", L"b.png"));
  EXPECT_EQ(Opened(), "page.png") << "the library's first; a folder opens no picture";
  desktop_.click(CellInStrip(1));
  EXPECT_EQ(Opened(), "b.png");
  EXPECT_EQ(window_.browser().Folder(), Path(L"\\一月"));
}

TEST_F(LibraryWindow, TheTreeShowsFoldersByName) {
  for (const char* name : {"10", "9", "1/b", "1/a"}) {
    std::filesystem::create_directories(library_ / "二月" / name);
  }
  Start();
  desktop_.double_click(RowOf(L"\\二月"));
  desktop_.double_click(RowOf(L"\\二月\\1"));
  POINT place = RowOf(L"\\二月");
  for (const wchar_t* name : {L"\\1", L"\\1\\a", L"\\1\\b", L"\\9", L"\\10"}) {
    place.y += kRow;
    EXPECT_EQ(RowOf((std::wstring(L"\\二月") + name).c_str()).y, place.y);
  }
}

TEST_F(LibraryWindow, ACropGoesIntoTheCurrentFolderAndTheStrip) {
  Start();
  desktop_.click(RowOf(L"\\二月"));
  CropAndSave();
  EXPECT_EQ(window_.last_saved(), Path(L"\\二月\\page_1.png"));
  auto saved = CPicture::Open(library_ / "二月" / "page_1.png");
  ASSERT_NE(saved, nullptr);
  EXPECT_EQ(saved->size().cx, 200);
  EXPECT_THAT(Strip().names(), ElementsAre(L"page_1.png"));
  EXPECT_THAT(Notice(), HasSubstr("二月"));
  EXPECT_THAT(Notice(), HasSubstr("page_1.png"));
}

TEST_F(LibraryWindow, APictureWrittenUnderAFormerNameGetsAThumbnailOfItsOwn) {
  Start();
  CropAndSave();
  Thumbnail former = WaitForThumbnail(L"page_1.png");
  ASSERT_NE(former, nullptr);
  std::filesystem::remove(library_ / "page_1.png");
  CropAndSave();
  EXPECT_NE(WaitForThumbnail(L"page_1.png"), former);
}

TEST_F(LibraryWindow, APictureThatCannotBeOpenedIsPassed) {
  folder_.file("图库/二月/1.png", "no picture");
  std::filesystem::create_symlink("nowhere", library_ / "二月" / "2.png");
  WriteTestPicture(library_ / "二月" / "3.png", 100, 100);
  Start();
  desktop_.click(RowOf(L"\\二月"));
  for (const char* unreadable : {"1.png", "2.png"}) {
    ClickButton(ToolbarButton::next);
    EXPECT_THAT(Notice(), HasSubstr(unreadable));
    EXPECT_EQ(Opened(), "page.png");
  }
  ClickButton(ToolbarButton::next);
  EXPECT_EQ(Opened(), "3.png");
  ClickButton(ToolbarButton::previous);
  EXPECT_THAT(Notice(), HasSubstr("2.png"));
}

TEST_F(LibraryWindow, ADriveIsALibraryAndAPictureGivenBesideItSelectsItsFolder) {
  ASSERT_TRUE(system::mount_drive(L'Q', library_));
  Start(library_ / "一月" / "b.png");
  EXPECT_EQ(window_.browser().Folder(), L"Q:\\一月");
  EXPECT_EQ(Opened(), "b.png");
  ClickButton(ToolbarButton::next);
  EXPECT_EQ(Opened(), "a.png") << "round in its folder";
  CPoint last(120, 2 * kRow + kRow / 2);
  Tree().ClientToScreen(&last);
  desktop_.click({last.x, last.y + kRow});
  EXPECT_EQ(window_.browser().Folder(), L"Q:\\二月") << "below the folder in the first one";
  std::filesystem::remove_all(library_ / "二月");
  CropAndSave();
  EXPECT_EQ(window_.browser().Folder(), L"Q:");
  EXPECT_EQ(window_.last_saved(), L"Q:\\a_1.png");
  EXPECT_EQ(Tree().ListSort(), 3 * kRow);
}

TEST_F(LibraryWindow, TheTreesBarFollowsTheWindowsHeight) {
  Start();
  for (const int height : {200, 800, 200}) {
    window_.MoveWindow(0, 0, 1280, height);
    desktop_.pump();
    EXPECT_EQ((Tree().GetStyle() & WS_VSCROLL) != 0, height == 200);
  }
}

TEST_F(LibraryWindow, TheSamePartStaysFramedHoweverTheWindowChanges) {
  Start();
  ClickButton(ToolbarButton::crop);
  const CRect picture = PictureOnScreen();
  desktop_.drag({picture.left + 100, picture.top + 100}, {picture.left + 300, picture.top + 250});
  // The library's edge is dragged to and fro, and the window gets smaller and larger.
  CRect pane;
  window_.browser().pane().GetWindowRect(pane);
  for (const int x : {700, 300, 1100, 500}) {
    desktop_.drag({pane.right - 4, 90}, {x, 90});
    window_.browser().pane().GetWindowRect(pane);
    EXPECT_EQ(pane.right, std::min(x + 4, 1280 - 200));
    window_.MoveWindow(0, 0, 1280, 900 - x / 4);
  }
  window_.MoveWindow(0, 0, 1280, 800);
  desktop_.drag({pane.right - 4, 90}, {256, 90});
  desktop_.click(window_.CropButtonOnScreen(CropCommand::save).CenterPoint());
  WaitForSaving();
  const auto saved = CPicture::Open(library_ / "page_1.png");
  ASSERT_NE(saved, nullptr);
  EXPECT_EQ(saved->size().cx, 200);
  EXPECT_EQ(saved->size().cy, 150);
}

TEST_F(LibraryWindow, NoButtonCoversAnotherInANarrowWindow) {
  Start();
  for (const int width : {1280, 560, 400, 320}) {
    window_.MoveWindow(0, 0, width, 600);
    int right = 0;
    for (const ToolbarButton button :
         {ToolbarButton::crop, ToolbarButton::text, ToolbarButton::open, ToolbarButton::previous,
          ToolbarButton::next, ToolbarButton::quit}) {
      const CRect place = window_.toolbar().ButtonOnScreen(button);
      EXPECT_GE(place.left, right);
      right = place.right;
    }
    EXPECT_LE(right, width);
  }
}

TEST_F(LibraryWindow, AFolderThatVanishedIsLeftForTheNearestOneAbove) {
  Start();
  desktop_.double_click(RowOf(L"\\一月"));
  desktop_.click(RowOf(L"\\一月\\上旬"));
  EXPECT_TRUE(Strip().names().empty());
  std::filesystem::remove_all(library_ / "一月");
  CropAndSave();
  EXPECT_EQ(window_.browser().Folder(), Path(L""));
  EXPECT_EQ(window_.last_saved(), Path(L"\\page_1.png")) << "the crop is not lost";
  EXPECT_THAT(Notice(), HasSubstr("上旬"));
  EXPECT_THAT(Strip().names(), ElementsAre(L"page.png", L"page_1.png"));
  EXPECT_EQ(Tree().ListSort(), 2 * kRow) << "the tree no longer shows it";
  std::filesystem::remove_all(library_);
  CropAndSave();
  EXPECT_THAT(Notice(), HasSubstr("无法保存"));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.path())) << "a library that vanished takes none";
}

TEST_F(LibraryWindow, AFolderThatBecameAFileIsLeftToo) {
  Start();
  desktop_.click(RowOf(L"\\二月"));
  std::filesystem::remove(library_ / "二月");
  ASSERT_EQ(mkfifo((library_ / "二月").c_str(), 0600), 0);
  CropAndSave();
  EXPECT_EQ(window_.browser().Folder(), Path(L""));
  EXPECT_EQ(window_.last_saved(), Path(L"\\page_1.png"));
}

TEST_F(LibraryWindow, WithoutPicturesItSaysSoAndEveryButtonIsHarmless) {
  std::filesystem::remove_all(library_);
  std::filesystem::create_directories(library_);
  Start();
  EXPECT_EQ(Opened(), "");
  for (ToolbarButton button : {ToolbarButton::crop, ToolbarButton::text, ToolbarButton::previous,
                               ToolbarButton::next, ToolbarButton::open}) {
    ClickButton(button);
  }
  desktop_.key(VK_ESCAPE);
  EXPECT_FALSE(window_.crop().IsWindowVisible());
  window_.MoveWindow(0, 0, 560, 600);
  desktop_.pump();
  CRect edge;
  window_.view().GetWindowRect(edge);
  edge.right = edge.left + 16;
  const auto is_text = [](COLORREF color) { return color != RGB(0x14, 0x1A, 0x20); };
  EXPECT_EQ(desktop_.frame().count(edge, is_text), 0) << "the lines break";
  WriteTestPicture(library_ / "new.png", 100, 100);
  ClickButton(ToolbarButton::next);
  EXPECT_EQ(Opened(), "new.png");
}

TEST_F(LibraryWindow, TheKeysArePicturesFoldersAndButtonsWhateverWasClicked) {
  Start(library_ / "一月" / "a.png");
  for (const ToolbarButton clicked : {ToolbarButton::crop, ToolbarButton::text}) {
    ClickButton(clicked);
    desktop_.key(VK_RIGHT);
    EXPECT_EQ(Opened(), "a.png") << "not while a part is framed";
    desktop_.key(VK_ESCAPE);
    EXPECT_FALSE(window_.crop().IsWindowVisible());
    desktop_.key(VK_RIGHT);
    EXPECT_EQ(Opened(), "b.png");
    desktop_.key(VK_LEFT);
  }
  ClickButton(ToolbarButton::open);
  const HWND box = ::GetActiveWindow();
  EXPECT_NE(box, window_.GetSafeHwnd());
  desktop_.click(CellInStrip(0));
  desktop_.key(VK_ESCAPE);
  EXPECT_FALSE(::IsWindowVisible(box)) << "also when something else was clicked";
  const std::pair<std::vector<int>, const wchar_t*> walk[] = {
      {{VK_UP}, L""},         {{VK_UP}, L""},
      {{VK_DOWN}, L"\\一月"}, {{VK_DOWN}, L"\\一月\\上旬"},
      {{VK_UP}, L"\\一月"},   {{VK_SHIFT, VK_LEFT}, L"\\一月"},
      {{VK_DOWN}, L"\\二月"}};
  for (const auto& [keys, folder] : walk) {
    Press(keys);
    EXPECT_EQ(window_.browser().Folder(), Path(folder));
  }
  // Tab reaches the toolbar's first button, the arrow the second one: it frames text.
  for (const int key : {VK_TAB, VK_RIGHT, VK_RETURN}) desktop_.key(key);
  EXPECT_TRUE(window_.crop().IsWindowVisible());
}

TEST_F(LibraryWindow, AKeySavesWhatIsFramed) {
  Start();
  Press({VK_CONTROL, 'S'});
  EXPECT_THAT(Notice(), HasSubstr("裁剪"));
  ClickButton(ToolbarButton::crop);
  const CRect picture = PictureOnScreen();
  desktop_.drag(picture.TopLeft(), picture.CenterPoint());
  Press({VK_CONTROL, 'S'});
  WaitForSaving();
  EXPECT_EQ(window_.last_saved(), Path(L"\\page_1.png"));
  ClickButton(ToolbarButton::crop);
  desktop_.drag(picture.TopLeft(), picture.CenterPoint());
  for (int count = 0; count < 4; ++count) Press({VK_SHIFT, VK_TAB});  // the bar's first button
  desktop_.key(VK_RETURN);
  WaitForSaving();
  EXPECT_EQ(window_.last_saved(), Path(L"\\page_2.png"));
}

TEST_F(LibraryWindow, WhatStandsInTheTextBoxIsSelectedAndCopied) {
  const std::string path = std::getenv("PATH");
  setenv("PATH", "", 1);  // nothing is installed: the box says what is to be
  Start();
  ClickButton(ToolbarButton::text);
  const CRect picture = PictureOnScreen();
  desktop_.drag(picture.TopLeft(), picture.CenterPoint());
  desktop_.click(window_.CropButtonOnScreen(CropCommand::read).CenterPoint());
  WaitForSaving();
  setenv("PATH", path.c_str(), 1);
  const auto copied = [&](const std::vector<int>& keys) {
    Press(keys);
    Press({VK_CONTROL, 'C'});
    std::wstring text;
    EXPECT_TRUE(::OpenClipboard(window_));
    if (const HANDLE data = ::GetClipboardData(CF_UNICODETEXT)) {
      text = static_cast<const wchar_t*>(::GlobalLock(data));
    }
    ::CloseClipboard();
    return text;
  };
  const std::wstring all = copied({});
  EXPECT_NE(all.find(L"\r\nsudo apt install tesseract-ocr"), std::wstring::npos);
  CRect box;
  window_.recognition().GetWindowRect(box);
  desktop_.click({box.left + 22, box.top + 60});  // the drag begins with a double click
  desktop_.drag({box.left + 22, box.top + 60}, {box.left + 150, box.top + 60});
  const std::wstring some = copied({});
  EXPECT_GT(some.size(), 2u);
  EXPECT_LT(some.size(), 20u);
  EXPECT_TRUE(all.starts_with(some));
  desktop_.click(CellInStrip(0));  // opens its picture, which closes the box
  EXPECT_EQ(copied({VK_CONTROL, 'A'}), some) << "nothing else is copied then";
  EXPECT_TRUE(copy_text(window_, L"a\r\nb\n"));
  EXPECT_EQ(copied({}), L"a\r\nb\r\n");
}

TEST_F(LibraryWindow, KeysGoOnWhileLargePicturesAreOpened) {
  WritePng(library_ / "二月" / "1.png", corvane::system::Surface(5000, 3000));
  EXPECT_LT(std::filesystem::file_size(library_ / "二月" / "1.png"), 300000u);
  std::filesystem::create_hard_link(library_ / "二月" / "1.png", library_ / "二月" / "2.png");
  Start();
  desktop_.click(RowOf(L"\\二月"));
  desktop_.key(VK_RIGHT);
  EXPECT_EQ(window_.picture()->name(), "page.png") << "the key has not waited";
  desktop_.key(VK_RIGHT);
  EXPECT_EQ(Opened(), "2.png");
  EXPECT_EQ(Notice(), "");
}

// It lists the folder above, those inside and the pictures; what is open is marked.
TEST_F(LibraryWindow, TheKeysWalkThroughTheOpenPanel) {
  Start();
  const std::pair<std::vector<int>, const char*> cases[] = {
      {{VK_UP, VK_UP, VK_RETURN, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_DOWN, VK_RETURN}, "b.png"},
      {{VK_UP, VK_RETURN}, "a.png"},
      {{VK_DOWN, VK_ESCAPE, VK_RETURN}, "a.png"},
      // The folder that one came from is marked: out of it, back into it, out again.
      {{VK_UP, VK_UP, VK_RETURN, VK_RETURN, VK_RETURN, VK_DOWN, VK_DOWN, VK_RETURN}, "page.png"}};
  for (const auto& [keys, opened] : cases) {
    ClickButton(ToolbarButton::open);
    for (const int key : keys) {
      WaitForSaving();
      desktop_.key(key);
    }
    EXPECT_EQ(Opened(), opened);
  }
}

TEST_F(LibraryWindow, OnlyAPressAndAReleaseOnARowOfTheOpenPanelOpenIt) {
  std::filesystem::remove(library_ / "一月" / "上旬");
  Start();
  ClickButton(ToolbarButton::open);
  CRect box;
  ::GetWindowRect(::GetActiveWindow(), &box);
  const CPoint row(box.left + 200, box.top + 52 + 40 + 20);  // a folder, then a.png
  desktop_.double_click(row);
  EXPECT_EQ(Opened(), "page.png");
  desktop_.drag({row.x, row.y + 40}, row);
  EXPECT_EQ(Opened(), "page.png");
  desktop_.click(row);
  EXPECT_EQ(Opened(), "a.png");
}

TEST_F(LibraryWindow, TheOpenPanelDoesNotWaitForALargeFolder) {
  ManyPictures(10000);
  Start();
  ClickButton(ToolbarButton::open);
  WaitForSaving();
  for (const int key : {VK_UP, VK_RETURN}) desktop_.key(key);
  EXPECT_TRUE(window_.opening());
  desktop_.key(VK_DOWN);  // to the row that says so
  desktop_.key(VK_RETURN);
  EXPECT_EQ(Opened(), "page.png");
  for (const int key : {VK_DOWN, VK_RETURN}) desktop_.key(key);
  EXPECT_EQ(Opened(), "0.png");
}

TEST_F(LibraryWindow, ManyPicturesScrollAndOnlyTheNeighbourhoodIsKept) {
  constexpr int kCount = 3000;
  ManyPictures(kCount);
  Start();
  desktop_.click(RowOf(L"\\二月"));
  const CStripLayout& layout = Strip().layout();
  ASSERT_EQ(layout.count(), kCount);
  desktop_.move_to(CellInStrip(2));
  desktop_.wheel(-WHEEL_DELTA);
  EXPECT_EQ(layout.scroll(), layout.CellWidth());
  EXPECT_EQ(Strip().hovered(), 3);
  for (int i = 0; i < 30; ++i) desktop_.wheel(-40 * WHEEL_DELTA);
  const CellRange visible = layout.Visible();
  EXPECT_NE(WaitForThumbnail(std::to_wstring(visible.last - 1) + L".png"), nullptr);
  EXPECT_LE(Strip().thumbnails().size(), 3u * static_cast<unsigned>(visible.last - visible.first));
  desktop_.move_to(640, 300);
  EXPECT_EQ(Strip().hovered(), -1) << "the pointer has left";
}

}  // namespace
}  // namespace capture
