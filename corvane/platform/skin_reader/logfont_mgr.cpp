#include "corvane/platform/skin_reader/logfont_mgr.h"

#include <algorithm>

#include "corvane/platform/skin_reader/append_record.h"
#include "corvane/platform/skin_reader/attribute_values.h"
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

}  // namespace corvane
