#include "corvane/platform/system/gdi/text_utf8.h"

#include <glib.h>

namespace corvane::system {

namespace {

gunichar drawable(gunichar character) {
  if (character == '\n') return character;
  if (character < 0x20 || character == 0x7F) return ' ';
  return g_unichar_validate(character) ? character : 0xFFFD;
}

}  // namespace

std::string to_utf8(std::wstring_view wide) {
  std::string bytes;
  bytes.reserve(wide.size() + wide.size() / 2);
  for (std::size_t at = 0; at < wide.size(); ++at) {
    auto character = static_cast<gunichar>(wide[at]);
    const bool leads = character >= 0xD800 && character <= 0xDBFF && at + 1 < wide.size();
    const auto next = leads ? static_cast<gunichar>(wide[at + 1]) : 0u;
    if (next >= 0xDC00 && next <= 0xDFFF) {
      character = 0x10000 + ((character - 0xD800) << 10) + (next - 0xDC00);
      ++at;
    }
    char encoded[6];
    bytes.append(encoded,
                 static_cast<std::size_t>(g_unichar_to_utf8(drawable(character), encoded)));
  }
  return bytes;
}

}  // namespace corvane::system
