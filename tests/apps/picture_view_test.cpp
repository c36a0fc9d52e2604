// Zoom and full screen of the program's window.
#include "tests/apps/library_window.h"

namespace capture {
namespace {

class PictureView : public LibraryWindow {
 protected:
  PictureView() : LibraryWindow({1920, 1080}) {}
  bool Sees(const CWnd& part) const { return part.IsWindowVisible() != FALSE; }
  CRect Place() const {
    CRect place;
    window_.GetWindowRect(place);
    return place;
  }
};

TEST_F(PictureView, KeysAndWheelZoomDraggingMovesAndACropCutsWhatIsSeen) {
  Start();
  const CRect fitted = PictureOnScreen();
  for (const std::vector<int>& in : std::vector<std::vector<int>>{
           {VK_OEM_PLUS}, {VK_SHIFT, VK_OEM_PLUS}, {VK_ADD}, {VK_CONTROL, VK_OEM_PLUS}}) {
    Press(in);
  }
  EXPECT_GT(PictureOnScreen().Width(), 2 * fitted.Width());
  EXPECT_EQ(PictureOnScreen().CenterPoint(), fitted.CenterPoint());
  Press({'0'});
  EXPECT_EQ(PictureOnScreen(), fitted);
  for (int step = 0; step < 3; ++step) desktop_.key(VK_ADD);
  // The pixel below the pointer stays there: three notches are twice the size.
  const CRect twice = PictureOnScreen();
  const CPoint pointer(twice.left + 500, twice.top + 300);
  desktop_.move_to(pointer);
  desktop_.wheel(WHEEL_DELTA);
  EXPECT_EQ(PictureOnScreen(), twice) << "without Control";
  desktop_.key_down(VK_CONTROL);
  for (const int part : {3 * WHEEL_DELTA - 20, 20}) desktop_.wheel(part);
  desktop_.key_up(VK_CONTROL);
  EXPECT_EQ(PictureOnScreen().Width(), 4 * fitted.Width());
  EXPECT_EQ(PictureOnScreen().TopLeft(), CPoint(pointer.x - 1000, pointer.y - 600));
  desktop_.click({700, 300});
  desktop_.drag({700, 300}, {660, 280});
  EXPECT_EQ(PictureOnScreen().TopLeft(), CPoint(pointer.x - 1040, pointer.y - 620));
  ClickButton(ToolbarButton::crop);
  const CRect shown = PictureOnScreen();
  desktop_.drag({shown.left + 800, shown.top + 600}, {shown.left + 1200, shown.top + 800});
  for (const int key : {VK_SUBTRACT, VK_ADD}) desktop_.key(key);  // the same stays framed
  Press({VK_CONTROL, 'S'});
  WaitForSaving();
  const auto saved = CPicture::Open(library_ / "page_1.png");
  ASSERT_NE(saved, nullptr);
  EXPECT_EQ(saved->size().cx, 100);
  EXPECT_EQ(saved->size().cy, 50);
  EXPECT_EQ(saved->image()->pixels()->at(5, 5), TestPixel(205, 155));
  desktop_.click(RowOf(L"\\一月"));
  desktop_.key(VK_RIGHT);
  EXPECT_EQ(PictureOnScreen().Width(), 320) << "another picture fits again";
}

TEST_F(PictureView, FullScreenShowsThePictureAloneAndThePartsAtTheEdges) {
  Start();
  desktop_.move_to(640, 400);
  desktop_.key(VK_F11);
  EXPECT_EQ(Place(), CRect(0, 0, 1920, 1080));
  EXPECT_EQ(desktop_.own().display.size().cx, 1920) << "the native window too";
  EXPECT_EQ(CRect(PictureOnScreen()).CenterPoint(), CPoint(960, 540));
  const CWnd& pane = window_.browser().pane();
  const struct {
    std::vector<POINT> way;
    bool toolbar, library, strip;
  } cases[] = {{{{900, 500}}, false, false, false},          {{{900, 0}}, true, false, false},
               {{{900, 0}, {900, 60}}, true, false, false},  {{{900, 500}}, false, false, false},
               {{{0, 500}, {300, 600}}, false, true, false}, {{{900, 1079}}, false, false, true},
               {{{900, 1000}}, false, false, true},          {{{900, 300}}, false, false, false}};
  for (const auto& [way, toolbar, library, strip] : cases) {
    for (const POINT point : way) desktop_.move_to(point);
    const HWND button = window_.toolbar().Buttons().front();
    EXPECT_EQ(::IsWindowVisible(button) != FALSE, toolbar) << way.back().x << ',' << way.back().y;
    EXPECT_EQ(Sees(pane), library) << way.back().x << ',' << way.back().y;
    EXPECT_EQ(Sees(Strip()), strip) << way.back().x << ',' << way.back().y;
  }
  desktop_.key(VK_DOWN);
  EXPECT_TRUE(Sees(pane)) << "a key chooses a folder in it";
  desktop_.move_to(900, 0);
  ClickButton(ToolbarButton::crop);
  EXPECT_TRUE(Sees(window_.crop()));
  desktop_.key(VK_ESCAPE);
  EXPECT_FALSE(Sees(window_.crop()));
  EXPECT_TRUE(window_.full_screen()) << "Escape had something else to end";
  desktop_.key(VK_ESCAPE);
  desktop_.pump();
  EXPECT_EQ(Place(), CRect(0, 0, 1280, 800));
  EXPECT_EQ(desktop_.own().display.size().cx, 1280);
  EXPECT_TRUE(Sees(pane) && Sees(Strip()));
}

TEST_F(PictureView, TheDesktopMayEndFullScreen) {
  Start();
  desktop_.move_to(640, 400);
  for (int round = 0; round < 2; ++round) {
    desktop_.key(VK_F11);
    desktop_.pump();
    EXPECT_FALSE(Sees(Strip()));
    desktop_.own().display.resize({1280, 800});
    desktop_.pump();
    EXPECT_EQ(Place(), CRect(0, 0, 1280, 800));
    EXPECT_TRUE(Sees(Strip()) && !window_.full_screen());
  }
}

TEST_F(LibraryWindow, FullScreenOnAScreenThatIsFilledAlreadyHidesTheParts) {
  Start();
  const CRect before = PictureOnScreen();
  for (const bool full : {true, false}) {
    desktop_.key(VK_F11);
    EXPECT_EQ(window_.browser().pane().IsWindowVisible() == FALSE, full);
    EXPECT_EQ(PictureOnScreen() != before, full);
    if (full) Press({VK_CONTROL, 'O'});  // the second time a box is in front
  }
}

}  // namespace
}  // namespace capture
