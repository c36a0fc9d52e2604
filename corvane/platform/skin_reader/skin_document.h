#pragma once
// One parsed skin file. Private to the readers: nothing else sees the XML library.
#include <cstdint>
#include <memory>
#include <optional>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/platform.h"

namespace corvane {

class SkinDocument {
 public:
  // Null unless the path names a readable text file of at most 16 MiB that begins with an element
  // of the given name. Of a damaged file it holds what could be understood. Complains of every
  // fault. The path is in the thread's ANSI code page (off Windows the file system's bytes).
  static std::shared_ptr<const SkinDocument> load(const char* path, const char* root_name);

  pugi::xml_node root() const { return xml_.document_element(); }
  // The first <list> with that id, or an empty node.
  pugi::xml_node list(std::int32_t id) const;
  std::vector<int> list_ids() const;  // in the file's order, each once
  // The lines of the elements of that name with a valid id.
  std::vector<int> record_lines(pugi::xml_node parent, const char* name) const;

  int line_of(pugi::xml_node node) const;  // from 1
  void complain_at(int line, const std::string& what, const std::string& to_do) const;

 private:
  bool parse(const std::string& text, const char* root_name);
  void count_lines(const std::string& text);
  int line_at(std::ptrdiff_t offset) const;
  void check_encoding(const std::string& text) const;
  std::string repair(const std::string& text, const char* root_name,
                     const pugi::xml_parse_result& failure) const;

  CString file_;
  std::vector<std::size_t> line_starts_;  // byte offsets
  pugi::xml_document xml_;
};

// An attribute's value; nothing when it is missing or not what it has to be.
std::optional<std::int32_t> number_of(pugi::xml_node node, const char* attribute,
                                      std::int32_t smallest, std::int32_t largest);
std::optional<std::int32_t> id_of(pugi::xml_node node, const char* attribute = "id");
std::optional<COLORREF> color_of(pugi::xml_node node, const char* attribute);
std::wstring text_of(pugi::xml_node node, const char* attribute);  // empty when missing

}  // namespace corvane
