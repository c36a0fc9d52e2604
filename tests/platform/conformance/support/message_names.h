#pragma once
// Names of the messages that the suite is about, and their parameters as short text.
#include <functional>
#include <string>

#include "corvane/platform/platform.h"

namespace corvane::conformance {

using WindowNamer = std::function<std::string(HWND)>;

// Empty: a message that no case is about (it is not recorded).
std::string message_name(UINT message);

// The parameters, decoded: sizes as 40x30, points as 10,20, windows by name, flags joined by |.
std::string message_details(UINT message, WPARAM wparam, LPARAM lparam, const WindowNamer& name_of);

}  // namespace corvane::conformance
