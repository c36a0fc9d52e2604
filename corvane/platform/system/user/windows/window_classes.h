#pragma once
#include <memory>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// By name or by the atom that RegisterClassW returned; null when there is none.
std::shared_ptr<WindowClass> find_class(System& state, LPCWSTR name);
void add_system_classes(System& state);

}  // namespace corvane::system
