// Opening pictures, walking through a folder, saving beside the picture.
#include "apps/capture/picture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "tests/apps/temporary_folder.h"
#include "tests/apps/test_pictures.h"

namespace capture {
namespace {

using testing::IsEmpty;

std::vector<std::uint8_t> BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int FilesIn(const std::filesystem::path& folder) {
  auto files = std::filesystem::directory_iterator(folder);
  return static_cast<int>(std::distance(begin(files), end(files)));
}

TEST(PictureEnding, IsKnownInAnyCase) {
  for (const char* name : {"a.jpg", "a.JPEG", "图 1.png", "a.b.Bmp", "x.gif"}) {
    EXPECT_TRUE(HasPictureEnding(name)) << name;
  }
  for (const char* name : {"a.txt", "jpg", ".png", "a.jpg.bak", "", "a."}) {
    EXPECT_FALSE(HasPictureEnding(name)) << name;
  }
}

TEST(PictureNeighbours, GoRoundInTheSortedFolder) {
  TemporaryFolder folder;
  for (const char* name : {"b.png", "a.png", "甲.png"}) WriteTestPicture(folder / name, 4, 4);
  std::ofstream(folder / "notes.txt") << "no picture";
  auto first = CPicture::Open(folder / "a.png");
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(first->Neighbour(1), folder / "b.png");
  EXPECT_EQ(first->Neighbour(-1), folder / "甲.png");
  auto last = CPicture::Open(folder / "甲.png");
  EXPECT_EQ(last->Neighbour(1), folder / "a.png");
}

TEST(PictureNeighbours, OfAnOnlyPictureAreNone) {
  TemporaryFolder folder;
  WriteTestPicture(folder / "only.png", 4, 4);
  auto only = CPicture::Open(folder / "only.png");
  EXPECT_EQ(only->Neighbour(1), "");
  EXPECT_EQ(only->Neighbour(-1), "");
}

TEST(PictureNeighbours, OfAPictureThatWasRemovedAreItsFormerOnes) {
  TemporaryFolder folder;
  for (const char* name : {"a.png", "b.png", "c.png"}) WriteTestPicture(folder / name, 4, 4);
  auto middle = CPicture::Open(folder / "b.png");
  unlink((folder / "b.png").c_str());
  EXPECT_EQ(middle->Neighbour(1), folder / "c.png");
  EXPECT_EQ(middle->Neighbour(-1), folder / "a.png");
}

TEST(SaveBeside, NeverReplacesAFile) {
  TemporaryFolder folder;
  std::string picture = folder / "页.jpg";
  std::ofstream(folder / "页_1.png") << "somebody's";
  SavedPart saved = SaveBeside(picture, {1, 2, 3});
  EXPECT_EQ(saved.path, folder / "页_2.png");
  EXPECT_EQ(BytesOf(folder / "页_1.png").size(), 10u);
  EXPECT_EQ(BytesOf(saved.path), (std::vector<std::uint8_t>{1, 2, 3}));
  EXPECT_EQ(FilesIn(folder.path()), 2) << "no temporary file is left";
}

TEST(SaveBeside, KeepsAwayFromLinksThatLeadNowhere) {
  TemporaryFolder folder;
  ASSERT_EQ(symlink("nowhere", (folder / "a_1.png").c_str()), 0);
  EXPECT_EQ(SaveBeside(folder / "a.png", {1}).path, folder / "a_2.png");
}

TEST(SaveBeside, TellsWhyItCouldNot) {
  TemporaryFolder folder;
  SavedPart saved = SaveBeside(folder / "gone" / "a.png", {1});
  EXPECT_THAT(saved.path, IsEmpty());
  EXPECT_EQ(saved.error, ENOENT);
}

TEST(EncodePart, GivesBackExactlyThatPart) {
  TemporaryFolder folder;
  WriteTestPicture(folder / "a.png", 300, 200);
  auto picture = CPicture::Open(folder / "a.png");
  ASSERT_NE(picture, nullptr);
  SavedPart saved = SaveBeside(picture->path(), picture->EncodePart({17, 31, 217, 131}));
  auto part = CPicture::Open(saved.path);
  ASSERT_NE(part, nullptr);
  ASSERT_EQ(part->size().cx, 200);
  ASSERT_EQ(part->size().cy, 100);
  for (auto [x, y] : {std::pair(0, 0), {199, 99}, {0, 99}, {100, 50}}) {
    EXPECT_EQ(part->image()->pixels()->at(x, y), TestPixel(17 + x, 31 + y)) << x << ',' << y;
  }
}

}  // namespace
}  // namespace capture
