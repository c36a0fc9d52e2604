#pragma once
// Files that come into being whole or not at all.
#include <cstddef>
#include <string>

namespace corvane::system {

enum class NewFileResult { written, exists, failed };

// Writes the bytes under a hidden temporary name beside `path`, forces them to the disk and puts
// the file in place by one rename that never replaces anything. On failure nothing is left and
// errno says why. `path` is a byte path of the file system.
NewFileResult write_new_file(const std::string& path, const void* bytes, std::size_t size);

}  // namespace corvane::system
