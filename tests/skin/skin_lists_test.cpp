#include "corvane/skin/skin_lists.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>

namespace corvane {
namespace {

_MYCONTROL* new_control(int id, std::optional<int> caption, int left = 0) {
  auto* const control = new _MYCONTROL;
  control->id = id;
  control->rect.left = left;
  if (caption) {
    control->caption_ids = std::make_unique<std::int32_t[]>(2);
    control->caption_ids[0] = *caption;
    control->caption_ids[1] = 1;
  }
  return control;
}

_MYLANGUAGE* new_caption(int id, int font, const wchar_t* text = L"") {
  return new _MYLANGUAGE{id, text, font};
}

_MYFONT* new_font(int id) {
  auto* const font = new _MYFONT;
  font->id = id;
  font->description = std::make_unique<LOGFONTW>();
  return font;
}

void fill(SkinLists& lists) {
  lists.controls = {nullptr,
                    new_control(1, 10, 5),
                    new_control(2, std::nullopt),
                    nullptr,
                    new_control(3, 404),
                    new_control(4, 11),
                    new_control(1, 11, 6),
                    new_control(-8, 12)};
  lists.captions = {new_caption(1, 20),
                    nullptr,
                    new_caption(10, 20, L"first"),
                    new_caption(11, 404),
                    new_caption(12, 21),
                    new_caption(10, 21, L"second")};
  lists.fonts = {new_font(21), nullptr, new_font(20), new_font(20)};
}

TEST(SkinLists, JoinsAControlWithItsCaptionAndFont) {
  SkinLists lists;
  fill(lists);
  struct Case {
    const char* name;
    int id;
    bool control;
    int caption;  // 0: none
    int font;     // 0: none
  };
  const Case cases[] = {{"all three", 1, true, 10, 20},     {"no caption ids", 2, true, 0, 0},
                        {"unknown caption", 3, true, 0, 0}, {"unknown font", 4, true, 11, 0},
                        {"negative id", -8, true, 12, 21},  {"unknown control", 5, false, 0, 0}};
  for (const auto& each : cases) {
    const auto joined = lists.joined(each.id);
    EXPECT_EQ(joined.control != nullptr, each.control) << each.name;
    EXPECT_EQ(joined.caption ? joined.caption->id : 0, each.caption) << each.name;
    EXPECT_EQ(joined.font ? joined.font->id : 0, each.font) << each.name;
  }
}

TEST(SkinLists, TheEarlierOfTwoRecordsWithOneIdIsFound) {
  SkinLists lists;
  fill(lists);
  EXPECT_EQ(lists.control(1)->rect.left, 5);
  EXPECT_EQ(lists.caption(10)->text, L"first");
  EXPECT_EQ(lists.font(20), *std::next(lists.fonts.begin(), 2));
}

TEST(SkinLists, EmptyListsHoldNothing) {
  const SkinLists lists;
  EXPECT_EQ(lists.control(0), nullptr);
  EXPECT_EQ(lists.caption(0), nullptr);
  EXPECT_EQ(lists.font(0), nullptr);
  EXPECT_EQ(lists.joined(0).control, nullptr);
  EXPECT_EQ(lists.background, 0u);
}

TEST(SkinLists, ReleasingOneListKeepsTheOthersAndTheBackground) {
  SkinLists lists;
  fill(lists);
  lists.background = RGB(1, 2, 3);
  const auto sizes = [&lists] {
    return std::array{lists.controls.size(), lists.captions.size(), lists.fonts.size()};
  };
  lists.release_controls();
  EXPECT_EQ(sizes(), (std::array<std::size_t, 3>{0, 6, 4}));
  lists.release_captions();
  EXPECT_EQ(sizes(), (std::array<std::size_t, 3>{0, 0, 4}));
  lists.release_fonts();
  EXPECT_EQ(sizes(), (std::array<std::size_t, 3>{0, 0, 0}));
  EXPECT_EQ(lists.background, RGB(1, 2, 3));
  lists.release_controls();
}

}  // namespace
}  // namespace corvane
