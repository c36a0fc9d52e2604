// Paths as text: where their name and its extension begin.
#include <cwchar>

#include "corvane/platform/system/shell/shell_api.h"

namespace corvane_system {
namespace {

bool is_separator(wchar_t character) { return character == L'\\' || character == L'/'; }

}  // namespace

LPWSTR PathFindFileNameW(LPCWSTR path) {
  if (path == nullptr) return nullptr;
  LPCWSTR name = path;
  for (LPCWSTR at = path; *at != 0; ++at) {
    const bool ends_folder = is_separator(*at) || *at == L':';
    if (ends_folder && at[1] != 0 && !is_separator(at[1])) name = at + 1;
  }
  return const_cast<LPWSTR>(name);
}

LPWSTR PathFindExtensionW(LPCWSTR path) {
  if (path == nullptr) return nullptr;
  LPCWSTR dot = nullptr;
  LPCWSTR at = path;
  for (; *at != 0; ++at) {
    if (*at == L'.') dot = at;
    if (*at == L'\\' || *at == L' ') dot = nullptr;
  }
  return const_cast<LPWSTR>(dot != nullptr ? dot : at);
}

BOOL PathRemoveFileSpecW(LPWSTR path) {
  if (path == nullptr) return FALSE;
  LPWSTR end = path;  // of what stays
  LPWSTR at = path;
  for (int slashes = 0; *at == L'\\' && slashes < 2; ++slashes) end = ++at;
  for (; *at != 0; ++at) {
    if (*at == L'\\') end = at;
    if (*at == L':') end = at + (at[1] == L'\\' ? 2 : 1);
    if (*at == L':' && at[1] == L'\\') ++at;
  }
  if (*end == 0) return FALSE;
  *end = 0;
  return TRUE;
}

BOOL PathIsDirectoryW(LPCWSTR path) {
  const DWORD attributes = GetFileAttributesW(path);
  if (attributes == INVALID_FILE_ATTRIBUTES) return FALSE;
  return static_cast<BOOL>(attributes & FILE_ATTRIBUTE_DIRECTORY);
}

}  // namespace corvane_system
