#pragma once
// Carries out the key filter for a layer's window.
#include "corvane/frame/key_filter.h"
#include "corvane/platform/platform.h"

namespace corvane {

// True: the message is swallowed, and has been passed on as the filter says. Escape is posted
// unchanged; nothing is posted while there is no window to get it. A null message is not swallowed.
bool filter_layer_key(KeyFilter filter, HWND layer, const MSG* message);

}  // namespace corvane
