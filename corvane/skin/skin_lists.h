#pragma once
// The three lists of records of one window's skin: owning them, looking them up, and joining a
// control with its caption and font. Knows no window and no file.
#include <list>

#include "corvane/platform/platform.h"
#include "corvane/platform/skin_reader/records.h"

namespace corvane {

class SkinLists {
 public:
  SkinLists() = default;
  ~SkinLists();
  SkinLists(const SkinLists&) = delete;
  SkinLists& operator=(const SkinLists&) = delete;

  // The first record with that id, or null; valid until its list is released.
  _MYCONTROL* control(int id) const;
  _MYLANGUAGE* caption(int id) const;
  _MYFONT* font(int id) const;
  // The control with that id, the caption that the control names first, and the caption's font.
  SkinnedControl joined(int control_id) const;

  void release_controls();
  void release_captions();
  void release_fonts();

  // In the readers' order; the lists own what the pointers name. Null pointers are skipped.
  DWORD background = 0;  // COLORREF; not touched by release_controls
  std::list<_MYCONTROL*> controls;
  std::list<_MYLANGUAGE*> captions;
  std::list<_MYFONT*> fonts;
};

}  // namespace corvane
