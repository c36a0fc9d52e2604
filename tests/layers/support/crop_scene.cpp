#include "tests/layers/support/crop_scene.h"

#include <numeric>

namespace corvane::test {

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

HWND rect_layer_of(HWND background) {
  if (background == nullptr) return nullptr;
  for (HWND each = ::GetWindow(background, GW_HWNDFIRST); each != nullptr;
       each = ::GetWindow(each, GW_HWNDNEXT)) {
    if (::GetWindow(each, GW_OWNER) == background) return each;
  }
  return nullptr;
}

void expect_caption_of_the_skin(Desktop& desktop, HWND button) {
  const RECT place = window_rect(button);
  // Inside of the letter's strokes; a smaller or thinner one has far fewer.
  const auto shows = [&](COLORREF color) {
    return desktop.frame().count(place, [color](COLORREF seen) { return seen == color; }) > 150;
  };
  EXPECT_TRUE(shows(TestSkin::caption));
  desktop.move_to(place.left + 2, place.top + 2);
  EXPECT_TRUE(shows(TestSkin::caption_hover));
  desktop.press();
  EXPECT_TRUE(shows(TestSkin::caption_pressed));
  desktop.release_at(0, 0);
}

void click_middle_of(Desktop& desktop, HWND window) {
  RECT place{};
  ::GetWindowRect(window, &place);
  desktop.click(std::midpoint(place.left, place.right), std::midpoint(place.top, place.bottom));
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

}  // namespace corvane::test
