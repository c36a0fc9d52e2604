// The tree as a window: real input in, posted messages, paths and pixels out.
#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>

#include "corvane/frame/layer_messages.h"
#include "corvane/platform/drawing/gdi_dc.h"
#include "corvane/platform/system/gdi/font_faces.h"
#include "tests/support/host_test.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"
#include "tests/trees/support/fake_listing.h"
#include "tests/trees/support/scripted_tree.h"

namespace corvane::test {
namespace {

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr COLORREF kFrame = RGB(106, 144, 226);

// A row as it has to look: with its glyph and folder in one colour each.
struct Row {
  int level;
  COLORREF glyph;
  COLORREF folder;
  const wchar_t* name;
  bool framed = false;

  void draw(HDC dc, int top, int width) const {
    const int left = 15 * std::min(level, 6);
    const int bottom = top + 30;
    fill(dc, {left, top, left + 30, bottom}, glyph);
    fill(dc, {left + 30, top, left + 60, bottom}, folder);
    // The pen's ends stand out at the corner where it begins and ends.
    const RECT edges[] = {{0, top + 1, width - 1, top + 3},
                          {1, bottom - 3, width - 1, bottom - 1},
                          {1, top, 3, bottom - 1},
                          {width - 3, top + 1, width - 1, bottom - 1}};
    for (const RECT& edge : edges) {
      if (framed) fill(dc, edge, kFrame);
    }
    LOGFONTW font{};
    font.lfHeight = 14;
    font.lfWeight = FW_NORMAL;
    std::wcscpy(font.lfFaceName, L"黑体");
    CGdiDC().DrawTextW(dc, name, &font, CRect(left + 60, top, width, bottom), 0xFF000000,
                       DT_SINGLELINE | DT_VCENTER);
  }
};

// The tree takes a part of the host that is 240 wide and 300 high.
class TreeWindowTest : public HostTest {
 protected:
  static constexpr POINT kCorner = {host_place.left + 10, host_place.top + 20};
  static constexpr SIZE kSize = {240, 300};

  void SetUp() override {
    HostTest::SetUp();
    create();
  }
  void TearDown() override { system::map_font_face(L"黑体", ""); }  // where a test has mapped it
  void create() {
    const CRect place(10, 20, 10 + kSize.cx, 20 + kSize.cy);
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

  void click(int x, int y) { desktop_.click(kCorner.x + x, kCorner.y + y); }
  void double_click(int x, int y) { desktop_.double_click(kCorner.x + x, kCorner.y + y); }
  void wheel(int distance) { desktop_.wheel_at(kCorner.x + 50, kCorner.y + 50, distance); }
  COLORREF pixel(int x, int y) { return desktop_.pixel(kCorner.x + x, kCorner.y + y); }
  std::size_t selections() const { return host_.count(WM_TREE_SELECT); }
  int position() const { return tree_.GetScrollPos(SB_VERT); }
  bool bar_is_shown() const { return (tree_.GetStyle() & WS_VSCROLL) != 0; }
  int client_width() const { return client_rect(tree_).right; }
  // The number of the row that has the frame, of the first ten; -1: none.
  int framed_row() {
    const Frame screen = desktop_.frame();
    int row = 9;
    while (row >= 0 && screen.at(kCorner.x + 1, kCorner.y + row * 30 + 15) != kFrame) --row;
    return row;
  }
  // What the client area shows, pixel by pixel.
  void expect_rows(const std::vector<Row>& rows) {
    const CRect client = client_rect(tree_);
    CBufferDC expected;
    ASSERT_TRUE(expected.CreateBufferDC(nullptr, client));
    fill(expected, client, kWhite);
    int top = -position();
    for (const Row& row : rows) {
      row.draw(expected, top, client.right);
      top += 30;
    }
    const Frame screen = desktop_.frame();
    for (int y = 0; y < client.bottom; ++y) {
      for (int x = 0; x < client.right; ++x) {
        ASSERT_EQ(screen.at(kCorner.x + x, kCorner.y + y), ::GetPixel(expected, x, y) & 0xFFFFFF)
            << x << ", " << y << " scrolled by " << position();
      }
    }
  }

  ScriptedTree tree_;
  _NODE* model_root_ = nullptr;
  _NODE* a_ = nullptr;
};

TEST_F(TreeWindowTest, StartsEmptyWhiteAndWithoutABar) {
  EXPECT_FALSE(bar_is_shown());
  EXPECT_TRUE(tree_.GetExStyle() & WS_EX_ACCEPTFILES);
  expect_rows({});
  EXPECT_EQ(tree_.GetCurPath(), L"");
  click(20, 20);
  EXPECT_EQ(selections(), 0u);
}

TEST_F(TreeWindowTest, RowsLookAsToldWhereverTheyAreScrolledTo) {
  // A family of its own, so that another face would be seen.
  system::map_font_face(L"黑体", "Noto Serif CJK SC");
  tree_.SetPath(L"Q:\\Lib", nullptr);
  _NODE* node = tree_.FindNode(L"", nullptr);
  tree_.AddChildNode(L"hidden", tree_.AddChildNode(L"collapsed 2024年", node));
  tree_.AddChildNode(L"no & children", node);
  for (int level = 1; level < 9; ++level) {
    node = tree_.AddChildNode(L"x so long that it does not fit into its row", node);
  }
  tree_.Expand(tree_.GetNodePath(node->parent()));
  repaint();
  ASSERT_EQ(tree_.ClickNode({5, 75}, -1), 1);
  const int objects = desktop_.living_drawing_objects();
  std::vector<Row> rows = {{0, TestSkin::expanded_glyph, TestSkin::folder, L"Lib"},
                           {1, TestSkin::collapsed_glyph, TestSkin::folder, L"collapsed 2024年"},
                           {1, kWhite, TestSkin::highlighted_folder, L"no & children", true}};
  for (int level = 1; level < 9; ++level) {
    rows.push_back({level, level < 8 ? TestSkin::expanded_glyph : kWhite, TestSkin::folder,
                    L"x so long that it does not fit into its row"});
  }
  for (const int at : {0, 1, 29, 30, 31}) {
    tree_.SetScrollPos(SB_VERT, at);
    repaint();
    expect_rows(rows);
  }
  EXPECT_EQ(desktop_.living_drawing_objects(), objects);
}

TEST_F(TreeWindowTest, CreatedAgainWithoutASkinItKeepsItsFoldersAndDrawsTextAndFrame) {
  load(0);
  tree_.ClickNode({5, 40}, -1);
  tree_.DestroyWindow();
  skin_.remove_files();
  create();
  expect_rows({{0, kWhite, kWhite, L"Lib"}, {1, kWhite, kWhite, L"a", true}});
}

// Each on a tree of the root, a, b0 and b1, whose b0 is current and highlighted.
TEST_F(TreeWindowTest, WhatEachOperationChoosesPostsAndRepaints) {
  const auto path = [](const wchar_t* below) { return CString(L"Q:\\Lib") + below; };
  const auto click_node = [this](std::initializer_list<int> modes) {
    for (const int mode : modes) EXPECT_EQ(tree_.ClickNode({5, 45}, mode), 1);
  };
  const auto send = [this](UINT message, WPARAM wparam, int y) {
    tree_.SendMessageW(message, wparam, MAKELPARAM(5, y));
  };
  const std::pair<const wchar_t*, std::function<void()>> operations[] = {
      {L"SetCurPath", [&] { tree_.SetCurPath(path(L"\\a\\a2")); }},
      {L"SetCurPath, not in the tree", [&] { tree_.SetCurPath(L"x"); }},
      {L"SetCurPath, nearest", [&] { tree_.SetCurPath(nullptr); }},
      {L"ClearCurPath", [&] { tree_.ClearCurPath(); }},
      {L"SetCurPath, none yet", [&] { tree_.ClearCurPath(), tree_.SetCurPath(nullptr); }},
      {L"Expand", [&] { tree_.Expand(path(L"\\a\\a1")); }},
      {L"Expand, nothing", [&] { tree_.Expand(nullptr); }},
      {L"AddChildNode", [&] { tree_.AddChildNode(L"c", model_root_); }},
      {L"SetPath, a root without a name", [&] { tree_.SetPath(L"Q:\\", nullptr); }},
      {L"DelNode", [&] { EXPECT_EQ(tree_.DelNode(a_), 1); }},
      {L"DelNode, nothing", [&] { EXPECT_EQ(tree_.DelNode(static_cast<_NODE*>(nullptr)), 0); }},
      {L"DelNode, by path", [&] { EXPECT_EQ(tree_.DelNode(path(L"\\b1")), 1); }},
      {L"DelNode, not in the tree", [&] { EXPECT_EQ(tree_.DelNode(path(L"\\x")), 0); }},
      {L"DelNode, the root", [&] { EXPECT_EQ(tree_.DelNode(model_root_), 1); }},
      {L"DelNode, the root by path", [&] { EXPECT_EQ(tree_.DelNode(path(L"")), 1); }},
      {L"DelAllNode", [&] { EXPECT_EQ(tree_.DelAllNode(), 1); }},
      {L"ClickNode, expands", [&] { click_node({CTreeCtrlEx2::click_expands}); }},
      {L"ClickNode, twice",
       [&] {
         click_node({1, 1});
       }},
      {L"ClickNode, collapses",
       [&] {
         click_node({1, CTreeCtrlEx2::click_collapses});
       }},
      {L"ClickNode, toggles", [&] { click_node({CTreeCtrlEx2::click_toggles}); }},
      {L"ClickNode, back",
       [&] {
         click_node({2, 2});
       }},
      {L"ClickNode, no mode",
       [&] {
         click_node({1, 7, -1});
       }},
      {L"ClickNode, no row",
       [&] {
         EXPECT_EQ(tree_.ClickNode({5, 125}, 1), 0);
       }},
      {L"click", [&] { send(WM_LBUTTONUP, 0, 45); }},
      {L"click, no row", [&] { send(WM_LBUTTONUP, 0, 125); }},
      {L"double click", [&] { send(WM_LBUTTONDBLCLK, 0, 45); }},
      {L"double click, no row", [&] { send(WM_LBUTTONDBLCLK, 0, 125); }},
      {L"wheel without a bar", [&] { send(WM_MOUSEWHEEL, MAKEWPARAM(0, -120), 0); }}};
  std::wostringstream outcomes;
  for (const auto& [name, run] : operations) {
    load();
    tree_.SetCurPath(path(L"\\b0"));
    desktop_.pump();
    host_.forget();
    run();
    EXPECT_EQ(selections(), 0u) << "posted, not sent";
    RECT update{};
    ::GetUpdateRect(tree_, &update, FALSE);
    outcomes << name << ": current '" << tree_.GetCurPath().AsStdString() << "', "
             << tree_.ListSort() / kTreeRowHeight << " rows, repaints " << text_of(update).c_str();
    repaint();
    outcomes << ", framed row " << framed_row() << ", posts " << selections() << '\n';
  }
  std::wifstream expected(source_folder() / "tests/trees/operations.txt");
  EXPECT_EQ(outcomes.str(), std::wstring(std::istreambuf_iterator<wchar_t>(expected), {}));
}

TEST_F(TreeWindowTest, ClickRules) {
  load();
  click(20, 45);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\a");
  EXPECT_FALSE(a_->expanded()) << "not even on its glyph";
  click(kSize.cx - 3, 119);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\b1") << "the last pixel of the last row";
  double_click(200, 45);
  EXPECT_TRUE(a_->expanded());
  click(200, 75);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\a\\a1");
  EXPECT_EQ(selections(), 5u);
  EXPECT_EQ(host_.of(WM_TREE_SELECT).back().wparam, 0u);
  EXPECT_EQ(host_.of(WM_TREE_SELECT).back().lparam, 0);
}

TEST_F(TreeWindowTest, TheBarComesWithTheRowsThatNeedIt) {
  load(8);
  EXPECT_FALSE(bar_is_shown()) << "300 pixels of rows fit exactly";
  EXPECT_EQ(client_width(), kSize.cx);
  tree_.AddChildNode(L"one more", model_root_);
  repaint();
  EXPECT_TRUE(bar_is_shown());
  EXPECT_EQ(client_width(), kSize.cx - 17);
  EXPECT_EQ(tree_.GetScrollLimit(SB_VERT), 330 - 300 + 1);
  EXPECT_EQ(tree_.ListSort(), 330);
  EXPECT_EQ(a_->row().right, kSize.cx - 17);
  tree_.SendMessageW(WM_VSCROLL, SB_BOTTOM);
  EXPECT_EQ(position(), 31);
  tree_.DelNode(a_);
  desktop_.pump();
  EXPECT_FALSE(bar_is_shown());
  EXPECT_EQ(position(), 0);
  EXPECT_EQ(client_width(), kSize.cx);
}

TEST_F(TreeWindowTest, ScrollsByPixelsWithWheelAndBar) {
  load(18);
  const struct {
    int distance;
    int position;
  } turns[] = {{-120, 10}, {60, 5}, {120, 0}, {-120, 10}};
  for (const auto& each : turns) {
    wheel(each.distance);
    EXPECT_EQ(position(), each.position);
  }
  EXPECT_EQ(pixel(5, 25), kWhite) << "the root's row ends at 20";
  EXPECT_EQ(pixel(15 + 45, 25), TestSkin::folder) << "the second row begins there";
  EXPECT_EQ(host_.count(WM_MOUSEWHEEL), 4u) << "each turn goes on to the parent once";
  const COLORREF thumb = pixel(kSize.cx - 8, 60);
  for (const auto& [code, at] : {std::pair<WPARAM, int>{SB_BOTTOM, 301},
                                 {SB_PAGEUP, 1},
                                 {SB_ENDSCROLL, 1},
                                 {SB_LINEUP, 0},
                                 {SB_PAGEDOWN, 300},
                                 {MAKELONG(SB_THUMBTRACK, 245), 245}}) {
    tree_.SendMessageW(WM_VSCROLL, code);
    EXPECT_EQ(position(), at) << code;
  }
  desktop_.pump();
  EXPECT_NE(pixel(kSize.cx - 8, 60), thumb) << "where it was";
  click(100, 10);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\b6") << "the row laid out at 240";
}

TEST_F(TreeWindowTest, DraggingTheThumbMovesTheRows) {
  load(18);
  const int x = kCorner.x + kSize.cx - 8;
  // The bar keeps the loop from the press to the release.
  tree_.steps = {[&] { ::SetCursorPos(x, kCorner.y + 160); },
                 [&] { desktop_.send_mouse(MOUSEEVENTF_LEFTUP); }};
  desktop_.press_at(x, kCorner.y + 60);
  EXPECT_NEAR(position(), 226, 3) << "the thumb has gone 100 of the 133 pixels that it can";
  const int row = (position() + 10) / kTreeRowHeight;
  click(100, 10);
  EXPECT_EQ(tree_.GetCurPath(), L"Q:\\Lib\\b" + std::to_wstring(row - 2));
}

TEST_F(TreeWindowTest, EnterIsSwallowedAndEscapeGoesToTheParent) {
  tree_.SetFocus();
  for (const int key : {VK_RETURN, VK_ESCAPE, VK_TAB}) desktop_.key(key);
  EXPECT_THAT(tree_.keys, testing::ElementsAre(VK_TAB, VK_TAB));
  ASSERT_EQ(host_.count(WM_KEYDOWN), 1u);
  EXPECT_EQ(host_.of(WM_KEYDOWN)[0].wparam, static_cast<WPARAM>(VK_ESCAPE));
  MSG message{tree_, ::RegisterWindowMessageW(L"MouseDown"), 5, 5, 0, {}};
  EXPECT_TRUE(tree_.PreTranslateMessage(&message)) << "the mouse hook's";
  message.message = ::RegisterWindowMessageW(L"somebody else's");
  EXPECT_FALSE(tree_.PreTranslateMessage(&message));
  EXPECT_FALSE(tree_.PreTranslateMessage(nullptr));
}

TEST_F(TreeWindowTest, ResizingRemakesThePicture) {
  load(0);
  const struct {
    int width;
    int height;
    BOOL erases;
    int limit;
  } sizes[] = {{200, 50, TRUE, 11}, {300, 440, TRUE, 0}, {340, 440, FALSE, 0}};
  for (const auto& each : sizes) {
    tree_.MoveWindow(10, 20, each.width, each.height, each.erases);
    desktop_.pump();
    EXPECT_EQ(tree_.GetScrollLimit(SB_VERT), each.limit);
    expect_rows({{0, TestSkin::expanded_glyph, TestSkin::folder, L"Lib"},
                 {1, TestSkin::collapsed_glyph, TestSkin::folder, L"a"}});
  }
  tree_.MoveWindow(10, 20, 0, 0);
  repaint();
}

TEST_F(TreeWindowTest, DrawsWhereItIsToldToHoweverFarThatIs) {
  using Limits = std::numeric_limits<int>;
  tree_.MoveWindow(10, 20, 40, 200);
  load();
  CBufferDC wide;
  wide.CreateBufferDC(nullptr, CRect(0, 0, 200, 200));
  ::IntersectClipRect(wide, 50, 0, 200, 200);
  tree_.DoDraw(wide, CRect(0, 0, 40, 200));
  EXPECT_EQ(::GetPixel(wide, 60, 45) & 0xFFFFFF, TestSkin::folder) << "beyond the rows' width";
  EXPECT_EQ(tree_.DrawItem(wide, a_), 0) << "collapsed";
  EXPECT_EQ(tree_.DrawItem(wide, nullptr), 0);
  tree_.DoDraw(wide, CRect(0, Limits::min(), 50, Limits::max()));
  tree_.DoDraw(wide, CRect(0, Limits::max(), 50, -5));
  tree_.SetScrollRange(SB_VERT, Limits::min(), Limits::max(), FALSE);
  for (const int position : {Limits::min(), 0, Limits::max()}) {
    tree_.SetScrollPos(SB_VERT, position, FALSE);
    EXPECT_EQ(tree_.DrawItem(wide, model_root_), 1);
    for (const int y : {Limits::min(), Limits::max()}) tree_.ClickNode({0, y}, -1);
  }
}

TEST_F(TreeWindowTest, ReadsTheSystemsFoldersOrTheListingThatItWasGiven) {
  const TemporaryFolder disk;
  const CString root(disk.wide().c_str());
  std::filesystem::create_directories(disk / "2023/May");
  tree_.SetPath(root, nullptr);
  for (const wchar_t* nearest : {L"\\2023\\May", L"\\2023"}) {
    tree_.SetCurPath(root + L"\\2023\\May");
    tree_.SetCurPath(nullptr);
    EXPECT_EQ(tree_.GetCurPath(), root + nearest);
    std::filesystem::remove_all(disk / "2023/May");
  }
  std::wstring deep = (root + L"\\2023").AsStdString();
  for (int i = 0; i < 5000; ++i) deep += L"\\removed folder";  // too many to ask for each
  tree_.SetCurPath(deep.c_str());
  tree_.SetCurPath(nullptr);
  EXPECT_EQ(tree_.GetCurPath(), root + L"\\2023");
  auto listing = std::make_unique<FakeListing>();
  listing->add(L"Q:\\Lib\\inner");
  tree_.SetFolderListing(std::move(listing));
  EXPECT_EQ(tree_.SetPath(L"Q:\\Lib", nullptr), 1);
  EXPECT_NE(tree_.FindNode(L"Q:\\Lib\\inner", nullptr), nullptr);
  tree_.SetFolderListing(nullptr);
  EXPECT_EQ(tree_.SetPath(L"Q:\\Lib", nullptr), 0);
  EXPECT_EQ(tree_.SetPath(root, nullptr), 1);
  EXPECT_NE(tree_.FindNode(root + L"\\2023", nullptr), nullptr);
}

}  // namespace
}  // namespace corvane::test
