#pragma once
// Names of the messages that the suite is about, and their parameters as short text.
#include <functional>
#include <string>

#include "corvane/platform/platform.h"

namespace corvane::conformance {

struct Message {
  HWND window;
  UINT message;
  WPARAM wparam;
  LPARAM lparam;
};

using WindowNamer = std::function<std::string(HWND)>;

// Empty: a message that no case is about (it is not recorded).
std::string message_name(UINT message);

// The parameters, decoded, each after a blank: sizes as 40x30, points as 10,20, windows by name,
// flags joined by |.
std::string message_details(const Message& sent, const WindowNamer& name_of);

}  // namespace corvane::conformance
