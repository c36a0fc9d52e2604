// The program as a command: what it cannot do, and the scripted session.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <filesystem>

#include "apps/capture/picture.h"
#include "tests/apps/test_pictures.h"
#include "tests/support/temporary_folder.h"

namespace capture {
namespace {

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

const std::string kProgram = Quoted(CORVANE_CAPTURE) + " ";

class CommandLine : public testing::Test {
 protected:
  // The scripted session; its frames go into `out`.
  Outcome Play(const std::string& arguments, const std::string& environment = {}) const {
    return RunCommand(environment + kProgram + "--script " + Quoted(folder_ / "out") + " " +
                      arguments + " 2>&1");
  }

  corvane::test::TemporaryFolder folder_;
};

TEST_F(CommandLine, SaysInOneLineWhatCannotBeDone) {
  folder_.file("text.png", "no picture at all");
  folder_.file("empty.jpg");
  WriteTestPicture(folder_ / "whole.png", 60, 60);
  std::filesystem::copy(folder_ / "whole.png", folder_ / "cut.png");
  std::filesystem::resize_file(folder_ / "cut.png",
                               std::filesystem::file_size(folder_ / "whole.png") / 2);
  constexpr const char* kPicture = "corvane-capture: cannot open the picture [^\n]*\n";
  constexpr const char* kFolder = "corvane-capture: cannot open the folder [^\n]*\n";
  constexpr const char* kUsage = "usage: [^\n]*\n";
  const struct {
    const char* arguments;
    const char* said;
  } cases[] = {{"missing.png", kPicture},
               {"text.png", kPicture},
               {"empty.jpg", kPicture},
               {"cut.png", kPicture},
               {".", kPicture},
               {"--library gone", kFolder},
               {"--library cut.png", kFolder},
               {"", kUsage},
               {"whole.png whole.png", kUsage},
               {"--script", kUsage},
               {"--script x", kUsage},
               {"--library", kUsage},
               {"--libary . whole.png", kUsage}};
  const std::string here = "cd " + Quoted(folder_.path()) + " && ";
  for (const auto& each : cases) {
    const Outcome outcome = RunCommand(here + kProgram + each.arguments + " 2>&1 >/dev/null");
    EXPECT_EQ(outcome.status, 2) << each.arguments;
    EXPECT_THAT(outcome.text, testing::MatchesRegex(each.said)) << each.arguments;
  }
  for (const std::string desktop :
       {"CORVANE_DISPLAY=sdl DISPLAY=:no-such-server ", "CORVANE_DISPLAY= DISPLAY=:no-such-server ",
        "-u CORVANE_DISPLAY -u DISPLAY "}) {
    const Outcome outcome =
        RunCommand(here + "env -u WAYLAND_DISPLAY " + desktop + "SDL_VIDEODRIVER=x11 " + kProgram +
                   "whole.png 2>&1 >/dev/null");
    EXPECT_EQ(outcome.status, 1) << desktop;
    EXPECT_EQ(outcome.text, "corvane: no window can be shown on the native desktop\n");
  }
}

TEST_F(CommandLine, AScriptedSessionLeavesItsFramesAndTheCropsOfALibrary) {
  const std::filesystem::path library = folder_ / "图库";
  std::filesystem::create_directories(library / "一月/上旬");
  WriteTestPicture(library / "page.png", 1000, 600);
  WriteTestPicture(library / "一月/上旬/card.png", 800, 500);
  const Outcome outcome = Play("--library " + Quoted(library));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_THAT(outcome.text, testing::HasSubstr("frame_04.png: the rectangle was moved"));
  EXPECT_THAT(outcome.text, testing::HasSubstr("a part of it was saved beside it"));
  const auto width = [](const std::filesystem::path& path) {
    const auto picture = CPicture::Open(path);
    return picture == nullptr ? 0 : picture->size().cx;
  };
  EXPECT_EQ(width(folder_ / "out/frame_04.png"), 1280);
  EXPECT_GT(width(folder_ / "out/crop.png"), 300);
  EXPECT_EQ(width(folder_ / "out/crop.png"), width(library / "page_1.png"));
  EXPECT_GT(width(library / "一月/上旬/card_1.png"), 0);
}

TEST_F(CommandLine, FilesThatMayNotGrowAreAFailureThatLeavesNothing) {
  WriteTestPicture(folder_ / "page.png", 300, 200);
  const Outcome outcome = Play(Quoted(folder_ / "page.png"), "ulimit -f 1; ");
  EXPECT_EQ(outcome.status, 1) << outcome.text;
  EXPECT_THAT(outcome.text, testing::HasSubstr("cannot write"));
  for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
    EXPECT_THAT(entry.path().filename().string(), testing::AnyOf("page.png", "out"));
  }
}

TEST_F(CommandLine, TheToolbarsBackgroundIsThePictureThatControl7OfTheSkinNames) {
  folder_.file(
      "skin/ui_control.xml",
      "<controls><list id=\"100\"><control id=\"7\" image=\"mine.png\"/></list></controls>");
  std::filesystem::create_directory(folder_ / "skin/image");
  WriteTestPicture(folder_ / "skin/image/mine.png", 1, 1);
  WriteTestPicture(folder_ / "page.png", 100, 100);
  Play(Quoted(folder_ / "page.png"), "CORVANE_SKIN=" + Quoted(folder_ / "skin") + " ");
  const auto frame = CPicture::Open(folder_ / "out" / "frame_01.png");
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->image()->pixels()->at(2, 2), TestPixel(0, 0));
}

}  // namespace
}  // namespace capture
