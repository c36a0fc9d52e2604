// The arithmetic of scroll bars, without a window.
#include "corvane/platform/system/user/scroll_bars/scroll_model.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

namespace corvane::system {
namespace {

constexpr int kThickness = 17;

ScrollModel model(int minimum, int maximum, UINT page, int position) {
  ScrollModel made;
  made.change({sizeof(SCROLLINFO), SIF_ALL, minimum, maximum, page, position, 0});
  return made;
}

std::string text(const ScrollModel& it) {
  return std::to_string(it.minimum) + ".." + std::to_string(it.maximum) + " page " +
         std::to_string(it.page) + " pos " + std::to_string(it.position) + " limit " +
         std::to_string(it.limit()) + (it.needed() ? "" : " not needed");
}

std::string text(ScrollSpan span) {
  return std::to_string(span.begin) + ".." + std::to_string(span.end);
}

struct Change {
  UINT mask;
  int minimum, maximum;
  UINT page;
  int position;
};
struct Changes {
  std::vector<Change> changes;  // one after the other, from a fresh model
  const char* result;
};

constexpr Change kSet = {SIF_ALL, 0, 600, 300, 250};

TEST(ScrollModelTest, ChangesKeepThePositionAndThePageInTheirLimits) {
  for (const Changes& given : {
           Changes{{}, "0..100 page 0 pos 0 limit 100"},
           Changes{{{0, 5, 6, 7, 8}}, "0..100 page 0 pos 0 limit 100"},
           // The page shortens the limit.
           Changes{{{SIF_ALL, 0, 600, 300, 900}}, "0..600 page 300 pos 301 limit 301"},
           Changes{{{SIF_ALL, 10, 600, 300, -5}}, "10..600 page 300 pos 10 limit 301"},
           // Changes that move the position, and one that does not.
           Changes{{kSet, {SIF_RANGE | SIF_PAGE, 0, 400, 300, 0}},
                   "0..400 page 300 pos 101 limit 101"},
           Changes{{kSet, {SIF_PAGE, 0, 0, 500, 0}}, "0..600 page 500 pos 101 limit 101"},
           Changes{{kSet, {SIF_RANGE, -100, 700, 0, 0}}, "-100..700 page 300 pos 250 limit 401"},
           // Upside down, and pages around the range.
           Changes{{{SIF_ALL, 600, 0, 300, 250}}, "0..0 page 1 pos 0 limit 0 not needed"},
           Changes{{{SIF_ALL, 0, 100, 101, 7}}, "0..100 page 101 pos 0 limit 0 not needed"},
           Changes{{{SIF_ALL, 0, 100, 5000, 7}}, "0..100 page 101 pos 0 limit 0 not needed"},
           Changes{{{SIF_ALL, 0, 100, 100, 7}}, "0..100 page 100 pos 1 limit 1"},
           Changes{{{SIF_ALL, 5, 5, 0, 9}}, "5..5 page 0 pos 5 limit 5 not needed"},
           Changes{{{SIF_ALL, -500, -100, 100, -450}}, "-500..-100 page 100 pos -450 limit -199"},
           // The whole 32 bits.
           Changes{{{SIF_ALL, INT_MIN, INT_MAX, 10, 70000}},
                   "-2147483648..2147483647 page 10 pos 70000 limit 2147483638"},
           Changes{{{SIF_ALL, INT_MIN, INT_MAX, UINT_MAX, 5}},
                   "-2147483648..2147483647 page 4294967295 pos -2147483647 limit -2147483647"},
       }) {
    ScrollModel changed;
    for (const Change& each : given.changes) {
      changed.change(
          {sizeof(SCROLLINFO), each.mask, each.minimum, each.maximum, each.page, each.position, 0});
    }
    EXPECT_EQ(text(changed), given.result);
  }
}

struct Layout {
  const char* label;
  ScrollModel model;
  int length;
  const char* thumb;
};

TEST(ScrollLayoutTest, ThumbLiesInTheTrough) {
  for (const Layout& given :
       {Layout{"at the beginning", model(0, 600, 300, 0), 300, "17..150"},
        Layout{"at the limit", model(0, 600, 300, 301), 300, "150..283"},
        Layout{"in the middle", model(0, 600, 300, 150), 300, "83..216"},
        Layout{"without a page", model(0, 100, 0, 100), 300, "266..283"},
        Layout{"never shorter than it is wide", model(0, 99999, 1, 0), 300, "17..34"},
        Layout{"nothing to scroll", model(0, 100, 101, 0), 300, "0..0"},
        Layout{"fills a short trough", model(0, 600, 300, 9), 51, "17..34"},
        Layout{"trough too short", model(0, 600, 300, 0), 50, "0..0"},
        Layout{"only arrows", model(0, 600, 300, 0), 20, "0..0"},
        Layout{"all of 32 bits", model(INT_MIN, INT_MAX, 0, 0), 300, "142..159"}}) {
    const ScrollLayout layout = scroll_layout(given.model, given.length, kThickness);
    EXPECT_EQ(text(layout.thumb), given.thumb) << given.label;
    EXPECT_EQ(layout.line_back.begin, 0) << given.label;
    EXPECT_EQ(layout.line_back.end, layout.trough.begin) << given.label;
    EXPECT_EQ(layout.trough.end, layout.line_forward.begin) << given.label;
    EXPECT_EQ(layout.line_forward.end, given.length) << given.label;
  }
}

TEST(ScrollLayoutTest, PartsFollowEachOtherWithoutGaps) {
  const ScrollLayout layout = scroll_layout(model(0, 600, 300, 150), 300, kThickness);
  struct Place {
    int place;
    ScrollPart part;
  };
  const Place places[] = {{-1, ScrollPart::none},          {0, ScrollPart::line_back},
                          {16, ScrollPart::line_back},     {17, ScrollPart::page_back},
                          {82, ScrollPart::page_back},     {83, ScrollPart::thumb},
                          {215, ScrollPart::thumb},        {216, ScrollPart::page_forward},
                          {282, ScrollPart::page_forward}, {283, ScrollPart::line_forward},
                          {299, ScrollPart::line_forward}, {300, ScrollPart::none}};
  for (const Place& each : places) {
    EXPECT_EQ(layout.part_at(each.place), each.part) << each.place;
    EXPECT_EQ(layout.span_of(each.part).holds(each.place), each.part != ScrollPart::none)
        << each.place;
  }
}

TEST(ScrollLayoutTest, WithoutAThumbTheTroughIsDead) {
  const ScrollLayout layout = scroll_layout(model(0, 0, 0, 0), 300, kThickness);
  EXPECT_EQ(layout.part_at(5), ScrollPart::line_back);
  EXPECT_EQ(layout.part_at(150), ScrollPart::none);
  const ScrollModel given = model(0, 600, 300, 150);
  EXPECT_EQ(position_of_thumb(given, scroll_layout(given, 50, kThickness)), 150);
}

TEST(ScrollLayoutTest, DraggedThumbMeansThePositionUnderIt) {
  const ScrollModel given = model(0, 600, 300, 0);
  struct Drag {
    int begin;
    int position;
  };
  for (const Drag& each :
       {Drag{-500, 0}, Drag{17, 0}, Drag{18, 2}, Drag{83, 149}, Drag{150, 301}, Drag{900, 301}}) {
    const ScrollLayout layout = scroll_layout_dragged(given, 300, kThickness, each.begin);
    EXPECT_EQ(position_of_thumb(given, layout), each.position) << each.begin;
  }
}

TEST(ScrollLayoutTest, EveryPositionIsReachedWhereThereAreMorePixels) {
  for (int position = -20; position <= 40; ++position) {
    const ScrollModel given = model(-20, 50, 11, position);
    EXPECT_EQ(position_of_thumb(given, scroll_layout(given, 300, kThickness)), position);
  }
}

}  // namespace
}  // namespace corvane::system
