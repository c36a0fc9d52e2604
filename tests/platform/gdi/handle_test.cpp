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
  const RECT rect{10, 20, 30, 40};
  const RECT inverted{30, 40, 10, 20};
  struct {
    POINT point;
    BOOL inside;
  } const points[] = {{{10, 20}, TRUE}, {{29, 39}, TRUE}, {{30, 20}, FALSE}, {{10, 40}, FALSE}};
  for (const auto& point : points) EXPECT_EQ(PtInRect(&rect, point.point), point.inside);
  EXPECT_FALSE(PtInRect(&inverted, {20, 30}));
  EXPECT_TRUE(IsRectEmpty(&inverted));
  const RECT flat{5, 5, 5, 9};
  EXPECT_TRUE(IsRectEmpty(&flat));

  RECT result{1, 1, 1, 1};
  const RECT touching{30, 20, 50, 40};
  EXPECT_FALSE(IntersectRect(&result, &rect, &touching));
  EXPECT_EQ(result.right, 0);
  const RECT overlapping{25, 35, 50, 60};
  EXPECT_TRUE(IntersectRect(&result, &rect, &overlapping));
  EXPECT_EQ(result.left, 25);
  EXPECT_EQ(result.bottom, 40);
  EXPECT_TRUE(UnionRect(&result, &rect, &flat));
  EXPECT_TRUE(EqualRect(&result, &rect));
  EXPECT_TRUE(UnionRect(&result, &flat, &rect));
  EXPECT_TRUE(EqualRect(&result, &rect));
  EXPECT_FALSE(UnionRect(&result, &flat, &inverted));
  EXPECT_EQ(result.left, 0);
  EXPECT_FALSE(CopyRect(nullptr, &rect));
  RECT moved{0, 0, 0x7FFFFFFF, 5};
  EXPECT_TRUE(OffsetRect(&moved, 1, 0));  // wraps as the platform's arithmetic does
  EXPECT_TRUE(InflateRect(&moved, -0x7FFFFFFF - 1, 0));
}

}  // namespace
}  // namespace corvane::system
