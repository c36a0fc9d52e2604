#pragma once
// What a window of the library does with Enter, Escape and the wheel before they are dispatched.
#include "corvane/platform/platform.h"

namespace corvane {

enum class KeyFilter {
  to_parent,        // Escape goes to the layer's parent window
  to_main_window,   // Escape goes to the application's main window, or the top-level one above
  drawing_surface,  // as to_parent; the wheel goes to the layer itself
  swallow_only      // nobody gets Escape
};

// All but `pass` keep the message from being dispatched.
enum class KeyAction { pass, swallow, post_to_parent, post_to_main_window, send_to_layer };

KeyAction key_action(KeyFilter filter, UINT message, WPARAM wparam);

}  // namespace corvane
