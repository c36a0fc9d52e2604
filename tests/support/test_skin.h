#pragma once
// A skin in a temporary folder, in force for as long as the object lives. Most of its
// buttons have no images: only their places count.
#include <string>

#include "corvane/platform/platform.h"
#include "tests/support/temporary_folder.h"

namespace corvane::test {

class TestSkin {
 public:
  TestSkin();
  ~TestSkin();
  TestSkin(const TestSkin&) = delete;
  TestSkin& operator=(const TestSkin&) = delete;

  void remove_files();  // the folder stays in force, empty

  // The crop bar's buttons: list 4, controls 1 to 6, each of its own size and standing anywhere.
  static constexpr SIZE crop_button_sizes[] = {{40, 30}, {50, 30}, {60, 32},
                                               {30, 28}, {80, 34}, {70, 20}};
  // List 100: buttons 11 and 12, and 13 whose image is clear everywhere.
  static constexpr int button_list = 100;
  static constexpr RECT button_11 = {10, 10, 70, 40};
  static constexpr RECT button_12 = {100, 10, 160, 40};
  static constexpr RECT button_13 = {10, 60, 70, 90};

  // List 1, the folder tree: images of one colour each.
  static constexpr COLORREF collapsed_glyph = RGB(200, 0, 0);
  static constexpr COLORREF expanded_glyph = RGB(0, 160, 0);
  static constexpr COLORREF folder = RGB(200, 180, 0);
  static constexpr COLORREF highlighted_folder = RGB(200, 0, 200);

 private:
  TemporaryFolder folder_;
};

}  // namespace corvane::test
