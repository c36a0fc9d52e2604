#pragma once
// Wide text for the text library.
#include <string>
#include <string_view>

namespace corvane::system {

// Valid UTF-8 without control characters: '\n' stays, other control characters become spaces,
// what is no character becomes U+FFFD, a pair of surrogates becomes one character.
std::string to_utf8(std::wstring_view wide);

}  // namespace corvane::system
