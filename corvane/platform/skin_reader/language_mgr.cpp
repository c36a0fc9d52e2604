#include "corvane/platform/skin_reader/language_mgr.h"

#include "corvane/platform/skin_reader/append_record.h"
#include "corvane/platform/skin_reader/element_rules.h"
#include "corvane/platform/skin_reader/skin_document.h"

namespace corvane {
namespace {

constexpr AttributeRule kListRules[] = {{"id", is_any_number, kAnyNumber, true}};
constexpr AttributeRule kCaptionRules[] = {{"id", is_any_number, kAnyNumber, true},
                                           {"text", is_any_text, kAnyText, true},
                                           {"font", is_any_number, kAnyNumber}};

void check(const SkinDocument& document, pugi::xml_node list) {
  check_attributes(document, list, kListRules);
  check_contents(document, list, "caption");
  for (const auto& node : list.children("caption")) {
    check_attributes(document, node, kCaptionRules);
    check_contents(document, node, "");
  }
}

}  // namespace

int CLanguageMgr::Load(const char* path) {
  document_ = SkinDocument::load(path, "captions");
  if (document_) check_contents(*document_, document_->root(), "list");
  return document_ ? 1 : 0;
}

DWORD CLanguageMgr::ReadLanguage(std::list<_MYLANGUAGE*>& captions, int list_id) const {
  const auto list = document_ ? document_->list(list_id) : pugi::xml_node{};
  if (!list) return 0;
  check(*document_, list);
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

std::vector<int> CLanguageMgr::ListIds() const {
  return document_ ? document_->list_ids() : std::vector<int>{};
}

std::vector<int> CLanguageMgr::Lines(int list_id) const {
  return document_ ? document_->record_lines(document_->list(list_id), "caption")
                   : std::vector<int>{};
}

}  // namespace corvane
