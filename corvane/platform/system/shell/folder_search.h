#pragma once
// One search under way for the entries of a folder that fit a pattern.
#include <mutex>
#include <string>

#include "corvane/platform/system/shell/entry_reader.h"
#include "corvane/platform/system/shell/file_descriptor.h"
#include "corvane/platform/system/shell/name_pattern.h"
#include "corvane/platform/system/shell/shell_api.h"

namespace corvane::system {

class FolderSearch {
 public:
  // "." and ".." are among the entries, or not: a drive's root has none.
  enum class Dots { shown, hidden };
  FolderSearch(FileDescriptor folder, NamePattern pattern, Dots dots);

  // ERROR_SUCCESS with the next entry's data, ERROR_NO_MORE_FILES, or another error. One thread
  // after the other.
  DWORD next(WIN32_FIND_DATAW& data);

 private:
  const char* next_name();
  bool deliver(const char* name, WIN32_FIND_DATAW& data);

  std::mutex lock_;
  FileDescriptor folder_;
  NamePattern pattern_;
  int dots_left_;
  EntryReader reader_;
  std::wstring name_;
};

// The data of one entry of an open folder. False, with errno, when it cannot be had or its name
// does not fit.
bool find_data(int folder, const char* name, std::wstring_view wide, WIN32_FIND_DATAW& data);

}  // namespace corvane::system
