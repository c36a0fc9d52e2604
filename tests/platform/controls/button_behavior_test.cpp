// What a button does, event by event, without a window.
#include "corvane/platform/controls/button_behavior.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace corvane {
namespace {

// One event; true: it was a click.
struct Event {
  const char* name;
  std::function<bool(ButtonBehavior&)> happen;
};

template <typename Change>
Event event(const char* name, Change change) {
  return {name, [change](ButtonBehavior& button) {
            change(button);
            return false;
          }};
}

const Event kMoveIn = event("move in", [](auto& b) { b.move(true); });
const Event kMoveOut = event("move out", [](auto& b) { b.move(false); });
const Event kLeave = event("leave", [](auto& b) { b.leave(); });
const Event kPress = event("press", [](auto& b) { b.press(true); });
const Event kPressOutside = event("press outside", [](auto& b) { b.press(false); });
const Event kRelease = {"release", [](auto& b) { return b.release(true); }};
const Event kReleaseOutside = {"release outside", [](auto& b) { return b.release(false); }};
const Event kSpaceDown = event("space down", [](auto& b) { b.space_down(); });
const Event kSpaceUp = {"space up", [](auto& b) { return b.space_up(); }};
const Event kCancel = event("cancel", [](auto& b) { b.cancel(); });
const Event kFocus = event("focus", [](auto& b) { b.gain_focus(); });
const Event kBlur = event("blur", [](auto& b) { b.lose_focus(); });
const Event kEnable = event("enable", [](auto& b) { b.set_enabled(true); });
const Event kDisable = event("disable", [](auto& b) { b.set_enabled(false); });
const Event kSelect = event("select", [](auto& b) { b.set_selected(true); });
const Event kDeselect = event("deselect", [](auto& b) { b.set_selected(false); });

using enum ButtonLook;

enum Marks : unsigned { kNothing = 0, kClick = 1, kRing = 2, kCapture = 4 };

struct Step {
  Event what;
  ButtonLook look;
  unsigned marks = kNothing;
};

struct Scene {
  const char* name;
  std::vector<Step> steps;
};

const Scene kScenes[] = {
    {"the pointer passes", {{kMoveIn, hover}, {kMoveIn, hover}, {kLeave, normal}}},
    {"a click takes the focus without a ring",
     {{kMoveIn, hover},
      {kPress, pressed, kCapture},
      {kFocus, pressed, kCapture},
      {kRelease, hover, kClick},
      {kLeave, normal}}},
    {"moving off un-presses, moving back presses again",
     {{kPress, pressed, kCapture},
      {kMoveOut, normal, kCapture},
      {kMoveIn, pressed, kCapture},
      {kRelease, hover, kClick}}},
    {"released outside",
     {{kPress, pressed, kCapture}, {kMoveOut, normal, kCapture}, {kReleaseOutside, normal}}},
    {"a release says where it is, not the last move",
     {{kPress, pressed, kCapture}, {kReleaseOutside, normal}, {kRelease, hover}}},
    {"pressed elsewhere, released here", {{kMoveIn, hover}, {kRelease, hover}}},
    {"two clicks in a row",
     {{kPress, pressed, kCapture},
      {kRelease, hover, kClick},
      {kPress, pressed, kCapture},
      {kRelease, hover, kClick}}},
    {"the capture is lost while pressed",
     {{kPress, pressed, kCapture}, {kCancel, hover}, {kRelease, hover}}},
    {"the focus is lost while pressed",
     {{kPress, pressed, kCapture}, {kFocus, pressed, kCapture}, {kBlur, hover}, {kRelease, hover}}},
    {"disabled while pressed",
     {{kPress, pressed, kCapture}, {kDisable, disabled}, {kRelease, disabled}, {kEnable, normal}}},
    {"disabled: nothing happens",
     {{kDisable, disabled},
      {kMoveIn, disabled},
      {kPress, disabled},
      {kRelease, disabled},
      {kFocus, disabled},
      {kSpaceDown, disabled},
      {kSpaceUp, disabled}}},
    {"the space bar clicks when it is let go",
     {{kFocus, normal, kRing},
      {kSpaceDown, pressed, kRing | kCapture},
      {kSpaceDown, pressed, kRing | kCapture},
      {kSpaceUp, normal, kRing | kClick},
      {kSpaceUp, normal, kRing}}},
    {"the focus is lost while the space bar is down",
     {{kFocus, normal, kRing},
      {kSpaceDown, pressed, kRing | kCapture},
      {kBlur, normal},
      {kSpaceUp, normal}}},
    {"the pointer does not end a space press",
     {{kFocus, normal, kRing},
      {kSpaceDown, pressed, kRing | kCapture},
      {kMoveIn, pressed, kRing | kCapture},
      {kMoveOut, pressed, kRing | kCapture},
      {kSpaceUp, normal, kRing | kClick}}},
    {"a press elsewhere ends a space press",
     {{kFocus, normal, kRing},
      {kSpaceDown, pressed, kRing | kCapture},
      {kPressOutside, normal},
      {kSpaceUp, normal}}},
    {"the mouse takes over from the space bar: one click",
     {{kFocus, normal, kRing},
      {kSpaceDown, pressed, kRing | kCapture},
      {kPress, pressed, kCapture},
      {kSpaceUp, pressed, kCapture},
      {kRelease, hover, kClick}}},
    {"the space bar while the mouse is down changes nothing",
     {{kPress, pressed, kCapture},
      {kFocus, pressed, kCapture},
      {kSpaceDown, pressed, kCapture},
      {kSpaceUp, pressed, kCapture},
      {kRelease, hover, kClick}}},
    {"the ring goes with the mouse and comes with the keyboard",
     {{kFocus, normal, kRing},
      {kPress, pressed, kCapture},
      {kRelease, hover, kClick},
      {kSpaceDown, pressed, kRing | kCapture},
      {kSpaceUp, hover, kRing | kClick},
      {kBlur, hover},
      {kFocus, hover, kRing}}},
    {"selected shows in place of hover, under pressed and disabled",
     {{kSelect, selected},
      {kMoveIn, selected},
      {kPress, pressed, kCapture},
      {kRelease, selected, kClick},
      {kDisable, disabled},
      {kEnable, selected},
      {kDeselect, normal}}},
};

TEST(ButtonBehavior, Scenes) {
  for (const auto& scene : kScenes) {
    ButtonBehavior button;
    int number = 0;
    for (const auto& step : scene.steps) {
      const bool clicked = step.what.happen(button);
      const auto appearance = button.appearance();
      const unsigned marks = (clicked ? kClick : 0u) | (appearance.focus_ring ? kRing : 0u) |
                             (button.wants_capture() ? kCapture : 0u);
      ++number;
      EXPECT_EQ(appearance.look, step.look) << scene.name << ", " << number << step.what.name;
      EXPECT_EQ(marks, step.marks) << scene.name << ", " << number << step.what.name;
    }
  }
}

}  // namespace
}  // namespace corvane
