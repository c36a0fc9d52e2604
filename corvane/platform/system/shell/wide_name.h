#pragma once
// One name of the file system, or any text without separators, as bytes and as wide characters. A
// byte b that is not part of valid UTF-8, and a byte '\', becomes the character U+F700 + b; bytes
// that spell one of these characters (U+F73A, U+F75C, U+F780..U+F7FF) are treated the same way, so
// that every name survives the round trip from bytes to wide and back.
//
// All functions may be called from any thread.
#include <string>
#include <string_view>

namespace corvane::system {

// A '/' is kept as that character.
std::wstring wide_name(std::string_view bytes);

// The same behind what `wide` holds already.
void append_wide_name(std::wstring& wide, std::string_view bytes);

// The way back, behind what `bytes` holds already; every '\' becomes `separator`. False, with
// `bytes` unspecified, when a character is one that no file name can hold.
bool append_bytes(std::string& bytes, std::wstring_view wide, char separator);

}  // namespace corvane::system
