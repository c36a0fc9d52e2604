#pragma once
// Opens by byte paths of any length.
#include <string_view>

#include "corvane/platform/system/shell/file_descriptor.h"

namespace corvane::system {

// As open() with these flags and O_CLOEXEC; paths longer than the system takes at once are walked
// in parts. On failure the result is empty and errno says why.
FileDescriptor open_path(std::string_view path, int flags);

}  // namespace corvane::system
