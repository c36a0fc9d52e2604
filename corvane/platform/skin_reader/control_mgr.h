#pragma once
// Reads the controls of one list from "ui_control.xml". docs/skin.md describes the format.
#include <list>
#include <memory>
#include <vector>

#include "corvane/platform/platform.h"
#include "corvane/platform/skin_reader/records.h"

namespace corvane {

class SkinDocument;

class CControlMgr {
 public:
  // Replaces what was loaded before. The path is in the thread's ANSI code page (off Windows the
  // file system's bytes). 1, or 0 when the file cannot be used; then nothing is loaded.
  int Load(const char* path);

  // Appends new records, which the caller owns, in the order of the file; controls without a valid
  // id are left out. Returns how many were appended. *background (may be null) receives the list's
  // background colour, white when the file names none; it is left alone when there is no such list.
  DWORD ReadControl(std::list<_MYCONTROL*>& controls, int list_id, DWORD* background) const;

  // For programs that check skins: the lists, and in which lines of the file the records of one
  // stand, in the order in which they are appended.
  std::vector<int> ListIds() const;
  std::vector<int> Lines(int list_id) const;

 private:
  std::shared_ptr<const SkinDocument> document_;  // shared by copies of the reader
};

}  // namespace corvane
