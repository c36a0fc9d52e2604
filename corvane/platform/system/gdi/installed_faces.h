#pragma once
// Which face names lead to a font.
#include <string_view>

namespace corvane::system {

// Whether the face is one of those that stand for others (font_faces.h), or a family of that name
// is installed. Latin letters are compared without regard to case.
bool is_installed_face(std::wstring_view face);

}  // namespace corvane::system
