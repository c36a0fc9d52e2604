#pragma once
// The skin in tests/support/skin, whose draw.py makes its pictures, in force for as long as the
// object lives. Most of its buttons have no images: only their places count.
#include "corvane/platform/platform.h"

namespace corvane::test {

class TestSkin {
 public:
  TestSkin();
  ~TestSkin();
  TestSkin(const TestSkin&) = delete;
  TestSkin& operator=(const TestSkin&) = delete;

  void remove_files();  // a skin stays in force, without any file

  // List 100: buttons 11 and 12, and 13 whose image is clear everywhere and has a caption.
  static constexpr int button_list = 100;
  static constexpr RECT button_11 = {10, 10, 70, 40};
  static constexpr RECT button_12 = {100, 10, 160, 40};
  static constexpr RECT button_13 = {10, 50, 70, 90};
  // The caption, an H of 32 pixels, at button 13 and in the crop bar at button 1.
  static constexpr COLORREF caption = RGB(192, 0, 0);
  static constexpr COLORREF caption_hover = RGB(0, 160, 0);
  static constexpr COLORREF caption_pressed = RGB(0, 0, 192);

  // List 1, the folder tree: images of one colour each.
  static constexpr COLORREF collapsed_glyph = RGB(200, 0, 0);
  static constexpr COLORREF expanded_glyph = RGB(0, 160, 0);
  static constexpr COLORREF folder = RGB(200, 180, 0);
  static constexpr COLORREF highlighted_folder = RGB(200, 0, 200);
};

}  // namespace corvane::test
