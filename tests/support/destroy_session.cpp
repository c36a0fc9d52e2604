#include "tests/support/destroy_session.h"

#include <gtest/gtest.h>

#include <map>

#include "tests/support/own_system.h"

namespace corvane::test {
namespace {

void do_worst(Scene& scene, Deed deed) {
  switch (deed) {
    case Deed::delete_layer:
      return scene.delete_layer();
    case Deed::destroy_layer:
      return scene.destroy_layer();
    case Deed::destroy_host:
      return scene.destroy_host();
    case Deed::destroy_first:
      return scene.destroy_part(0);
    case Deed::destroy_second:
      return scene.destroy_part(1);
  }
}

// The messages of an undisturbed session, each at its first time in every phase.
std::map<TrapPoint, std::vector<int>> listen(const SceneMaker& make_scene) {
  AppDesktop desktop(session_screen);
  MessageTrap trap;
  make_scene(desktop, trap)->play();
  return trap.firsts();
}

// False: the message did not come.
bool play(const SceneMaker& make_scene, const DestroyCase& destroy_case, const TrapPoint& point,
          int occurrence) {
  AppDesktop desktop(session_screen);
  const int windows = desktop.living_windows();
  bool sprung = false;
  {
    MessageTrap trap;
    const auto played = make_scene(desktop, trap);
    desktop.app().m_pMainWnd = nullptr;
    trap.set(point, occurrence, destroy_case.side, [&] { do_worst(*played, destroy_case.deed); });
    played->play();
    sprung = trap.sprung();
    played->delete_layer();
  }
  EXPECT_EQ(desktop.living_windows(), windows);
  EXPECT_EQ(desktop.own().windows.live_timers(), 0);
  return sprung;
}

}  // namespace

void destroy_at_every_message(const SceneMaker& make_scene, const DestroyCase& destroy_case) {
  const auto messages = listen(make_scene);
  ASSERT_GT(messages.size(), 50U);
  for (const auto& [point, occurrences] : messages) {
    for (const int occurrence : occurrences) {
      SCOPED_TRACE(point.window + " at message " + std::to_string(point.message) + ", occurrence " +
                   std::to_string(occurrence));
      EXPECT_TRUE(play(make_scene, destroy_case, point, occurrence));
    }
  }
}

std::vector<DestroyCase> destroy_cases() {
  std::vector<DestroyCase> all;
  for (const Deed deed : {Deed::delete_layer, Deed::destroy_layer, Deed::destroy_host,
                          Deed::destroy_first, Deed::destroy_second}) {
    for (const TrapSide side : {TrapSide::before_handling, TrapSide::after_handling}) {
      all.push_back({deed, side});
    }
  }
  return all;
}

std::string name_of(const DestroyCase& destroy_case) {
  constexpr const char* deeds[] = {"DeletesLayer", "DestroysLayer", "DestroysHost",
                                   "DestroysFirstPart", "DestroysSecondPart"};
  return std::string(deeds[static_cast<int>(destroy_case.deed)]) +
         (destroy_case.side == TrapSide::before_handling ? "Before" : "After");
}

}  // namespace corvane::test
