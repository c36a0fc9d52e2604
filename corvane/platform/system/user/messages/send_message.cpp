#include "corvane/platform/system/user/messages/send_message.h"

#include <cassert>
#include <utility>

namespace corvane::system {
namespace {

// Deeper nesting of sent messages than any program means to have; further ones fail softly. From
// then on no handler gets a nested message until the dispatched one is done: two that call each
// other twice would go on for as long as the universe lasts.
constexpr int kMaxSendDepth = 400;

class DepthGuard {
 public:
  explicit DepthGuard(SendNesting& nesting) : nesting_(nesting) { ++nesting_.depth; }
  ~DepthGuard() {
    assert(nesting_.depth > nesting_.base);
    if (--nesting_.depth == nesting_.base) nesting_.exhausted = false;
  }
  DepthGuard(const DepthGuard&) = delete;
  DepthGuard& operator=(const DepthGuard&) = delete;

 private:
  SendNesting& nesting_;
};

bool may_send(SendNesting& nesting, UINT message) {
  // A window's last messages come once and end what its owner keeps for it.
  const bool last = message == WM_DESTROY || message == WM_NCDESTROY;
  if (last) return nesting.depth < 2 * kMaxSendDepth;
  nesting.exhausted = nesting.exhausted || nesting.depth >= kMaxSendDepth;
  return !nesting.exhausted;
}

}  // namespace

DispatchScope::DispatchScope(SendNesting& nesting)
    : nesting_(nesting), outer_(std::exchange(nesting, {nesting.depth, nesting.depth, false})) {}

DispatchScope::~DispatchScope() { nesting_ = outer_; }

LRESULT send(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  System* state = system();
  const Window* found = find(window);
  if (found == nullptr || found->procedure == nullptr) return 0;
  if (!may_send(state->sends, message)) return 0;
  const DepthGuard guard(state->sends);
  return found->procedure(window, message, wparam, lparam);
}

}  // namespace corvane::system

namespace corvane_system {
using namespace corvane::system;

LRESULT SendMessageW(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  return checked(window) == nullptr ? 0 : send(window, message, wparam, lparam);
}

LRESULT CallWindowProcW(WNDPROC procedure, HWND window, UINT message, WPARAM wparam,
                        LPARAM lparam) {
  return procedure == nullptr ? 0 : procedure(window, message, wparam, lparam);
}

}  // namespace corvane_system
