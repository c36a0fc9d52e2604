#pragma once
// The platform's names for finding files. Paths are wide paths (wide_path.h) of any length; a
// "\\?\" before them is allowed. All functions may be called from any thread.
#include "corvane/platform/system/types.h"

namespace corvane_system {

#define INVALID_HANDLE_VALUE (reinterpret_cast<HANDLE>(static_cast<LONG_PTR>(-1)))
#define MAX_PATH 260

// Steps of 100 ns since the year 1601, UTC.
struct FILETIME {
  DWORD dwLowDateTime;
  DWORD dwHighDateTime;
};

struct WIN32_FIND_DATAW {
  DWORD dwFileAttributes;
  FILETIME ftCreationTime;  // the last write's where the file system does not know it
  FILETIME ftLastAccessTime;
  FILETIME ftLastWriteTime;
  DWORD nFileSizeHigh;  // bytes; 0 for folders and links
  DWORD nFileSizeLow;
  DWORD dwReserved0;  // IO_REPARSE_TAG_SYMLINK for a link
  DWORD dwReserved1;
  WCHAR cFileName[MAX_PATH];
  WCHAR cAlternateFileName[14];  // always empty
};
using WIN32_FIND_DATA = WIN32_FIND_DATAW;
using LPWIN32_FIND_DATAW = WIN32_FIND_DATAW*;

#define FILE_ATTRIBUTE_READONLY 0x1u  // a file that nobody may write
#define FILE_ATTRIBUTE_HIDDEN 0x2u    // its name begins with a dot
#define FILE_ATTRIBUTE_SYSTEM 0x4u    // never set
#define FILE_ATTRIBUTE_DIRECTORY 0x10u
#define FILE_ATTRIBUTE_ARCHIVE 0x20u  // whatever is no folder
#define FILE_ATTRIBUTE_NORMAL 0x80u
#define FILE_ATTRIBUTE_REPARSE_POINT 0x400u  // a link; with DIRECTORY: to a folder
#define INVALID_FILE_ATTRIBUTES 0xFFFFFFFFu
#define IO_REPARSE_TAG_SYMLINK 0xA000000Cu

#define ERROR_FILE_NOT_FOUND 2u
#define ERROR_PATH_NOT_FOUND 3u
#define ERROR_TOO_MANY_OPEN_FILES 4u
#define ERROR_NO_MORE_FILES 18u
#define ERROR_GEN_FAILURE 31u
#define ERROR_FILENAME_EXCED_RANGE 206u

// Finds the entries of one folder in the file system's order; for a pattern that allows them "."
// and
// ".." come first, except in a drive's root. '*' and '?' stand for characters of the last component
// alone; letter case does not matter with them. Without them it is the one entry of that name.
// Fails with INVALID_HANDLE_VALUE and ERROR_PATH_NOT_FOUND (no such folder), ERROR_FILE_NOT_FOUND
// (nothing in it fits, or the path ends with a separator), ERROR_ACCESS_DENIED or
// ERROR_INVALID_PARAMETER (a null pointer). The caller closes the handle by FindClose.
HANDLE FindFirstFileW(LPCWSTR pattern, LPWIN32_FIND_DATAW data);
// FALSE with ERROR_NO_MORE_FILES at the end. Entries that vanish meanwhile are left out, and so are
// names that do not fit into cFileName.
BOOL FindNextFileW(HANDLE search, LPWIN32_FIND_DATAW data);
// FALSE with ERROR_INVALID_HANDLE for what is no open search, as in FindNextFileW.
BOOL FindClose(HANDLE search);

// A link's own attributes. INVALID_FILE_ATTRIBUTES, with errors as above, when there is nothing.
DWORD GetFileAttributesW(LPCWSTR path);
// Whether there is a file or folder behind the path. Links are followed: one that leads nowhere is
// none, although its name is taken (GetFileAttributesW sees it).
BOOL PathFileExistsW(LPCWSTR path);
// Not 0 for a folder, also behind a link.
BOOL PathIsDirectoryW(LPCWSTR path);

// Text alone. The last name in the path, or all of it; the last dot in that name and what follows,
// or the path's end.
LPWSTR PathFindFileNameW(LPCWSTR path);
LPWSTR PathFindExtensionW(LPCWSTR path);
// Cuts the last name and the '\\' before it; FALSE when there is nothing to cut.
BOOL PathRemoveFileSpecW(LPWSTR path);

}  // namespace corvane_system
