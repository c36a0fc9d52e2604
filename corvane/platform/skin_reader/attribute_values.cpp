#include "corvane/platform/skin_reader/attribute_values.h"

#include <algorithm>
#include <charconv>

#include "corvane/platform/base_services/utf8.h"

namespace corvane {
namespace {

std::string_view without_blanks_around(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

template <typename Number>
std::optional<Number> whole_number(std::string_view text, int base) {
  Number number{};
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number, base);
  if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
  return number;
}

bool is_part_of_a_name(std::wstring_view part) {
  if (part.empty() || part == L"." || part == L"..") return false;
  return std::none_of(part.begin(), part.end(), [](wchar_t c) { return c < L' ' || c == L':'; });
}

}  // namespace

std::optional<std::int32_t> parse_number(std::string_view text, std::int32_t smallest,
                                         std::int32_t largest) {
  text = without_blanks_around(text);
  if (text.starts_with("+") && !text.starts_with("+-")) text.remove_prefix(1);
  const auto number = whole_number<std::int32_t>(text, 10);
  if (!number || *number < smallest || *number > largest) return std::nullopt;
  return number;
}

std::optional<COLORREF> parse_color(std::string_view text) {
  text = without_blanks_around(text);
  if (text.size() != 7 || text.front() != '#') return std::nullopt;
  const auto rgb = whole_number<std::uint32_t>(text.substr(1), 16);
  if (!rgb) return std::nullopt;
  return RGB(static_cast<int>(*rgb >> 16), static_cast<int>((*rgb >> 8) & 0xFF),
             static_cast<int>(*rgb & 0xFF));
}

std::optional<bool> parse_switch(std::string_view text) {
  text = without_blanks_around(text);
  if (text == "true" || text == "1") return true;
  if (text == "false" || text == "0") return false;
  return std::nullopt;
}

std::optional<std::wstring> parse_image_name(std::string_view text) {
  auto name = wide_from_utf8(text);
  if (!name) return std::nullopt;
  std::replace(name->begin(), name->end(), L'/', L'\\');
  for (std::size_t start = 0; start <= name->size();) {
    const auto end = std::min(name->find(L'\\', start), name->size());
    if (!is_part_of_a_name(std::wstring_view(*name).substr(start, end - start))) {
      return std::nullopt;
    }
    start = end + 1;
  }
  return name;
}

}  // namespace corvane
