#include "corvane/platform/system/gdi/text_prefix.h"

namespace corvane::system {

PrefixedText without_prefixes(std::wstring_view text) {
  PrefixedText result;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool prefix = text[at] == L'&';
    if (prefix && ++at == text.size()) break;
    if (prefix && text[at] != L'&') result.underlined = static_cast<int>(result.text.size());
    result.text.push_back(text[at]);
  }
  return result;
}

}  // namespace corvane::system
