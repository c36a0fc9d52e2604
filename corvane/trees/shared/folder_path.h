#pragma once
// The parts of a folder's path: components with '\' between them. Every text is a path, none is
// refused; nothing here asks the disk.
#include <string>
#include <string_view>

namespace corvane {

inline constexpr wchar_t kPathSeparator = L'\\';

// What stands before the last separator; empty without one.
std::wstring_view parent_path(std::wstring_view path);
// What stands behind the last separator; all of it without one.
std::wstring_view last_component(std::wstring_view path);

// What stands before the first separator; what follows the separator stays in `path`.
std::wstring_view take_component(std::wstring_view& path);
// The last component equals `name`: it goes from `path` together with the separator before it.
bool take_last_component(std::wstring_view& path, std::wstring_view name);

// The path of a folder within the one that `path` names.
void append_component(std::wstring& path, std::wstring_view name);

}  // namespace corvane
