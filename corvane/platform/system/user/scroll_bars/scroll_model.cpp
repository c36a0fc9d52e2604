#include "corvane/platform/system/user/scroll_bars/scroll_model.h"

#include <algorithm>
#include <cassert>
#include <cstdint>

namespace corvane::system {
namespace {

// A range of 32-bit positions has up to 2^32 steps.
using Wide = std::int64_t;

Wide steps(const ScrollModel& model) { return Wide{model.maximum} - model.minimum + 1; }
Wide travel(const ScrollModel& model) { return Wide{model.limit()} - model.minimum; }

// value * numerator / denominator, to the nearest.
Wide scaled(Wide value, Wide numerator, Wide denominator) {
  return (value * numerator + denominator / 2) / denominator;
}

int thumb_length(const ScrollModel& model, int trough, int least) {
  if (trough < least || !model.needed()) return 0;
  if (model.page == 0) return least;
  auto share = static_cast<int>(scaled(trough, Wide{model.page}, steps(model)));
  return std::clamp(share, least, trough);
}

ScrollLayout layout_without_thumb(int length, int thickness) {
  ScrollLayout layout;
  const int whole = std::max(length, 0);
  const int arrow = std::min(thickness, whole / 2);
  layout.line_back = {0, arrow};
  layout.trough = {arrow, whole - arrow};
  layout.line_forward = {whole - arrow, whole};
  return layout;
}

}  // namespace

void ScrollModel::change(const SCROLLINFO& wanted) {
  if ((wanted.fMask & SIF_RANGE) != 0) {
    const bool upside_down = wanted.nMin > wanted.nMax;
    minimum = upside_down ? 0 : wanted.nMin;
    maximum = upside_down ? 0 : wanted.nMax;
  }
  if ((wanted.fMask & SIF_PAGE) != 0) page = wanted.nPage;
  if ((wanted.fMask & SIF_POS) != 0) position = wanted.nPos;
  page = static_cast<UINT>(std::min(Wide{page}, steps(*this)));
  position = std::clamp(position, minimum, limit());
}

int ScrollModel::limit() const {
  return static_cast<int>(Wide{maximum} - std::max<Wide>(Wide{page} - 1, 0));
}

ScrollPart ScrollLayout::part_at(int place) const {
  if (line_back.holds(place)) return ScrollPart::line_back;
  if (line_forward.holds(place)) return ScrollPart::line_forward;
  if (thumb.length() <= 0 || !trough.holds(place)) return ScrollPart::none;
  if (thumb.holds(place)) return ScrollPart::thumb;
  return place < thumb.begin ? ScrollPart::page_back : ScrollPart::page_forward;
}

ScrollSpan ScrollLayout::span_of(ScrollPart part) const {
  switch (part) {
    case ScrollPart::line_back:
      return line_back;
    case ScrollPart::page_back:
      return {trough.begin, thumb.begin};
    case ScrollPart::thumb:
      return thumb;
    case ScrollPart::page_forward:
      return {thumb.end, trough.end};
    case ScrollPart::line_forward:
      return line_forward;
    case ScrollPart::none:
      break;
  }
  return {};
}

ScrollLayout scroll_layout(const ScrollModel& model, int length, int thickness) {
  ScrollLayout layout = layout_without_thumb(length, thickness);
  const int thumb = thumb_length(model, layout.trough.length(), thickness);
  if (thumb == 0) return layout;
  const Wide room = layout.trough.length() - thumb;
  const Wide gone = scaled(Wide{model.position} - model.minimum, room, travel(model));
  const int begin = layout.trough.begin + static_cast<int>(gone);
  layout.thumb = {begin, begin + thumb};
  assert(layout.thumb.end <= layout.trough.end);
  return layout;
}

ScrollLayout scroll_layout_dragged(const ScrollModel& model, int length, int thickness,
                                   int thumb_begin) {
  ScrollLayout layout = scroll_layout(model, length, thickness);
  const int thumb = layout.thumb.length();
  if (thumb == 0) return layout;
  const int begin = std::clamp(thumb_begin, layout.trough.begin, layout.trough.end - thumb);
  layout.thumb = {begin, begin + thumb};
  return layout;
}

int position_of_thumb(const ScrollModel& model, const ScrollLayout& layout) {
  const Wide room = layout.trough.length() - layout.thumb.length();
  if (layout.thumb.length() == 0 || room <= 0) return model.position;
  const Wide gone = scaled(layout.thumb.begin - layout.trough.begin, travel(model), room);
  return static_cast<int>(model.minimum + gone);
}

}  // namespace corvane::system
