#include "corvane/platform/skin_reader/attribute_values.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane {
namespace {

constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
constexpr auto kLargest = std::numeric_limits<std::int32_t>::max();

TEST(AttributeValues, Numbers) {
  struct Case {
    const char* text;
    std::optional<std::int32_t> expected;
  };
  const Case cases[] = {{"0", 0},
                        {"-7", -7},
                        {"+7", 7},
                        {" 12\n", 12},
                        {"2147483647", kLargest},
                        {"-2147483648", kMin},
                        {"2147483648", std::nullopt},
                        {"99999999999999999999999999", std::nullopt},
                        {"", std::nullopt},
                        {" ", std::nullopt},
                        {"-", std::nullopt},
                        {"+-1", std::nullopt},
                        {"++1", std::nullopt},
                        {"1.5", std::nullopt},
                        {"1e3", std::nullopt},
                        {"0x10", std::nullopt},
                        {"12px", std::nullopt},
                        {"1 2", std::nullopt}};
  for (const auto& each : cases) {
    EXPECT_EQ(parse_number(each.text, kMin, kLargest), each.expected) << each.text;
  }
}

TEST(AttributeValues, NumbersOutsideTheRangeCountAsAbsent) {
  EXPECT_EQ(parse_number("0", 1, 10), std::nullopt);
  EXPECT_EQ(parse_number("1", 1, 10), 1);
  EXPECT_EQ(parse_number("10", 1, 10), 10);
  EXPECT_EQ(parse_number("11", 1, 10), std::nullopt);
}

TEST(AttributeValues, Colors) {
  struct Case {
    const char* text;
    std::optional<COLORREF> expected;
  };
  const Case cases[] = {{"#FF8000", RGB(0xFF, 0x80, 0x00)},
                        {"#0000ff", RGB(0, 0, 0xFF)},
                        {" #010203 ", RGB(1, 2, 3)},
                        {"FF8000", std::nullopt},
                        {"#FFF", std::nullopt},
                        {"#FF80000", std::nullopt},
                        {"#GG0000", std::nullopt},
                        {"#-10000", std::nullopt},
                        {"red", std::nullopt},
                        {"", std::nullopt}};
  for (const auto& each : cases) EXPECT_EQ(parse_color(each.text), each.expected) << each.text;
}

TEST(AttributeValues, Switches) {
  const std::pair<const char*, std::optional<bool>> cases[] = {
      {"true", true},    {"1", true},           {" false\n", false},
      {"0", false},      {"yes", std::nullopt}, {"True", std::nullopt},
      {"", std::nullopt}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(parse_switch(text), expected) << text;
}

TEST(AttributeValues, ImageNamesStayInTheImageFolder) {
  struct Case {
    const char* text;
    std::optional<std::wstring> expected;
  };
  const Case cases[] = {{"save.png", L"save.png"},
                        {"icons/save.png", L"icons\\save.png"},
                        {"icons\\save.png", L"icons\\save.png"},
                        {"\xE4\xBF\x9D\xE5\xAD\x98.png", L"保存.png"},
                        {"two words.png", L"two words.png"},
                        {"i/j/k", L"i\\j\\k"},
                        {".hidden..png", L".hidden..png"},
                        {"...", L"..."},
                        {"", std::nullopt},
                        {"/save.png", std::nullopt},
                        {"\\save.png", std::nullopt},
                        {"\\\\server\\save.png", std::nullopt},
                        {"C:save.png", std::nullopt},
                        {"save.png:stream", std::nullopt},
                        {"..", std::nullopt},
                        {"../save.png", std::nullopt},
                        {"icons\\..\\..\\save.png", std::nullopt},
                        {"icons/./save.png", std::nullopt},
                        {"icons//save.png", std::nullopt},
                        {"icons/", std::nullopt},
                        {"a\nb.png", std::nullopt},
                        {"\xFF.png", std::nullopt}};
  for (const auto& each : cases) {
    EXPECT_EQ(parse_image_name(each.text), each.expected) << each.text;
  }
}

}  // namespace
}  // namespace corvane
