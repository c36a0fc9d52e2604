#pragma once
#include "corvane/platform/system/user/system_state.h"

namespace corvane::system {

// Posts a message as the system does (time and pointer position of now).
MessageQueue::Posted post(HWND window, UINT message, WPARAM wparam, LPARAM lparam);

}  // namespace corvane::system
