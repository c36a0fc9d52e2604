#pragma once
// What the file system says of an entry, in the platform's terms.
#include <sys/stat.h>

#include <cstdint>
#include <string_view>

#include "corvane/platform/system/shell/shell_api.h"

namespace corvane::system {

struct FileFacts {
  DWORD attributes;
  FILETIME created;
  FILETIME accessed;
  FILETIME written;
  std::uint64_t size;  // bytes
};

// `status` is the entry's own, a link's and not its target's. `leads_to_folder` matters for links.
FileFacts facts_of(const struct statx& status, std::string_view name, bool leads_to_folder);

// Asks for the entry of that name in an open folder. False, with errno, when it cannot be had.
bool facts_of_entry(int folder, const char* name, FileFacts& facts);

// The platform's code for an errno of looking for a file.
DWORD file_error(int error);

}  // namespace corvane::system
