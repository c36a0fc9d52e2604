#pragma once
// How the program looks and what it says: colours, sizes, texts and fonts of list 102 of the skin.
// What the skin lacks is the program's own.
#include <initializer_list>

#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/platform.h"
#include "corvane/skin/xml_list_mgr.h"

namespace capture {

// Ids of controls whose text colour counts.
enum class Shade {
  stage = 1,
  panel,
  edge,
  hovered_row,
  text,
  quiet_text,
  accent,
  scroll_mark,
  selection
};

// Ids of controls whose width and height count.
enum class Measure { library_title = 20, box_title, box_row, open_box, recognition_box };

// Ids of captions; {1} and {2} in one stand for names and numbers.
enum class Text {
  library = 1,
  library_loading,
  picture_count,
  no_pictures,
  how_to_begin,
  looking_for_pictures,
  crop_given_up,
  cannot_open,
  no_other_picture,
  nothing_framed,
  saving,
  cannot_save,
  saved,
  too_small_to_read,
  preparing_to_read,
  memory_short,
  frame_first,
  folder_gone,
  folder_left,
  two_sentences,
  library_gone,
  folder_empty,
  folder_unreadable,
  disk_full,
  no_permission,
  folder_missing,
  recognition,
  recognised,
  recognising,
  cannot_recognise,
  nothing_recognised,
  recognition_missing,
  how_to_install,
  cannot_show,
  open,
  folder_above,
  copied,
  opening,
  other_error,
};

class CLook {
 public:
  void Load();  // from the skin; before the first window of the program

  COLORREF color(Shade shade) const;
  DWORD argb(Shade shade) const;  // as CGdiDC draws text: red above green above blue, opaque
  SIZE size(Measure measure) const;
  corvane::CString text(Text text) const;
  corvane::CString text(Text text, std::initializer_list<corvane::CString> insertions) const;
  // What the text is drawn in, and others of its kind.
  LOGFONTW font(Text text) const;

 private:
  corvane::CXmlListMgr skin_;
};

}  // namespace capture
