#include "corvane/platform/system/user/clipboard/clipboard_text.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "corvane/platform/system/shell/memory_api.h"
#include "corvane/platform/system/user/clipboard/clipboard_api.h"

namespace corvane::system {
namespace {

constexpr DWORD kLocale = 0x0409;

std::string utf8(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int length = static_cast<int>(wide.size());
  std::string text(std::size_t(WideCharToMultiByte(CP_ACP, 0, wide.data(), length, nullptr, 0,
                                                   nullptr, nullptr)),
                   '\0');
  WideCharToMultiByte(CP_ACP, 0, wide.data(), length, text.data(), static_cast<int>(text.size()),
                      nullptr, nullptr);
  return text;
}

std::wstring wide(const std::string& text) {
  if (text.empty()) return {};
  const int length = static_cast<int>(text.size());
  std::wstring wide(std::size_t(MultiByteToWideChar(CP_ACP, 0, text.data(), length, nullptr, 0)),
                    L'\0');
  MultiByteToWideChar(CP_ACP, 0, text.data(), length, wide.data(), static_cast<int>(wide.size()));
  return wide;
}

template <typename Unit>
std::basic_string_view<Unit> text_at(const void* memory, std::size_t size) {
  const auto* const begin = static_cast<const Unit*>(memory);
  const auto* const end = begin + size / sizeof(Unit);
  return {begin, static_cast<std::size_t>(std::find(begin, end, Unit{}) - begin)};
}

HANDLE memory_with(const void* bytes, std::size_t size) {
  HANDLE const memory = GlobalAlloc(GMEM_MOVEABLE, size);
  if (memory == nullptr) return nullptr;
  std::memcpy(GlobalLock(memory), bytes, size);
  GlobalUnlock(memory);
  return memory;
}

}  // namespace

bool is_text_format(UINT format) {
  return format == CF_TEXT || format == CF_OEMTEXT || format == CF_UNICODETEXT;
}

std::string text_in_memory(UINT format, HANDLE memory) {
  const std::size_t size = GlobalSize(memory);
  const void* const bytes = GlobalLock(memory);
  if (bytes == nullptr) return {};
  std::string text = format == CF_UNICODETEXT ? utf8(text_at<wchar_t>(bytes, size))
                                              : std::string(text_at<char>(bytes, size));
  GlobalUnlock(memory);
  return text;
}

HANDLE memory_of_text(UINT format, const std::string& text) {
  if (format == CF_LOCALE) return memory_with(&kLocale, sizeof(kLocale));
  if (format != CF_UNICODETEXT) return memory_with(text.c_str(), text.size() + 1);
  const std::wstring converted = wide(text);
  return memory_with(converted.c_str(), (converted.size() + 1) * sizeof(wchar_t));
}

std::string with_desktop_line_ends(const std::string& text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool pair = text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n';
    if (!pair) result.push_back(text[at]);
  }
  return result;
}

std::string with_platform_line_ends(const std::string& text) {
  std::string result;
  result.reserve(text.size());
  for (const char character : text) {
    if (character == '\n' && !result.ends_with('\r')) result.push_back('\r');
    result.push_back(character);
  }
  return result;
}

}  // namespace corvane::system
