#include "apps/capture/picture_folder.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "corvane/platform/base_services/system_paths.h"

namespace capture {
namespace {

namespace fs = std::filesystem;

constexpr wchar_t kSeparator = L'\\';

}  // namespace

bool HasPictureEnding(std::wstring_view name) {
  std::size_t dot = name.rfind(L'.');
  if (dot == std::wstring_view::npos || dot == 0) return false;
  std::wstring ending(name.substr(dot));
  std::transform(ending.begin(), ending.end(), ending.begin(), [](wchar_t letter) {
    return letter >= L'A' && letter <= L'Z' ? static_cast<wchar_t>(letter + 32) : letter;
  });
  constexpr std::wstring_view kEndings[] = {L".jpg", L".jpeg", L".png", L".bmp", L".gif"};
  return std::find(std::begin(kEndings), std::end(kEndings), ending) != std::end(kEndings);
}

std::optional<FolderEntries> ReadFolder(const std::wstring& folder) {
  FolderEntries entries;
  std::error_code error;
  fs::directory_iterator it(corvane::native_path(folder), error);
  if (error) return std::nullopt;
  for (fs::directory_iterator end; !error && it != end; it.increment(error)) {
    std::error_code ignored;
    std::wstring name = corvane::wide_path_of(it->path().filename());
    if (it->is_directory(ignored)) {
      if (!it->is_symlink(ignored) && !name.starts_with(L'.')) entries.folders.push_back(name);
    } else if (HasPictureEnding(name)) {
      entries.pictures.push_back(name);
    }
  }
  std::sort(entries.folders.begin(), entries.folders.end());
  std::sort(entries.pictures.begin(), entries.pictures.end());
  return entries;
}

bool FolderExists(const std::wstring& folder) {
  std::error_code error;
  return fs::is_directory(corvane::native_path(folder), error);
}

std::wstring FirstFolderWithPictures(const std::wstring& root) {
  std::vector<std::wstring> waiting = {root};  // the last comes next
  while (!waiting.empty()) {
    std::wstring folder = std::move(waiting.back());
    waiting.pop_back();
    std::optional<FolderEntries> entries = ReadFolder(folder);
    if (!entries) continue;
    if (!entries->pictures.empty()) return folder;
    for (auto name = entries->folders.rbegin(); name != entries->folders.rend(); ++name) {
      waiting.push_back(folder + kSeparator + *name);
    }
  }
  return {};
}

bool LiesIn(std::wstring_view root, std::wstring_view path) {
  if (!path.starts_with(root)) return false;
  return path.size() == root.size() || path[root.size()] == kSeparator;
}

std::wstring FolderOf(const std::wstring& path) {
  std::size_t separator = path.rfind(kSeparator);
  return separator == std::wstring::npos ? std::wstring() : path.substr(0, separator);
}

std::wstring NameOf(const std::wstring& path) {
  std::size_t separator = path.rfind(kSeparator);
  return separator == std::wstring::npos ? path : path.substr(separator + 1);
}

std::wstring NameFrom(const std::vector<std::wstring>& names, const std::wstring& name, int step) {
  if (names.empty()) return {};
  auto count = static_cast<std::ptrdiff_t>(names.size());
  auto here = std::lower_bound(names.begin(), names.end(), name);
  bool present = here != names.end() && *here == name;
  if (present && count == 1) return {};
  std::ptrdiff_t index = here - names.begin() + (present || step < 0 ? step : step - 1);
  return names[static_cast<std::size_t>(((index % count) + count) % count)];
}

}  // namespace capture
