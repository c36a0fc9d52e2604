#pragma once
// Which installed font families stand for the face names that programs ask for.
#include <string>
#include <string_view>

namespace corvane::system {

// The families (UTF-8, comma separated, the first one present is taken) for a face name. Latin
// letters are compared without regard to case; a leading '@' (vertical writing) is ignored. An
// unknown face stands for itself, followed by the default families.
std::string font_families(std::wstring_view face);

// Whether the table of known faces or a host says what a face stands for.
bool stands_for_others(std::wstring_view face);

// Changes or adds an entry; empty families remove a host's entry again. For all window systems of
// the process, from any thread; fonts already drawn with keep what they have.
void map_font_face(std::wstring_view face, std::string families);

}  // namespace corvane::system
