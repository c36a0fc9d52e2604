#include <gtest/gtest.h>

#include <string>

#include "corvane/platform/system/handle_table.h"
#include "corvane/platform/system/types.h"
#include "tests/support/golden_file.h"
#include "tests/support/rects.h"

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
  EXPECT_EQ(table.size(), 1);
  EXPECT_EQ(table.remove(second), "second");
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
  const RECT rect{10, 20, 30, 40}, inverted{30, 40, 10, 20};
  for (const POINT inside : {POINT{10, 20}, POINT{29, 39}}) EXPECT_TRUE(PtInRect(&rect, inside));
  for (const POINT outside : {POINT{30, 20}, POINT{10, 40}}) EXPECT_FALSE(PtInRect(&rect, outside));
  EXPECT_FALSE(PtInRect(&inverted, {20, 30}));
  EXPECT_TRUE(IsRectEmpty(&inverted));
  for (const auto& row : test::golden_rows("tests/platform/rect_pairs.txt")) {
    const RECT first = test::rect_of(row.at(1)), second = test::rect_of(row.at(2));
    const RECT common = test::rect_of(row.at(3)), around = test::rect_of(row.at(4));
    RECT result{1, 1, 1, 1};
    EXPECT_EQ(IntersectRect(&result, &first, &second), !IsRectEmpty(&common)) << row.at(0);
    EXPECT_TRUE(EqualRect(&result, &common)) << row.at(0);
    EXPECT_EQ(UnionRect(&result, &second, &first), !IsRectEmpty(&around)) << row.at(0);
    EXPECT_TRUE(EqualRect(&result, &around)) << row.at(0);
  }
  EXPECT_FALSE(CopyRect(nullptr, &rect));
  RECT moved{0, 0, 0x7FFFFFFF, 5};
  EXPECT_TRUE(OffsetRect(&moved, 1, 0));  // wraps as the platform's arithmetic does
  EXPECT_TRUE(InflateRect(&moved, -0x7FFFFFFF - 1, 0));
}

}  // namespace
}  // namespace corvane::system
