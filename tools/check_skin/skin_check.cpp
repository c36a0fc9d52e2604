#include "tools/check_skin/skin_check.h"

#include <array>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/base_services/utf8.h"
#include "corvane/platform/controls/button_skin.h"
#include "corvane/platform/framework/font.h"
#include "corvane/platform/images/gdi_image.h"
#include "corvane/platform/skin_reader/skin_complaints.h"
#include "corvane/platform/system/gdi/installed_faces.h"

namespace check_skin {
namespace {

using namespace corvane;

constexpr const wchar_t* kControls = L"ui_control.xml";
constexpr const wchar_t* kCaptions = L"ui_language.xml";
constexpr const wchar_t* kFonts = L"ui_logfont.xml";

std::wstring text(int number) { return std::to_wstring(number); }
std::wstring text(const char* words) { return wide_from_utf8(words).value_or(L""); }

// As the buttons draw it: one line, '&' as it stands.
int width_of(const CString& caption, const LOGFONTW& description) {
  CFont font;
  font.CreateFontIndirectW(&description);
  const HDC dc = ::CreateCompatibleDC(nullptr);
  const HGDIOBJ former = ::SelectObject(dc, font);
  SIZE size{};
  ::GetTextExtentPoint32W(dc, caption, caption.GetLength(), &size);
  ::SelectObject(dc, former);
  ::DeleteDC(dc);
  return size.cx;
}

// Calls `visit(record, line)` for each; the readers give a line for each record.
template <typename Record, typename Visit>
void for_each_line(const std::list<Record*>& records, const std::vector<int>& lines, Visit visit) {
  auto line = lines.begin();
  for (const Record* const record : records) visit(*record, line == lines.end() ? 0 : *line++);
}

// The files with the captions of other languages, as ui_language.en.xml.
std::set<std::wstring> other_languages(const CString& folder) {
  const std::wstring begin = L"ui_language.";
  const std::wstring end = L".xml";
  std::set<std::wstring> found;
  std::error_code error;
  for (const auto& entry :
       std::filesystem::directory_iterator(native_path(folder.AsStdString()), error)) {
    const std::wstring name = wide_from_utf8(entry.path().filename().string()).value_or(L"");
    const bool longer = name.size() > begin.size() + end.size();
    if (longer && name.starts_with(begin) && name.ends_with(end)) found.insert(name);
  }
  return found;
}

}  // namespace

SkinCheck::SkinCheck(CString folder) : folder_(std::move(folder)) {}

std::string SkinCheck::path_of(const wchar_t* file) const {
  return narrow_path((folder_ + L"\\" + file).AsStdString());
}

void SkinCheck::tell(const wchar_t* file, int line, const std::wstring& what,
                     const wchar_t* to_do) const {
  complain({folder_ + L"\\" + file, line, CString(what), to_do});
}

void SkinCheck::run(bool with_capture_program) {
  with_capture_program_ = with_capture_program;
  read();
  check_fonts();
  for (const auto& [id, list] : lists_) check_list(list);
  if (has_controls_) {
    for (const ExpectedList& expected : kLibraryLists) check_expected(expected);
  }
  if (has_controls_ && with_capture_program) {
    for (const ExpectedList& expected : kCaptureLists) check_expected(expected);
    check_look();
  }
  for (const std::wstring& file : other_languages(folder_)) check_language(CString(file));
}

void SkinCheck::read() {
  CControlMgr controls;
  CLogfontMgr fonts;
  has_controls_ = controls.Load(path_of(kControls).c_str()) != 0;
  fonts.Load(path_of(kFonts).c_str());
  for (const int id : controls.ListIds()) {
    List& list = lists_[id];
    controls.ReadControl(list.records.controls, id, nullptr);
    list.control_lines = controls.Lines(id);
  }
  read_captions(kCaptions);
  fonts.ReadLogfont(fonts_.fonts);
  font_lines_ = fonts.Lines();
}

void SkinCheck::read_captions(const CString& file) {
  for (auto& [id, list] : lists_) {
    list.records.release_captions();
    list.caption_lines.clear();
  }
  CLanguageMgr captions;
  captions_ = file;
  captions.Load(path_of(file).c_str());
  for (const int id : captions.ListIds()) {
    List& list = lists_[id];
    captions.ReadLanguage(list.records.captions, id);
    list.caption_lines = captions.Lines(id);
  }
}

void SkinCheck::check_language(const CString& file) {
  std::set<std::pair<int, int>> wanted;  // lists and captions
  for (const auto& [id, list] : lists_) {
    for (const _MYLANGUAGE* const caption : list.records.captions) wanted.emplace(id, caption->id);
  }
  read_captions(file);
  for (const auto& [list, caption] : wanted) {
    if (lists_[list].records.caption(caption) != nullptr) continue;
    tell(file, 0, L"caption " + text(caption) + L" of list " + text(list) + L" is missing",
         L"translate it from ui_language.xml");
  }
  if (with_capture_program_) check_marks();
  for (const auto& [id, list] : lists_) {
    check_captions(list);
    for (const _MYCONTROL* const control : list.records.controls) {
      const SkinnedControl skin = list.records.joined(control->id);
      for_each_line(list.records.captions, list.caption_lines,
                    [&](const _MYLANGUAGE& each, int line) {
                      if (&each == skin.caption) check_caption_width(skin, file, line);
                    });
    }
  }
}

void SkinCheck::check_fonts() {
  for_each_line(fonts_.fonts, font_lines_, [this](const _MYFONT& font, int line) {
    const std::wstring face = font.description->lfFaceName;
    if (system::is_installed_face(face)) return;
    tell(kFonts, line, L"the face " + face + L" is not known on this machine",
         L"correct its name, or install it; another one is shown in its place");
  });
}

void SkinCheck::check_expected(const ExpectedList& expected) {
  const auto found = lists_.find(expected.id);
  if (found == lists_.end() || found->second.control_lines.empty()) {
    tell(kControls, 0,
         L"list " + text(expected.id) + L" is missing or empty: " + text(expected.window),
         L"copy it from the default skin");
    return;
  }
  for (const ExpectedControl& control : expected.controls) {
    if (found->second.records.control(control.id) != nullptr) continue;
    tell(kControls, 0,
         L"control " + text(control.id) + L" of list " + text(expected.id) + L" is missing: " +
             text(control.purpose) + L", of " + text(expected.window),
         L"copy it from the default skin");
  }
  check_inside(found->second, expected);
}

void SkinCheck::check_inside(const List& list, const ExpectedList& expected) {
  const _MYCONTROL* const background = list.records.control(expected.background);
  if (background == nullptr) return;
  const LONG height = background->rect.bottom;
  for_each_line(list.records.controls, list.control_lines, [&](const _MYCONTROL& each, int line) {
    if (each.rect.bottom <= height) return;
    tell(kControls, line,
         L"control " + text(each.id) + L" reaches below its window, which is " + text(height) +
             L" pixels high",
         L"give it a smaller y or height");
  });
}

void SkinCheck::check_list(const List& list) {
  for_each_line(list.records.controls, list.control_lines,
                [&](const _MYCONTROL& each, int line) { check_control(list, each, line); });
  check_captions(list);
}

void SkinCheck::check_captions(const List& list) {
  for_each_line(list.records.captions, list.caption_lines, [&](const _MYLANGUAGE& each, int line) {
    if (each.font_id == 0 || font(each.font_id) != nullptr) return;
    tell(captions_, line, L"there is no font " + text(each.font_id) + L" for this caption",
         L"add it to ui_logfont.xml, or name another; the default font is shown");
  });
}

void SkinCheck::check_control(const List& list, const _MYCONTROL& control, int line) {
  const std::wstring name = L"control " + text(control.id);
  if (control.rect.left < 0 || control.rect.top < 0) {
    tell(kControls, line, name + L" lies outside of its window",
         L"give it an x and a y of 0 or more");
  }
  for (const CString* const image :
       {&control.image, &control.hover_image, &control.pressed_image, &control.disabled_image,
        &control.selected_image, &control.forward_image, &control.backward_image}) {
    check_picture(*image, line);
  }
  if (!control.caption_ids) return;
  SkinnedControl skin = list.records.joined(control.id);
  skin.control = &control;
  skin.caption = list.records.caption(control.caption_ids[0]);
  if (skin.caption == nullptr) {
    tell(kControls, line, L"there is no caption " + text(control.caption_ids[0]) + L" for " + name,
         L"add it to the list of this number in ui_language.xml, or remove the attribute caption");
    return;
  }
  skin.font = font(skin.caption->font_id);
  check_caption_width(skin, kControls, line);
}

void SkinCheck::check_picture(const CString& name, int line) {
  if (name.IsEmpty()) return;
  const CString path = folder_ + L"\\image\\" + name;
  CGdiImage image;
  if (image.Load(path) != 0) return;
  std::error_code error;
  if (std::filesystem::is_regular_file(native_path(path.AsStdString()), error)) {
    tell(kControls, line, L"the picture image/" + name.AsStdString() + L" is damaged or no picture",
         L"save it anew as PNG");
  } else {
    tell(kControls, line, L"there is no picture image/" + name.AsStdString(),
         L"put it there, or correct its name");
  }
}

void SkinCheck::check_caption_width(const SkinnedControl& skin, const CString& file, int line) {
  const CRect rect(skin.control->rect);
  if (rect.IsRectEmpty()) return;
  ButtonSkin look;
  if (skin.font != nullptr && skin.font->description) look.font = *skin.font->description;
  const int place = rect.Width() - skin.control->padding_left - skin.control->padding_right;
  const int width = width_of(skin.caption->text, look.font);
  if (width <= place) return;
  tell(file, line,
       L"the caption " + skin.caption->text.AsStdString() + L" is " + text(width) +
           L" pixels wide, its place in control " + text(skin.control->id) + L" only " +
           text(place),
       L"shorten it, or give it a smaller font or more room");
}

}  // namespace check_skin
