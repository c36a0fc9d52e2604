#include "apps/capture/text_lines.h"

#include <algorithm>

namespace capture {
namespace {

constexpr wchar_t kFirstOfEastAsia = L'\u2E80';

bool may_break(wchar_t before, wchar_t after) {
  const bool blank = before == L' ' || before == L'\t';
  return blank || before >= kFirstOfEastAsia || after >= kFirstOfEastAsia;
}

}  // namespace

std::size_t CTextLines::end_of_line(std::size_t first, std::size_t end, int width,
                                    const Measure& measure) const {
  const auto fits = [&](std::size_t last) { return measure(part({first, last})) <= width; };
  std::size_t most = first + 1;  // at least one character
  std::size_t beyond = most;     // that is not measured whole, however long the rest is
  for (std::size_t step = 1; beyond < end && fits(beyond); step *= 2) {
    most = beyond;
    beyond = std::min(beyond + step, end);
  }
  if (beyond == end && fits(end)) return end;
  while (most + 1 < beyond) {
    const std::size_t middle = most + (beyond - most) / 2;
    (fits(middle) ? most : beyond) = middle;
  }
  for (std::size_t last = most; last > first + 1; --last) {
    if (may_break(text_[last - 1], text_[last])) return last;
  }
  return most;
}

void CTextLines::LayOut(const std::wstring& text, int width, const Measure& measure) {
  text_ = text;
  lines_.clear();
  for (std::size_t first = 0;;) {
    const std::size_t end = std::min(text_.find(L'\n', first), text_.size());
    while (first < end) {
      const std::size_t last = end_of_line(first, end, width, measure);
      lines_.push_back({first, last});
      first = last;
    }
    if (lines_.empty() || end == 0 || text_[end - 1] == L'\n') lines_.push_back({end, end});
    if (end == text_.size()) return;
    first = end + 1;
  }
}

std::size_t CTextLines::PositionAt(int x, int line, const Measure& measure) const {
  if (lines_.empty() || line < 0) return 0;
  if (line >= static_cast<int>(lines_.size())) return text_.size();
  const TextRange& range = lines_[static_cast<std::size_t>(line)];
  int left = 0;
  for (std::size_t at = range.first; at < range.last; ++at) {
    const int right = measure(part({range.first, at + 1}));
    if (x < (left + right) / 2) return at;
    left = right;
  }
  return range.last;
}

TextRange CTextSelection::range() const { return {std::min(begin_, end_), std::max(begin_, end_)}; }

}  // namespace capture
