// What the capture program reads in list 102: colours, sizes and its texts.
#include <fstream>

#include "corvane/platform/base_services/system_paths.h"
#include "tools/check_skin/skin_check.h"

namespace check_skin {
namespace {

using namespace corvane;

constexpr int kList = 102;
constexpr int kLastColor = 9;
constexpr int kFirstSize = 20;
constexpr int kFirstBox = 23;
constexpr int kTexts = 39;
constexpr LONG kHighestRow = 200;
constexpr LONG kLargestBox = 10000;

std::wstring text(int number) { return std::to_wstring(number); }

// How many marks, {1} and so on, stand for names and numbers in a text.
int marks_of(int caption) {
  switch (caption) {
    case 3:
    case 8:
    case 12:
    case 18:
    case 39:
      return 1;
    case 13:
    case 19:
    case 20:
      return 2;
    default:
      return 0;
  }
}

bool has_its_marks(const _MYLANGUAGE& caption) {
  const std::wstring words = caption.text.AsStdString();
  for (int mark = 1; mark <= 9; ++mark) {
    const bool there = words.find(L"{" + text(mark) + L"}") != std::wstring::npos;
    if (there != (mark <= marks_of(caption.id))) return false;
  }
  return true;
}

// The element that begins on that line of the file; black and no colour are the same record.
std::string element_at(const CString& path, int line) {
  std::ifstream file(native_path(path.AsStdString()));
  std::string element;
  for (int i = 0; i < line; ++i) std::getline(file, element);
  for (std::string more; element.find('>') == std::string::npos && std::getline(file, more);) {
    element += more;
  }
  return element;
}

bool has_its_size(const _MYCONTROL& control) {
  const LONG width = control.rect.right - control.rect.left;
  const LONG height = control.rect.bottom - control.rect.top;
  if (control.id < kFirstBox) return height > 0 && height <= kHighestRow;
  return width > 0 && width <= kLargestBox && height > 0 && height <= kLargestBox;
}

}  // namespace

void SkinCheck::check_look() {
  const List& list = lists_[kList];
  auto line = list.control_lines.begin();
  for (const _MYCONTROL* const control : list.records.controls) {
    const int at = line == list.control_lines.end() ? 0 : *line++;
    const std::wstring name = L"control " + text(control->id) + L" of list " + text(kList);
    if (control->id <= kLastColor) {
      const std::string element = element_at(folder_ + L"\\ui_control.xml", at);
      if (element.find("text-color") != std::string::npos) continue;
      tell(L"ui_control.xml", at, name + L" has no colour", L"give it a text-color");
    } else if (control->id >= kFirstSize && !has_its_size(*control)) {
      tell(L"ui_control.xml", at, name + L" has no size that can be used",
           L"give it a height of up to 200, a box a width and a height of up to 10000");
    }
  }
  check_texts();
}

void SkinCheck::check_texts() {
  const List& list = lists_[kList];
  if (list.records.captions.empty()) {
    tell(captions_, 0, L"list 102 is missing or empty: what the capture program says",
         L"copy it from the default skin");
    return;
  }
  for (int id = 1; id <= kTexts; ++id) {
    if (list.records.caption(id) != nullptr) continue;
    tell(captions_, 0, L"caption " + text(id) + L" of list 102 is missing",
         L"copy it from the default skin");
  }
  check_marks();
}

void SkinCheck::check_marks() {
  const List& list = lists_[kList];
  auto line = list.caption_lines.begin();
  for (const _MYLANGUAGE* const caption : list.records.captions) {
    const int at = line == list.caption_lines.end() ? 0 : *line++;
    if (has_its_marks(*caption)) continue;
    tell(captions_, at, L"caption " + text(caption->id) + L" of list 102 has other marks",
         L"let {1} and {2} stand in it as in the default skin");
  }
}

}  // namespace check_skin
