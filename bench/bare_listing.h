#pragma once
// What a loader of folders is measured against.
#include <string>

namespace corvane::bench {

// Walks all folders below one, as a C program would: openat, fstat, getdents64 and close for each,
// and nothing kept of them but the names still to be opened. The number of folders, the top one
// included; 0 when it cannot be opened.
long count_folders(const std::string& path);

}  // namespace corvane::bench
