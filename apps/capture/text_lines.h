#pragma once
// A text broken into lines that fit a width, and what of it is selected: positions between
// characters, without a window.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace capture {

struct TextRange {
  std::size_t first = 0;
  std::size_t last = 0;  // excluded
  bool empty() const { return first == last; }
};

class CTextLines {
 public:
  using Measure = std::function<int(std::wstring_view)>;  // width in pixels

  // Breaks at line ends, after blanks, beside Chinese characters and, in a word wider than the
  // width, anywhere.
  void LayOut(const std::wstring& text, int width, const Measure& measure);
  const std::wstring& text() const { return text_; }
  const std::vector<TextRange>& lines() const { return lines_; }
  std::wstring_view part(const TextRange& range) const {
    return std::wstring_view(text_).substr(range.first, range.last - range.first);
  }
  // The position nearest to a point; lines outside act as the first and the last one.
  std::size_t PositionAt(int x, int line, const Measure& measure) const;

 private:
  std::size_t end_of_line(std::size_t first, std::size_t end, int width,
                          const Measure& measure) const;

  std::wstring text_;
  std::vector<TextRange> lines_;
};

class CTextSelection {
 public:
  void Clear() { begin_ = end_ = 0; }
  void Begin(std::size_t position) { begin_ = end_ = position; }
  void Extend(std::size_t position) { end_ = position; }
  void SelectAll(std::size_t length) { begin_ = 0, end_ = length; }
  TextRange range() const;

 private:
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

}  // namespace capture
