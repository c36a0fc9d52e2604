// The library's folders and the order of their pictures.
#include "apps/capture/picture_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

using corvane::test::TemporaryFolder;
using testing::ElementsAre;

TEST(NameFrom, GoesRoundAndStandsBetweenNeighboursWhenItIsNotThere) {
  const std::vector<std::wstring> some = {L"a", L"c", L"甲"};
  const std::vector<std::wstring> one = {L"only"};
  const struct {
    const std::vector<std::wstring>& names;
    const wchar_t* from;
    int step;
    const wchar_t* to;
  } cases[] = {{some, L"a", 1, L"c"},  {some, L"a", -1, L"甲"}, {some, L"甲", 1, L"a"},
               {some, L"b", 1, L"c"},  {some, L"b", -1, L"a"},  {some, L"", 1, L"a"},
               {some, L"", -1, L"甲"}, {one, L"only", 1, L""},  {one, L"gone", 1, L"only"},
               {{}, L"gone", -1, L""}};
  for (const auto& each : cases) {
    EXPECT_EQ(name_from(each.names, each.from, each.step), each.to);
  }
}

TEST(LiesIn, CountsWholeNames) {
  EXPECT_TRUE(lies_in(L"Z:\\lib", L"Z:\\lib"));
  EXPECT_TRUE(lies_in(L"Z:\\lib", L"Z:\\lib\\a\\b"));
  EXPECT_FALSE(lies_in(L"Z:\\lib", L"Z:\\library"));
  EXPECT_FALSE(lies_in(L"Z:\\lib", L"Z:"));
}

TEST(LibraryFolders, AreReadInOrderAndWithoutWhatIsHiddenOrLinkedOrNoPicture) {
  const TemporaryFolder folder;
  for (const char* path :
       {"乙/x", "甲/x", ".hidden/x", "b_10.png", "b_2.png", "b_02.png", "b.png", "a.JPG",
        "图 1.jpeg", "a.b.Bmp", "x.gif", "a.txt", "jpg", ".png", "a.jpg.bak", "a."}) {
    folder.file(path);
  }
  folder.link("link", ".");
  const auto entries = read_folder(folder.wide());
  ASSERT_TRUE(entries);
  EXPECT_THAT(entries->folders, ElementsAre(L"乙", L"甲"));
  EXPECT_THAT(entries->pictures, ElementsAre(L"a.JPG", L"a.b.Bmp", L"b.png", L"b_02.png",
                                             L"b_2.png", L"b_10.png", L"x.gif", L"图 1.jpeg"));
  EXPECT_FALSE(read_folder(folder.wide() + L"\\missing"));
  EXPECT_FALSE(read_folder(folder.wide() + L"\\a.txt"));
}

TEST(LibraryFolders, TheFirstOneWithPicturesIsFoundFromTheTopInOrder) {
  const TemporaryFolder folder;
  EXPECT_EQ(first_folder_with_pictures(folder.wide()), L"");
  for (const char* path : {"c/late.png", "b/deep/deeper/first.png", "a/notes.txt"}) {
    folder.file(path);
  }
  EXPECT_EQ(first_folder_with_pictures(folder.wide()), folder.wide() + L"\\b\\deep\\deeper");
  folder.file("top.png");
  EXPECT_EQ(first_folder_with_pictures(folder.wide()), folder.wide());
}

}  // namespace
}  // namespace capture
