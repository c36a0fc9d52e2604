#include "corvane/platform/skin_reader/attribute_values.h"

#include <gtest/gtest.h>

#include <limits>

namespace corvane {
namespace {

constexpr auto kMin = std::numeric_limits<std::int32_t>::min();
constexpr auto kLargest = std::numeric_limits<std::int32_t>::max();

TEST(AttributeValues, Numbers) {
  const std::pair<const char*, std::int32_t> numbers[] = {{"0", 0},
                                                          {"-7", -7},
                                                          {"+7", 7},
                                                          {" 12\n", 12},
                                                          {"2147483647", kLargest},
                                                          {"-2147483648", kMin}};
  for (const auto& [text, number] : numbers) {
    EXPECT_EQ(parse_number(text, kMin, kLargest), number) << text;
  }
  for (const char* const text : {"2147483648", "99999999999999999999999999", "", " ", "-", "+-1",
                                 "++1", "1.5", "1e3", "0x10", "12px", "1 2"}) {
    EXPECT_EQ(parse_number(text, kMin, kLargest), std::nullopt) << text;
  }
  for (const char* const text : {"1", "10"}) EXPECT_TRUE(parse_number(text, 1, 10)) << text;
  for (const char* const text : {"0", "11"}) EXPECT_FALSE(parse_number(text, 1, 10)) << text;
}

TEST(AttributeValues, Colors) {
  const std::pair<const char*, COLORREF> colors[] = {{"#FF8000", RGB(0xFF, 0x80, 0x00)},
                                                     {"#0000ff", RGB(0, 0, 0xFF)},
                                                     {" #010203 ", RGB(1, 2, 3)}};
  for (const auto& [text, color] : colors) EXPECT_EQ(parse_color(text), color) << text;
  for (const char* const text : {"FF8000", "#FFF", "#FF80000", "#GG0000", "#-10000", "red", ""}) {
    EXPECT_EQ(parse_color(text), std::nullopt) << text;
  }
}

TEST(AttributeValues, Switches) {
  for (const char* const text : {"true", "1"}) EXPECT_EQ(parse_switch(text), true) << text;
  for (const char* const text : {" false\n", "0"}) EXPECT_EQ(parse_switch(text), false) << text;
  for (const char* const text : {"yes", "True", ""}) {
    EXPECT_EQ(parse_switch(text), std::nullopt) << text;
  }
}

TEST(AttributeValues, ImageNamesStayInTheImageFolder) {
  const std::pair<const char*, const wchar_t*> names[] = {
      {"save.png", L"save.png"},
      {"icons/save.png", L"icons\\save.png"},
      {"icons\\save.png", L"icons\\save.png"},
      {"\xE4\xBF\x9D\xE5\xAD\x98.png", L"保存.png"},
      {"two words.png", L"two words.png"},
      {"i/j/k", L"i\\j\\k"},
      {".hidden..png", L".hidden..png"},
      {"...", L"..."}};
  for (const auto& [text, name] : names) EXPECT_EQ(parse_image_name(text), name) << text;
  for (const char* const text :
       {"", "/save.png", "\\save.png", "\\\\server\\save.png", "C:save.png", "save.png:stream",
        "..", "../save.png", "icons\\..\\..\\save.png", "icons/./save.png", "icons//save.png",
        "icons/", "a\nb.png", "\xFF.png"}) {
    EXPECT_EQ(parse_image_name(text), std::nullopt) << text;
  }
}

}  // namespace
}  // namespace corvane
