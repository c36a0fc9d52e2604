#pragma once
// Texts of files (UTF-8) as the library's wide strings.
#include <optional>
#include <string>
#include <string_view>

namespace corvane {

// Nothing when the bytes are not valid UTF-8 (overlong forms, surrogates and code points above
// 0x10FFFF included). A byte order mark is kept as a character.
std::optional<std::wstring> wide_from_utf8(std::string_view bytes);

}  // namespace corvane
