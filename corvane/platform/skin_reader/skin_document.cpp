#include "corvane/platform/skin_reader/skin_document.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string_view>
#include <system_error>

#include "corvane/platform/base_services/system_paths.h"
#include "corvane/platform/base_services/utf8.h"
#include "corvane/platform/skin_reader/attribute_values.h"
#include "corvane/platform/skin_reader/skin_complaints.h"
#include "corvane/platform/skin_reader/skin_repair.h"

namespace corvane {
namespace {

constexpr std::size_t kMaxFileSize = std::size_t{16} << 20;
constexpr int kMaxFaults = 100;  // of one file that are told

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

// The place of the first byte that is no UTF-8, or the text's length.
std::size_t first_bad_byte(std::string_view text) {
  std::size_t good = 0;
  // A valid beginning stays valid when it is cut at a line's end.
  while (good < text.size()) {
    const std::size_t end = std::min(text.find('\n', good), text.size() - 1) + 1;
    if (!wide_from_utf8(text.substr(good, end - good))) return good;
    good = end;
  }
  return good;
}

pugi::xml_parse_result parse_into(pugi::xml_document& xml, const std::string& text) {
  return xml.load_buffer(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
}

}  // namespace

std::shared_ptr<const SkinDocument> SkinDocument::load(const char* path, const char* root_name) {
  if (path == nullptr) return nullptr;
  auto document = std::make_shared<SkinDocument>();
  const std::filesystem::path file = path_from_narrow(path);
  document->file_ = CString(wide_path_of(file));
  const auto text = read_file(file);
  if (!text) {
    document->complain_at(0, "the file is missing, cannot be read or is larger than 16 MiB",
                          "put it there; nothing of it is read");
    return nullptr;
  }
  return document->parse(*text, root_name) ? document : nullptr;
}

bool SkinDocument::parse(const std::string& text, const char* root_name) {
  count_lines(text);
  if (text.find('\0') != std::string::npos) {
    complain_at(0, "the file is no text in UTF-8", "save it as UTF-8; nothing of it is read");
    return false;
  }
  check_encoding(text);
  const auto result = parse_into(xml_, text);
  if (!result) {
    const std::string repaired = repair(text, root_name, result);
    count_lines(repaired);
    static_cast<void>(parse_into(xml_, repaired));  // as far as it goes
  }
  if (std::strcmp(root().name(), root_name) == 0) return true;
  std::string root_tag = "<";
  root_tag.append(root_name).append(">");
  complain_at(1, "the file does not begin with " + root_tag,
              "put everything between " + root_tag + " and its end; nothing of it is read");
  return false;
}

void SkinDocument::check_encoding(const std::string& text) const {
  const std::size_t bad = first_bad_byte(text);
  if (bad == text.size()) return;
  complain_at(line_at(static_cast<std::ptrdiff_t>(bad)), "this line is not in UTF-8",
              "save the file as UTF-8; texts that cannot be read are missing");
}

std::string SkinDocument::repair(const std::string& text, const char* root_name,
                                 const pugi::xml_parse_result& failure) const {
  int found = 0;
  const std::string repaired = repaired_skin(
      text, root_name, [&](std::size_t at, const std::string& what, const std::string& to_do) {
        if (++found > kMaxFaults) return;
        complain_at(line_at(static_cast<std::ptrdiff_t>(at)), what, to_do);
      });
  if (found == 0 && !repaired.empty()) {
    complain_at(line_at(failure.offset), failure.description(), "mend this line");
  }
  return repaired;
}

void SkinDocument::count_lines(const std::string& text) {
  line_starts_ = {0};
  for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at + 1)) {
    line_starts_.push_back(at + 1);
  }
}

int SkinDocument::line_at(std::ptrdiff_t offset) const {
  const auto at = static_cast<std::size_t>(std::max<std::ptrdiff_t>(offset, 0));
  const auto next = std::upper_bound(line_starts_.begin(), line_starts_.end(), at);
  return static_cast<int>(next - line_starts_.begin());
}

int SkinDocument::line_of(pugi::xml_node node) const { return line_at(node.offset_debug()); }

void SkinDocument::complain_at(int line, const std::string& what, const std::string& to_do) const {
  complain({file_, line, CString(wide_from_utf8(what).value_or(L"something cannot be read")),
            CString(wide_from_utf8(to_do).value_or(L"mend this line"))});
}

pugi::xml_node SkinDocument::list(std::int32_t id) const {
  for (const auto& node : root().children("list")) {
    if (id_of(node) == id) return node;
  }
  return {};
}

std::vector<int> SkinDocument::list_ids() const {
  std::vector<int> ids;
  for (const auto& node : root().children("list")) {
    const auto id = id_of(node);
    if (id && std::find(ids.begin(), ids.end(), *id) == ids.end()) ids.push_back(*id);
  }
  return ids;
}

std::vector<int> SkinDocument::record_lines(pugi::xml_node parent, const char* name) const {
  std::vector<int> lines;
  for (const auto& node : parent.children(name)) {
    if (id_of(node)) lines.push_back(line_of(node));
  }
  return lines;
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
