#pragma once
// Wide paths, as the platform writes them, and the byte paths of the file system.
//
// A drive letter names a mount: Z: is the root of the file system, a host mounts others. Both '\'
// and '/' separate. File names are UTF-8; a byte b that is not part of valid UTF-8, and a byte '\'
// inside a name, becomes the character U+F700 + b, so that every name survives the round trip from
// bytes to wide and back; so does the ':' of a relative path that would look like a drive (U+F73A).
// Bytes that spell one of these characters (U+F73A, U+F75C, U+F780..U+F7FF) themselves are treated
// the same way. Of separators at the end only those after a mounted folder itself are lost.
//
// All functions may be called from any thread.
#include <string>
#include <string_view>

namespace corvane::system {

// "Z:\a\b" -> "/a/b"; "C:\a" -> the folder mounted as C: + "/a"; "\a" -> "/a"; a path without a
// leading separator or drive stays relative. Empty when the path names nothing: an empty path, a
// drive that is not mounted, a character that no file name can hold.
std::string file_system_path(std::wstring_view wide);

// "/a/b" -> "Z:\a\b", or below the drive whose folder holds it (the longest such folder); a
// relative path stays relative; "" -> "".
std::wstring wide_path(std::string_view bytes);

// One name or any text without separators in it: the same mapping of bytes and characters. A
// '/' in it is kept as that character.
std::wstring wide_name(std::string_view bytes);

// Mounts an absolute folder (bytes) under a letter a-y in either case; an empty folder unmounts.
// False, with nothing changed, for any other letter or a relative folder.
bool mount_drive(wchar_t letter, std::string folder);

}  // namespace corvane::system
