// What a button does, event by event, without a window.
#include "corvane/platform/controls/button_behavior.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "tests/support/golden_file.h"

namespace corvane {
namespace {

// True: it was a click.
template <typename Change>
std::function<bool(ButtonBehavior&)> no_click(Change change) {
  return [change](ButtonBehavior& button) {
    change(button);
    return false;
  };
}

const std::map<std::string, std::function<bool(ButtonBehavior&)>> kEvents = {
    {"move in", no_click([](auto& b) { b.move(true); })},
    {"move out", no_click([](auto& b) { b.move(false); })},
    {"leave", no_click([](auto& b) { b.leave(); })},
    {"press", no_click([](auto& b) { b.press(true); })},
    {"press outside", no_click([](auto& b) { b.press(false); })},
    {"release", [](auto& b) { return b.release(true); }},
    {"release outside", [](auto& b) { return b.release(false); }},
    {"space down", no_click([](auto& b) { b.space_down(); })},
    {"space up", [](auto& b) { return b.space_up(); }},
    {"cancel", no_click([](auto& b) { b.cancel(); })},
    {"focus", no_click([](auto& b) { b.gain_focus(); })},
    {"blur", no_click([](auto& b) { b.lose_focus(); })},
    {"enable", no_click([](auto& b) { b.set_enabled(true); })},
    {"disable", no_click([](auto& b) { b.set_enabled(false); })},
    {"select", no_click([](auto& b) { b.set_selected(true); })},
    {"deselect", no_click([](auto& b) { b.set_selected(false); })}};

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
    const bool clicked = kEvents.at(row.at(0))(button);
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
