// What a button does, event by event, without a window.
#include "corvane/platform/controls/button_behavior.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "tests/support/golden_file.h"

namespace corvane {
namespace {

// What happens to a button; the flag tells whether it was a click.
const std::map<std::string, std::function<void(ButtonBehavior&, bool&)>> kEvents = {
    {"move in", [](auto& b, bool&) { b.move(true); }},
    {"move out", [](auto& b, bool&) { b.move(false); }},
    {"leave", [](auto& b, bool&) { b.leave(); }},
    {"press", [](auto& b, bool&) { b.press(true); }},
    {"press outside", [](auto& b, bool&) { b.press(false); }},
    {"release", [](auto& b, bool& clicked) { clicked = b.release(true); }},
    {"release outside", [](auto& b, bool& clicked) { clicked = b.release(false); }},
    {"space down", [](auto& b, bool&) { b.space_down(); }},
    {"space up", [](auto& b, bool& clicked) { clicked = b.space_up(); }},
    {"cancel", [](auto& b, bool&) { b.cancel(); }},
    {"focus", [](auto& b, bool&) { b.gain_focus(); }},
    {"blur", [](auto& b, bool&) { b.lose_focus(); }},
    {"enable", [](auto& b, bool&) { b.set_enabled(true); }},
    {"disable", [](auto& b, bool&) { b.set_enabled(false); }},
    {"select", [](auto& b, bool&) { b.set_selected(true); }},
    {"deselect", [](auto& b, bool&) { b.set_selected(false); }}};

TEST(ButtonBehavior, Scenes) {
  constexpr const char* kLooks[] = {"normal", "hover", "pressed", "disabled", "selected"};
  ButtonBehavior button;
  std::string scene;
  for (const auto& row : test::golden_rows("tests/platform/controls/button_scenes.txt")) {
    if (row.at(0) == "scene") {
      button = ButtonBehavior();
      scene = row.at(1);
      continue;
    }
    bool clicked = false;
    kEvents.at(row.at(0))(button, clicked);
    const auto [look, ring] = button.appearance();
    std::string marks;
    for (const auto& [holds, name] : {std::pair(ring, "ring"), std::pair(clicked, "click"),
                                      std::pair(button.wants_capture(), "capture")}) {
      if (holds) marks += (marks.empty() ? "" : " ") + std::string(name);
    }
    EXPECT_EQ(kLooks[static_cast<int>(look)], row.at(1)) << scene << ": " << row.at(0);
    EXPECT_EQ(marks, row.size() > 2 ? row.at(2) : "") << scene << ": " << row.at(0);
  }
}

}  // namespace
}  // namespace corvane
