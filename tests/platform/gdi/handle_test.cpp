#include <gtest/gtest.h>

#include <string>

#include "corvane/platform/system/handle_table.h"
#include "corvane/platform/system/types.h"

namespace corvane::system {
namespace {

TEST(HandleTable, StaleHandlesStayDeadWhenThePlaceIsUsedAgain) {
  HandleTable<std::string> table(next_owner_tag());
  const std::uint64_t first = table.insert("first");
  EXPECT_EQ(table.remove(first), "first");
  const std::uint64_t second = table.insert("second");
  EXPECT_NE(first, second);
  EXPECT_EQ(table.find(first), nullptr);
  EXPECT_FALSE(table.remove(first).has_value());
  ASSERT_NE(table.find(second), nullptr);
  EXPECT_EQ(*table.find(second), "second");
  EXPECT_EQ(table.size(), 1);
}

TEST(HandleTable, ForeignAndMadeUpHandlesFindNothing) {
  HandleTable<int> mine(next_owner_tag());
  HandleTable<int> other(next_owner_tag());
  const std::uint64_t handle = mine.insert(1);
  const std::uint64_t foreign = other.insert(2);
  for (const std::uint64_t wrong :
       {foreign, std::uint64_t{0}, std::uint64_t{1}, ~std::uint64_t{0}, handle + 1,
        handle + (1u << 24), handle ^ (std::uint64_t{1} << 48)})
    EXPECT_EQ(mine.find(wrong), nullptr) << wrong;
}

TEST(HandleTable, ObjectsKeepTheirPlaceWhileTheTableGrows) {
  HandleTable<int> table(next_owner_tag());
  const std::uint64_t handle = table.insert(42);
  const int* object = table.find(handle);
  for (int count = 0; count < 5000; ++count) table.insert(count);
  EXPECT_EQ(table.find(handle), object);
  int live = 0;
  table.for_each([&](std::uint64_t value, int&) { live += table.find(value) != nullptr; });
  EXPECT_EQ(live, 5001);
}

TEST(RectFunctions, PlatformRules) {
  const RECT rect{10, 20, 30, 40}, inverted{30, 40, 10, 20}, flat{5, 5, 5, 9}, none{};
  const std::pair<POINT, BOOL> points[] = {
      {{10, 20}, TRUE}, {{29, 39}, TRUE}, {{30, 20}, FALSE}, {{10, 40}, FALSE}};
  for (const auto& [point, inside] : points) EXPECT_EQ(PtInRect(&rect, point), inside);
  EXPECT_FALSE(PtInRect(&inverted, {20, 30}));
  EXPECT_TRUE(IsRectEmpty(&inverted));
  EXPECT_TRUE(IsRectEmpty(&flat));

  const struct {
    BOOL (*combine)(LPRECT, const RECT*, const RECT*);
    RECT first, second, expected;
  } cases[] = {{IntersectRect, rect, {30, 20, 50, 40}, none},  // they only touch
               {IntersectRect, rect, {25, 35, 50, 60}, {25, 35, 30, 40}},
               {UnionRect, rect, flat, rect},
               {UnionRect, flat, rect, rect},
               {UnionRect, flat, inverted, none}};
  for (const auto& each : cases) {
    RECT result{1, 1, 1, 1};
    EXPECT_EQ(each.combine(&result, &each.first, &each.second), !IsRectEmpty(&each.expected));
    EXPECT_TRUE(EqualRect(&result, &each.expected));
  }
  EXPECT_FALSE(CopyRect(nullptr, &rect));
  RECT moved{0, 0, 0x7FFFFFFF, 5};
  EXPECT_TRUE(OffsetRect(&moved, 1, 0));  // wraps as the platform's arithmetic does
  EXPECT_TRUE(InflateRect(&moved, -0x7FFFFFFF - 1, 0));
}

}  // namespace
}  // namespace corvane::system
