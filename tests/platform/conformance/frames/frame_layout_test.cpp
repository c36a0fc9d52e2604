// Where the parts of a frame lie, without windows.
#include "corvane/platform/system/user/frames/frame_layout.h"

#include <gtest/gtest.h>

#include <vector>

#include "corvane/platform/system/user/frames/frame_sides.h"
#include "tests/support/rects.h"

namespace corvane::conformance {
namespace {

using system::FrameLayout;
using test::text_of;

constexpr RECT kOuter{100, 200, 500, 500};
constexpr DWORD kDialog = WS_POPUP | WS_CAPTION | WS_SYSMENU;

struct Hit {
  DWORD style;
  DWORD ex_style;
  POINT point;  // within kOuter
  int code;
};

TEST(FrameLayoutTest, CodesOfPoints) {
  constexpr DWORD kAll = WS_OVERLAPPEDWINDOW;
  for (const Hit& each :
       std::vector<Hit>{{kAll, 0, {99, 300}, HTNOWHERE},
                        {kAll, 0, {500, 300}, HTNOWHERE},
                        {kAll, 0, {100, 300}, HTLEFT},
                        {kAll, 0, {103, 300}, HTLEFT},
                        {kAll, 0, {496, 300}, HTRIGHT},
                        {kAll, 0, {300, 203}, HTTOP},
                        {kAll, 0, {300, 496}, HTBOTTOM},
                        {kAll, 0, {118, 200}, HTTOPLEFT},
                        {kAll, 0, {119, 200}, HTTOP},
                        {kAll, 0, {499, 218}, HTTOPRIGHT},
                        {kAll, 0, {100, 481}, HTBOTTOMLEFT},
                        {kAll, 0, {481, 499}, HTBOTTOMRIGHT},
                        {kAll, 0, {104, 204}, HTCAPTION},
                        {kAll, 0, {300, 222}, HTCAPTION},
                        {kAll, 0, {300, 223}, HTBORDER},
                        {kAll, 0, {495, 222}, HTCLOSE},
                        {kAll, 0, {470, 204}, HTCLOSE},
                        {kAll, 0, {469, 204}, HTMAXBUTTON},
                        {kAll, 0, {443, 204}, HTMINBUTTON},
                        {kAll, 0, {417, 204}, HTCAPTION},
                        {kAll & ~WS_MAXIMIZEBOX, 0, {469, 204}, HTMINBUTTON},
                        {kAll & ~WS_SYSMENU, 0, {495, 210}, HTCAPTION},
                        {kAll | WS_MAXIMIZE, 0, {100, 200}, HTBORDER},
                        {kAll | WS_MINIMIZE, 0, {100, 300}, HTBORDER},
                        {WS_POPUP | WS_MINIMIZE, 0, {300, 210}, HTCAPTION},
                        {kDialog, 0, {102, 300}, HTBORDER},
                        {kDialog, 0, {496, 210}, HTCLOSE},
                        {kDialog | WS_MAXIMIZEBOX, WS_EX_TOOLWINDOW, {470, 210}, HTCAPTION},
                        {kDialog, WS_EX_TOOLWINDOW, {478, 218}, HTCLOSE},
                        {kDialog, WS_EX_TOOLWINDOW, {478, 219}, HTBORDER},
                        {WS_POPUP | WS_THICKFRAME, 0, {102, 300}, HTLEFT},
                        {WS_POPUP | WS_THICKFRAME, 0, {103, 300}, HTBORDER},
                        {WS_BORDER, 0, {100, 200}, HTBORDER}}) {
    EXPECT_EQ(FrameLayout(kOuter, each.style, each.ex_style).hit(each.point), each.code)
        << std::hex << each.style << ' ' << each.ex_style << ' ' << text_of(each.point);
  }
}

TEST(FrameLayoutTest, PartsWithoutRoomAreLeftOut) {
  const FrameLayout narrow({0, 0, 70, 60}, WS_OVERLAPPEDWINDOW, 0);
  EXPECT_EQ(text_of(narrow.box(HTCLOSE)), "40,4,66,23");
  EXPECT_EQ(text_of(narrow.box(HTMAXBUTTON)), "14,4,40,23");
  EXPECT_EQ(text_of(narrow.box(HTMINBUTTON)), "0,0,0,0");
  EXPECT_EQ(text_of(narrow.text()), "8,4,10,23");
  for (const RECT& tiny : {RECT{5, 6, 5, 6}, RECT{5, 6, 9, 12}}) {
    const FrameLayout layout(tiny, WS_OVERLAPPEDWINDOW, WS_EX_CLIENTEDGE);
    EXPECT_EQ(text_of(layout.inside()), "11,31,11,31");
    EXPECT_EQ(text_of(layout.caption()), "0,0,0,0");
  }
  constexpr LONG kFar = 0x7FFFFFFF;
  const RECT everything{-kFar, -kFar, kFar, kFar};
  EXPECT_EQ(FrameLayout(everything, WS_CAPTION, 0).hit({0, 0}), HTBORDER);
}

TEST(FrameLayoutTest, DraggedSideKeepsTheOppositeOneAndTheLimits) {
  MINMAXINFO limits{};
  limits.ptMinTrackSize = {50, 40};
  limits.ptMaxTrackSize = {450, 350};
  struct Drag {
    int side;
    POINT travel;
    const char* frame;
  };
  for (const Drag& each :
       {Drag{WMSZ_LEFT, {10, 99}, "110,200,500,500"}, Drag{WMSZ_LEFT, {-90, 0}, "50,200,500,500"},
        Drag{WMSZ_RIGHT, {-380, 0}, "100,200,150,500"}, Drag{WMSZ_TOP, {99, -7}, "100,193,500,500"},
        Drag{WMSZ_BOTTOM, {0, 90}, "100,200,500,550"},
        Drag{WMSZ_TOPLEFT, {5, 270}, "105,460,500,500"},
        Drag{WMSZ_TOPRIGHT, {5, 6}, "100,206,505,500"},
        Drag{WMSZ_BOTTOMLEFT, {5, 6}, "105,200,500,506"},
        Drag{WMSZ_BOTTOMRIGHT, {5, 6}, "100,200,505,506"}}) {
    EXPECT_EQ(text_of(system::sized_frame(kOuter, each.side, each.travel, limits)), each.frame)
        << each.side;
  }
}

}  // namespace
}  // namespace corvane::conformance
