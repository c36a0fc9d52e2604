// Loading from folders in memory, which can fail, and from real ones.
#include "corvane/trees/model/tree_loading.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "tests/support/temporary_folder.h"
#include "tests/trees/support/fake_listing.h"
#include "tests/trees/support/tree_text.h"

namespace corvane::test {
namespace {

constexpr wchar_t kPhotos[] = L"D:\\Lib\\Photos";

class LoadingTest : public testing::Test {
 protected:
  std::wstring load(const wchar_t* path = kPhotos) {
    loaded_ = load_folders(model_, listing_, path, nullptr);
    EXPECT_EQ(listing_.open_folders(), 0) << "all are closed again";
    return tree_text(model_);
  }

  FakeListing listing_;
  TreeModel model_;
  bool loaded_ = false;
};

TEST_F(LoadingTest, AddsEveryFolderInTheOrderOfTheListing) {
  for (const wchar_t* path : {L"D:\\Lib\\Photos\\z\\y\\x", L"D:\\Lib\\Photos\\.cache\\inner",
                              L"D:\\Lib\\Photos\\a", L"D:\\Lib\\Photos\\z\\b", L"D:\\Lib\\Other"}) {
    listing_.add(path);
  }
  EXPECT_EQ(load(), L"-Photos 0\n z 1\n  y 2\n   x 3\n  b 2\n a 1\n");
  EXPECT_TRUE(loaded_);
  EXPECT_EQ(model_.base_path(), L"D:\\Lib");
}

TEST_F(LoadingTest, RootsOfEveryKind) {
  listing_.add(L"D:\\Lib");
  listing_.add(L"E:\\\\a");  // below what a separator at the end names
  struct Case {
    const wchar_t* path;
    bool loaded;
    const wchar_t* base;
    const wchar_t* tree;
  };
  const Case cases[] = {{L"D:", true, L"", L"-D: 0\n Lib 1\n"},
                        {L"E:\\", true, L"E:", L"- 0\n a 1\n"},
                        {L"D:\\gone", false, L"D:", L"-gone 0\n"},
                        {L"gone", false, L"", L"-gone 0\n"}};
  for (const Case& each : cases) {
    EXPECT_EQ(load(each.path), each.tree);
    EXPECT_EQ(loaded_, each.loaded) << each.tree;
    EXPECT_EQ(model_.base_path(), each.base) << each.tree;
  }
  EXPECT_FALSE(load_folders(model_, listing_, nullptr, nullptr));
  EXPECT_EQ(tree_text(model_), L"-gone 0\n");
}

TEST_F(LoadingTest, MergesIntoANodeThatIsThere) {
  listing_.add(L"D:\\Lib\\Photos\\a\\old");
  load();
  _NODE* root = &model_.root();
  model_.add_child(L"only in the tree", model_.find(L"D:\\Lib\\Photos\\a"));
  model_.set_expanded(*model_.find(L"D:\\Lib\\Photos\\a\\old"), true);
  for (int i = 0; i < 12; ++i) listing_.add(L"D:\\Lib\\Photos\\a\\new" + std::to_wstring(i));
  listing_.add(L"D:\\Lib\\Photos\\a\\old\\deep");
  std::wstring merged = L"-Photos 0\n a 1\n  -old 2\n   deep 3\n  only in the tree 2\n";
  for (int i = 0; i < 12; ++i) merged += L"  new" + std::to_wstring(i) + L" 2\n";
  for (int round = 0; round < 2; ++round) {
    EXPECT_TRUE(load_folders(model_, listing_, L"D:\\Lib\\Photos\\a", root));
    EXPECT_EQ(tree_text(model_), merged);
  }
  EXPECT_TRUE(load_folders(model_, listing_, L"D:\\Lib\\Photos\\a\\", root));
  EXPECT_TRUE(tree_text(root->children().back()).starts_with(L" 1\n old 2\n  deep 3\n"))
      << "a separator at the end";
  EXPECT_FALSE(load_folders(model_, listing_, L"D:\\Lib\\Photos\\gone", root));
  EXPECT_NE(model_.find(L"D:\\Lib\\Photos\\gone"), nullptr);
  EXPECT_EQ(model_.base_path(), L"D:\\Lib");
}

TEST_F(LoadingTest, LinksBackStayWithoutChildren) {
  listing_.add(L"D:\\Lib\\Photos\\a\\b");
  listing_.add(L"D:\\Lib\\Other\\inner");
  listing_.add_link(L"D:\\Lib\\Photos\\a\\b\\to_a", L"D:\\Lib\\Photos\\a");
  listing_.add_link(L"D:\\Lib\\Photos\\a\\to_root", L"D:\\Lib\\Photos");
  listing_.add_link(L"D:\\Lib\\Photos\\a\\above", L"D:\\Lib");
  listing_.add_link(L"D:\\Lib\\Photos\\aside", L"D:\\Lib\\Other");
  EXPECT_EQ(load(),
            L"-Photos 0\n a 1\n  b 2\n   to_a 3\n  to_root 2\n  above 2\n aside 1\n  inner 2\n");
  EXPECT_TRUE(load_folders(model_, listing_, L"D:\\Lib\\Photos\\a\\above",
                           model_.find(L"D:\\Lib\\Photos\\a")));
  EXPECT_EQ(tree_text(*model_.find(L"D:\\Lib\\Photos\\a\\above")),
            L"above 2\n Photos 3\n Other 3\n  inner 4\n")
      << "what is asked for is listed";
}

// Folders full of links to each other would be read in every order that there is.
TEST_F(LoadingTest, AFolderIsReadThroughAHundredLinksAndNoMore) {
  listing_.add(L"D:\\Lib\\Other\\inner");
  for (int i = 0; i < 144; ++i) {
    const std::wstring folder = kPhotos + (L'\\' + std::to_wstring(i / 12));
    listing_.add_link(folder + L"\\to " + std::to_wstring(i), L"D:\\Lib\\Other");
  }
  load();
  int followed = 0;
  for (const _NODE& folder : model_.root().children()) {
    for (const _NODE& link : folder.children()) followed += link.children().empty() ? 0 : 1;
  }
  EXPECT_EQ(followed, 100);
}

// What is missing is what lay below the failure, nothing else.
TEST_F(LoadingTest, FailingAtEveryPointLosesOnlyWhatCouldNotBeRead) {
  const auto fill = [](FakeListing& listing) {
    listing.add_comb(kPhotos, 15);
    listing.add(L"D:\\Lib\\Photos\\z\\y");
  };
  fill(listing_);
  load();
  const int count = listing_.operations();
  for (int failing = 1; failing <= count; ++failing) {
    FakeListing listing;
    fill(listing);
    listing.fail_at(failing);
    TreeModel model;
    const bool loaded = load_folders(model, listing, kPhotos, nullptr);
    ASSERT_TRUE(listing.failure());
    const auto& failure = *listing.failure();
    // The root is opened first, then the two folders above it; then its listing begins.
    EXPECT_EQ(loaded, failing != 1 && failing != 4) << failing;
    EXPECT_EQ(listing.open_folders(), 0);
    if (failure.folder.starts_with(kPhotos)) {
      EXPECT_EQ(model.find(failure.folder.c_str())->children().size(), failure.names) << failing;
    }
    std::vector<const _NODE*> left = {&model_.root()};
    while (!left.empty()) {
      const _NODE& node = *left.back();
      left.pop_back();
      const std::wstring path = model_.path_of(&node).AsStdString();
      const bool is_below = path.starts_with(failure.folder + L'\\');
      if (!is_below && !model.find(path.c_str())) ADD_FAILURE() << failing << " loses too much";
      for (const _NODE& child : node.children()) left.push_back(&child);
    }
  }
}

class RealLoadingTest : public testing::Test {
 protected:
  bool load() {
    const auto listing = system_folder_listing();
    return load_folders(model_, *listing, folder_.wide().c_str(), nullptr);
  }

  TemporaryFolder folder_{TemporaryFolder::Place::memory};
  TreeModel model_;
};

TEST_F(RealLoadingTest, OddNamesLinksAndFiles) {
  const std::string deepest =
      "only/2024年/旅行/line\nbreak/back\\slash/\xFF/" + std::string(255, 'n');
  std::filesystem::create_directories(folder_ / deepest);
  folder_.folder("only/.hidden");
  folder_.file("only/photo.jpg");
  std::filesystem::create_directory_symlink("..", folder_ / deepest / "up");
  EXPECT_TRUE(load());
  EXPECT_EQ(
      tree_text(model_.root().children().front()),
      L"only 1\n 2024年 2\n  旅行 3\n   line\nbreak 4\n    back\xF75Cslash 5\n     \xF7FF 6\n" +
          (L"      " + std::wstring(255, L'n') + L" 7\n       up 8\n"));
}

TEST_F(RealLoadingTest, AChainOfFiveThousandFolders) {
  constexpr int depth = 5000;
  folder_.chain("chain", depth);
  EXPECT_TRUE(load());
  const _NODE* node = &model_.root();
  while (!node->children().empty()) node = &node->children().front();
  EXPECT_EQ(node->level(), depth);
  model_.remove_all();
}

}  // namespace
}  // namespace corvane::test
