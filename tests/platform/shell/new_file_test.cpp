#include "corvane/platform/system/shell/new_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <fstream>

#include "tests/support/temporary_folder.h"

namespace corvane::system {
namespace {

using Placed = NewFile::Placed;

TEST(NewFile, IsThereWholeOrNotAtAll) {
  for (const auto way : {NewFile::Until::unnamed, NewFile::Until::hidden}) {
    const test::TemporaryFolder folder;
    folder.file("taken", "somebody's");
    folder.link("link", "nowhere");
    const auto files = [&] {
      return std::distance(std::filesystem::directory_iterator(folder.path()), {});
    };
    const mode_t former = umask(027);
    {
      NewFile file(folder.path(), way);
      EXPECT_EQ(file.place("early"), Placed::failed) << "nothing is written";
      ASSERT_TRUE(file.write("12345", 5));
      EXPECT_EQ(file.place("taken"), Placed::name_taken);
      EXPECT_EQ(file.place("link"), Placed::name_taken);
      EXPECT_EQ(file.place(std::string(256, 'a')), Placed::failed);
      EXPECT_EQ(errno, ENAMETOOLONG);
      EXPECT_EQ(file.place("new"), Placed::yes);
      NewFile better(folder.path(), way);
      EXPECT_FALSE(better.replace("early")) << "nothing is written";
      ASSERT_TRUE(better.write("12345678", 8));
      EXPECT_TRUE(better.replace("taken"));
      NewFile given_up(folder.path(), way);
      ASSERT_TRUE(given_up.write("12345", 5));
    }
    umask(former);
    EXPECT_EQ(files(), 3);
    EXPECT_EQ(std::filesystem::file_size(folder / "taken"), 8u);
    struct stat status {};
    ASSERT_EQ(stat((folder / "new").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777u, 0640u);
    EXPECT_EQ(status.st_size, 5);
    NewFile nowhere(folder / "gone", way);
    EXPECT_FALSE(nowhere.write("12345", 5));
    EXPECT_EQ(errno, ENOENT);
  }
}

}  // namespace
}  // namespace corvane::system
