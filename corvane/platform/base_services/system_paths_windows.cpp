#include <cstdlib>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/platform.h"

namespace corvane {
namespace {

std::wstring wide_from_thread_code_page(std::string_view text) {
  const int length = static_cast<int>(text.size());
  const int needed = MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), length, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(needed), L'\0');
  MultiByteToWideChar(CP_THREAD_ACP, 0, text.data(), length, wide.data(), needed);
  return wide;
}

std::filesystem::path folder_of_module(HMODULE module) {
  constexpr DWORD kMaxPath = 32768;
  std::wstring file(kMaxPath, L'\0');
  file.resize(GetModuleFileNameW(module, file.data(), kMaxPath));
  return std::filesystem::path(file).parent_path();
}

}  // namespace

std::filesystem::path native_path(std::wstring_view path) { return std::filesystem::path(path); }

std::wstring wide_path_of(const std::filesystem::path& path) {
  return std::filesystem::path(path).make_preferred().wstring();
}

std::string narrow_path(std::wstring_view path) {
  const int length = static_cast<int>(path.size());
  const int needed =
      WideCharToMultiByte(CP_THREAD_ACP, 0, path.data(), length, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_THREAD_ACP, 0, path.data(), length, narrow.data(), needed, nullptr,
                      nullptr);
  // A character without a place in the code page was replaced by another one.
  if (wide_from_thread_code_page(narrow) != path) throw PathConversionError();
  return narrow;
}

std::filesystem::path path_from_narrow(const char* path) {
  return std::filesystem::path(wide_from_thread_code_page(path));
}

std::filesystem::path library_folder() {
  HMODULE module = nullptr;
  const auto inside = reinterpret_cast<LPCWSTR>(&library_folder);
  if (!GetModuleHandleExW(
          GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
          inside, &module)) {
    return {};
  }
  return folder_of_module(module);
}

std::filesystem::path program_folder() { return folder_of_module(nullptr); }

std::optional<std::filesystem::path> path_from_environment(const char* name) {
  const std::filesystem::path wide_name(name);
  const wchar_t* const value = _wgetenv(wide_name.c_str());
  if (value == nullptr || *value == L'\0') return std::nullopt;
  return std::filesystem::path(value);
}

}  // namespace corvane
