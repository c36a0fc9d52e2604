// Text between UTF-8 and wide characters.
#include <climits>
#include <cstdint>
#include <cstring>
#include <cwchar>
#include <string_view>

#include "corvane/platform/system/shell/memory_api.h"

namespace corvane_system {
namespace {

constexpr std::uint32_t kReplacement = 0xFFFD;
constexpr std::uint32_t kLastCharacter = 0x10FFFF;

bool is_code_page(UINT code_page) {
  return code_page == CP_ACP || code_page == CP_OEMCP || code_page == CP_THREAD_ACP ||
         code_page == CP_UTF8;
}

struct Decoded {
  std::uint32_t character;
  std::size_t length;
  bool valid;
};

bool is_between(std::uint8_t byte, int first, int last) { return byte >= first && byte <= last; }

// The bytes that may follow a first one: of what is damaged, as much as could have begun a
// character is one replacement.
Decoded decode(std::string_view bytes) {
  const auto byte = [bytes](std::size_t at) { return static_cast<std::uint8_t>(bytes[at]); };
  const std::uint8_t first = byte(0);
  if (first < 0x80) return {first, 1, true};
  if (!is_between(first, 0xC2, 0xF4)) return {kReplacement, 1, false};
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  // What would be an overlong form, a surrogate or beyond the last character.
  const int low = first == 0xE0 ? 0xA0 : first == 0xF0 ? 0x90 : 0x80;
  const int high = first == 0xED ? 0x9F : first == 0xF4 ? 0x8F : 0xBF;
  std::uint32_t character = first & (0x7Fu >> length);
  for (std::size_t at = 1; at < length; ++at) {
    const bool follows = at < bytes.size() && (at == 1 ? is_between(byte(at), low, high)
                                                       : is_between(byte(at), 0x80, 0xBF));
    if (!follows) return {kReplacement, at, false};
    character = character << 6 | (byte(at) & 0x3Fu);
  }
  return {character, length, true};
}

bool is_high_surrogate(std::uint32_t value) { return value >= 0xD800 && value <= 0xDBFF; }
bool is_low_surrogate(std::uint32_t value) { return value >= 0xDC00 && value <= 0xDFFF; }

Decoded decode(std::wstring_view wide) {
  const auto first = static_cast<std::uint32_t>(wide[0]);
  const auto second = wide.size() > 1 ? static_cast<std::uint32_t>(wide[1]) : 0u;
  if (is_high_surrogate(first) && is_low_surrogate(second)) {
    return {0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00), 2, true};
  }
  const bool valid =
      !is_high_surrogate(first) && !is_low_surrogate(first) && first <= kLastCharacter;
  return {valid ? first : kReplacement, 1, valid};
}

// Counts, and stores as long as there is room.
template <typename Unit>
class Writer {
 public:
  Writer(Unit* target, int capacity) : target_(target), capacity_(capacity) {}

  void put(std::uint32_t unit) {
    if (count_ < capacity_) target_[count_] = static_cast<Unit>(unit);
    ++count_;
  }
  int result() const {
    const std::int64_t most = capacity_ == 0 ? INT_MAX : capacity_;
    if (count_ <= most) return static_cast<int>(count_);
    SetLastError(ERROR_INSUFFICIENT_BUFFER);
    return 0;
  }

 private:
  Unit* target_;
  std::int64_t capacity_;
  std::int64_t count_ = 0;
};

void write_character(Writer<wchar_t>& out, std::uint32_t character) { out.put(character); }
void write_character(Writer<char>& out, std::uint32_t character) {
  if (character < 0x80) {
    out.put(character);
    return;
  }
  const int rest = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
  constexpr std::uint32_t kMarks[] = {0, 0xC0, 0xE0, 0xF0};
  out.put(kMarks[rest] | character >> (6 * rest));
  for (int at = rest - 1; at >= 0; --at) out.put(0x80 | (character >> (6 * at) & 0x3F));
}

int failed(DWORD error) {
  SetLastError(error);
  return 0;
}

struct Outcome {
  int written;
  bool all_valid;
};

template <typename View, typename Unit>
Outcome convert(View text, Writer<Unit> out, bool strict) {
  bool all_valid = true;
  while (!text.empty()) {
    const Decoded next = decode(text);
    all_valid = all_valid && next.valid;
    if (strict && !next.valid) return {failed(ERROR_NO_UNICODE_TRANSLATION), false};
    write_character(out, next.character);
    text.remove_prefix(next.length);
  }
  return {out.result(), all_valid};
}

bool has_texts(const void* source, int length, const void* target, int capacity) {
  return source != nullptr && length != 0 && capacity >= 0 && source != target &&
         (target != nullptr || capacity == 0);
}

}  // namespace

int MultiByteToWideChar(UINT code_page, DWORD flags, LPCSTR bytes, int length, LPWSTR wide,
                        int capacity) {
  if (!is_code_page(code_page) || !has_texts(bytes, length, wide, capacity)) {
    return failed(ERROR_INVALID_PARAMETER);
  }
  const DWORD known = MB_ERR_INVALID_CHARS | (code_page == CP_UTF8 ? 0 : MB_PRECOMPOSED);
  if ((flags & ~known) != 0) return failed(ERROR_INVALID_FLAGS);
  const std::string_view text(bytes, length < 0 ? std::strlen(bytes) + 1 : std::size_t(length));
  return convert(text, Writer<wchar_t>(wide, capacity), (flags & MB_ERR_INVALID_CHARS) != 0)
      .written;
}

int WideCharToMultiByte(UINT code_page, DWORD flags, LPCWSTR wide, int length, LPSTR bytes,
                        int capacity, LPCSTR substitute, BOOL* substituted) {
  const bool substitutes = substitute != nullptr || substituted != nullptr;
  if (!is_code_page(code_page) || !has_texts(wide, length, bytes, capacity) ||
      (code_page == CP_UTF8 && substitutes)) {
    return failed(ERROR_INVALID_PARAMETER);
  }
  const DWORD known = code_page == CP_UTF8 ? WC_ERR_INVALID_CHARS : WC_NO_BEST_FIT_CHARS;
  if ((flags & ~known) != 0) return failed(ERROR_INVALID_FLAGS);
  const std::wstring_view text(wide, length < 0 ? std::wcslen(wide) + 1 : std::size_t(length));
  const Outcome outcome =
      convert(text, Writer<char>(bytes, capacity), (flags & WC_ERR_INVALID_CHARS) != 0);
  if (substituted != nullptr) *substituted = outcome.all_valid ? FALSE : TRUE;
  return outcome.written;
}

UINT GetACP() { return CP_UTF8; }

}  // namespace corvane_system
