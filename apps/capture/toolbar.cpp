#include "apps/capture/toolbar.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kList = 100;
constexpr int kBackground = 7;
constexpr int kQuitMargin = 12;

}  // namespace

bool CToolbar::Open(CWnd* parent) {
  skin_.Load({kList});
  CRect unused;
  skin_.LoadGdiImage(background_, unused, kBackground);
  layer_.SetXmlListMgr(&skin_);
  layer_.SetBgImage(background_.GetImage(), CRect());
  for (const ToolbarButton button :
       {ToolbarButton::crop, ToolbarButton::text, ToolbarButton::open, ToolbarButton::previous,
        ToolbarButton::next, ToolbarButton::quit}) {
    layer_.AddBtn(static_cast<int>(button));
  }
  layer_.CreateEx(0, nullptr, L"toolbar", WS_CHILD | WS_CLIPCHILDREN, CRect(0, 0, 0, 0), parent, 0);
  layer_.ShowWindow(SW_SHOW);
  return layer_.GetSafeHwnd() != nullptr;
}

void CToolbar::Place(int width) {
  layer_.MoveWindow(0, 0, width, kHeight);
  const int quit = static_cast<int>(ToolbarButton::quit);
  CRect place = layer_.GetBtnRect(quit);
  place.OffsetRect(width - kQuitMargin - place.right, 0);
  layer_.SetBtnRect(quit, place);
}

CRect CToolbar::ButtonOnScreen(ToolbarButton button) const {
  CRect rect = layer_.GetBtnRect(static_cast<int>(button));
  layer_.ClientToScreen(rect);
  return rect;
}

}  // namespace capture
