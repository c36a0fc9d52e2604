// Opening pictures and saving parts of them.
#include "apps/capture/picture.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cerrno>

#include "apps/capture/picture_saving.h"
#include "corvane/platform/base_services/system_paths.h"
#include "tests/apps/test_pictures.h"
#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

using corvane::test::TemporaryFolder;

std::vector<std::uint8_t> BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

int FilesIn(const std::filesystem::path& folder) {
  auto files = std::filesystem::directory_iterator(folder);
  return static_cast<int>(std::distance(begin(files), end(files)));
}

TEST(SaveNumbered, NeverReplacesAFile) {
  TemporaryFolder folder;
  std::ofstream(folder / "页_1.png") << "somebody's";
  SavedPart saved = save_numbered(corvane::wide_path_of(folder.path()), L"页.jpg", {1, 2, 3});
  EXPECT_EQ(saved.name, L"页_2.png");
  EXPECT_EQ(BytesOf(folder / "页_1.png").size(), 10u);
  EXPECT_EQ(BytesOf(folder / "页_2.png"), (std::vector<std::uint8_t>{1, 2, 3}));
  EXPECT_EQ(FilesIn(folder.path()), 2) << "no temporary file is left";
}

TEST(SaveNumbered, KeepsAwayFromLinksThatLeadNowhere) {
  TemporaryFolder folder;
  ASSERT_EQ(symlink("nowhere", (folder / "a_1.png").c_str()), 0);
  EXPECT_EQ(save_numbered(corvane::wide_path_of(folder.path()), L"a.png", {1}).name, L"a_2.png");
}

TEST(SaveNumbered, TellsWhyItCouldNot) {
  TemporaryFolder folder;
  SavedPart saved = save_numbered(corvane::wide_path_of(folder / "gone"), L"a.png", {1});
  EXPECT_TRUE(saved.name.empty());
  EXPECT_EQ(saved.error, ENOENT);
}

TEST(EncodePart, GivesBackExactlyThatPart) {
  TemporaryFolder folder;
  WriteTestPicture(folder / "a.png", 300, 200);
  auto picture = CPicture::Open(folder / "a.png");
  ASSERT_NE(picture, nullptr);
  std::wstring wide_folder = corvane::wide_path_of(folder.path());
  SavedPart saved = save_numbered(wide_folder, L"a.png", picture->EncodePart({17, 31, 217, 131}));
  ASSERT_EQ(saved.name, L"a_1.png");
  auto part = CPicture::Open(folder / "a_1.png");
  ASSERT_NE(part, nullptr);
  ASSERT_EQ(part->size().cx, 200);
  ASSERT_EQ(part->size().cy, 100);
  for (auto [x, y] : {std::pair(0, 0), {199, 99}, {0, 99}, {100, 50}}) {
    EXPECT_EQ(part->image()->pixels()->at(x, y), TestPixel(17 + x, 31 + y)) << x << ',' << y;
  }
}

}  // namespace
}  // namespace capture
