// The rules of names and paths.
#include "corvane/trees/model/tree_model.h"

#include <gtest/gtest.h>

#include "tests/trees/support/tree_text.h"

namespace corvane::test {
namespace {

class TreeModelTest : public testing::Test {
 protected:
  void SetUp() override {
    model_.set_base_path(L"D:\\Lib");
    root_ = model_.add_child(L"Photos", nullptr);
    a_ = model_.add_child(L"a", root_);
    b_ = model_.add_child(L"b", a_);
  }

  TreeModel model_;
  _NODE* root_ = nullptr;
  _NODE* a_ = nullptr;
  _NODE* b_ = nullptr;
};

TEST_F(TreeModelTest, AddsEachNameOnceAndExactly) {
  EXPECT_EQ(model_.add_child(L"a", root_), a_);
  EXPECT_NE(model_.add_child(L"A", root_), a_);
  EXPECT_EQ(model_.add_child(nullptr, root_), nullptr);
  EXPECT_EQ(tree_text(model_), L"-Photos 0\n a 1\n  b 2\n A 1\n") << "expanded: -";
}

TEST_F(TreeModelTest, FindsEveryOneOfManyChildrenAgainThoughNamesChangeAndGo) {
  constexpr int kMany = 100000;  // minutes, when each name is compared with all others
  std::vector<_NODE*> added;
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < kMany; ++i) {
      added.push_back(model_.add_child(std::to_wstring(i).c_str(), a_));
      ASSERT_EQ(added[static_cast<std::size_t>(i)], added.back());
    }
  }
  model_.rename(added[7], L"seven");
  EXPECT_EQ(model_.add_child(L"seven", a_), added[7]);
  EXPECT_NE(model_.add_child(L"7", a_), added[7]);
  model_.remove(added[9]);
  const _NODE* const again = model_.add_child(L"9", a_);
  EXPECT_EQ(again, &a_->children().back());
  EXPECT_EQ(a_->children().size(), kMany + 2u) << "b and another 7";
}

TEST_F(TreeModelTest, StartsOverWithTheNameOfANodeThatGoes) {
  model_.set_expanded(*root_, false);
  model_.set_current_path(L"D:\\Lib\\Photos\\a");
  EXPECT_EQ(model_.add_child(b_->name(), nullptr), root_);
  EXPECT_EQ(tree_text(model_), L"-b 0\n");
  EXPECT_EQ(model_.current_path(), L"D:\\Lib\\Photos\\a");
  EXPECT_EQ(model_.path_of(root_), L"D:\\Lib\\b");
}

TEST_F(TreeModelTest, FindsByFullAndRelativePath) {
  struct Case {
    const wchar_t* base;
    const wchar_t* path;
    _NODE* start;
    _NODE* found;
  };
  constexpr const wchar_t* kBase = L"D:\\Lib";
  const Case cases[] = {{kBase, L"D:\\Lib\\Photos\\a\\b", nullptr, b_},
                        {kBase, L"D:\\Lib\\Photos", nullptr, root_},
                        {kBase, L"D:\\Lib\\Photos\\", nullptr, root_},
                        {kBase, L"D:\\Lib", nullptr, root_},
                        {kBase, L"D:\\Lib\\photos", nullptr, nullptr},
                        {kBase, L"D:\\Lib\\Photos\\x", nullptr, nullptr},
                        {kBase, L"D:\\Lib\\Photos\\a\\\\b", nullptr, nullptr},
                        {kBase, L"D:\\Library", nullptr, nullptr},
                        {kBase, L"d:\\Lib\\Photos", nullptr, nullptr},
                        {kBase, L"x\\D:\\Lib\\Photos\\a", nullptr, nullptr},
                        {kBase, L"xD:\\Lib\\Photos\\a", nullptr, nullptr},
                        {kBase, L"", nullptr, root_},
                        {kBase, nullptr, nullptr, root_},
                        {kBase, L"", a_, a_},
                        {kBase, L"a\\b", a_, b_},
                        {kBase, L"\\b", a_, b_},
                        {kBase, L"b", a_, nullptr},
                        {kBase, L"Photos\\a", nullptr, a_},
                        // A relative base path is dropped wherever the rest begins with it.
                        {L"a", L"a\\Photos\\a", nullptr, a_},
                        {L"a", L"a\\Photos\\a\\b", nullptr, nullptr},
                        {L"a", L"Photos\\a", nullptr, a_},
                        {L"b", L"Photos\\a\\b", nullptr, b_},
                        {L"", L"Photos", nullptr, nullptr},
                        {L"", L"", nullptr, root_}};
  for (const Case& each : cases) {
    model_.set_base_path(each.base);
    EXPECT_EQ(model_.find(each.path, each.start), each.found) << "case " << &each - cases;
  }
}

TEST_F(TreeModelTest, ComposesAndRecognisesPaths) {
  EXPECT_EQ(model_.path_of(nullptr), L"D:\\Lib");
  EXPECT_EQ(model_.path_of(b_), L"D:\\Lib\\Photos\\a\\b");
  for (const wchar_t* path : {L"D:\\Lib\\Photos\\a\\b", L"D:\\Lib\\Photos\\a", L"b", L"\\b", L"",
                              L"D:\\Lib\\Photos\\ab", L"D:\\Lib\\Photos\\x\\b", L"\\Photos\\a\\b",
                              L"xD:\\Lib\\Photos\\a\\b", L"D:\\Lib\\Photos\\a\\b\\"}) {
    EXPECT_EQ(model_.is_path_of(path, *b_), model_.path_of(b_) == path) << "of " << path;
  }
}

TEST_F(TreeModelTest, RenamingTakesTheHighlightAlongAndTheCurrentPathOnlyWhenItIsTheNodes) {
  struct Case {
    _NODE* node;
    const wchar_t* name;
    const wchar_t* current;
    const wchar_t* current_after;
    const wchar_t* highlighted;  // "": nothing was renamed
  };
  const Case cases[] = {
      {a_, L"x", L"D:\\Lib\\Photos\\a", L"D:\\Lib\\Photos\\x", L"D:\\Lib\\Photos\\x"},
      {a_, L"y", L"D:\\Lib\\Photos\\x\\b", L"D:\\Lib\\Photos\\x\\b", L"D:\\Lib\\Photos\\y"},
      {b_, L"c", L"D:\\Lib\\Photos\\y", L"D:\\Lib\\Photos\\y", L"D:\\Lib\\Photos\\y\\c"},
      {root_, L"All", L"D:\\Lib\\Photos", L"D:\\Lib\\All", L"D:\\Lib\\All"},
      {nullptr, L"x", L"D:\\Lib", L"D:\\Lib", L""},
      {b_, nullptr, L"", L"", L""},
      {b_, L"", L"", L"", L""}};
  for (const Case& each : cases) {
    SCOPED_TRACE(&each - cases);
    model_.set_current_path(each.current);
    model_.set_highlight_path(L"");
    EXPECT_EQ(model_.rename(each.node, each.name), *each.highlighted != L'\0');
    EXPECT_EQ(model_.current_path(), each.current_after);
    EXPECT_EQ(model_.highlight_path(), each.highlighted);
  }
  EXPECT_EQ(tree_text(model_), L"-All 0\n y 1\n  c 2\n");
  EXPECT_EQ(model_.find(L"D:\\Lib\\All\\y\\c"), b_);
  EXPECT_TRUE(model_.rename(b_, a_->name())) << "the name of another node";
  EXPECT_EQ(b_->name(), L"y");
}

TEST_F(TreeModelTest, RemovesANodeByItsPathAndMovesTheCurrentPath) {
  struct Case {
    const wchar_t* path;
    const wchar_t* current;
    bool removed;
    const wchar_t* current_after;
  };
  const Case cases[] = {
      {L"D:\\Lib\\Photos\\a", L"D:\\Lib\\Photos\\B\\C", true, L"D:\\Lib\\Photos"},
      {L"D:\\Lib\\Photos\\a", L"E:\\Other", true, L"E:\\Other"},
      {L"D:\\Lib\\Photos\\a", L"E:\\D:\\Lib\\Photos!", true, L"D:\\Lib\\Photos"},
      {L"x\\D:\\Lib\\Photos\\a", L"x", false, L"x"},
      {L"D:\\Lib\\Photos\\a\\b", L"D:\\Lib\\Photos\\a\\b\\c", true, L"D:\\Lib\\Photos\\a"},
      {L"D:\\Lib\\Photos", L"D:\\Lib\\Photos\\a", true, L"D:\\Lib"},
      {L"Photos", L"E:\\Other", true, L""},
      {L"", L"E:\\Other", true, L""},
      {L"D:\\Lib\\Photos\\x", L"D:\\Lib\\Photos\\x", false, L"D:\\Lib\\Photos\\x"},
      {nullptr, L"E:\\Other", false, L"E:\\Other"}};
  for (const Case& each : cases) {
    SCOPED_TRACE(&each - cases);
    TreeModel model;
    model.set_base_path(L"D:\\Lib");
    model.add_child(L"b", model.add_child(L"a", model.add_child(L"Photos", nullptr)));
    model.set_current_path(each.current);
    EXPECT_EQ(model.remove(each.path), each.removed);
    EXPECT_EQ(model.current_path(), each.current_after);
    EXPECT_EQ(model.highlight_path(), each.removed ? each.current_after : L"");
    EXPECT_EQ(model.find(L"D:\\Lib\\Photos\\a\\b") == nullptr, each.removed);
  }
}

}  // namespace
}  // namespace corvane::test
