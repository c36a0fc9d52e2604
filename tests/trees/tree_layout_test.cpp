// Rows and what lies at a point. What is looked up has to be what a walk over the tree finds.
#include "corvane/trees/owner_drawn/tree_layout.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace corvane::test {
namespace {

using corvane::_NODE;
using corvane::kTreeRowHeight;
using corvane::row_in_client;
using corvane::TreeLayout;
using corvane::TreeModel;

constexpr int width = 200;

std::vector<_NODE*> visible_below(const TreeModel& model, _NODE& node) {
  std::vector<_NODE*> found;
  for (const _NODE& child : node.children()) {
    if (!node.expanded()) break;
    found.push_back(const_cast<_NODE*>(&child));
    const auto deeper = visible_below(model, *found.back());
    found.insert(found.end(), deeper.begin(), deeper.end());
  }
  return found;
}

TEST(TreeLayout, NumbersTheVisibleRows) {
  TreeModel model;
  TreeLayout layout;
  EXPECT_EQ(layout.arrange(model, width), 0);
  _NODE* root = model.add_child(L"root", nullptr);
  _NODE* a = model.add_child(L"a", root);
  model.add_child(L"a1", a);
  _NODE* a2 = model.add_child(L"a2", a);
  _NODE* b = model.add_child(L"b", root);
  _NODE* hidden = model.add_child(L"b1", b);
  model.set_expanded(*a, true);
  EXPECT_EQ(layout.arrange(model, width), 150);
  EXPECT_EQ(root->row().bottom, 30);
  EXPECT_EQ(a2->row().top, 90);
  EXPECT_EQ(a2->row().right, width);
  EXPECT_EQ(b->row().bottom, 150);
  EXPECT_EQ(hidden->row().bottom, 0);

  model.set_expanded(*root, false);
  EXPECT_EQ(layout.arrange(model, 100), 30);
  EXPECT_EQ(root->row().right, 100);
  EXPECT_EQ(b->row().right, width) << "not laid out";
  EXPECT_EQ(layout.arrange_below(a, 50, 7), 9);
  EXPECT_EQ(a2->row().top, 240);
  model.remove_all();
  EXPECT_EQ(layout.arrange(model, width), 0);
}

TEST(TreeLayout, TheRowsAreThoseOfTheLastLayout) {
  TreeModel model;
  TreeLayout layout;
  _NODE* root = model.add_child(L"root", nullptr);
  _NODE* a = model.add_child(L"a", root);
  _NODE* b = model.add_child(L"b", root);
  EXPECT_EQ(layout.node_at(model, {5, 5}), nullptr) << "nothing has been laid out";
  layout.arrange(model, width);
  EXPECT_EQ(layout.node_at(model, {5, 65}), b);
  model.add_child(L"a1", a);
  model.set_expanded(*a, true);
  EXPECT_EQ(layout.node_at(model, {5, 65}), b) << "what the screen still shows";
  EXPECT_EQ(layout.node_at(model, {5, 95}), nullptr);
  layout.arrange(model, width);
  EXPECT_EQ(layout.node_at(model, {5, 95}), b);
  model.remove(b);
  EXPECT_EQ(layout.node_at(model, {5, 95}), nullptr);
  layout.arrange_below(root, width, 11);
  EXPECT_EQ(layout.node_at(model, {5, 335}), a);
  EXPECT_EQ(layout.node_at(model, {5, 35}), nullptr);
}

TEST(TreeLayout, EdgesOfARow) {
  TreeModel model;
  TreeLayout layout;
  _NODE* root = model.add_child(L"root", nullptr);
  _NODE* a = model.add_child(L"a", root);
  layout.arrange(model, width);
  struct Case {
    POINT point;
    _NODE* hit;
  };
  const Case cases[] = {{{0, 0}, root},         {{width - 1, 29}, root}, {{0, 30}, a},
                        {{width, 40}, nullptr}, {{-1, 40}, nullptr},     {{0, 59}, a},
                        {{0, 60}, nullptr},     {{0, 65}, nullptr},      {{0, -1}, nullptr}};
  for (const Case& each : cases) {
    EXPECT_EQ(layout.node_at(model, each.point), each.hit) << each.point.x << ", " << each.point.y;
  }
  EXPECT_EQ(layout.node_below_at(model, nullptr, {0, 0}), nullptr);
  EXPECT_EQ(layout.node_below_at(model, root, {0, 0}), nullptr) << "the node itself is not below";
}

TEST(TreeLayout, PlacesRowsInTheClientAreaByTheScrollPosition) {
  constexpr int farthest = std::numeric_limits<int>::max();
  TreeModel model;
  TreeLayout layout;
  _NODE* root = model.add_child(L"root", nullptr);
  _NODE* a = model.add_child(L"a", root);
  layout.arrange(model, width);
  struct Case {
    _NODE* node;
    int position;
    LONG top;
    LONG bottom;
  };
  const Case cases[] = {{root, 0, 0, 30},
                        {a, 0, 30, 60},
                        {a, 45, -15, 15},
                        {root, 45, -45, -15},
                        {a, farthest, 30 - farthest, 60 - farthest},
                        {a, -farthest, farthest, farthest}};
  for (const Case& each : cases) {
    const RECT row = row_in_client(*each.node, each.position);
    EXPECT_EQ(row.left, 0);
    EXPECT_EQ(row.right, width);
    EXPECT_EQ(row.top, each.top) << "case " << &each - cases;
    EXPECT_EQ(row.bottom, each.bottom) << "case " << &each - cases;
  }
}

// A tree that changes at random: every answer against the plain walk, before and after the layout.
TEST(TreeLayout, AnswersAsAWalkOverTheWholeTreeWould) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t count) { return random() % count; };
  TreeModel model;
  TreeLayout layout;
  std::vector<_NODE*> nodes = {model.add_child(L"root", nullptr)};
  for (int round = 0; round < 300; ++round) {
    if (below(3) > 0) {
      _NODE* parent = nodes[below(nodes.size())];
      nodes.push_back(model.add_child(std::to_wstring(round).c_str(), parent));
    } else {
      _NODE* node = nodes[below(nodes.size())];
      model.set_expanded(*node, !node->expanded());
    }
    if (below(2) > 0) layout.arrange(model, width);
    _NODE* node = nodes[below(nodes.size())];
    const LONG top = static_cast<LONG>(below(900)) - 50;
    const LONG bottom = top + static_cast<LONG>(below(200));
    std::vector<const _NODE*> expected;
    _NODE* hit = nullptr;
    for (_NODE* each : visible_below(model, *node)) {
      if (!hit && each->row().top <= top && each->row().bottom > top) hit = each;
      if (each->row().top < bottom && each->row().bottom > top) expected.push_back(each);
    }
    EXPECT_EQ(layout.node_below_at(model, node, {5, top}), hit) << "round " << round;
    EXPECT_EQ(layout.rows_below(model, *node, top, bottom), expected) << "round " << round;
  }
}

// So deep that a call for each level would not fit on the stack.
TEST(TreeLayout, AChainOfAnyDepth) {
  constexpr int depth = 300000;
  TreeModel model;
  TreeLayout layout;
  _NODE* deepest = model.add_child(L"root", nullptr);
  _NODE* second = nullptr;
  for (int level = 0; level < depth; ++level) {
    model.set_expanded(*deepest, true);
    deepest = model.add_child(L"x", deepest);
    if (!second) second = deepest;
  }
  for (int laid_out = 0; laid_out < 2; ++laid_out) {
    const LONG top = layout.arrange(model, width) - kTreeRowHeight;
    EXPECT_EQ(top, depth * kTreeRowHeight);
    if (laid_out == 1) layout.arrange_below(&model.root(), width, 1);  // nothing is looked up
    EXPECT_EQ(layout.node_at(model, {5, top}), deepest);
    EXPECT_EQ(layout.rows_below(model, model.root(), top, top + 1).size(), 1u);
  }
  EXPECT_TRUE(model.remove(second));
  EXPECT_EQ(layout.arrange(model, width), kTreeRowHeight);
}

}  // namespace
}  // namespace corvane::test
