#include "corvane/layers/crop/button_rows.h"

#include <algorithm>
#include <iterator>
#include <span>

#include "corvane/platform/geometry.h"

namespace corvane {
namespace {

constexpr std::array<int, 4> kNormalRow = {3, 4, 1, 2};
constexpr std::array<int, 2> kTextRecognitionRow = {5, 6};

std::span<const int> buttons_of(CropRow row) {
  if (row == CropRow::normal) return kNormalRow;
  return kTextRecognitionRow;
}

std::size_t index_of(int button) { return static_cast<std::size_t>(button - 1); }

}  // namespace

CropButtonRects lay_out_crop_buttons(const CropButtonRects& rects) {
  CropButtonRects laid = rects;
  for (const CropRow row : {CropRow::normal, CropRow::text_recognition}) {
    LONG left = 0;
    for (const int button : buttons_of(row)) {
      RECT& rect = laid[index_of(button)];
      rect = {left, 0, clamp_coordinate(left + width_of(rect)), clamp_coordinate(height_of(rect))};
      left = rect.right;
    }
  }
  return laid;
}

RECT crop_row_bounds(const CropButtonRects& rects, CropRow row) {
  const auto buttons = buttons_of(row);
  const RECT& first = rects[index_of(buttons.front())];
  const RECT& last = rects[index_of(buttons.back())];
  return {first.left, first.top, last.right, first.bottom};
}

CropRow row_of_crop_button(int button) {
  const auto found = std::find(kNormalRow.begin(), kNormalRow.end(), button);
  return found == kNormalRow.end() ? CropRow::text_recognition : CropRow::normal;
}

}  // namespace corvane
