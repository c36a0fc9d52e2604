#include "corvane/frame/layer_key_filter.h"

#include "corvane/platform/framework/win_app.h"

namespace corvane {
namespace {

void post_unchanged(HWND window, const MSG& message) {
  if (window != nullptr) ::PostMessageW(window, message.message, message.wParam, message.lParam);
}

HWND main_window() {
  const CWnd* main = AfxGetMainWnd();
  return main != nullptr ? main->GetSafeHwnd() : nullptr;
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
      post_unchanged(main_window(), *message);
      break;
    case KeyAction::send_to_layer:
      ::SendMessageW(layer, message->message, message->wParam, message->lParam);
      break;
  }
  return true;
}

}  // namespace corvane
