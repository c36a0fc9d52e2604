#include "corvane/skin/skin_lists.h"

#include <algorithm>

namespace corvane {
namespace {

template <typename Record>
Record* first_with_id(const std::list<Record*>& records, int id) {
  const auto found = std::find_if(records.begin(), records.end(), [id](const Record* record) {
    return record != nullptr && record->id == id;
  });
  return found == records.end() ? nullptr : *found;
}

template <typename Record>
void release(std::list<Record*>& records) {
  for (Record* const record : records) delete record;
  records.clear();
}

}  // namespace

SkinLists::~SkinLists() {
  release_controls();
  release_captions();
  release_fonts();
}

_MYCONTROL* SkinLists::control(int id) const { return first_with_id(controls, id); }

_MYLANGUAGE* SkinLists::caption(int id) const { return first_with_id(captions, id); }

_MYFONT* SkinLists::font(int id) const { return first_with_id(fonts, id); }

SkinnedControl SkinLists::joined(int control_id) const {
  SkinnedControl found;
  found.control = control(control_id);
  if (found.control != nullptr && found.control->caption_ids) {
    found.caption = caption(found.control->caption_ids[0]);
  }
  if (found.caption != nullptr) found.font = font(found.caption->font_id);
  return found;
}

void SkinLists::release_controls() { release(controls); }

void SkinLists::release_captions() { release(captions); }

void SkinLists::release_fonts() { release(fonts); }

}  // namespace corvane
