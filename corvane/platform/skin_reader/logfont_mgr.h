#pragma once
// Reads the fonts of "ui_logfont.xml", which all lists share. docs/skin.md describes the format.
#include <list>
#include <memory>
#include <vector>

#include "corvane/platform/platform.h"
#include "corvane/platform/skin_reader/records.h"

namespace corvane {

class SkinDocument;

class CLogfontMgr {
 public:
  // Replaces what was loaded before. The path is in the thread's ANSI code page (off Windows the
  // file system's bytes). 1, or 0 when the file cannot be used; then nothing is loaded.
  int Load(const char* path);

  // Appends new records, which the caller owns, in the order of the file; fonts without a valid id
  // are left out. Returns how many were appended. A description's height is minus the character
  // height in pixels.
  DWORD ReadLogfont(std::list<_MYFONT*>& fonts) const;

  std::vector<int> Lines() const;  // as CControlMgr's

 private:
  std::shared_ptr<const SkinDocument> document_;  // shared by copies of the reader
};

}  // namespace corvane
