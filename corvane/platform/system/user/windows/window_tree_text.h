#pragma once
#include <string>

#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// One line per window, top first, children indented by two spaces:
//   class "text" id=3 (left,top)-(right,bottom) hidden disabled layered focus active capture
std::string window_tree_text(const System& state);

}  // namespace corvane::system
