#pragma once
#include <string>
#include <vector>

#include "corvane/platform/system/shell/drop_api.h"

namespace corvane::system {

// A list for WM_DROPFILES. `files` are paths of the file system as bytes; the rest is DROPFILES'.
// Null when there is no memory.
HDROP make_drop(const std::vector<std::string>& files, POINT point, bool outside_client);

}  // namespace corvane::system
