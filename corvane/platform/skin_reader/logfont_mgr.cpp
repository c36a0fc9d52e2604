#include "corvane/platform/skin_reader/logfont_mgr.h"

#include <algorithm>

#include "corvane/platform/base_services/utf8.h"
#include "corvane/platform/skin_reader/append_record.h"
#include "corvane/platform/skin_reader/attribute_values.h"
#include "corvane/platform/skin_reader/element_rules.h"
#include "corvane/platform/skin_reader/skin_document.h"

namespace corvane {
namespace {

constexpr const wchar_t* kDefaultFace = L"宋体";
constexpr std::int32_t kDefaultSize = 14;
constexpr std::int32_t kMaxSize = 1000;
constexpr std::int32_t kMaxWeight = 1000;

BYTE switch_of(pugi::xml_node node, const char* attribute) {
  return parse_switch(node.attribute(attribute).value()).value_or(false) ? 1 : 0;
}

std::wstring face_of(pugi::xml_node node) {
  auto face = text_of(node, "face");
  return face.empty() || face.size() >= LF_FACESIZE ? kDefaultFace : face;
}

bool is_face(std::string_view value) {
  const auto face = wide_from_utf8(value);
  return face && !face->empty() && face->size() < LF_FACESIZE;
}
bool is_up_to_1000(std::string_view value) { return parse_number(value, 1, 1000).has_value(); }
bool is_switch(std::string_view value) { return parse_switch(value).has_value(); }

constexpr char kUpTo1000[] = "a whole number from 1 to 1000";
constexpr AttributeRule kFontRules[] = {
    {"id", is_any_number, kAnyNumber, true}, {"face", is_face, "a name of 1 to 31 characters"},
    {"size", is_up_to_1000, kUpTo1000},      {"weight", is_up_to_1000, kUpTo1000},
    {"italic", is_switch, "true or false"},  {"underline", is_switch, "true or false"}};

void check(const SkinDocument& document) {
  check_contents(document, document.root(), "font");
  for (const auto& node : document.root().children("font")) {
    check_attributes(document, node, kFontRules);
    check_contents(document, node, "");
  }
}

std::unique_ptr<LOGFONTW> description_of(pugi::xml_node node) {
  auto description = std::make_unique<LOGFONTW>();
  description->lfHeight = -number_of(node, "size", 1, kMaxSize).value_or(kDefaultSize);
  description->lfWeight = number_of(node, "weight", 1, kMaxWeight).value_or(FW_NORMAL);
  description->lfItalic = switch_of(node, "italic");
  description->lfUnderline = switch_of(node, "underline");
  description->lfCharSet = DEFAULT_CHARSET;
  const auto face = face_of(node);
  std::copy(face.begin(), face.end(), description->lfFaceName);
  return description;
}

}  // namespace

int CLogfontMgr::Load(const char* path) {
  document_ = SkinDocument::load(path, "fonts");
  return document_ ? 1 : 0;
}

DWORD CLogfontMgr::ReadLogfont(std::list<_MYFONT*>& fonts) const {
  if (!document_) return 0;
  check(*document_);
  DWORD count = 0;
  for (const auto& node : document_->root().children("font")) {
    const auto id = id_of(node);
    if (!id) continue;
    auto font = std::make_unique<_MYFONT>();
    font->id = *id;
    font->description = description_of(node);
    append_record(fonts, std::move(font));
    ++count;
  }
  return count;
}

std::vector<int> CLogfontMgr::Lines() const {
  return document_ ? document_->record_lines(document_->root(), "font") : std::vector<int>{};
}

}  // namespace corvane
