#include <gtest/gtest.h>
#include <poll.h>

#include <cstdlib>
#include <thread>
#include <tuple>

#include "corvane/platform/system/display/headless_display.h"
#include "corvane/platform/system/display/open_display.h"
#include "corvane/platform/system/display/sdl/start_size.h"
#include "tests/support/golden_file.h"

namespace corvane::system {
namespace {

bool readable(int fd) {
  pollfd watched{fd, POLLIN, 0};
  return poll(&watched, 1, 0) == 1;
}

TEST(HeadlessDisplay, PresentsOnlyTheDamage) {
  HeadlessDisplay display({20, 10});
  Surface frame(20, 10, 0xFF112233);
  display.present(frame, Region(frame.rect()));
  frame.fill(frame.rect(), 0xFF445566);
  frame.row(4)[5] = 0xFF00FF00;
  Region damage({5, 4, 7, 5});
  damage.unite(RECT{-5, 8, 40, 40});
  display.present(frame, damage);

  EXPECT_EQ(display.presents(), 2);
  const std::tuple<int, int, Pixel> seen[] = {{4, 4, 0xFF112233},  {5, 4, 0xFF00FF00},
                                              {6, 4, 0xFF445566},  {7, 4, 0xFF112233},
                                              {19, 7, 0xFF112233}, {0, 9, 0xFF445566}};
  for (const auto& [x, y, color] : seen)
    EXPECT_EQ(display.frame().at(x, y), color) << x << ", " << y;
}

TEST(HeadlessDisplay, PresentsAFrameOfAnotherSizeWhereBothAre) {
  HeadlessDisplay display({10, 10});
  display.present(Surface(30, 4, 0xFFABCDEF), Region({0, 0, 30, 30}));
  EXPECT_EQ(display.frame().at(9, 3), 0xFFABCDEF);
  EXPECT_EQ(display.frame().at(9, 4), 0u);
}

TEST(StartSize, FitsWithItsFrameAndGrowsWithTheDesktop) {
  const std::tuple<SIZE, SIZE> cases[] = {{{800, 600}, {784, 552}},
                                          {{1280, 800}, {1264, 752}},
                                          {{1920, 1080}, {1440, 810}},
                                          {{3840, 2160}, {2880, 1620}},
                                          {{1, 1}, {1, 1}}};
  for (const auto& [work_area, start] : cases) {
    EXPECT_EQ(start_size(work_area).cx, start.cx);
    EXPECT_EQ(start_size(work_area).cy, start.cy);
  }
}

TEST(HeadlessDisplay, ClockMovesOnlyWhenToldOrWhenAWaitWouldSleep) {
  HeadlessDisplay display;
  const std::uint64_t start = display.now();
  EXPECT_FALSE(display.wait(std::nullopt));
  EXPECT_EQ(display.now(), start);

  EXPECT_TRUE(display.wait(start + 40));
  EXPECT_EQ(display.now(), start + 40);
  EXPECT_TRUE(display.wait(start));
  EXPECT_EQ(display.now(), start + 40) << "time goes back";

  display.push({});
  EXPECT_TRUE(display.wait(start + 900));
  EXPECT_EQ(display.now(), start + 40) << "slept although input was there";
}

TEST(HeadlessDisplay, WakesFromAnotherThread) {
  HeadlessDisplay display;
  std::thread([&] { display.wake(); }).join();
  EXPECT_TRUE(readable(display.event_fd()));
  EXPECT_TRUE(display.wait(std::nullopt));
  EXPECT_FALSE(display.wait(std::nullopt)) << "one wake ends one wait";
}

TEST(HeadlessDisplay, DescriptorTellsOfInput) {
  HeadlessDisplay display({100, 100});
  EXPECT_FALSE(readable(display.event_fd()));
  display.resize({300, -1});
  EXPECT_TRUE(readable(display.event_fd()));
  std::vector<InputEvent> events;
  display.poll(events);
  ASSERT_EQ(events.size(), 1u);
  EXPECT_EQ(events[0].kind, InputKind::resize);
  EXPECT_EQ(events[0].position.x, 300);
  EXPECT_EQ(display.size().cy, 0);
  EXPECT_FALSE(readable(display.event_fd()));
}

// What is opened with these values of CORVANE_DISPLAY, CORVANE_SCREEN and DISPLAY, and what is
// said.
std::pair<std::unique_ptr<Display>, std::string> opened(const std::vector<std::string>& values) {
  for (const char* const other : {"WAYLAND_DISPLAY", "SDL_VIDEODRIVER"}) unsetenv(other);
  constexpr const char* kNames[] = {"CORVANE_DISPLAY", "CORVANE_SCREEN", "DISPLAY"};
  for (std::size_t at = 0; at < std::size(kNames); ++at)
    values.at(at) == "unset" ? unsetenv(kNames[at]) : setenv(kNames[at], values[at].c_str(), 1);
  testing::internal::CaptureStderr();
  auto display = open_display();
  return {std::move(display), testing::internal::GetCapturedStderr()};
}

TEST(OpenDisplay, ChoosesMemoryAndSize) {
  for (const auto& row : test::golden_rows("tests/platform/display/memory_displays.txt")) {
    const auto [display, said] = opened(row);
    ASSERT_NE(dynamic_cast<HeadlessDisplay*>(display.get()), nullptr);
    const SIZE size = display->size();
    EXPECT_EQ((std::vector<int>{size.cx, size.cy}), test::numbers_of(row.at(3))) << row.at(1);
    EXPECT_EQ(said.find("CORVANE_DISPLAY=unknown") != said.npos, row.at(0) == "unknown") << said;
  }
}

TEST(OpenDisplay, AWindowThatCannotBeOpenedIsNone) {
  for (const std::string kind : {"sdl", "unset"}) {
    const auto [display, said] = opened({kind, "unset", ":no-such-server"});
    EXPECT_EQ(display, nullptr) << kind;
    EXPECT_TRUE(said.ends_with("corvane: no window can be shown on the native desktop\n")) << said;
  }
}

}  // namespace
}  // namespace corvane::system
