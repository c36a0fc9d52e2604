// Opening pictures and saving parts of them.
#include "apps/capture/picture.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <iterator>

#include "apps/capture/picture_saving.h"
#include "tests/apps/test_pictures.h"
#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

using corvane::test::TemporaryFolder;

std::string BytesOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(SaveNumbered, NeverReplacesAFileOrALinkAndTellsWhyItCouldNot) {
  const TemporaryFolder folder;
  folder.file("页_1.png", "somebody's");
  folder.link("页_2.png", "nowhere");
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"页.jpg", L"页_3.png"}, {L"a.b.png", L"a.b_1.png"}, {L".png", L".png_1.png"}};
  for (const auto& [picture, name] : cases) {
    EXPECT_EQ(save_numbered(folder.wide(), picture, {'1', '2', '3'}).name, name);
  }
  // A name has 255 bytes at most, these characters have three each.
  const std::wstring longest(84, L'页');
  EXPECT_EQ(save_numbered(folder.wide(), longest + L".gif", {'1'}).name,
            longest.substr(1) + L"_1.png");
  EXPECT_EQ(BytesOf(folder / "页_1.png"), "somebody's");
  EXPECT_EQ(BytesOf(folder / "页_3.png"), "123");
  const std::filesystem::directory_iterator files(folder.path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 6) << "no temporary file is left";
  const SavedPart saved = save_numbered(folder.wide() + L"\\gone", L"a.png", {'1'});
  EXPECT_TRUE(saved.name.empty());
  EXPECT_EQ(saved.error, ENOENT);
}

TEST(EncodePart, GivesBackExactlyThatPart) {
  const TemporaryFolder folder;
  WriteTestPicture(folder / "a.png", 300, 200);
  const auto picture = CPicture::Open(folder / "a.png");
  ASSERT_NE(picture, nullptr);
  save_numbered(folder.wide(), L"a.png", picture->EncodePart({17, 31, 217, 131}));
  const auto part = CPicture::Open(folder / "a_1.png");
  ASSERT_NE(part, nullptr);
  ASSERT_EQ(part->size().cx, 200);
  ASSERT_EQ(part->size().cy, 100);
  for (const auto& [x, y] : {std::pair(0, 0), {199, 99}, {0, 99}, {100, 50}}) {
    EXPECT_EQ(part->image()->pixels()->at(x, y), TestPixel(17 + x, 31 + y)) << x << ',' << y;
  }
}

}  // namespace
}  // namespace capture
