#include "corvane/platform/skin_reader/skin_document.h"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string_view>
#include <system_error>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/base_services/utf8.h"
#include "corvane/platform/skin_reader/attribute_values.h"

namespace corvane {
namespace {

constexpr std::size_t kMaxFileSize = std::size_t{16} << 20;

// Regular files only: a pipe would block and a device has no end.
std::optional<std::string> read_file(const std::filesystem::path& path) {
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) return std::nullopt;
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  if (!file) return std::nullopt;
  const std::streamoff length = file.tellg();
  if (length < 0 || static_cast<std::size_t>(length) > kMaxFileSize) return std::nullopt;
  std::string text(static_cast<std::size_t>(length), '\0');
  file.seekg(0);
  if (!file.read(text.data(), length)) return std::nullopt;
  return text;
}

bool is_text(std::string_view bytes) {
  return bytes.find('\0') == std::string_view::npos && wide_from_utf8(bytes).has_value();
}

}  // namespace

std::shared_ptr<const SkinDocument> SkinDocument::load(const char* path, const char* root_name) {
  if (path == nullptr) return nullptr;
  const auto text = read_file(path_from_narrow(path));
  if (!text || !is_text(*text)) return nullptr;
  auto document = std::make_shared<SkinDocument>();
  const auto result = document->xml_.load_buffer(text->data(), text->size(), pugi::parse_default,
                                                 pugi::encoding_utf8);
  if (!result || std::strcmp(document->root().name(), root_name) != 0) return nullptr;
  return document;
}

pugi::xml_node SkinDocument::list(std::int32_t id) const {
  for (const auto& node : root().children("list")) {
    if (id_of(node) == id) return node;
  }
  return {};
}

std::optional<std::int32_t> number_of(pugi::xml_node node, const char* attribute,
                                      std::int32_t smallest, std::int32_t largest) {
  return parse_number(node.attribute(attribute).value(), smallest, largest);
}

std::optional<std::int32_t> id_of(pugi::xml_node node, const char* attribute) {
  return number_of(node, attribute, std::numeric_limits<std::int32_t>::min(),
                   std::numeric_limits<std::int32_t>::max());
}

std::optional<COLORREF> color_of(pugi::xml_node node, const char* attribute) {
  return parse_color(node.attribute(attribute).value());
}

std::wstring text_of(pugi::xml_node node, const char* attribute) {
  return wide_from_utf8(node.attribute(attribute).value()).value_or(L"");
}

}  // namespace corvane
