// The program as a command: bad pictures, and the scripted session.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "apps/capture/picture.h"
#include "tests/apps/capture_program.h"
#include "tests/apps/test_pictures.h"
#include "tests/support/source_folder.h"
#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

using corvane::test::TemporaryFolder;

struct Outcome {
  int status = -1;
  std::string text;
};

Outcome RunCommand(const std::string& command) {
  Outcome outcome;
  FILE* pipe = popen(command.c_str(), "r");
  std::array<char, 4096> buffer;
  for (std::size_t n; (n = fread(buffer.data(), 1, buffer.size(), pipe)) > 0;) {
    outcome.text.append(buffer.data(), n);
  }
  outcome.status = WEXITSTATUS(pclose(pipe));
  return outcome;
}

std::string Quoted(const std::filesystem::path& path) { return "'" + path.string() + "'"; }

const std::string kProgram = Quoted(capture_program()) + " ";

TEST(CommandLine, APictureThatCannotBeOpenedGivesOneLineAndStatus2) {
  TemporaryFolder folder;
  std::ofstream(folder / "text.png") << "no picture at all";
  std::ofstream(folder / "empty.jpg");
  WriteTestPicture(folder / "whole.png", 60, 60);
  std::filesystem::copy(folder / "whole.png", folder / "cut.png");
  std::filesystem::resize_file(folder / "cut.png",
                               std::filesystem::file_size(folder / "whole.png") / 2);
  for (const char* name : {"missing.png", "text.png", "empty.jpg", "cut.png", "."}) {
    Outcome outcome = RunCommand(kProgram + Quoted(folder / name) + " 2>&1 >/dev/null");
    EXPECT_EQ(outcome.status, 2) << name;
    EXPECT_THAT(outcome.text, testing::MatchesRegex("corvane-capture: cannot open [^\n]*\n"))
        << name;
  }
}

TEST(CommandLine, WrongArgumentsGiveTheUsageAndStatus2) {
  for (const char* arguments : {"", "a b", "--script", "--script x", "--library", "--libary x a"}) {
    Outcome outcome = RunCommand(kProgram + arguments + " 2>&1 >/dev/null");
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_THAT(outcome.text, testing::StartsWith("usage: ")) << arguments;
  }
}

TEST(CommandLine, ALibraryThatCannotBeOpenedGivesOneLineAndStatus2) {
  TemporaryFolder folder;
  std::ofstream(folder / "file") << "no folder";
  for (const char* name : {"missing", "file"}) {
    Outcome outcome =
        RunCommand(kProgram + "--library " + Quoted(folder / name) + " 2>&1 >/dev/null");
    EXPECT_EQ(outcome.status, 2) << name;
    EXPECT_THAT(outcome.text,
                testing::MatchesRegex("corvane-capture: cannot open the folder [^\n]*\n"));
  }
}

TEST(CommandLine, ADesktopThatCannotBeReachedIsSaid) {
  Outcome outcome =
      RunCommand("CORVANE_DISPLAY=sdl WAYLAND_DISPLAY= DISPLAY=:no-such-server " + kProgram +
                 Quoted(corvane::test::source_folder() / "apps/capture/sample/sample_page.jpg") +
                 " 2>&1 >/dev/null");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.text, testing::EndsWith("corvane: the native desktop cannot be reached\n"));
}

TEST(ScriptedSession, LeavesItsFramesAndTheCrop) {
  TemporaryFolder folder;
  WriteTestPicture(folder / "page.png", 1000, 600);
  Outcome outcome = RunCommand(kProgram + "--script " + Quoted(folder / "out") + " " +
                               Quoted(folder / "page.png"));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.text, testing::HasSubstr("frame_04.png: the rectangle was moved"));
  auto frame = CPicture::Open(folder / "out" / "frame_04.png");
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->size().cx, 1280);
  auto crop = CPicture::Open(folder / "out" / "crop.png");
  ASSERT_NE(crop, nullptr);
  auto saved = CPicture::Open(folder / "page_1.png");
  ASSERT_NE(saved, nullptr);
  EXPECT_EQ(crop->size().cx, saved->size().cx);
  EXPECT_GT(crop->size().cx, 300);
}

TEST(ScriptedSession, GoesThroughTheLibrary) {
  TemporaryFolder folder;
  std::filesystem::create_directories(folder / "图库" / "一月" / "上旬");
  WriteTestPicture(folder / "图库" / "page.png", 1000, 600);
  WriteTestPicture(folder / "图库" / "一月" / "上旬" / "card.png", 800, 500);
  Outcome outcome = RunCommand(kProgram + "--library " + Quoted(folder / "图库") + " --script " +
                               Quoted(folder / "out"));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.text, testing::HasSubstr("a part of it was saved beside it"));
  EXPECT_NE(CPicture::Open(folder / "图库" / "page_1.png"), nullptr);
  EXPECT_NE(CPicture::Open(folder / "图库" / "一月" / "上旬" / "card_1.png"), nullptr);
}

std::string WholeFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(ScriptedSession, FilesThatMayNotGrowAreAFailureThatLeavesNothing) {
  TemporaryFolder folder;
  WriteTestPicture(folder / "page.png", 300, 200);
  Outcome outcome =
      RunCommand("ulimit -f 1; CORVANE_DISPLAY=headless " + kProgram + "--script " +
                 Quoted(folder / "out") + " " + Quoted(folder / "page.png") + " 2>&1");
  EXPECT_EQ(outcome.status, 1) << outcome.text;
  EXPECT_THAT(outcome.text, testing::HasSubstr("cannot write"));
  for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
    EXPECT_THAT(entry.path().filename().string(), testing::AnyOf("page.png", "out"));
  }
}

TEST(Skin, TheToolbarsBackgroundIsThePictureThatControl7Names) {
  TemporaryFolder folder;
  std::filesystem::copy(corvane::test::source_folder() / "skins/default", folder / "skin",
                        std::filesystem::copy_options::recursive);
  std::string controls = WholeFile(folder / "skin" / "ui_control.xml");
  const std::string named = "toolbar_bg.png";
  ASSERT_NE(controls.find(named), std::string::npos);
  controls.replace(controls.find(named), named.size(), "mine.png");
  std::ofstream(folder / "skin" / "ui_control.xml", std::ios::binary) << controls;
  WriteTestPicture(folder / "skin" / "image" / "mine.png", 1, 1);
  WriteTestPicture(folder / "page.png", 100, 100);
  Outcome outcome =
      RunCommand("CORVANE_SKIN=" + Quoted(folder / "skin") + " " + kProgram + "--script " +
                 Quoted(folder / "out") + " " + Quoted(folder / "page.png"));
  ASSERT_EQ(outcome.status, 0);
  auto frame = CPicture::Open(folder / "out" / "frame_01.png");
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->image()->pixels()->at(2, 2), TestPixel(0, 0));
}

}  // namespace
}  // namespace capture
