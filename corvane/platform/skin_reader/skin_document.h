#pragma once
// One parsed skin file. Private to the readers: nothing else sees the XML library.
#include <cstdint>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>

#include "corvane/platform/platform.h"

namespace corvane {

class SkinDocument {
 public:
  // Null unless the path names a readable, well-formed file in UTF-8, of at most 16 MiB, whose
  // root element has the given name. The path is in the thread's ANSI code page (off Windows the
  // file system's bytes).
  static std::shared_ptr<const SkinDocument> load(const char* path, const char* root_name);

  pugi::xml_node root() const { return xml_.document_element(); }
  // The first <list> with that id, or an empty node.
  pugi::xml_node list(std::int32_t id) const;

 private:
  pugi::xml_document xml_;
};

// An attribute's value; nothing when it is missing or not what it has to be.
std::optional<std::int32_t> number_of(pugi::xml_node node, const char* attribute,
                                      std::int32_t smallest, std::int32_t largest);
std::optional<std::int32_t> id_of(pugi::xml_node node, const char* attribute = "id");
std::optional<COLORREF> color_of(pugi::xml_node node, const char* attribute);
std::wstring text_of(pugi::xml_node node, const char* attribute);  // empty when missing

}  // namespace corvane
