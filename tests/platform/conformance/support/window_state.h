#pragma once
// What can be asked of windows at one moment, as facts that are compared with those of another.
#include <map>
#include <string>
#include <vector>

#include "tests/platform/conformance/support/message_recorder.h"

namespace corvane::conformance {

// From what a fact is about, such as "focus" or "child at", to what it says.
using WindowState = std::map<std::string, std::string>;

// Of the recorded windows, by their names: focus, activation, capture, places, visibility, styles,
// what there is to paint, and the order from the top.
WindowState window_state(const MessageRecorder& recorder);

// The facts of `after` that were not so before.
std::vector<std::string> state_changes(const WindowState& before, const WindowState& after);

}  // namespace corvane::conformance
