#include "corvane/platform/base_services/folder_listing.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "corvane/platform/system/shell/wide_path.h"
#include "tests/support/temporary_folder.h"

namespace corvane {
namespace {

using test::TemporaryFolder;

std::unique_ptr<OpenFolder> opened(const std::wstring& path) {
  return system_folder_listing()->open(path.c_str());
}

std::unique_ptr<OpenFolder> opened(const std::string& path) {
  return opened(system::wide_path(path));
}

std::vector<std::wstring> names_in(OpenFolder& folder) {
  std::vector<std::wstring> names;
  EXPECT_TRUE(folder.list_folders(
      [&names](std::wstring_view name, FolderKind) { names.emplace_back(name); }));
  return names;
}

std::vector<std::wstring> sorted_names_in(OpenFolder& folder) {
  std::vector<std::wstring> names = names_in(folder);
  std::sort(names.begin(), names.end());
  return names;
}

// Allows this process only few descriptors while it lives.
class FewDescriptors {
 public:
  explicit FewDescriptors(rlim_t most) {
    getrlimit(RLIMIT_NOFILE, &before_);
    const rlimit few{most, before_.rlim_max};
    setrlimit(RLIMIT_NOFILE, &few);
  }
  ~FewDescriptors() { setrlimit(RLIMIT_NOFILE, &before_); }
  FewDescriptors(const FewDescriptors&) = delete;
  FewDescriptors& operator=(const FewDescriptors&) = delete;

 private:
  rlimit before_{};
};

constexpr int kMany = 300;

// So many folders with so long names that one call of the system does not list them all.
void make_many(const TemporaryFolder& folder, const std::string& prefix) {
  for (int number = 0; number < kMany; ++number)
    folder.folder(prefix + std::string(200, 'm') + std::to_string(number));
}

TEST(FolderListing, EveryNameGoesOutAndBackIn) {
  const TemporaryFolder folder;
  const std::string names[] = {
      "plain",
      "two words ",
      "图片",
      "trailing dot.",
      "back\\slash",
      "new\nline",
      "\xFF\xFE no text",
      "\xEF\x9D\x9C",  // spells the character that stands for a backslash
      "c:",
      ".hidden",
      "*?<>|\"",
      std::string(255, 'n'),
      std::string(255, '\xE9'),
  };
  for (const std::string& name : names) {
    folder.folder(name);
    folder.folder(name + "/inner");
  }
  folder.file("file");
  const auto outer = opened(folder.path().native());
  const std::vector<std::wstring> found = names_in(*outer);
  EXPECT_EQ(found.size(), std::size(names));
  for (const std::string& name : names) {
    const std::wstring wide = system::wide_name(name);
    EXPECT_EQ(std::count(found.begin(), found.end(), wide), 1) << name;
    const auto child = outer->open_child(wide);
    ASSERT_TRUE(child) << name;
    EXPECT_EQ(names_in(*child), std::vector<std::wstring>{L"inner"}) << name;
  }
}

TEST(FolderListing, WhatIsNoFolderDoesNotOpen) {
  using namespace std::literals;
  const TemporaryFolder folder;
  folder.folder("a");
  folder.folder("a/b");
  folder.file("file");
  folder.link("dangling", "nowhere");
  ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
  const auto outer = opened(folder.path().native());
  for (const std::wstring& name : {L""s, L"."s, L".."s, L"a\\b"s, L"a/b"s, L"file"s, L"gone"s,
                                   L"a\0"s, L"\x110000"s, std::wstring(256, L'n')}) {
    EXPECT_FALSE(outer->open_child(name));
  }
  for (const char* name : {"file", "dangling", "pipe", "gone", "file/x"}) {
    EXPECT_FALSE(opened(folder / name)) << name;
  }
  for (const wchar_t* path : {L"Q:", L"Q:\\a", L"Z:\\\x110000"}) EXPECT_FALSE(opened(path));
  EXPECT_FALSE(system_folder_listing()->open(nullptr));
}

TEST(FolderListing, OnePathManySpellings) {
  const TemporaryFolder folder;
  folder.folder("album");
  folder.folder("album/year");
  ASSERT_TRUE(system::mount_drive(L'D', folder.path().native()));
  ASSERT_TRUE(system::mount_drive(L'E', folder / "album"));
  const FolderIdentity album = opened(folder / "album")->identity();
  for (const wchar_t* path : {L"D:\\album", L"D:\\album\\", L"d:/album", L"D:\\album\\\\",
                              L"\\\\?\\D:\\album", L"D:album", L"E:", L"E:\\", L"e:/"}) {
    const auto same = opened(path);
    ASSERT_TRUE(same);
    EXPECT_EQ(same->identity(), album);
    EXPECT_EQ(names_in(*same), std::vector<std::wstring>{L"year"});
  }
  EXPECT_NE(opened(L"D:")->identity(), album);
  system::mount_drive(L'D', "");
  system::mount_drive(L'E', "");
  EXPECT_FALSE(opened(L"D:\\album"));
  EXPECT_EQ(opened(L"Z:")->identity(), opened(L"Z:\\")->identity());
  EXPECT_EQ(opened(L"")->identity(), opened(L"Z:")->identity());
}

TEST(FolderListing, LinksToFoldersAreFolders) {
  const TemporaryFolder folder;
  folder.folder("real");
  folder.folder("real/inner");
  folder.file("file");
  folder.link("to folder", "real");
  folder.link("to link", "to folder");
  folder.link("to file", "file");
  folder.link("dangling", "nowhere");
  folder.link("real/inner/up", "..");
  folder.link("itself", "itself");
  const auto outer = opened(folder.path().native());
  EXPECT_EQ(sorted_names_in(*outer),
            (std::vector<std::wstring>{L"real", L"to folder", L"to link"}));
  const auto real = outer->open_child(L"real");
  EXPECT_EQ(outer->open_child(L"to link")->identity(), real->identity());
  const auto inner = real->open_child(L"inner");
  EXPECT_NE(inner->identity(), real->identity());
  EXPECT_EQ(names_in(*inner), std::vector<std::wstring>{L"up"});
  EXPECT_EQ(inner->open_child(L"up")->identity(), real->identity());
}

TEST(FolderListing, FollowsTheFileSystemsOrderEveryTime) {
  const TemporaryFolder folder;
  make_many(folder, "");
  std::vector<std::wstring> expected;
  for (const auto& entry : std::filesystem::directory_iterator(folder.path()))
    expected.push_back(entry.path().filename().wstring());
  const auto open_folder = opened(folder.path().native());
  EXPECT_EQ(names_in(*open_folder), expected);
  EXPECT_EQ(names_in(*open_folder), expected);
}

TEST(FolderListing, FolderThatIsGoneOrClosedToUs) {
  const TemporaryFolder folder;
  folder.folder("gone");
  folder.folder("closed");
  const auto outer = opened(folder.path().native());
  const auto gone = outer->open_child(L"gone");
  ASSERT_TRUE(gone);
  std::filesystem::remove(folder / "gone");
  EXPECT_FALSE(gone->list_folders([](std::wstring_view, FolderKind) { FAIL(); }));
  EXPECT_FALSE(gone->open_child(L"x"));
  if (geteuid() == 0) return;  // nothing is closed to root
  chmod((folder / "closed").c_str(), 0);
  EXPECT_FALSE(outer->open_child(L"closed"));
  EXPECT_FALSE(opened(folder / "closed"));
}

TEST(FolderListing, ListsInsideAListing) {
  const TemporaryFolder folder;
  for (const char* name : {"a", "b"}) {
    folder.folder(name);
    make_many(folder, name + std::string("/"));
  }
  const auto outer = opened(folder.path().native());
  std::size_t inner_names = 0;
  std::vector<std::wstring> names;
  EXPECT_TRUE(outer->list_folders([&](std::wstring_view name, FolderKind) {
    inner_names += names_in(*outer->open_child(name)).size();
    names.emplace_back(name);
  }));
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names, (std::vector<std::wstring>{L"a", L"b"}));
  EXPECT_EQ(inner_names, 2u * kMany);
}

TEST(FolderListing, ListingThatThrowsLeavesTheFolderUsable) {
  const TemporaryFolder folder;
  folder.folder("a");
  const auto outer = opened(folder.path().native());
  EXPECT_THROW(outer->list_folders([](std::wstring_view, FolderKind) { throw 1; }), int);
  EXPECT_EQ(names_in(*outer), std::vector<std::wstring>{L"a"});
}

TEST(FolderListing, DeeperThanAnyPath) {
  constexpr int levels = 5000;
  const TemporaryFolder folder(TemporaryFolder::Place::memory);
  folder.chain("deep", levels);
  const FewDescriptors few(256);
  std::vector<std::unique_ptr<OpenFolder>> all;  // every one of them stays open
  all.push_back(opened(folder.path().native()));
  while (all.back()) all.push_back(all.back()->open_child(L"deep"));
  all.pop_back();
  ASSERT_EQ(all.size(), levels + 1u);
  EXPECT_TRUE(names_in(*all.back()).empty());
  for (auto one = all.rbegin() + 1; one != all.rend(); ++one)
    ASSERT_EQ(names_in(**one), std::vector<std::wstring>{L"deep"});

  std::unique_ptr<OpenFolder> bottom = std::move(all.back());
  all.clear();
  EXPECT_TRUE(names_in(*bottom).empty());
  std::wstring path = system::wide_path(folder.path().native());
  for (int level = 0; level < levels; ++level) path += L"\\deep";
  const auto by_path = opened(path);
  ASSERT_TRUE(by_path);
  EXPECT_EQ(by_path->identity(), bottom->identity());
}

TEST(FolderListing, FolderOpenedAgainIsTheSameOrNone) {
  const TemporaryFolder folder;
  folder.folder("kept");
  folder.folder("replaced");
  folder.folder("other");
  const auto outer = opened(folder.path().native());
  const auto kept = outer->open_child(L"kept");
  const auto replaced = outer->open_child(L"replaced");
  std::vector<std::unique_ptr<OpenFolder>> others;
  for (int number = 0; number < 300; ++number) others.push_back(outer->open_child(L"other"));
  folder.folder("kept/new");
  std::filesystem::rename(folder / "replaced", folder / "elsewhere");
  folder.folder("replaced");
  EXPECT_EQ(names_in(*kept), std::vector<std::wstring>{L"new"});
  EXPECT_FALSE(replaced->list_folders([](std::wstring_view, FolderKind) {}));
}

}  // namespace
}  // namespace corvane
