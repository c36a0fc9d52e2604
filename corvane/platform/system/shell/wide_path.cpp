#include "corvane/platform/system/shell/wide_path.h"

#include <array>
#include <mutex>
#include <optional>
#include <utility>

namespace corvane::system {

namespace {

constexpr wchar_t kEscapedColon = L'\xF73A';

// Folders by letter, without a trailing separator (the root is ""); Z: is the root and not in it.
struct Mounts {
  std::mutex lock;
  std::array<std::optional<std::string>, 25> folders;
};

Mounts& mounts() {
  static Mounts table;
  return table;
}

std::optional<std::size_t> letter_index(wchar_t letter) {
  if (letter >= L'a' && letter <= L'z') return static_cast<std::size_t>(letter - L'a');
  if (letter >= L'A' && letter <= L'Z') return static_cast<std::size_t>(letter - L'A');
  return std::nullopt;
}

// "\\?\" only switches off the platform's own limits.
std::wstring_view without_long_prefix(std::wstring_view wide) {
  constexpr std::wstring_view kPrefix = L"\\\\?\\";
  return wide.substr(0, kPrefix.size()) == kPrefix ? wide.substr(kPrefix.size()) : wide;
}

// The folder behind a drive letter; nothing when it is not mounted.
std::optional<std::string> drive_folder(wchar_t letter) {
  const std::optional<std::size_t> index = letter_index(letter);
  Mounts& table = mounts();
  if (!index) return std::nullopt;
  if (*index == table.folders.size()) return std::string();
  const std::lock_guard<std::mutex> guard(table.lock);
  return table.folders[*index];
}

bool holds(std::string_view folder, std::string_view path) {
  return path.substr(0, folder.size()) == folder &&
         (path.size() == folder.size() || path[folder.size()] == '/');
}

bool names_a_drive(std::wstring_view wide) {
  return wide.size() >= 2 && wide[1] == L':' && letter_index(wide[0]);
}

// The drive that an absolute path lies on; its folder is cut off the path.
std::wstring take_drive(std::string_view& bytes) {
  std::wstring drive = L"Z:";
  std::size_t longest = 0;
  Mounts& table = mounts();
  const std::lock_guard<std::mutex> guard(table.lock);
  for (std::size_t index = 0; index < table.folders.size(); ++index) {
    const std::optional<std::string>& folder = table.folders[index];
    if (!folder || folder->size() <= longest || !holds(*folder, bytes)) continue;
    longest = folder->size();
    drive[0] = static_cast<wchar_t>(L'A' + static_cast<wchar_t>(index));
  }
  bytes.remove_prefix(longest);
  return drive;
}

}  // namespace

std::string file_system_path(std::wstring_view wide) {
  wide = without_long_prefix(wide);
  const bool has_drive = names_a_drive(wide);
  const std::optional<std::string> folder = has_drive ? drive_folder(wide[0]) : std::string();
  std::string rest;
  if (!folder || !append_bytes(rest, has_drive ? wide.substr(2) : wide, '/')) return {};
  if (!has_drive) return rest;
  if (rest.empty() || rest == "/") return folder->empty() ? "/" : *folder;
  return *folder + (rest.front() == '/' ? "" : "/") + rest;
}

std::wstring wide_path(std::string_view bytes) {
  if (bytes.empty()) return {};
  const bool absolute = bytes.front() == '/';
  const std::wstring drive = absolute ? take_drive(bytes) : std::wstring();
  std::wstring wide = wide_name(bytes);
  for (wchar_t& character : wide) {
    if (character == L'/') character = L'\\';
  }
  if (!absolute && names_a_drive(wide)) wide[1] = kEscapedColon;
  return absolute && wide.empty() ? drive + L"\\" : drive + wide;
}

bool mount_drive(wchar_t letter, std::string folder) {
  const std::optional<std::size_t> index = letter_index(letter);
  Mounts& table = mounts();
  if (!index || *index >= table.folders.size()) return false;
  if (!folder.empty() && folder.front() != '/') return false;
  const bool mounted = !folder.empty();
  while (!folder.empty() && folder.back() == '/') folder.pop_back();
  const std::lock_guard<std::mutex> guard(table.lock);
  table.folders[*index] = mounted ? std::optional(std::move(folder)) : std::nullopt;
  return true;
}

}  // namespace corvane::system
