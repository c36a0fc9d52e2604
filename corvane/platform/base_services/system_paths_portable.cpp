#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <system_error>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/system/shell/wide_path.h"

namespace corvane {
namespace {

bool is_character(wchar_t character) {
  const auto code_point = static_cast<char32_t>(character);
  const bool surrogate = code_point >= 0xD800 && code_point < 0xE000;
  return code_point != 0 && code_point <= 0x10FFFF && !surrogate;
}

}  // namespace

std::filesystem::path native_path(std::wstring_view path) {
  return std::filesystem::path(system::file_system_path(path));
}

std::wstring wide_path_of(const std::filesystem::path& path) {
  return system::wide_path(path.string());
}

std::string narrow_path(std::wstring_view path) {
  if (!std::all_of(path.begin(), path.end(), is_character)) throw PathConversionError();
  return system::file_system_path(path);
}

std::filesystem::path path_from_narrow(const char* path) { return std::filesystem::path(path); }

std::filesystem::path library_folder() {
  Dl_info module{};
  if (!dladdr(reinterpret_cast<const void*>(&library_folder), &module)) return {};
  std::error_code error;
  return std::filesystem::canonical(module.dli_fname, error).parent_path();
}

std::filesystem::path program_folder() {
  std::error_code error;
  return std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
}

std::optional<std::filesystem::path> path_from_environment(const char* name) {
  const char* const value = std::getenv(name);
  if (value == nullptr || !*value) return std::nullopt;
  return std::filesystem::path(value);
}

}  // namespace corvane
