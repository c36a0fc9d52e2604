#pragma once
// The library's wide paths (backslashes, no trailing separator) and the forms that the platform's
// own calls and the C++ library take. One implementation for Windows, one for all others.
#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace corvane {

// A path that has no form in the narrow encoding.
class PathConversionError : public std::runtime_error {
 public:
  PathConversionError() : std::runtime_error("a path cannot be converted to narrow characters") {}
};

// For the C++ library's file functions. Empty when the path names no place of the file system.
std::filesystem::path native_path(std::wstring_view path);
std::wstring wide_path_of(const std::filesystem::path& path);

// In the calling thread's ANSI code page; off Windows the file system's bytes. Throws
// PathConversionError.
std::string narrow_path(std::wstring_view path);
std::filesystem::path path_from_narrow(const char* path);

// The folders of this library's own file and of the running program; empty when unknown.
std::filesystem::path library_folder();
std::filesystem::path program_folder();

// The value of an environment variable that names a file or folder; nothing when unset or empty.
std::optional<std::filesystem::path> path_from_environment(const char* name);

}  // namespace corvane
