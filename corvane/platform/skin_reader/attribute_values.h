#pragma once
// What the attributes of the skin files mean. A value that is not what its attribute allows counts
// as absent (nothing).
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "corvane/platform/platform.h"

namespace corvane {

// A whole decimal number from smallest to largest; blanks around it are allowed.
std::optional<std::int32_t> parse_number(std::string_view text, std::int32_t smallest,
                                         std::int32_t largest);

// "#RRGGBB"
std::optional<COLORREF> parse_color(std::string_view text);

// "true", "false", "1" or "0"
std::optional<bool> parse_switch(std::string_view text);

// A file name below the image folder. Folders in it may be separated by either slash and come back
// separated by backslashes. Names that could leave the folder are refused: absolute ones, ones
// with a drive letter, and ones with a part that is empty, "." or "..".
std::optional<std::wstring> parse_image_name(std::string_view text);

}  // namespace corvane
