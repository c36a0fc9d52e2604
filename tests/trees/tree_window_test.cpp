// The tree as a window: real input in, posted messages, paths and pixels out.
#include <gmock/gmock.h>

#include <fstream>
#include <limits>

#include "corvane/frame/layer_messages.h"
#include "corvane/platform/base_services/system_paths.h"
#include "tests/support/host_test.h"
#include "tests/support/temporary_folder.h"
#include "tests/trees/support/scripted_tree.h"

namespace corvane::test {
namespace {

using corvane::_NODE;
using corvane::CRect;
using corvane::CString;
using corvane::CTreeCtrlEx2;
using corvane::kTreeRowHeight;
using corvane::WM_TREE_SELECT;
namespace fs = std::filesystem;

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF frame = RGB(106, 144, 226);

// The tree takes a part of the host that is 240 wide and 300 high.
class TreeWindowTest : public HostTest {
 protected:
  static constexpr POINT corner = {host_place.left + 10, host_place.top + 20};
  static constexpr SIZE size = {240, 300};

  void SetUp() override {
    HostTest::SetUp();
    const CRect place(10, 20, 10 + size.cx, 20 + size.cy);
    ASSERT_TRUE(tree_.Create(nullptr, L"tree", WS_CHILD | WS_VISIBLE, place, &host_, 7));
    desktop_.pump();
  }

  // Rows: the root, a (with a1 and a2, collapsed), then plain folders b0, b1 ...
  void load(int plain = 2) {
    tree_.SetPath(L"Q:\\Lib", nullptr);
    model_root_ = tree_.FindNode(L"", nullptr);
    a_ = tree_.AddChildNode(L"a", model_root_);
    tree_.AddChildNode(L"a1", a_);
    tree_.AddChildNode(L"a2", a_);
    for (int i = 0; i < plain; ++i) {
      tree_.AddChildNode((L"b" + std::to_wstring(i)).c_str(), model_root_);
    }
    repaint();
  }
  void repaint() {
    tree_.Invalidate(FALSE);
    desktop_.pump();
  }

  void click(int x, int y) { desktop_.click(corner.x + x, corner.y + y); }
  void double_click(int x, int y) { desktop_.double_click(corner.x + x, corner.y + y); }
  void wheel(int distance) { desktop_.wheel_at(corner.x + 50, corner.y + 50, distance); }
  static CRect on_screen(const CRect& rect) { return rect + corvane::CPoint(corner); }
  COLORREF pixel(int x, int y) { return desktop_.pixel(corner.x + x, corner.y + y); }
  std::size_t selections() const { return host_.count(WM_TREE_SELECT); }
  int position() const { return tree_.GetScrollPos(SB_VERT); }
  bool bar_is_shown() const { return tree_.GetStyle() & WS_VSCROLL; }
  int client_width() const { return client_rect(tree_).right; }
  bool has_text(int left, int row) {
    const RECT cell = on_screen(CRect(left, row * 30, left + 40, row * 30 + 30));
    return desktop_.frame().count(cell, [](COLORREF color) { return GetGValue(color) < 100; }) > 0;
  }

  ScriptedTree tree_;
  _NODE* model_root_ = nullptr;
  _NODE* a_ = nullptr;
};

TEST_F(TreeWindowTest, StartsEmptyWhiteAndWithoutABar) {
  EXPECT_FALSE(bar_is_shown());
  EXPECT_TRUE(tree_.GetExStyle() & WS_EX_ACCEPTFILES);
  EXPECT_EQ(pixel(5, 5), white);
  EXPECT_EQ(pixel(size.cx - 1, size.cy - 1), white);
  EXPECT_EQ(tree_.GetCurPath(), L"");
  click(20, 20);
  EXPECT_EQ(selections(), 0u);
}

TEST_F(TreeWindowTest, DrawsRowsWithTheSkinsImages) {
  load();
  _NODE* deep = a_;
  tree_.ClickNode({20, 40}, CTreeCtrlEx2::click_expands);
  for (const wchar_t* name : {L"2", L"3", L"4", L"5", L"6", L"7"}) {
    deep = tree_.AddChildNode(name, deep);
  }
  repaint();
  struct Row {
    int row;
    int left;
    COLORREF glyph;
    COLORREF folder;
  };
  const Row rows[] = {{0, 0, TestSkin::expanded_glyph, TestSkin::folder},
                      {1, 15, TestSkin::expanded_glyph, TestSkin::highlighted_folder},
                      {2, 30, white, TestSkin::folder},
                      {4, 30, TestSkin::collapsed_glyph, TestSkin::folder},
                      {5, 15, white, TestSkin::folder}};
  for (const Row& each : rows) {
    EXPECT_EQ(pixel(each.left + 15, each.row * 30 + 15), each.glyph) << "row " << each.row;
    EXPECT_EQ(pixel(each.left + 45, each.row * 30 + 15), each.folder) << "row " << each.row;
    EXPECT_TRUE(has_text(each.left + 60, each.row)) << "row " << each.row;
    EXPECT_EQ(pixel(each.left + 59, each.row * 30 + 15), each.folder) << "row " << each.row;
    EXPECT_EQ(pixel(size.cx - 5, each.row * 30 + 15), white) << "row " << each.row;
  }
}

TEST_F(TreeWindowTest, DeepRowsAreIndentedBySixLevels) {
  _NODE* node = tree_.AddChildNode(L"0", nullptr);
  for (int level = 1; level < 10; ++level) {
    tree_.ClickNode({5, level * 30 - 15}, CTreeCtrlEx2::click_expands);
    node = tree_.AddChildNode(L"x", node);
    repaint();
  }
  for (int level : {6, 7, 9}) {
    EXPECT_EQ(pixel(89, level * 30 + 15), white) << level;
    EXPECT_EQ(pixel(90, level * 30 + 15), level < 9 ? TestSkin::expanded_glyph : white) << level;
    EXPECT_NE(pixel(120, level * 30 + 15), white) << level;
    EXPECT_TRUE(has_text(150, level));
  }
}

TEST_F(TreeWindowTest, FramesTheHighlightedRow) {
  load();
  tree_.ClickNode({5, 70}, -1);
  repaint();
  const int top = 60;
  const int right = size.cx;
  for (POINT on : {POINT{100, top + 1}, POINT{100, top + 2}, POINT{100, top + 27},
                   POINT{100, top + 28}, POINT{right - 3, top + 15}, POINT{right - 2, top + 15},
                   POINT{1, top + 15}, POINT{2, top + 15}}) {
    EXPECT_EQ(pixel(on.x, on.y), frame) << on.x << ", " << on.y;
  }
  for (POINT off : {POINT{100, top}, POINT{100, top + 3}, POINT{100, top + 26},
                    POINT{100, top + 29}, POINT{right - 4, top + 15}, POINT{right - 1, top + 15},
                    POINT{0, top + 15}, POINT{3, top + 15}}) {
    EXPECT_EQ(pixel(off.x, off.y), white) << off.x << ", " << off.y;
  }
}

TEST_F(TreeWindowTest, ClickRules) {
  load();
  EXPECT_TRUE(tree_.GetCurPath().IsEmpty());
  click(20, 45);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\a");
  EXPECT_EQ(selections(), 1u);
  EXPECT_FALSE(a_->expanded()) << "not even on its glyph";
  EXPECT_EQ(pixel(60, 45), TestSkin::highlighted_folder);
  click(size.cx - 3, 119);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\b1") << "the last pixel of the last row";
  click(20, 125);
  EXPECT_EQ(selections(), 2u) << "below the last row";
  double_click(200, 45);
  EXPECT_TRUE(a_->expanded());
  EXPECT_EQ(selections(), 4u);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\a");
  click(200, 75);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\a\\a1");
  double_click(200, 45);
  EXPECT_FALSE(a_->expanded());
  EXPECT_EQ(host_.of(WM_TREE_SELECT).back().wparam, 0u);
  EXPECT_EQ(host_.of(WM_TREE_SELECT).back().lparam, 0);
}

TEST_F(TreeWindowTest, ClickNodeDoesWhatItsModeSays) {
  load();
  struct Case {
    int mode;
    bool expanded;
  };
  for (const Case& each : {Case{1, true}, Case{1, true}, Case{7, true}, Case{0, false},
                           Case{-1, false}, Case{2, true}, Case{2, false}}) {
    EXPECT_EQ(tree_.ClickNode({5, 45}, each.mode), 1);
    EXPECT_EQ(a_->expanded(), each.expanded) << each.mode;
  }
  EXPECT_EQ(tree_.ClickNode({5, 125}, 2), 0);
  EXPECT_EQ(selections(), 0u);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\a");
}

TEST_F(TreeWindowTest, TheBarComesWithTheRowsThatNeedIt) {
  load(8);
  EXPECT_FALSE(bar_is_shown()) << "300 pixels of rows fit exactly";
  EXPECT_EQ(client_width(), size.cx);
  tree_.AddChildNode(L"one more", model_root_);
  repaint();
  EXPECT_TRUE(bar_is_shown());
  EXPECT_EQ(client_width(), size.cx - 17);
  EXPECT_EQ(tree_.GetScrollLimit(SB_VERT), 330 - 300 + 1);
  EXPECT_EQ(tree_.ListSort(), 330);
  EXPECT_EQ(a_->row().right, size.cx - 17);
  tree_.SendMessageW(WM_VSCROLL, SB_BOTTOM);
  EXPECT_EQ(position(), 31);
  tree_.DelNode(a_);
  desktop_.pump();
  EXPECT_FALSE(bar_is_shown());
  EXPECT_EQ(position(), 0);
  EXPECT_EQ(client_width(), size.cx);
}

TEST_F(TreeWindowTest, ScrollsByPixelsWithWheelAndBar) {
  load(18);
  wheel(-120);
  EXPECT_EQ(position(), 10);
  EXPECT_EQ(pixel(5, 25), white) << "the root's row ends at 20";
  EXPECT_EQ(pixel(15 + 45, 25), TestSkin::folder) << "the second row begins there";
  wheel(60);
  EXPECT_EQ(position(), 5);
  wheel(120);
  EXPECT_EQ(position(), 0);
  EXPECT_EQ(host_.count(WM_MOUSEWHEEL), 3u) << "each turn goes on to the parent once";
  struct Case {
    WPARAM code;
    int position;
  };
  for (const Case& each : {Case{SB_BOTTOM, 301}, Case{SB_LINEDOWN, 301}, Case{SB_LINEUP, 300},
                           Case{SB_PAGEUP, 0}, Case{SB_PAGEDOWN, 300}, Case{SB_TOP, 0},
                           Case{MAKELONG(SB_THUMBTRACK, 45), 45}, Case{SB_ENDSCROLL, 45}}) {
    tree_.SendMessageW(WM_VSCROLL, each.code);
    EXPECT_EQ(position(), each.position) << each.code;
  }
  click(100, 10);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\a") << "the row laid out at 30";
}

TEST_F(TreeWindowTest, DraggingTheThumbMovesTheRows) {
  load(18);
  const int x = corner.x + size.cx - 8;
  // The bar keeps the loop from the press to the release.
  tree_.steps = {[&] { ::SetCursorPos(x, corner.y + 160); },
                 [&] { desktop_.send_mouse(MOUSEEVENTF_LEFTUP); }};
  desktop_.press_at(x, corner.y + 60);
  EXPECT_NEAR(position(), 226, 3) << "the thumb has gone 100 of the 133 pixels that it can";
  const int row = (position() + 10) / kTreeRowHeight;
  click(100, 10);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\b" + std::to_wstring(row - 2));
}

// What is scrolled into view looks as if all rows had been drawn.
TEST_F(TreeWindowTest, OnlyTheRowsInViewAreDrawnAndLookTheSame) {
  load(40);
  tree_.ClickNode({5, 45}, CTreeCtrlEx2::click_expands);
  repaint();
  const int total = tree_.ListSort();
  const int width = client_width();
  corvane::CBufferDC whole;
  const CRect all(0, 0, width, total);
  ASSERT_TRUE(whole.CreateBufferDC(nullptr, all));
  whole.SetBackColor(all, white);
  tree_.DoDraw(whole, all);
  ASSERT_EQ(position(), 0);
  repaint();  // the bar comes back
  for (int at : {0, 1, 29, 30, 45, 600}) {
    tree_.SetScrollPos(SB_VERT, at);
    repaint();
    int different = 0;
    const Frame screen = desktop_.frame();
    for (int y = 0; y < size.cy; ++y) {
      for (int x = 0; x < width; ++x) {
        different +=
            screen.at(corner.x + x, corner.y + y) != (::GetPixel(whole, x, y + at) & 0xFFFFFF);
      }
    }
    EXPECT_EQ(different, 0) << "scrolled by " << at;
  }
}

TEST_F(TreeWindowTest, EnterIsSwallowedAndEscapeGoesToTheParent) {
  load();
  tree_.SetFocus();
  desktop_.key(VK_RETURN);
  EXPECT_EQ(host_.count(WM_KEYDOWN), 0u);
  desktop_.key(VK_ESCAPE);
  ASSERT_EQ(host_.count(WM_KEYDOWN), 1u);
  EXPECT_EQ(host_.of(WM_KEYDOWN)[0].wparam, static_cast<WPARAM>(VK_ESCAPE));
  EXPECT_EQ(host_.count(WM_KEYUP), 0u);
  MSG hooked{tree_, ::RegisterWindowMessageW(L"MouseDown"), 5, 5, 0, {}};
  EXPECT_TRUE(tree_.PreTranslateMessage(&hooked));
}

TEST_F(TreeWindowTest, ResizingRemakesThePicture) {
  load(12);
  tree_.MoveWindow(10, 20, 200, 200);
  repaint();
  EXPECT_EQ(tree_.GetScrollLimit(SB_VERT), 14 * 30 - 200 + 1);
  EXPECT_EQ(pixel(60, 45), TestSkin::folder);
  tree_.MoveWindow(10, 20, 300, 440);
  desktop_.pump();
  EXPECT_FALSE(bar_is_shown());
  EXPECT_EQ(pixel(45, 435), white);
  tree_.MoveWindow(10, 20, 340, 440, FALSE);
  repaint();
  EXPECT_EQ(pixel(335, 45), white) << "grown without having been erased";
  EXPECT_EQ(pixel(60, 405), TestSkin::folder);
  tree_.MoveWindow(10, 20, 0, 0);
  repaint();
}

TEST_F(TreeWindowTest, ImagesAreDrawnWhateverTheWidthOfTheRows) {
  tree_.MoveWindow(10, 20, 40, 200);
  load();
  corvane::CBufferDC wide;
  wide.CreateBufferDC(nullptr, CRect(0, 0, 200, 200));
  ::IntersectClipRect(wide, 50, 0, 200, 200);
  tree_.DoDraw(wide, CRect(0, 0, 40, 200));
  EXPECT_EQ(::GetPixel(wide, 60, 45) & 0xFFFFFF, TestSkin::folder);
}

TEST_F(TreeWindowTest, NothingIsTooFarAway) {
  using Limits = std::numeric_limits<int>;
  load();
  tree_.ClickNode({5, 45}, -1);
  corvane::CBufferDC buffer;
  buffer.CreateBufferDC(nullptr, CRect(0, 0, 50, 50));
  for (int row : {Limits::min(), -1, Limits::max()}) {
    for (int width : {Limits::min(), Limits::max()}) {
      tree_.DoDraw(buffer, CRect(0, row, 50, row < 0 ? Limits::max() : -5));
      const int next = tree_.ListSort(model_root_, width, row);
      EXPECT_EQ(next, row > 0 ? row : row + 3);
      for (int position : {Limits::min(), 0, Limits::max()}) {
        tree_.SetScrollRange(SB_VERT, Limits::min(), Limits::max(), FALSE);
        tree_.SetScrollPos(SB_VERT, position, FALSE);
        EXPECT_EQ(tree_.DrawItem(buffer, model_root_), 1);
        for (int y : {Limits::min(), Limits::max()}) tree_.ClickNode({0, y}, -1);
      }
    }
  }
}

TEST_F(TreeWindowTest, DeletingRepaintsButOfTheRoot) {
  load();
  tree_.DelNode(a_);
  EXPECT_TRUE(::GetUpdateRect(tree_, nullptr, FALSE));
  desktop_.pump();
  tree_.DelNode(L"Q:\\Lib");
  EXPECT_FALSE(::GetUpdateRect(tree_, nullptr, FALSE));
  EXPECT_EQ(tree_.FindNode(L"Q:\\Lib\\b0", nullptr), nullptr);
}

TEST_F(TreeWindowTest, WithoutSkinImagesTextAndFrameAreDrawn) {
  tree_.DestroyWindow();
  skin_.remove_files();
  ASSERT_TRUE(tree_.Create(nullptr, L"tree", WS_CHILD | WS_VISIBLE,
                           CRect(10, 20, 10 + size.cx, 20 + size.cy), &host_, 7));
  load();
  tree_.ClickNode({5, 70}, -1);
  repaint();
  EXPECT_EQ(pixel(15, 15), white);
  EXPECT_EQ(pixel(100, 62), frame);
  EXPECT_TRUE(has_text(75, 1));
}

class TreeOnDiskTest : public TreeWindowTest {
 protected:
  void SetUp() override {
    TreeWindowTest::SetUp();
    for (const char* folder : {"2023/May", "2023/June", "Old", ".cache/x"}) {
      fs::create_directories(disk_ / "图库" / folder);
    }
    root_path_ = CString(corvane::wide_path_of(disk_ / "图库").c_str());
    EXPECT_EQ(tree_.SetPath(root_path_, nullptr), 1);
  }
  void expect_current(const CString& path) {
    EXPECT_EQ(tree_.GetCurPath(), path);
    desktop_.pump();
    EXPECT_EQ(selections(), ++expected_selections_);
  }

  corvane::test::TemporaryFolder disk_;
  CString root_path_;
  std::size_t expected_selections_ = 0;
};

TEST_F(TreeOnDiskTest, LoadsAndSelects) {
  EXPECT_EQ(tree_.FindNode(root_path_ + L"\\.cache", nullptr), nullptr);
  EXPECT_NE(tree_.FindNode(root_path_ + L"\\Old", nullptr), nullptr);
  tree_.SetCurPath(nullptr);
  expect_current(root_path_);
  tree_.SetCurPath(root_path_ + L"\\2023\\May");
  expect_current(root_path_ + L"\\2023\\May");
  EXPECT_TRUE(tree_.FindNode(root_path_ + L"\\2023", nullptr)->expanded());
  EXPECT_EQ(tree_.ListSort(), 150);
  fs::remove_all(disk_ / "图库/2023/May");
  tree_.SetCurPath(nullptr);
  expect_current(root_path_ + L"\\2023");
  tree_.SetCurPath(L"Q:\\not\\here");
  expect_current(L"Q:\\not\\here");
  tree_.SetCurPath(nullptr);
  expect_current(L"Q:");
  tree_.ClearCurPath();
  EXPECT_EQ(tree_.GetCurPath(), L"");
}

TEST_F(TreeOnDiskTest, ARootWithoutANameIsLoadedButNotShown) {
  repaint();
  EXPECT_EQ(pixel(45, 15), TestSkin::folder);
  EXPECT_EQ(tree_.SetPath(root_path_ + L"\\", nullptr), 1);
  EXPECT_NE(tree_.FindNode(root_path_ + L"\\\\2023\\May", nullptr), nullptr);
  EXPECT_EQ(tree_.ListSort(), 0);
  repaint();
  EXPECT_EQ(pixel(45, 15), white);
  click(45, 15);
  EXPECT_EQ(selections(), 0u);
}

TEST_F(TreeOnDiskTest, MergesANewFolder) {
  tree_.SetCurPath(root_path_ + L"\\2023\\May");
  fs::create_directories(disk_ / "图库/2023/July/10");
  EXPECT_EQ(tree_.SetPath(root_path_ + L"\\2023", tree_.FindNode(root_path_, nullptr)), 1);
  _NODE* year = tree_.FindNode(root_path_ + L"\\2023", nullptr);
  ASSERT_EQ(year->children().size(), 3u);
  EXPECT_EQ(year->children().back().name(), L"July");
  EXPECT_TRUE(year->expanded());
  EXPECT_FALSE(year->children().back().expanded());
  EXPECT_EQ(tree_.SetPath(nullptr, year), 0);
  EXPECT_EQ(tree_.SetPath(root_path_ + L"\\gone", tree_.FindNode(root_path_, nullptr)), 0);
}

TEST_F(TreeOnDiskTest, DestroyedAndCreatedAgainKeepsItsFolders) {
  tree_.DestroyWindow();
  ASSERT_TRUE(tree_.Create(nullptr, L"tree", WS_CHILD | WS_VISIBLE,
                           CRect(10, 20, 10 + size.cx, 20 + size.cy), &host_, 7));
  desktop_.pump();
  EXPECT_EQ(pixel(15, 15), TestSkin::expanded_glyph);
  EXPECT_EQ(pixel(45, 15), TestSkin::folder);
}

}  // namespace
}  // namespace corvane::test
