#include "apps/capture/picture_folder.h"

#include <algorithm>

#include "apps/capture/sorted_listing.h"
#include "corvane/platform/platform.h"
#include "corvane/trees/shared/folder_path.h"

namespace capture {
namespace {

void add(FolderEntries& entries, const WIN32_FIND_DATAW& found) {
  const std::wstring_view name = found.cFileName;
  if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
    if (has_picture_ending(name)) entries.pictures.emplace_back(name);
    return;
  }
  if (name.starts_with(L'.')) return;
  if ((found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) {
    entries.folders.emplace_back(name);
  } else {
    entries.links.emplace_back(name);
  }
}

}  // namespace

bool has_picture_ending(std::wstring_view name) {
  const std::size_t dot = name.rfind(L'.');
  if (dot == std::wstring_view::npos || dot == 0) return false;
  std::wstring ending(name.substr(dot));
  std::transform(ending.begin(), ending.end(), ending.begin(), [](wchar_t letter) {
    return letter >= L'A' && letter <= L'Z' ? static_cast<wchar_t>(letter + 32) : letter;
  });
  constexpr std::wstring_view kEndings[] = {L".jpg", L".jpeg", L".png", L".bmp", L".gif"};
  return std::find(std::begin(kEndings), std::end(kEndings), ending) != std::end(kEndings);
}

std::optional<FolderEntries> read_folder(const std::wstring& folder) {
  WIN32_FIND_DATAW found;
  HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return std::nullopt;
  FolderEntries entries;
  do {
    add(entries, found);
  } while (FindNextFileW(search, &found));
  FindClose(search);
  for (auto* names : {&entries.folders, &entries.links, &entries.pictures}) {
    std::sort(names->begin(), names->end(), stands_before);
  }
  return entries;
}

bool folder_exists(const std::wstring& folder) {
  // What a link leads to counts, so the link's own attributes would not do.
  WIN32_FIND_DATAW found;
  HANDLE search = FindFirstFileW((folder + L"\\*").c_str(), &found);
  if (search != INVALID_HANDLE_VALUE) FindClose(search);
  return search != INVALID_HANDLE_VALUE || GetLastError() == ERROR_ACCESS_DENIED;
}

std::wstring first_folder_with_pictures(const std::wstring& root, const std::stop_token& stop) {
  std::vector<std::wstring> waiting = {root};  // the last comes next
  while (!waiting.empty() && !stop.stop_requested()) {
    std::wstring folder = std::move(waiting.back());
    waiting.pop_back();
    std::optional<FolderEntries> entries = read_folder(folder);
    if (!entries) continue;
    if (!entries->pictures.empty()) return folder;
    for (auto name = entries->folders.rbegin(); name != entries->folders.rend(); ++name) {
      waiting.push_back(path_in(folder, *name));
    }
  }
  return {};
}

bool lies_in(std::wstring_view root, std::wstring_view path) {
  if (!path.starts_with(root)) return false;
  return path.size() == root.size() || path[root.size()] == corvane::kPathSeparator;
}

std::wstring path_in(std::wstring folder, std::wstring_view name) {
  corvane::append_component(folder, name);
  return folder;
}

std::wstring folder_of(const std::wstring& path) {
  return std::wstring(corvane::parent_path(path));
}

std::wstring name_of(const std::wstring& path) {
  return std::wstring(corvane::last_component(path));
}

std::wstring name_from(const std::vector<std::wstring>& names, const std::wstring& name, int step) {
  if (names.empty()) return {};
  auto count = static_cast<std::ptrdiff_t>(names.size());
  auto here = std::lower_bound(names.begin(), names.end(), name, stands_before);
  const bool present = here != names.end() && *here == name;
  if (present && count == 1) return {};
  const std::ptrdiff_t index = here - names.begin() + (present || step < 0 ? step : step - 1);
  return names[static_cast<std::size_t>(((index % count) + count) % count)];
}

}  // namespace capture
