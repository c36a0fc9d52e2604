#include "corvane/platform/system/types.h"

namespace corvane_system {

namespace {
thread_local DWORD last_error = ERROR_SUCCESS;
}

DWORD GetLastError() { return last_error; }

void SetLastError(DWORD code) { last_error = code; }

}  // namespace corvane_system
