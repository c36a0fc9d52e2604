#include "corvane/platform/system/user/messages/send_message.h"

#include <cassert>

namespace corvane::system {
namespace {

// Deeper nesting of sent messages than any program means to have; further ones fail softly.
constexpr int kMaxSendDepth = 400;

class DepthGuard {
 public:
  explicit DepthGuard(int& depth) : depth_(depth) { ++depth_; }
  ~DepthGuard() {
    assert(depth_ > 0);
    --depth_;
  }
  DepthGuard(const DepthGuard&) = delete;
  DepthGuard& operator=(const DepthGuard&) = delete;

 private:
  int& depth_;
};

}  // namespace

LRESULT send(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  System* state = system();
  const Window* found = find(window);
  if (found == nullptr || found->procedure == nullptr) return 0;
  if (state->send_depth >= kMaxSendDepth) return 0;
  const DepthGuard guard(state->send_depth);
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
