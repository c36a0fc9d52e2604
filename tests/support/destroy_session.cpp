#include "tests/support/destroy_session.h"

#include <gtest/gtest.h>

#include "tests/support/own_system.h"

namespace corvane::test {
namespace {

void play(Scene& scene) {
  try {
    scene.play();
  } catch (const MessageTrap::SessionOver&) {
  }
}

// The messages of an undisturbed session.
auto listen(const SceneMaker& make_scene) {
  AppDesktop desktop(session_screen);
  MessageTrap trap;
  play(*make_scene(desktop, trap));
  return trap.firsts();
}

void play_disturbed(const SceneMaker& make_scene, const DestroyCase& destroy_case,
                    const TrapPoint& point, int occurrence, TrapSide side) {
  AppDesktop desktop(session_screen);
  const int windows = desktop.living_windows();
  {
    MessageTrap trap;
    const auto scene = make_scene(desktop, trap);
    trap.break_off_sessions();
    trap.set(point, occurrence, side, [&] { destroy_case.deed(*scene); });
    play(*scene);
    EXPECT_TRUE(trap.sprung());
    scene->delete_layer();
    scene->destroy_host();
  }
  EXPECT_EQ(desktop.living_windows(), windows);
  EXPECT_EQ(desktop.own().windows.live_timers(), 0);
}

}  // namespace

void destroy_at_every_message(const SceneMaker& make_scene, const DestroyCase& destroy_case) {
  const auto messages = listen(make_scene);
  ASSERT_GT(messages.size(), 50U) << "the session does too little";
  for (const auto& [point, occurrences] : messages) {
    for (const int occurrence : occurrences) {
      SCOPED_TRACE(point.window + " at message " + std::to_string(point.message) + ", occurrence " +
                   std::to_string(occurrence));
      for (const TrapSide side : {TrapSide::before_handling, TrapSide::after_handling}) {
        play_disturbed(make_scene, destroy_case, point, occurrence, side);
      }
    }
  }
}

std::vector<DestroyCase> destroy_cases() {
  return {{"DeletesLayer", [](Scene& scene) { scene.delete_layer(); }},
          {"DestroysLayer", [](Scene& scene) { scene.destroy_layer(); }},
          {"DestroysHost", [](Scene& scene) { scene.destroy_host(); }},
          {"DestroysFirstPart", [](Scene& scene) { scene.destroy_part(0); }},
          {"DestroysSecondPart", [](Scene& scene) { scene.destroy_part(1); }}};
}

}  // namespace corvane::test
