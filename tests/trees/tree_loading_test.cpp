// Loading from folders in memory, which can fail, and from real ones.
#include "corvane/trees/model/tree_loading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "tests/support/source_folder.h"
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
    return tree_text(model_);
  }

  FakeListing listing_;
  TreeModel model_;
  bool loaded_ = false;
};

TEST_F(LoadingTest, AddsEveryFolderInTheOrderOfTheListingBelowRootsOfEveryKind) {
  for (const wchar_t* path : {L"D:\\Lib\\z\\y\\x", L"D:\\Lib\\.cache\\inner", L"D:\\Lib\\a",
                              L"D:\\Lib\\z\\b", L"E:\\\\a"}) {
    listing_.add(path);
  }
  const struct {
    const wchar_t* path;
    bool loaded;
    const wchar_t* base;
    const wchar_t* tree;
  } cases[] = {{L"D:", true, L"", L"-D: 0\n Lib 1\n  z 2\n   y 3\n    x 4\n   b 3\n  a 2\n"},
               {L"D:\\Lib\\z", true, L"D:\\Lib", L"-z 0\n y 1\n  x 2\n b 1\n"},
               {L"E:\\", true, L"E:", L"- 0\n a 1\n"},  // what a separator at the end names
               {L"D:\\gone", false, L"D:", L"-gone 0\n"},
               {L"gone", false, L"", L"-gone 0\n"}};
  for (const auto& each : cases) {
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
            L"above 2\n Photos 3\n  a 4\n   b 5\n    to_a 6\n   to_root 5\n   above 5\n  aside 4\n"
            L"   inner 5\n Other 3\n  inner 4\n")
      << "what is asked for is listed";
}

// Folders full of links to each other would be read in every order that there is.
TEST_F(LoadingTest, LinksBelowLinksLeadToAFolderAHundredTimesAndOthersAlways) {
  constexpr int kLinks = 150;
  listing_.add(L"D:\\Lib\\Other\\inner");
  listing_.add(L"D:\\Lib\\Deep\\deepest");
  listing_.add_link(L"D:\\Lib\\Other\\to deep", L"D:\\Lib\\Deep");
  for (int i = 0; i < kLinks; ++i) {
    listing_.add_link(kPhotos + (L"\\" + std::to_wstring(i)), L"D:\\Lib\\Other");
  }
  load();
  int followed_below = 0;
  for (const _NODE& link : model_.root().children()) {
    ASSERT_EQ(link.children().size(), 2u) << link.name().AsStdString().size();
    followed_below += link.children().back().children().empty() ? 0 : 1;
  }
  EXPECT_EQ(model_.root().children().size(), static_cast<std::size_t>(kLinks));
  EXPECT_EQ(followed_below, 100);
}

TEST_F(LoadingTest, FoldersThatShareOneNumberAreReadAllTheSame) {
  listing_.give_all_one_number();
  listing_.add(L"D:\\Lib\\Photos\\a\\b");
  listing_.add_link(L"D:\\Lib\\Photos\\to_root", L"D:\\Lib\\Photos");
  EXPECT_EQ(load(), L"-Photos 0\n a 1\n  b 2\n to_root 1\n");
}

// What is missing is what lay below the failure, nothing else. The root is opened first, then the
// folders above it; then its listing begins.
TEST_F(LoadingTest, FailingAtEveryPointLosesOnlyWhatCouldNotBeRead) {
  for (const wchar_t* path : {L"\\a\\b", L"\\c", L"\\d\\e"})
    listing_.add(kPhotos + std::wstring(path));
  std::wstring outcomes;
  for (int failing = 1; listing_.has_failed(); ++failing) {
    listing_.fail_at(failing);
    std::wstring tree = load();
    std::replace(tree.begin(), tree.end(), L'\n', L',');
    outcomes += std::to_wstring(failing) + (loaded_ ? L": " : L" failed: ") + tree + L'\n';
  }
  std::wifstream expected(source_folder() / "tests/trees/failures.txt");
  EXPECT_EQ(outcomes, std::wstring(std::istreambuf_iterator<wchar_t>(expected), {}));
}

TEST(RealLoading, OddNamesLinksFilesAndAChainOfFiveThousandFolders) {
  const TemporaryFolder disk(TemporaryFolder::Place::memory);
  const std::string deepest =
      "only/2024年/旅行/line\nbreak/back\\slash/\xFF/" + std::string(255, 'n');
  std::filesystem::create_directories(disk / deepest);
  disk.folder("only/.hidden");
  disk.file("only/photo.jpg");
  std::filesystem::create_directory_symlink("..", disk / deepest / "up");
  TreeModel model;
  EXPECT_TRUE(
      load_folders(model, *system_folder_listing(), (disk.wide() + L"\\only").c_str(), nullptr));
  EXPECT_EQ(
      tree_text(model),
      L"-only 0\n 2024年 1\n  旅行 2\n   line\nbreak 3\n    back\xF75Cslash 4\n     \xF7FF 5\n" +
          (L"      " + std::wstring(255, L'n') + L" 6\n       up 7\n"));

  constexpr int kDepth = 5000;
  disk.chain("chain", kDepth);
  const std::wstring chain = disk.wide() + L"\\chain";
  EXPECT_TRUE(load_folders(model, *system_folder_listing(), chain.c_str(), nullptr));
  const _NODE* node = &model.root();
  while (!node->children().empty()) node = &node->children().front();
  EXPECT_EQ(node->level(), kDepth - 1);
}

}  // namespace
}  // namespace corvane::test
