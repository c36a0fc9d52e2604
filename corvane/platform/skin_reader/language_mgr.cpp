#include "corvane/platform/skin_reader/language_mgr.h"

#include "corvane/platform/skin_reader/append_record.h"
#include "corvane/platform/skin_reader/skin_document.h"

namespace corvane {

int CLanguageMgr::Load(const char* path) {
  document_ = SkinDocument::load(path, "captions");
  return document_ ? 1 : 0;
}

DWORD CLanguageMgr::ReadLanguage(std::list<_MYLANGUAGE*>& captions, int list_id) const {
  const auto list = document_ ? document_->list(list_id) : pugi::xml_node{};
  DWORD count = 0;
  for (const auto& node : list.children("caption")) {
    const auto id = id_of(node);
    if (!id) continue;
    auto caption = std::make_unique<_MYLANGUAGE>();
    caption->id = *id;
    caption->text = text_of(node, "text");
    caption->font_id = id_of(node, "font").value_or(0);
    append_record(captions, std::move(caption));
    ++count;
  }
  return count;
}

}  // namespace corvane
