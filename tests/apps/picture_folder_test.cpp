// The library's folders and the order of their pictures.
#include "apps/capture/picture_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "corvane/platform/base_services/system_paths.h"
#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

using corvane::test::TemporaryFolder;

using testing::ElementsAre;

TEST(PictureEnding, IsKnownInAnyCase) {
  for (const wchar_t* name : {L"a.jpg", L"a.JPEG", L"图 1.png", L"a.b.Bmp", L"x.gif"}) {
    EXPECT_TRUE(has_picture_ending(name)) << corvane::native_path(name);
  }
  for (const wchar_t* name : {L"a.txt", L"jpg", L".png", L"a.jpg.bak", L"", L"a."}) {
    EXPECT_FALSE(has_picture_ending(name)) << corvane::native_path(name);
  }
}

TEST(NameFrom, GoesRoundAndStandsBetweenNeighboursWhenItIsNotThere) {
  const std::vector<std::wstring> names = {L"a", L"c", L"甲"};
  const struct {
    const wchar_t* from;
    int step;
    const wchar_t* to;
  } cases[] = {{L"a", 1, L"c"},  {L"a", -1, L"甲"}, {L"甲", 1, L"a"}, {L"b", 1, L"c"},
               {L"b", -1, L"a"}, {L"", 1, L"a"},    {L"", -1, L"甲"}};
  for (const auto& each : cases) {
    EXPECT_EQ(name_from(names, each.from, each.step), each.to);
  }
  EXPECT_EQ(name_from({L"only"}, L"only", 1), L"");
  EXPECT_EQ(name_from({L"only"}, L"gone", 1), L"only");
  EXPECT_EQ(name_from({}, L"gone", -1), L"");
}

TEST(LiesIn, CountsWholeNames) {
  EXPECT_TRUE(lies_in(L"Z:\\lib", L"Z:\\lib"));
  EXPECT_TRUE(lies_in(L"Z:\\lib", L"Z:\\lib\\a\\b"));
  EXPECT_FALSE(lies_in(L"Z:\\lib", L"Z:\\library"));
  EXPECT_FALSE(lies_in(L"Z:\\lib", L"Z:"));
}

class LibraryFolders : public testing::Test {
 protected:
  void Make(const std::string& path) {
    std::filesystem::create_directories((folder_ / path).parent_path());
    std::ofstream(folder_ / path) << "a file";
  }
  std::wstring root() const { return corvane::wide_path_of(folder_.path()); }

  TemporaryFolder folder_;
};

TEST_F(LibraryFolders, AreReadInOrderAndWithoutWhatIsHiddenOrLinked) {
  for (const char* path :
       {"乙/x", "甲/x", "b_10.png", "b_2.png", "a.JPG", "notes.txt", ".hidden/x"})
    Make(path);
  std::filesystem::create_directory_symlink(folder_.path(), folder_ / "link");
  auto entries = read_folder(root());
  ASSERT_TRUE(entries);
  EXPECT_THAT(entries->folders, ElementsAre(L"乙", L"甲"));
  EXPECT_THAT(entries->pictures, ElementsAre(L"a.JPG", L"b_2.png", L"b_10.png"));
  EXPECT_FALSE(read_folder(root() + L"\\missing"));
  EXPECT_FALSE(read_folder(root() + L"\\notes.txt"));
}

TEST_F(LibraryFolders, TheFirstOneWithPicturesIsFoundFromTheTopInOrder) {
  EXPECT_EQ(first_folder_with_pictures(root()), L"");
  Make("c/late.png");
  Make("b/deep/deeper/first.png");
  Make("a/notes.txt");
  EXPECT_EQ(first_folder_with_pictures(root()), root() + L"\\b\\deep\\deeper");
  Make("top.png");
  EXPECT_EQ(first_folder_with_pictures(root()), root());
}

}  // namespace
}  // namespace capture
