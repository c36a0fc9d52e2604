#pragma once
// '&' in captions.
#include <string>
#include <string_view>

namespace corvane::system {

struct PrefixedText {
  std::wstring text;    // without the prefixes
  int underlined = -1;  // index of the character behind the last prefix
};

// "&&" is one '&'; a '&' at the end is dropped.
PrefixedText without_prefixes(std::wstring_view text);

}  // namespace corvane::system
