#pragma once
// Folders in the order of their names. The file system lists them in an order of its own; people
// look for them by name.
#include <memory>
#include <string_view>

#include "corvane/platform/base_services/folder_listing.h"

namespace capture {

std::unique_ptr<corvane::FolderListing> sorted_listing();

// Whether one name stands before the other: by characters, with numbers by their value, so that
// 9 stands before 10.
bool stands_before(std::wstring_view name, std::wstring_view other);

}  // namespace capture
