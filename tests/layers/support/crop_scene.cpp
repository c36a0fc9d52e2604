#include "tests/layers/support/crop_scene.h"

#include <string>

namespace corvane::test {
namespace {

// The first window after `first` in z-order, upwards, that the owner owns.
HWND owned_by(HWND owner) {
  for (HWND each = ::GetWindow(owner, GW_HWNDFIRST); each; each = ::GetWindow(each, GW_HWNDNEXT)) {
    if (::GetWindow(each, GW_OWNER) == owner) return each;
  }
  return nullptr;
}

}  // namespace

bool create_over(corvane::CCutBgLayer& background, HWND host) {
  const wchar_t* window_class =
      corvane::AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursorW(nullptr, IDC_ARROW),
                                   static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH)));
  RECT place{};
  ::GetWindowRect(host, &place);
  return background.CreateEx(WS_EX_TOOLWINDOW, window_class, L"cutBgLayer", WS_POPUP, place.left,
                             place.top, place.right - place.left, place.bottom - place.top, host,
                             nullptr);
}

HWND rect_layer_of(HWND background) { return background ? owned_by(background) : nullptr; }

HWND bar_of(HWND background) {
  const HWND layer = rect_layer_of(background);
  return layer ? owned_by(layer) : nullptr;
}

void CropTest::SetUp() {
  HostTest::SetUp();
  background_.SetParentHwnd(host_);
  ASSERT_TRUE(create_over(background_, host_));
}

void CropTest::start(bool with_bar, bool text_recognition) {
  background_.ShowBtn(with_bar);
  background_.SetOCRMode(text_recognition);
  background_.ShowWindow(SW_SHOW);
  desktop_.pump();
  host_.forget();
}

void CropTest::drag(POINT from, POINT to) {
  desktop_.drag(on_screen(from.x, from.y), on_screen(to.x, to.y));
}

COLORREF CropTest::pixel(int x, int y) { return desktop_.pixel(on_screen(x, y)); }

}  // namespace corvane::test
