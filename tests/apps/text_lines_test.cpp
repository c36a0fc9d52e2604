#include "apps/capture/text_lines.h"

#include <gtest/gtest.h>

namespace capture {
namespace {

int TenEach(std::wstring_view text) { return static_cast<int>(text.size()) * 10; }

TEST(TextLines, BreaksWhereALineMayEnd) {
  const struct {
    std::wstring text;
    int width;
    std::vector<std::wstring> lines;
  } cases[] = {{L"", 50, {L""}},
               {L"one two", 70, {L"one two"}},
               {L"one two", 69, {L"one ", L"two"}},
               {L"abcdefg", 30, {L"abc", L"def", L"g"}},
               {L"文字识别", 25, {L"文字", L"识别"}},
               {L"ab文字", 30, {L"ab文", L"字"}},
               {L"a\n\nb\n", 90, {L"a", L"", L"b", L""}},
               {L"ab", 1, {L"a", L"b"}}};
  for (const auto& [text, width, expected] : cases) {
    CTextLines lines;
    lines.LayOut(text, width, TenEach);
    std::vector<std::wstring> found;
    for (const TextRange& line : lines.lines()) found.emplace_back(lines.part(line));
    EXPECT_EQ(found, expected);
  }
}

TEST(TextLines, AVeryLongLineIsMeasuredOnlyAsFarAsItFits) {
  std::size_t measured = 0;
  CTextLines lines;
  lines.LayOut(std::wstring(100000, L'x'), 500, [&](std::wstring_view text) {
    measured += text.size();
    return TenEach(text);
  });
  EXPECT_EQ(lines.lines().size(), 2000u);
  EXPECT_LT(measured, 2000u * 1000);
}

TEST(TextLines, TheMouseSelectsForwardsAndBackwards) {
  CTextLines lines;
  lines.LayOut(L"one two\nthree", 50, TenEach);  // "one ", "two", "three"
  const struct {
    int x, line;
    std::size_t position;
  } cases[] = {{-5, 0, 0}, {4, 0, 0},   {6, 0, 1},  {99, 0, 4}, {16, 1, 6},
               {5, 2, 9},  {99, 2, 13}, {5, -1, 0}, {5, 3, 13}};
  for (const auto& [x, line, position] : cases) {
    EXPECT_EQ(lines.PositionAt(x, line, TenEach), position) << x << ", line " << line;
  }
  CTextSelection selection;
  selection.Begin(6);
  EXPECT_TRUE(selection.range().empty());
  selection.Extend(2);
  EXPECT_EQ(lines.part(selection.range()), L"e tw");
}

}  // namespace
}  // namespace capture
