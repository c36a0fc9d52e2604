#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <filesystem>
#include <set>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "corvane/platform/system/shell/name_pattern.h"
#include "corvane/platform/system/shell/shell_api.h"
#include "corvane/platform/system/shell/wide_path.h"
#include "tests/support/golden_file.h"
#include "tests/support/temporary_folder.h"

namespace corvane::system {
namespace {

using Names = std::set<std::wstring>;

class FindFiles : public testing::Test {
 protected:
  std::wstring in(const std::wstring& rest) const { return folder_.wide() + L"\\" + rest; }

  test::TemporaryFolder folder_;
};

HANDLE first(const std::wstring& pattern, WIN32_FIND_DATAW& data) {
  SetLastError(ERROR_SUCCESS);
  return FindFirstFileW(pattern.c_str(), &data);
}

// Everything that a search delivers, in its order.
std::vector<WIN32_FIND_DATAW> all(const std::wstring& pattern) {
  std::vector<WIN32_FIND_DATAW> found;
  WIN32_FIND_DATAW data;
  const HANDLE search = first(pattern, data);
  if (search == INVALID_HANDLE_VALUE) return found;
  do {
    found.push_back(data);
  } while (FindNextFileW(search, &data));
  EXPECT_EQ(GetLastError(), ERROR_NO_MORE_FILES);
  EXPECT_TRUE(FindClose(search));
  return found;
}

Names names(const std::wstring& pattern) {
  Names found;
  for (const auto& data : all(pattern)) EXPECT_TRUE(found.insert(data.cFileName).second);
  return found;
}

WIN32_FIND_DATAW one(const std::wstring& path) {
  const std::vector<WIN32_FIND_DATAW> found = all(path);
  EXPECT_EQ(found.size(), 1u);
  return found.empty() ? WIN32_FIND_DATAW{} : found.front();
}

DWORD error_of(const std::wstring& pattern) {
  WIN32_FIND_DATAW data;
  EXPECT_EQ(first(pattern, data), INVALID_HANDLE_VALUE);
  return GetLastError();
}

TEST(NamePattern, FitsAsOnThePlatform) {
  for (const auto& row : test::golden_rows("tests/platform/shell/name_patterns.txt")) {
    EXPECT_EQ(NamePattern(wide_name(row.at(0))).fits(wide_name(row.at(1))), row.at(2) == "fits")
        << row.at(0) << " and " << row.at(1);
  }
}

TEST_F(FindFiles, EntriesOfAFolder) {
  folder_.folder("Album/inner");
  for (const char* name : {"a.jpg", "B.JPG", "back\\slash\n.jpg", "\xFF.txt"}) folder_.file(name);
  const std::wstring slash = wide_name("back\\slash\n.jpg");
  const std::wstring byte = wide_name("\xFF.txt");
  const std::pair<const wchar_t*, Names> cases[] = {
      {L"*", {L".", L"..", L"Album", L"a.jpg", L"B.JPG", slash, byte}},
      {L"*.*", {L".", L"..", L"Album", L"a.jpg", L"B.JPG", slash, byte}},
      {L"*.jpg", {L"a.jpg", L"B.JPG", slash}},
      {L"?.jpg", {L"a.jpg", L"B.JPG"}},
      {L"album*", {L"Album"}},
      {L"Album", {L"Album"}},
      {L"Album\\*", {L".", L"..", L"inner"}},
      {L"Album/inn*", {L"inner"}},
      {L"Album\\inner", {L"inner"}}};
  for (const auto& [pattern, expected] : cases)
    EXPECT_EQ(names(in(pattern)), expected) << testing::PrintToString(pattern);
  EXPECT_EQ(names(in(slash)), Names{slash});
  EXPECT_EQ(names(L"\\\\?\\" + in(byte)), Names{byte});
}

TEST_F(FindFiles, DotsComeFirstAndTheRestInTheFileSystemsOrder) {
  std::vector<std::wstring> expected{L".", L".."};
  for (int number = 0; number < 300; ++number)
    folder_.file(std::string(200, 'm') + std::to_string(number));
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path()))
    expected.push_back(entry.path().filename().wstring());
  std::vector<std::wstring> found;
  for (const WIN32_FIND_DATAW& data : all(in(L"*"))) found.push_back(data.cFileName);
  EXPECT_EQ(found, expected);
}

TEST_F(FindFiles, DriveRootsHaveNoDots) {
  folder_.folder("a/b");
  ASSERT_TRUE(mount_drive(L'D', folder_.path().native()));
  for (const wchar_t* pattern : {L"D:\\*", L"d:*", L"D:/*", L"D:\\\\*", L"\\\\?\\D:\\*"})
    EXPECT_EQ(names(pattern), Names{L"a"}) << testing::PrintToString(pattern);
  EXPECT_EQ(names(L"D:\\a\\*"), (Names{L".", L"..", L"b"}));
  EXPECT_EQ(names(L"Z:\\*").count(L"."), 0u);
  EXPECT_EQ(names(L"\\*").count(L".."), 0u);
  EXPECT_EQ(GetFileAttributesW(L"D:"), FILE_ATTRIBUTE_DIRECTORY);
  for (const wchar_t* root : {L"D:\\", L"Z:\\"}) EXPECT_TRUE(PathFileExistsW(root));
  mount_drive(L'D', "");
  EXPECT_EQ(error_of(L"D:\\*"), ERROR_PATH_NOT_FOUND);
  EXPECT_FALSE(PathFileExistsW(L"D:\\"));
}

TEST_F(FindFiles, WhatCannotBeFound) {
  folder_.folder("a");
  folder_.file("file");
  constexpr DWORD kFile = ERROR_FILE_NOT_FOUND, kPath = ERROR_PATH_NOT_FOUND;
  // The errors of a search and of a query; 0: none is made.
  const std::tuple<const wchar_t*, DWORD, DWORD> cases[] = {
      {L"gone", kFile, kFile}, {L"gone*", kFile, 0},   {L"a\\", kFile, 0},
      {L"gone\\", 0, kFile},   {L"gone\\*", kPath, 0}, {L"gone\\x", kPath, kPath},
      {L"file\\", 0, kPath},   {L"file\\*", kPath, 0}, {L"file\\x", kPath, kPath},
      {L"x\x110000", kFile, 0}};
  for (const auto& [name, of_search, of_query] : cases) {
    SCOPED_TRACE(testing::PrintToString(name));
    EXPECT_TRUE(of_search == 0 || error_of(in(name)) == of_search);
    if (of_query == 0) continue;
    SetLastError(ERROR_SUCCESS);
    EXPECT_FALSE(PathFileExistsW(in(name).c_str()));
    EXPECT_EQ(GetLastError(), of_query);
  }
  for (const wchar_t* path : {L"", L"Q:\\x", static_cast<const wchar_t*>(nullptr)}) {
    EXPECT_FALSE(PathFileExistsW(path));
    EXPECT_EQ(GetFileAttributesW(path), INVALID_FILE_ATTRIBUTES);
  }
  EXPECT_EQ(error_of(in(std::wstring(256, L'n'))), ERROR_FILENAME_EXCED_RANGE);
  EXPECT_EQ(error_of(L""), kPath);
  EXPECT_EQ(error_of(L"Q:\\*"), kPath);
  WIN32_FIND_DATAW data;
  EXPECT_EQ(FindFirstFileW(nullptr, &data), INVALID_HANDLE_VALUE);
  EXPECT_EQ(FindFirstFileW(L"Z:\\*", nullptr), INVALID_HANDLE_VALUE);
  EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
  if (geteuid() == 0) return;  // nothing is closed to root
  chmod((folder_ / "a").c_str(), 0);
  EXPECT_EQ(error_of(in(L"a\\*")), ERROR_ACCESS_DENIED);
}

TEST_F(FindFiles, Attributes) {
  for (const char* name : {"folder", ".dot folder"}) folder_.folder(name);
  for (const char* name : {"file", ".dot file", "readonly"}) folder_.file(name);
  chmod((folder_ / "readonly").c_str(), 0444);
  folder_.link("to folder", "folder");
  folder_.link("to file", "file");
  folder_.link("to parent", "..");
  folder_.link("dangling", "nowhere");
  constexpr DWORD link = FILE_ATTRIBUTE_REPARSE_POINT;
  const std::tuple<const wchar_t*, DWORD, BOOL> cases[] = {
      {L"folder", FILE_ATTRIBUTE_DIRECTORY, TRUE},
      {L".dot folder", FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN, TRUE},
      {L"file", FILE_ATTRIBUTE_ARCHIVE, TRUE},
      {L".dot file", FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_HIDDEN, TRUE},
      {L"readonly", FILE_ATTRIBUTE_ARCHIVE | FILE_ATTRIBUTE_READONLY, TRUE},
      {L"to folder", link | FILE_ATTRIBUTE_DIRECTORY, TRUE},
      {L"to file", link | FILE_ATTRIBUTE_ARCHIVE, TRUE},
      {L"to parent", link | FILE_ATTRIBUTE_DIRECTORY, TRUE},
      {L"dangling", link | FILE_ATTRIBUTE_ARCHIVE, FALSE},
      {L"gone", INVALID_FILE_ATTRIBUTES, FALSE}};
  for (const auto& [name, attributes, exists] : cases) {
    SCOPED_TRACE(testing::PrintToString(name));
    const std::wstring path = in(name);
    EXPECT_EQ(GetFileAttributesW(path.c_str()), attributes);
    EXPECT_EQ(PathFileExistsW(path.c_str()), exists);
    if (attributes == INVALID_FILE_ATTRIBUTES) continue;
    const WIN32_FIND_DATAW data = one(path);
    EXPECT_EQ(data.dwFileAttributes, attributes);
    EXPECT_EQ(data.dwReserved0, attributes & link ? IO_REPARSE_TAG_SYMLINK : 0);
  }
  const std::vector<WIN32_FIND_DATAW> found = all(in(L"*"));
  for (std::size_t dots = 0; dots < 2; ++dots)
    EXPECT_EQ(found.at(dots).dwFileAttributes, FILE_ATTRIBUTE_DIRECTORY);
}

std::uint64_t whole(DWORD high, DWORD low) { return (std::uint64_t{high} << 32) | low; }

std::uint64_t whole(const FILETIME& time) { return whole(time.dwHighDateTime, time.dwLowDateTime); }

TEST_F(FindFiles, SizesAndTimes) {
  folder_.file("file", "12345");
  folder_.link("link", "file");
  constexpr std::uint64_t large = (std::uint64_t{5} << 32) + 7;
  folder_.file("large");
  std::error_code sparse_unsupported;
  std::filesystem::resize_file(folder_ / "large", large, sparse_unsupported);
  const timespec times[] = {{1000000000, 0}, {1700000000, 123456700}};
  ASSERT_EQ(utimensat(AT_FDCWD, (folder_ / "file").c_str(), times, 0), 0);
  const WIN32_FIND_DATAW data = one(in(L"file"));
  EXPECT_EQ(whole(data.nFileSizeHigh, data.nFileSizeLow), 5u);
  EXPECT_EQ(whole(data.ftLastWriteTime), 133444736001234567u);
  EXPECT_EQ(whole(data.ftLastAccessTime), 126444736000000000u);
  EXPECT_GT(whole(data.ftCreationTime), 0u);
  EXPECT_EQ(one(in(L"link")).nFileSizeLow, 0u);
  EXPECT_EQ(one(folder_.wide()).nFileSizeLow, 0u);
  if (sparse_unsupported) return;
  const WIN32_FIND_DATAW sparse = one(in(L"large"));
  EXPECT_EQ(whole(sparse.nFileSizeHigh, sparse.nFileSizeLow), large);
}

TEST_F(FindFiles, EntriesThatVanishAreLeftOut) {
  for (const char* name : {"a", "b", "c"}) folder_.file(name);
  WIN32_FIND_DATAW data;
  const HANDLE search = first(in(L"?"), data);
  ASSERT_NE(search, INVALID_HANDLE_VALUE);
  for (const char* name : {"a", "b", "c"}) std::filesystem::remove(folder_ / name);
  EXPECT_FALSE(FindNextFileW(search, &data));
  EXPECT_EQ(GetLastError(), ERROR_NO_MORE_FILES);
  EXPECT_TRUE(FindClose(search));
}

TEST_F(FindFiles, HandlesAreChecked) {
  folder_.file("a");
  WIN32_FIND_DATAW data;
  const HANDLE closed = first(in(L"*"), data);
  EXPECT_TRUE(FindClose(closed));
  const HANDLE open = first(in(L"*"), data);
  int on_the_stack = 0;
  for (const HANDLE wrong :
       {closed, INVALID_HANDLE_VALUE, HANDLE{nullptr}, static_cast<HANDLE>(&on_the_stack)}) {
    for (const bool close : {false, true}) {
      SetLastError(ERROR_SUCCESS);
      EXPECT_FALSE(close ? FindClose(wrong) : FindNextFileW(wrong, &data));
      EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
    }
  }
  EXPECT_FALSE(FindNextFileW(open, nullptr));
  EXPECT_EQ(GetLastError(), ERROR_INVALID_PARAMETER);
  EXPECT_TRUE(FindNextFileW(open, &data));
  EXPECT_STREQ(data.cFileName, L"..");
  EXPECT_TRUE(FindClose(open));
}

TEST_F(FindFiles, ManyThreads) {
  constexpr int files = 200;
  for (int number = 0; number < files; ++number) folder_.file(std::to_string(number));
  WIN32_FIND_DATAW data;
  const HANDLE shared = first(in(L"*"), data);
  std::atomic<int> from_shared = 1, own = 0;
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      WIN32_FIND_DATAW entry;
      while (FindNextFileW(shared, &entry)) ++from_shared;
      own += static_cast<int>(all(in(L"*")).size());
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_TRUE(FindClose(shared));
  EXPECT_EQ(from_shared, files + 2);
  EXPECT_EQ(own, 4 * (files + 2));
}

}  // namespace
}  // namespace corvane::system
