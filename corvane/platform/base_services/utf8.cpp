#include "corvane/platform/base_services/utf8.h"

#include <cstddef>

namespace corvane {
namespace {

constexpr char32_t kInvalid = 0xFFFFFFFF;

struct LeadByte {
  int following;
  char32_t bits;
  char32_t smallest;  // below it, a shorter form exists
};

std::optional<LeadByte> lead_byte(unsigned char byte) {
  if (byte < 0x80) return LeadByte{0, byte, 0};
  if (byte >= 0xC0 && byte < 0xE0) return LeadByte{1, byte & 0x1Fu, 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return LeadByte{2, byte & 0x0Fu, 0x800};
  if (byte >= 0xF0 && byte < 0xF8) return LeadByte{3, byte & 0x07u, 0x10000};
  return std::nullopt;
}

char32_t next_code_point(std::string_view bytes, std::size_t& position) {
  const auto lead = lead_byte(static_cast<unsigned char>(bytes[position]));
  if (!lead || bytes.size() - position <= static_cast<std::size_t>(lead->following)) {
    return kInvalid;
  }
  char32_t code_point = lead->bits;
  for (int i = 1; i <= lead->following; ++i) {
    const auto byte = static_cast<unsigned char>(bytes[position + static_cast<std::size_t>(i)]);
    if ((byte & 0xC0) != 0x80) return kInvalid;
    code_point = (code_point << 6) | (byte & 0x3Fu);
  }
  position += static_cast<std::size_t>(lead->following) + 1;
  const bool surrogate = code_point >= 0xD800 && code_point < 0xE000;
  return code_point < lead->smallest || code_point > 0x10FFFF || surrogate ? kInvalid : code_point;
}

void append(std::wstring& text, char32_t code_point) {
  if (sizeof(wchar_t) == 2 && code_point > 0xFFFF) {
    const char32_t rest = code_point - 0x10000;
    text.push_back(static_cast<wchar_t>(0xD800 + (rest >> 10)));
    text.push_back(static_cast<wchar_t>(0xDC00 + (rest & 0x3FF)));
  } else {
    text.push_back(static_cast<wchar_t>(code_point));
  }
}

}  // namespace

std::optional<std::wstring> wide_from_utf8(std::string_view bytes) {
  std::wstring text;
  text.reserve(bytes.size());
  for (std::size_t position = 0; position < bytes.size();) {
    const char32_t code_point = next_code_point(bytes, position);
    if (code_point == kInvalid) return std::nullopt;
    append(text, code_point);
  }
  return text;
}

}  // namespace corvane
