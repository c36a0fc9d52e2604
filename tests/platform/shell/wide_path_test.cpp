#include "corvane/platform/system/shell/wide_path.h"

#include <gtest/gtest.h>

#include <random>

namespace corvane::system {
namespace {

TEST(WidePath, NamesOnBothSides) {
  // The last ones: the bytes of U+F75C, an encoded surrogate, an overlong '/'.
  const std::pair<const wchar_t*, const char*> cases[] = {
      {L"Z:\\", "/"},
      {L"Z:\\a\\b.txt", "/a/b.txt"},
      {L"a\\b", "a/b"},
      {L"..\\x", "../x"},
      {L"", ""},
      {L"Z:\\图片\\a b", "/\xE5\x9B\xBE\xE7\x89\x87/a b"},
      {L"Z:\\a\xF75Cz", "/a\\z"},
      {L"Z:\\c:x", "/c:x"},
      {L"c\xF73Ax", "c:x"},
      {L"Z:\\\xF7FF\xF7E5", "/\xFF\xE5"},
      {L"Z:\\\x1F600", "/\xF0\x9F\x98\x80"},
      {L"Z:\\\xF7EF\xF79D\xF79C", "/\xEF\x9D\x9C"},
      {L"Z:\\\xF7ED\xF7A0\xF780", "/\xED\xA0\x80"},
      {L"Z:\\\xF7C0\xF7AF", "/\xC0\xAF"}};
  for (const auto& [wide, bytes] : cases) {
    EXPECT_EQ(file_system_path(wide), bytes);
    EXPECT_EQ(wide_path(bytes), wide) << bytes;
  }
}

TEST(WidePath, OtherWaysToWriteAPath) {
  const std::pair<const wchar_t*, const char*> cases[] = {
      {L"z:/a/b", "/a/b"}, {L"Z:a", "/a"},         {L"\\a\\b", "/a/b"},
      {L"Z:", "/"},        {L"Z:\\a\\", "/a/"},    {L"\\\\?\\Z:\\a", "/a"},
      {L"Q:\\a", ""},      {L"Z:\\a\x110000", ""}, {L"Z:\\\xD83D\xDE00", "/\xF0\x9F\x98\x80"},
  };
  for (const auto& [wide, bytes] : cases) EXPECT_EQ(file_system_path(wide), bytes);
  EXPECT_EQ(file_system_path(std::wstring_view(L"Z:\\a\0b", 6)), "");
}

TEST(WidePath, EveryByteSequenceSurvives) {
  std::mt19937 random{11};
  for (int round = 0; round < 20000; ++round) {
    std::string bytes = round % 2 ? "/" : "";
    const auto length = 1 + random() % 8;
    for (unsigned at = 0; at < length; ++at) {
      constexpr char kLikely[] = "\\/:c\xEF\x9C\x9D\x9E\x9F\xED\xF0\xC3\xA9\xBA";
      const auto pick = random() % 3;
      bytes +=
          pick ? kLikely[random() % (sizeof kLikely - 1)] : static_cast<char>(1 + random() % 255);
    }
    ASSERT_EQ(file_system_path(wide_path(bytes)), bytes);
  }
}

TEST(WidePath, MountedDrives) {
  EXPECT_TRUE(mount_drive(L'c', "/run/disk/"));
  EXPECT_TRUE(mount_drive(L'D', "/run/disk/inner"));
  EXPECT_EQ(file_system_path(L"C:\\x\\y"), "/run/disk/x/y");
  EXPECT_EQ(file_system_path(L"c:"), "/run/disk");
  EXPECT_EQ(file_system_path(L"d:/z"), "/run/disk/inner/z");
  EXPECT_EQ(wide_path("/run/disk/x"), L"C:\\x");
  EXPECT_EQ(wide_path("/run/disk"), L"C:\\");
  EXPECT_EQ(wide_path("/run/disk/inner/x"), L"D:\\x");
  EXPECT_EQ(wide_path("/run/diskette"), L"Z:\\run\\diskette");
  EXPECT_FALSE(mount_drive(L'Z', "/data"));
  EXPECT_FALSE(mount_drive(L'1', "/data"));
  EXPECT_FALSE(mount_drive(L'E', "data"));
  EXPECT_TRUE(mount_drive(L'C', ""));
  EXPECT_TRUE(mount_drive(L'D', ""));
  EXPECT_EQ(file_system_path(L"C:\\x"), "");
  EXPECT_EQ(wide_path("/run/disk/x"), L"Z:\\run\\disk\\x");
}

}  // namespace
}  // namespace corvane::system
