#pragma once
// Wide paths, as the platform writes them, and the byte paths of the file system.
//
// A drive letter names a mount: Z: is the root of the file system, a host mounts others. Both '\'
// and '/' separate. File names are UTF-8, with escapes for other bytes (wide_name.h); the ':' of a
// relative path that would look like a drive is escaped too (U+F73A). Of separators at the end only
// those after a mounted folder itself are lost.
//
// All functions may be called from any thread.
#include <string>
#include <string_view>

#include "corvane/platform/system/shell/wide_name.h"

namespace corvane::system {

// "Z:\a\b" -> "/a/b"; "C:\a" -> the folder mounted as C: + "/a"; "\a" -> "/a"; a path without a
// leading separator or drive stays relative. Empty when the path names nothing: an empty path, a
// drive that is not mounted, a character that no file name can hold.
std::string file_system_path(std::wstring_view wide);

// "/a/b" -> "Z:\a\b", or below the drive whose folder holds it (the longest such folder); a
// relative path stays relative; "" -> "".
std::wstring wide_path(std::string_view bytes);

// Mounts an absolute folder (bytes) under a letter a-y in either case; an empty folder unmounts.
// False, with nothing changed, for any other letter or a relative folder.
bool mount_drive(wchar_t letter, std::string folder);

}  // namespace corvane::system
