#pragma once
// Looks a skin through for what would be missing or wrong on the screen.
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/skin_reader/control_mgr.h"
#include "corvane/platform/skin_reader/language_mgr.h"
#include "corvane/platform/skin_reader/logfont_mgr.h"
#include "corvane/skin/skin_lists.h"
#include "tools/check_skin/expected_controls.h"

namespace check_skin {

// Needs a PlatformSession. Everything that it finds goes to corvane::complain, as what the readers
// find.
class SkinCheck {
 public:
  // The wide path of the skin, which is the process's skin meanwhile (SetSkinFolder).
  explicit SkinCheck(corvane::CString folder);

  void run(bool with_capture_program);

 private:
  // One list with the lines of its records.
  struct List {
    corvane::SkinLists records;
    std::vector<int> control_lines;
    std::vector<int> caption_lines;
  };

  void read();
  void read_captions(const corvane::CString& file);
  // The captions of another language, each against those that were read and its place.
  void check_language(const corvane::CString& file);
  void check_fonts();
  void check_look();   // of the capture program
  void check_texts();  // which it says, in the captions that were read
  void check_marks();  // in them
  void check_expected(const ExpectedList& expected);
  void check_inside(const List& list, const ExpectedList& expected);
  void check_list(const List& list);
  void check_captions(const List& list);
  void check_control(const List& list, const corvane::_MYCONTROL& control, int line);
  void check_picture(const corvane::CString& name, int line);
  void check_caption_width(const corvane::SkinnedControl& skin, const corvane::CString& file,
                           int line);
  const corvane::_MYFONT* font(int id) const { return fonts_.font(id); }
  std::string path_of(const wchar_t* file) const;
  void tell(const wchar_t* file, int line, const std::wstring& what, const wchar_t* to_do) const;

  corvane::CString folder_;
  corvane::CString captions_;  // the file of the captions in the lists
  std::map<int, List> lists_;
  corvane::SkinLists fonts_;
  std::vector<int> font_lines_;
  bool has_controls_ = false;
  bool with_capture_program_ = false;
};

}  // namespace check_skin
