#include "corvane/platform/base_services/folder_listing.h"

#include <gmock/gmock.h>
#include <sys/resource.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "corvane/platform/system/shell/wide_path.h"
#include "tests/support/temporary_folder.h"

namespace corvane {
namespace {

using Names = std::vector<std::wstring>;

std::unique_ptr<OpenFolder> opened(const std::wstring& path) {
  return system_folder_listing()->open(path.c_str());
}

std::unique_ptr<OpenFolder> opened(const std::string& path) {
  return opened(system::wide_path(path));
}

Names names_in(OpenFolder& folder) {
  Names names;
  EXPECT_TRUE(folder.list_folders(
      [&names](std::wstring_view name, FolderKind) { names.emplace_back(name); }));
  return names;
}

constexpr int kMany = 300;

class FolderListing : public testing::Test {
 protected:
  std::unique_ptr<OpenFolder> open() const { return opened(folder_.path().native()); }
  // So many folders with so long names that one call of the system does not list them all.
  void make_many(const std::string& prefix) const {
    for (int number = 0; number < kMany; ++number)
      folder_.folder(prefix + std::string(200, 'm') + std::to_string(number));
  }

  test::TemporaryFolder folder_;
};

TEST_F(FolderListing, EveryNameGoesOutAndBackIn) {
  // One of them spells the character that stands for a backslash.
  const std::string names[] = {"plain",
                               "two words ",
                               "图片",
                               "trailing dot.",
                               "back\\slash",
                               "new\nline",
                               "\xFF\xFE no text",
                               "\xEF\x9D\x9C",
                               "c:",
                               ".hidden",
                               "*?<>|\"",
                               std::string(255, 'n'),
                               std::string(255, '\xE9')};
  for (const std::string& name : names) folder_.folder(name + "/inner");
  folder_.file("file");
  const auto outer = open();
  const Names found = names_in(*outer);
  EXPECT_EQ(found.size(), std::size(names));
  for (const std::string& name : names) {
    const std::wstring wide = system::wide_name(name);
    EXPECT_EQ(std::count(found.begin(), found.end(), wide), 1) << name;
    const auto child = outer->open_child(wide);
    ASSERT_TRUE(child) << name;
    EXPECT_EQ(names_in(*child), Names{L"inner"}) << name;
  }
}

TEST_F(FolderListing, WhatIsNoFolderDoesNotOpen) {
  using namespace std::literals;
  folder_.folder("a/b");
  folder_.file("file");
  folder_.link("dangling", "nowhere");
  ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  const auto outer = open();
  for (const std::wstring& name : {L""s, L"."s, L".."s, L"a\\b"s, L"a/b"s, L"file"s, L"gone"s,
                                   L"a\0"s, L"\x110000"s, std::wstring(256, L'n')}) {
    EXPECT_FALSE(outer->open_child(name));
  }
  for (const char* name : {"file", "dangling", "pipe", "gone", "file/x"}) {
    EXPECT_FALSE(opened(folder_ / name)) << name;
  }
  for (const wchar_t* path : {L"Q:", L"Q:\\a", L"Z:\\\x110000"}) EXPECT_FALSE(opened(path));
  EXPECT_FALSE(system_folder_listing()->open(nullptr));
}

TEST_F(FolderListing, OnePathManySpellings) {
  folder_.folder("album/year");
  ASSERT_TRUE(system::mount_drive(L'D', folder_.path().native()));
  ASSERT_TRUE(system::mount_drive(L'E', folder_ / "album"));
  const FolderIdentity album = opened(folder_ / "album")->identity();
  for (const wchar_t* path : {L"D:\\album", L"D:\\album\\", L"d:/album", L"D:\\album\\\\",
                              L"\\\\?\\D:\\album", L"D:album", L"E:", L"E:\\", L"e:/"}) {
    const auto same = opened(path);
    ASSERT_TRUE(same);
    EXPECT_EQ(same->identity(), album);
    EXPECT_EQ(names_in(*same), Names{L"year"});
  }
  EXPECT_NE(opened(L"D:")->identity(), album);
  system::mount_drive(L'D', "");
  system::mount_drive(L'E', "");
  EXPECT_FALSE(opened(L"D:\\album"));
  EXPECT_EQ(opened(L"Z:")->identity(), opened(L"Z:\\")->identity());
  EXPECT_EQ(opened(L"")->identity(), opened(L"Z:")->identity());
}

TEST_F(FolderListing, LinksToFoldersAreFolders) {
  folder_.folder("real/inner");
  folder_.file("file");
  folder_.link("to folder", "real");
  folder_.link("to link", "to folder");
  folder_.link("to file", "file");
  folder_.link("dangling", "nowhere");
  folder_.link("real/inner/up", "..");
  folder_.link("itself", "itself");
  const auto outer = open();
  EXPECT_THAT(names_in(*outer), testing::UnorderedElementsAre(L"real", L"to folder", L"to link"));
  const auto real = outer->open_child(L"real");
  EXPECT_EQ(outer->open_child(L"to link")->identity(), real->identity());
  const auto inner = real->open_child(L"inner");
  EXPECT_NE(inner->identity(), real->identity());
  EXPECT_EQ(names_in(*inner), Names{L"up"});
  EXPECT_EQ(inner->open_child(L"up")->identity(), real->identity());
}

TEST_F(FolderListing, FollowsTheFileSystemsOrderEveryTime) {
  make_many("");
  Names expected;
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
    expected.push_back(entry.path().filename().wstring());
  const auto open_folder = open();
  EXPECT_EQ(names_in(*open_folder), expected);
  EXPECT_EQ(names_in(*open_folder), expected);
}

TEST_F(FolderListing, FolderThatIsGoneOrClosedToUs) {
  for (const char* name : {"gone", "closed"}) folder_.folder(name);
  const auto outer = open();
  const auto gone = outer->open_child(L"gone");
  ASSERT_TRUE(gone);
  std::filesystem::remove(folder_ / "gone");
  EXPECT_FALSE(gone->list_folders([](std::wstring_view, FolderKind) { FAIL(); }));
  EXPECT_FALSE(gone->open_child(L"x"));
  if (geteuid() == 0) return;  // nothing is closed to root
  chmod((folder_ / "closed").c_str(), 0);
  EXPECT_FALSE(outer->open_child(L"closed"));
  EXPECT_FALSE(opened(folder_ / "closed"));
}

TEST_F(FolderListing, ListsInsideAListing) {
  for (const char* name : {"a/", "b/"}) make_many(name);
  const auto outer = open();
  std::size_t inner_names = 0;
  Names names;
  EXPECT_TRUE(outer->list_folders([&](std::wstring_view name, FolderKind) {
    inner_names += names_in(*outer->open_child(name)).size();
    names.emplace_back(name);
  }));
  EXPECT_THAT(names, testing::UnorderedElementsAre(L"a", L"b"));
  EXPECT_EQ(inner_names, 2u * kMany);
}

TEST_F(FolderListing, ListingThatThrowsLeavesTheFolderUsable) {
  folder_.folder("a");
  const auto outer = open();
  EXPECT_THROW(outer->list_folders([](std::wstring_view, FolderKind) { throw 1; }), int);
  EXPECT_EQ(names_in(*outer), Names{L"a"});
}

class FewDescriptors {
 public:
  FewDescriptors() {
    getrlimit(RLIMIT_NOFILE, &before_);
    const rlimit few{256, before_.rlim_max};
    setrlimit(RLIMIT_NOFILE, &few);
  }
  ~FewDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }

 private:
  rlimit before_{};
};

TEST_F(FolderListing, DeeperThanAnyPath) {
  constexpr int levels = 5000;
  const test::TemporaryFolder folder(test::TemporaryFolder::Place::memory);
  folder.chain("deep", levels);
  const FewDescriptors few;
  std::vector<std::unique_ptr<OpenFolder>> all;  // every one of them stays open
  all.push_back(opened(folder.wide()));
  while (all.back()) all.push_back(all.back()->open_child(L"deep"));
  all.pop_back();
  ASSERT_EQ(all.size(), levels + 1u);
  EXPECT_TRUE(names_in(*all.back()).empty());
  for (auto one = all.rbegin() + 1; one != all.rend(); ++one)
    ASSERT_EQ(names_in(**one), Names{L"deep"});

  std::unique_ptr<OpenFolder> bottom = std::move(all.back());
  all.clear();
  EXPECT_TRUE(names_in(*bottom).empty());
  std::wstring path = folder.wide();
  for (int level = 0; level < levels; ++level) path += L"\\deep";
  const auto by_path = opened(path);
  ASSERT_TRUE(by_path);
  EXPECT_EQ(by_path->identity(), bottom->identity());
}

TEST_F(FolderListing, FolderOpenedAgainIsTheSameOrNone) {
  for (const char* name : {"kept", "replaced", "other"}) folder_.folder(name);
  const auto outer = open();
  const auto kept = outer->open_child(L"kept");
  const auto replaced = outer->open_child(L"replaced");
  std::vector<std::unique_ptr<OpenFolder>> others;
  for (int number = 0; number < 300; ++number) others.push_back(outer->open_child(L"other"));
  folder_.folder("kept/new");
  std::filesystem::rename(folder_ / "replaced", folder_ / "elsewhere");
  folder_.folder("replaced");
  EXPECT_EQ(names_in(*kept), Names{L"new"});
  EXPECT_FALSE(replaced->list_folders([](std::wstring_view, FolderKind) {}));
}

}  // namespace
}  // namespace corvane
