#pragma once
// The paths of the installation, as wide paths.
#include "corvane/platform/framework/c_string.h"

namespace corvane {

// The full path of a file in the configuration folder; empty when no skin folder was found.
CString GetConfigPath(const CString& file_name);
// The image folder, without a trailing separator.
CString GetImagePath();

}  // namespace corvane
