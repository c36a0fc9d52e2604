#include <gtest/gtest.h>

#include "corvane/platform/system/shell/shell_api.h"

namespace corvane::system {
namespace {

TEST(PathNames, FileNameExtensionAndFolder) {
  const struct {
    std::wstring path, name, extension, folder;
  } cases[] = {{L"Z:\\图 片\\a.b.png", L"a.b.png", L".png", L"Z:\\图 片"},
               {L"Z:\\a.d\\b", L"b", L"", L"Z:\\a.d"},
               {L"Z:\\a\\", L"a\\", L"", L"Z:\\a"},
               {L"a.x y", L"a.x y", L"", L""},
               {L"Z:\\", L"Z:\\", L"", L"Z:\\"},
               {L"\\a", L"a", L"", L"\\"},
               {L"", L"", L"", L""}};
  for (const auto& [path, name, extension, folder] : cases) {
    EXPECT_EQ(PathFindFileNameW(path.c_str()), name);
    EXPECT_EQ(PathFindExtensionW(path.c_str()), extension);
    std::wstring cut = path;
    EXPECT_EQ(PathRemoveFileSpecW(cut.data()) != FALSE, folder != path);
    EXPECT_EQ(cut.c_str(), folder);
  }
  EXPECT_NE(PathIsDirectoryW(L"Z:\\"), FALSE);
  EXPECT_EQ(PathIsDirectoryW(L"Z:\\dev\\null"), FALSE);
}

}  // namespace
}  // namespace corvane::system
