#pragma once
// Where a scroll bar's codes and the wheel move a view to. Positions are pixels of content.
#include "corvane/platform/platform.h"

namespace corvane {

struct ScrollState {
  int minimum = 0;
  int limit = 0;  // the largest position that the page allows
  int page = 0;
  int position = 0;
};

// `code` is a code of WM_VSCROLL, `thumb` the position that comes with the thumb's codes. Codes
// that do not move leave the position.
int scrolled_by_bar(UINT code, UINT thumb, const ScrollState& state);
// `distance`: 120 for each notch away from the user, which moves 10 pixels up.
int scrolled_by_wheel(short distance, const ScrollState& state);

}  // namespace corvane
