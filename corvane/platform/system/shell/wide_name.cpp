#include "corvane/platform/system/shell/wide_name.h"

#include <algorithm>
#include <cstdint>

namespace corvane::system {

namespace {

constexpr std::uint32_t kEscapes = 0xF700;
constexpr std::uint32_t kEscapedBackslash = kEscapes + '\\';
constexpr std::uint32_t kEscapedColon = kEscapes + ':';

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
  constexpr std::uint32_t kFirstOfLength[] = {0, 0, 0x80, 0x800, 0x10000};
  if (character < kFirstOfLength[length] || character > 0x10FFFF || is_surrogate(character)) {
    return {0, 0};
  }
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

bool is_ascii_character(wchar_t character) { return character > 0 && character < 0x80; }

bool is_plain_byte(char byte) { return static_cast<std::uint8_t>(byte) < 0x80 && byte != '\\'; }

}  // namespace

std::wstring wide_name(std::string_view bytes) {
  std::wstring wide;
  append_wide_name(wide, bytes);
  return wide;
}

void append_wide_name(std::wstring& wide, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto special = std::find_if_not(bytes.begin(), bytes.end(), is_plain_byte);
    const auto plain = static_cast<std::size_t>(special - bytes.begin());
    wide.resize(wide.size() + plain);
    std::copy(bytes.begin(), special, wide.end() - static_cast<std::ptrdiff_t>(plain));
    bytes.remove_prefix(plain);
    if (bytes.empty()) return;
    const Decoded next = decode(bytes);
    const std::size_t length = next.length == 0 ? 1 : next.length;
    if (next.length > 0 && next.character != '\\' && !is_escape(next.character)) {
      wide.push_back(static_cast<wchar_t>(next.character));
    } else {
      for (const char byte : bytes.substr(0, length)) {
        wide.push_back(static_cast<wchar_t>(kEscapes + static_cast<std::uint8_t>(byte)));
      }
    }
    bytes.remove_prefix(length);
  }
}

bool append_bytes(std::string& bytes, std::wstring_view wide, char separator) {
  for (std::size_t at = 0; at < wide.size();) {
    if (is_ascii_character(wide[at])) {
      const wchar_t character = wide[at++];
      bytes.push_back(character == L'\\' ? separator : static_cast<char>(character));
      continue;
    }
    const std::uint32_t character = next_character(wide, at);
    if (character == 0 || character > 0x10FFFF) return false;
    if (is_escape(character)) {
      bytes.push_back(static_cast<char>(character - kEscapes));
    } else {
      append_utf8(bytes, character);
    }
  }
  return true;
}

}  // namespace corvane::system
