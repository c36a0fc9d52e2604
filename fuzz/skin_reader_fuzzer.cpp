// Any bytes as each of the skin's three files.
#include <list>
#include <memory>
#include <string>

#include "corvane/platform/skin_reader/control_mgr.h"
#include "corvane/platform/skin_reader/language_mgr.h"
#include "corvane/platform/skin_reader/logfont_mgr.h"
#include "corvane/platform/skin_reader/skin_complaints.h"
#include "fuzz/input_file.h"
#include "fuzz/require.h"

namespace {

using corvane::_MYCONTROL;
using corvane::_MYFONT;
using corvane::_MYLANGUAGE;

constexpr int kListIds[] = {-1, 0, 1, 4, 100};

template <class Record>
class Records {
 public:
  ~Records() {
    for (Record* record : list) delete record;
  }
  std::list<Record*> list;
};

void require_below_image_folder(const std::wstring& name) {
  const auto padded = L"\\" + name + L"\\";
  require(padded.find(L"\\..\\") == std::wstring::npos, "an image name does not leave its folder");
  require(name.empty() || name.front() != L'\\', "an image name is not absolute");
}

void require_sane(const _MYCONTROL& control) {
  require(control.rect.right >= control.rect.left && control.rect.bottom >= control.rect.top,
          "a rectangle's width and height are not negative");
  for (const auto* name :
       {&control.image, &control.hover_image, &control.pressed_image, &control.disabled_image,
        &control.selected_image, &control.forward_image, &control.backward_image}) {
    require_below_image_folder(name->GetString());
  }
}

void read_controls(const std::string& path) {
  corvane::CControlMgr reader;
  reader.Load(path.c_str());
  for (const int id : kListIds) {
    Records<_MYCONTROL> controls;
    DWORD background = 0;
    const DWORD count = reader.ReadControl(controls.list, id, &background);
    require(count == controls.list.size(), "the count is that of the records");
    for (const auto* control : controls.list) require_sane(*control);
  }
}

void read_captions(const std::string& path) {
  corvane::CLanguageMgr reader;
  reader.Load(path.c_str());
  for (const int id : kListIds) {
    Records<_MYLANGUAGE> captions;
    require(reader.ReadLanguage(captions.list, id) == captions.list.size(),
            "the count is that of the records");
  }
}

void read_fonts(const std::string& path) {
  corvane::CLogfontMgr reader;
  reader.Load(path.c_str());
  Records<_MYFONT> fonts;
  require(reader.ReadLogfont(fonts.list) == fonts.list.size(), "the count is that of the records");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  corvane::set_skin_complaint_handler([](const corvane::SkinComplaint&) {});
  const InputFile file(data, size);
  const auto path = file.path();
  read_controls(path);
  read_captions(path);
  read_fonts(path);
  return 0;
}
