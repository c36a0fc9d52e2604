#include "apps/capture/toolbar.h"

namespace capture {
namespace {

using namespace corvane;

constexpr int kList = 100;
constexpr int kBackground = 7;
constexpr int kOwnHeight = 76;
constexpr int kQuitMargin = 12;
constexpr ToolbarButton kButtons[] = {ToolbarButton::crop, ToolbarButton::text,
                                      ToolbarButton::open, ToolbarButton::previous,
                                      ToolbarButton::next, ToolbarButton::quit};

}  // namespace

bool CToolbar::Open(CWnd* parent) {
  skin_.Load({kList});
  CRect place;
  skin_.LoadGdiImage(background_, place, kBackground);
  height_ = place.Height() > 0 ? place.Height() : kOwnHeight;
  layer_.DelAllBtn();  // of a window that was there before
  natural_.clear();
  layer_.SetXmlListMgr(&skin_);
  layer_.SetBgImage(background_.GetImage(), CRect());
  for (const ToolbarButton button : kButtons) layer_.AddBtn(static_cast<int>(button));
  layer_.CreateEx(0, nullptr, L"toolbar", WS_CHILD | WS_CLIPCHILDREN, CRect(0, 0, 0, 0), parent, 0);
  layer_.ShowWindow(SW_SHOW);
  for (const ToolbarButton button : kButtons) {
    natural_.push_back(layer_.GetBtnRect(static_cast<int>(button)));
  }
  return layer_.GetSafeHwnd() != nullptr;
}

void CToolbar::Place(int width) {
  layer_.MoveWindow(0, 0, width, height_);
  std::vector<CRect> places = natural_;
  CRect& quit = places.back();
  quit.OffsetRect(width - kQuitMargin - quit.right, 0);
  const int count = static_cast<int>(places.size());
  if (quit.left < places[places.size() - 2].right) {
    for (int i = 0; i < count; ++i) {
      places[static_cast<std::size_t>(i)].left = width * i / count;
      places[static_cast<std::size_t>(i)].right = width * (i + 1) / count;
    }
  }
  for (std::size_t i = 0; i < places.size(); ++i) {
    layer_.SetBtnRect(static_cast<int>(kButtons[i]), places[i]);
  }
}

CRect CToolbar::ButtonOnScreen(ToolbarButton button) const {
  CRect rect = layer_.GetBtnRect(static_cast<int>(button));
  layer_.ClientToScreen(rect);
  return rect;
}

std::vector<HWND> CToolbar::Buttons() const {
  std::vector<HWND> windows;
  for (const ToolbarButton button : kButtons) {
    windows.push_back(::GetDlgItem(layer_, static_cast<int>(button)));
  }
  return windows;
}

}  // namespace capture
