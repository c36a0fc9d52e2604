#pragma once
// Reads the captions of one list from "ui_language.xml". docs/skin.md describes the format.
#include <list>
#include <memory>
#include <vector>

#include "corvane/platform/platform.h"
#include "corvane/platform/skin_reader/records.h"

namespace corvane {

class SkinDocument;

class CLanguageMgr {
 public:
  // Replaces what was loaded before. The path is in the thread's ANSI code page (off Windows the
  // file system's bytes). 1, or 0 when the file cannot be used; then nothing is loaded.
  int Load(const char* path);

  // Appends new records, which the caller owns, in the order of the file; captions without a valid
  // id are left out. Returns how many were appended.
  DWORD ReadLanguage(std::list<_MYLANGUAGE*>& captions, int list_id) const;

  // As CControlMgr's.
  std::vector<int> ListIds() const;
  std::vector<int> Lines(int list_id) const;

 private:
  std::shared_ptr<const SkinDocument> document_;  // shared by copies of the reader
};

}  // namespace corvane
