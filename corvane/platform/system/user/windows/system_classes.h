#pragma once
// The window classes that every window system has from the start. This room asks for them by this
// declaration alone; the room of the controls, which stands above it, has the definition.
#include <span>

#include "corvane/platform/system/user/user_api.h"

namespace corvane::system {

struct SystemClass {
  const wchar_t* name;
  UINT style;  // CS_*
  WNDPROC procedure;
  int window_extra;  // bytes
};

std::span<const SystemClass> system_classes();

}  // namespace corvane::system
