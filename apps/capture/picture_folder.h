#pragma once
// The folders of a picture library and the pictures in them. All paths are full wide paths without
// a separator at the end.
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace capture {

// Whether the name ends like a picture's (.jpg, .jpeg, .png, .bmp, .gif in any case).
bool has_picture_ending(std::wstring_view name);

struct FolderEntries {
  // Names in order (stands_before); no folder whose name begins with a dot.
  std::vector<std::wstring> folders;
  std::vector<std::wstring> links;  // to folders
  std::vector<std::wstring> pictures;
};
// Nothing when the folder cannot be listed.
std::optional<FolderEntries> read_folder(const std::wstring& folder);
bool folder_exists(const std::wstring& folder);

// The first folder at or below the root, in order, that holds a picture; empty: there is none, or
// it was stopped.
std::wstring first_folder_with_pictures(const std::wstring& root, const std::stop_token& stop = {});

// Whether the path is the root or lies below it.
bool lies_in(std::wstring_view root, std::wstring_view path);

// The path of the entry with that name.
std::wstring path_in(std::wstring folder, std::wstring_view name);
// The parts before and after a path's last separator.
std::wstring folder_of(const std::wstring& path);
std::wstring name_of(const std::wstring& path);

// The name `step` places further in the ordered names, going round; empty when there is no other.
// A name that is not among them counts as standing between its neighbours.
std::wstring name_from(const std::vector<std::wstring>& names, const std::wstring& name, int step);

}  // namespace capture
