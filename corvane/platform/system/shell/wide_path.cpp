#include "corvane/platform/system/shell/wide_path.h"

#include <array>
#include <cstdint>
#include <mutex>
#include <optional>
#include <utility>

namespace corvane::system {

namespace {

constexpr std::uint32_t kEscapes = 0xF700;
constexpr std::uint32_t kEscapedBackslash = kEscapes + '\\';
constexpr std::uint32_t kEscapedColon = kEscapes + ':';

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

bool is_escape(std::uint32_t character) {
  return character == kEscapedBackslash || character == kEscapedColon ||
         (character >= kEscapes + 0x80 && character <= kEscapes + 0xFF);
}

bool is_surrogate(std::uint32_t character) { return character >= 0xD800 && character <= 0xDFFF; }

struct Decoded {
  std::uint32_t character;
  std::size_t length;  // bytes; 0: not valid UTF-8
};

Decoded decode(std::string_view bytes) {
  const auto byte = [&bytes](std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); };
  const std::uint8_t first = byte(0);
  if (first < 0x80) return {first, 1};
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4 || bytes.size() < length) return {0, 0};
  std::uint32_t character = first & (0x7Fu >> length);
  for (std::size_t at = 1; at < length; ++at) {
    if ((byte(at) & 0xC0) != 0x80) return {0, 0};
    character = (character << 6) | (byte(at) & 0x3Fu);
  }
  constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  if (character < kSmallest[length] || character > 0x10FFFF || is_surrogate(character))
    return {0, 0};
  return {character, length};
}

void append_utf8(std::string& bytes, std::uint32_t character) {
  const auto put = [&bytes](std::uint32_t value) { bytes.push_back(static_cast<char>(value)); };
  if (character < 0x80) {
    put(character);
  } else if (character < 0x800) {
    put(0xC0 | (character >> 6));
    put(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    put(0xE0 | (character >> 12));
    put(0x80 | ((character >> 6) & 0x3F));
    put(0x80 | (character & 0x3F));
  } else {
    put(0xF0 | (character >> 18));
    put(0x80 | ((character >> 12) & 0x3F));
    put(0x80 | ((character >> 6) & 0x3F));
    put(0x80 | (character & 0x3F));
  }
}

// The character at `at`, which moves behind it; a pair of surrogates is one character.
std::uint32_t next_character(std::wstring_view wide, std::size_t& at) {
  const auto first = static_cast<std::uint32_t>(wide[at++]);
  if (first < 0xD800 || first > 0xDBFF || at >= wide.size()) return first;
  const auto second = static_cast<std::uint32_t>(wide[at]);
  if (second < 0xDC00 || second > 0xDFFF) return first;
  ++at;
  return 0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00);
}

std::optional<std::string> to_bytes(std::wstring_view wide) {
  std::string bytes;
  for (std::size_t at = 0; at < wide.size();) {
    const std::uint32_t character = next_character(wide, at);
    if (character == 0 || character > 0x10FFFF) return std::nullopt;
    if (is_escape(character))
      bytes.push_back(static_cast<char>(character - kEscapes));
    else
      append_utf8(bytes, character == '\\' ? '/' : character);
  }
  return bytes;
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
  const std::optional<std::string> rest = to_bytes(has_drive ? wide.substr(2) : wide);
  if (!folder || !rest) return {};
  if (!has_drive) return *rest;
  if (rest->empty() || *rest == "/") return folder->empty() ? "/" : *folder;
  return *folder + (rest->front() == '/' ? "" : "/") + *rest;
}

std::wstring wide_path(std::string_view bytes) {
  if (bytes.empty()) return {};
  const bool absolute = bytes.front() == '/';
  const std::wstring drive = absolute ? take_drive(bytes) : std::wstring();
  std::wstring wide = wide_name(bytes);
  for (wchar_t& character : wide)
    if (character == L'/') character = L'\\';
  if (!absolute && names_a_drive(wide)) wide[1] = static_cast<wchar_t>(kEscapedColon);
  return absolute && wide.empty() ? drive + L"\\" : drive + wide;
}

std::wstring wide_name(std::string_view bytes) {
  std::wstring wide;
  wide.reserve(bytes.size());
  while (!bytes.empty()) {
    const Decoded next = decode(bytes);
    const std::size_t length = next.length == 0 ? 1 : next.length;
    if (next.length > 0 && next.character != '\\' && !is_escape(next.character)) {
      wide.push_back(static_cast<wchar_t>(next.character));
    } else {
      for (const char byte : bytes.substr(0, length))
        wide.push_back(static_cast<wchar_t>(kEscapes + static_cast<std::uint8_t>(byte)));
    }
    bytes.remove_prefix(length);
  }
  return wide;
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
