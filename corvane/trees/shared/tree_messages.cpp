#include "corvane/trees/shared/tree_messages.h"

#include "corvane/frame/layer_messages.h"

namespace corvane {

bool is_mouse_hook_message(UINT message) {
  constexpr UINT kFirstRegistered = 0xC000;
  return message >= kFirstRegistered &&
         message == ::RegisterWindowMessageW(kHookMouseDownMessageName);
}

void post_tree_select(HWND tree) {
  const HWND parent = ::GetParent(tree);
  if (parent != nullptr) ::PostMessageW(parent, WM_TREE_SELECT, 0, 0);
}

}  // namespace corvane
