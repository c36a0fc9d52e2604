// RegisterWindowMessageW: one number for each name, whatever its case.
#include "corvane/platform/system/user/system_state.h"

namespace corvane_system {
using namespace corvane::system;

namespace {

constexpr UINT kFirstRegistered = 0xC000;
constexpr std::size_t kMaxRegistered = 0x4000;

}  // namespace

UINT RegisterWindowMessageW(LPCWSTR name) {
  System* state = corvane::system::system();
  if (state == nullptr || name == nullptr || *name == 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return 0;
  }
  auto& known = state->registered_messages;
  const std::wstring key = lower_case(name);
  const auto found = known.find(key);
  if (found != known.end()) return found->second;
  if (known.size() >= kMaxRegistered) return 0;
  const UINT number = kFirstRegistered + static_cast<UINT>(known.size());
  known[key] = number;
  return number;
}

}  // namespace corvane_system
