// Rows and what lies at a point. What is looked up has to be what a walk over the tree finds.
#include "corvane/trees/owner_drawn/tree_layout.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "tests/support/rects.h"

namespace corvane::test {
namespace {

constexpr int kWidth = 200;
constexpr int kFarthest = std::numeric_limits<int>::max();

// The nodes below one, each before what is below it; or the visible ones among them.
std::vector<_NODE*> nodes_below(const _NODE& node, bool all) {
  std::vector<_NODE*> found;
  for (const _NODE& child : node.children()) {
    if (!all && !node.expanded()) break;
    found.push_back(const_cast<_NODE*>(&child));
    const auto deeper = nodes_below(child, all);
    found.insert(found.end(), deeper.begin(), deeper.end());
  }
  return found;
}

class TreeLayoutTest : public testing::Test {
 protected:
  _NODE* node_at(LONG x, LONG y) { return layout_.node_at(model_, {x, y}); }

  TreeModel model_;
  TreeLayout layout_;
  _NODE* root_ = model_.add_child(L"root", nullptr);
  _NODE* a_ = model_.add_child(L"a", root_);
  _NODE* a1_ = model_.add_child(L"a1", a_);
  _NODE* b_ = model_.add_child(L"b", root_);
};

TEST_F(TreeLayoutTest, NumbersTheVisibleRows) {
  EXPECT_EQ(layout_.arrange(model_, kWidth), 90);
  EXPECT_THAT(root_->row(), is_rect(0, 0, kWidth, 30));
  EXPECT_THAT(b_->row(), is_rect(0, 60, kWidth, 90));
  EXPECT_THAT(a1_->row(), is_rect(0, 0, 0, 0)) << "has not been shown";
  EXPECT_EQ(layout_.arrange(model_, 100), 90) << "the tree has not changed";
  EXPECT_THAT(b_->row(), is_rect(0, 60, 100, 90));
  EXPECT_EQ(node_at(99, 65), b_);
  EXPECT_EQ(node_at(100, 65), nullptr);

  model_.set_expanded(*a_, true);
  EXPECT_EQ(layout_.arrange_below(a_, 50, 7), 8);
  EXPECT_THAT(a1_->row(), is_rect(0, 210, 50, 240));
  EXPECT_EQ(layout_.arrange_below(root_, -1, kFarthest), kFarthest);
  EXPECT_THAT(b_->row(), is_rect(0, kFarthest, 0, kFarthest));
  EXPECT_EQ(layout_.arrange_below(nullptr, 50, 7), 7);
}

TEST_F(TreeLayoutTest, TheRowsAreThoseOfTheLastLayout) {
  EXPECT_EQ(node_at(5, 5), nullptr) << "nothing has been laid out";
  layout_.arrange(model_, kWidth);
  EXPECT_EQ(node_at(5, 65), b_);
  model_.set_expanded(*a_, true);
  EXPECT_EQ(node_at(5, 65), b_) << "what the screen still shows";
  EXPECT_EQ(node_at(5, 95), nullptr);
  layout_.arrange(model_, kWidth);
  EXPECT_EQ(node_at(5, 95), b_);
  model_.remove(b_);
  EXPECT_EQ(node_at(5, 95), nullptr) << "a row that outlived its node";
  EXPECT_EQ(layout_.arrange(model_, kWidth), 90);
  model_.add_child(L"new root", nullptr);
  EXPECT_THAT(root_->row(), is_rect(0, 0, 0, 0));
  EXPECT_EQ(node_at(5, 35), nullptr);
  EXPECT_EQ(layout_.arrange(model_, kWidth), 30);
  EXPECT_EQ(node_at(5, 35), nullptr);
  model_.remove_all();
  EXPECT_EQ(layout_.arrange(model_, kWidth), 0);
}

TEST_F(TreeLayoutTest, PlacesRowsInTheClientAreaByTheScrollPosition) {
  layout_.arrange(model_, kWidth);
  EXPECT_THAT(row_in_client(*a_, 45), is_rect(0, -15, kWidth, 15));
  EXPECT_THAT(row_in_client(*a_, kFarthest), is_rect(0, 30 - kFarthest, kWidth, 60 - kFarthest));
  EXPECT_THAT(row_in_client(*a_, -kFarthest), is_rect(0, kFarthest, kWidth, kFarthest));
}

// A tree that changes at random: every answer against the plain walk, before and after the layout.
TEST_F(TreeLayoutTest, AnswersAsAWalkOverTheWholeTreeWould) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t count) { return static_cast<int>(random() % count); };
  const auto any_node = [&] {
    const auto nodes = nodes_below(*root_, true);
    return nodes.empty() ? root_ : nodes[static_cast<std::size_t>(below(nodes.size()))];
  };
  for (int round = 0; round < 1000; ++round) {
    SCOPED_TRACE(round);
    _NODE* const changed = any_node();
    const int change = below(20);
    if (change < 12) model_.add_child(std::to_wstring(round).c_str(), changed);
    if (change >= 12 && change < 18) model_.set_expanded(*changed, !changed->expanded());
    if (change == 18 && changed != root_) model_.remove(changed);
    if (change == 19) layout_.arrange_below(changed, kWidth, below(30));
    if (below(2) > 0) layout_.arrange(model_, below(2) > 0 ? kWidth : 100);

    _NODE* const node = below(3) > 0 ? root_ : any_node();
    const auto visible = nodes_below(*node, false);
    const LONG top = 15 * below(2 * visible.size() + 6) - 30;
    const LONG bottom = top + 15 * below(14);
    constexpr int kEdges[] = {-1, 0, 99, 100, kWidth - 1, kWidth};
    const POINT point = {kEdges[below(std::size(kEdges))], top};
    std::vector<const _NODE*> touching;
    _NODE* hit = nullptr;
    for (_NODE* const each : visible) {
      const RECT& row = each->row();
      if (hit == nullptr && ::PtInRect(&row, point) != FALSE) hit = each;
      if (top < bottom && row.top < bottom && row.bottom > top) touching.push_back(each);
    }
    EXPECT_EQ(layout_.node_below_at(model_, node, point), hit);
    EXPECT_EQ(layout_.rows_below(model_, *node, top, bottom), touching);
    if (node != root_) continue;
    EXPECT_EQ(node_at(point.x, point.y), ::PtInRect(&root_->row(), point) != FALSE ? root_ : hit);
  }
}

// So deep that a call for each level would not fit on the stack.
TEST_F(TreeLayoutTest, AChainOfAnyDepth) {
  constexpr int kDepth = 300000;
  _NODE* deepest = b_;
  for (int level = 1; level < kDepth; ++level) {
    model_.set_expanded(*deepest, true);
    deepest = model_.add_child(L"x", deepest);
  }
  for (int laid_out = 0; laid_out < 2; ++laid_out) {
    const LONG top = layout_.arrange(model_, kWidth) - kTreeRowHeight;
    EXPECT_EQ(top, (kDepth + 1) * kTreeRowHeight);
    if (laid_out == 1) layout_.arrange_below(root_, kWidth, 1);  // nothing is looked up
    EXPECT_EQ(node_at(5, top), deepest);
    EXPECT_EQ(layout_.rows_below(model_, *root_, top, top + 1).size(), 1u);
  }
  EXPECT_TRUE(model_.remove(b_));
  EXPECT_EQ(layout_.arrange(model_, kWidth), 2 * kTreeRowHeight);
}

}  // namespace
}  // namespace corvane::test
