#include "corvane/frame/layer_key_filter.h"

#include "corvane/platform/framework/win_app.h"

namespace corvane {
namespace {

void post_unchanged(HWND window, const MSG& message) {
  if (window != nullptr) ::PostMessageW(window, message.message, message.wParam, message.lParam);
}

// A host without a main window gets it at the top-level window above the layer.
HWND main_window(HWND layer) {
  const CWnd* main = AfxGetMainWnd();
  if (main != nullptr && main->GetSafeHwnd() != nullptr) return main->GetSafeHwnd();
  return ::GetAncestor(::GetParent(layer), GA_ROOT);
}

}  // namespace

bool filter_layer_key(KeyFilter filter, HWND layer, const MSG* message) {
  if (message == nullptr) return false;
  const KeyAction action = key_action(filter, message->message, message->wParam);
  switch (action) {
    case KeyAction::pass:
      return false;
    case KeyAction::swallow:
      break;
    case KeyAction::post_to_parent:
      post_unchanged(::GetParent(layer), *message);
      break;
    case KeyAction::post_to_main_window:
      post_unchanged(main_window(layer), *message);
      break;
    case KeyAction::send_to_layer:
      ::SendMessageW(layer, message->message, message->wParam, message->lParam);
      break;
  }
  return true;
}

}  // namespace corvane
