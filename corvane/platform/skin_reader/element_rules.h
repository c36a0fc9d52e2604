#pragma once
// What the elements of a skin file may hold. Reading takes what it can; these complain of the rest.
#include <limits>
#include <span>
#include <string_view>

#include "corvane/platform/skin_reader/attribute_values.h"
#include "corvane/platform/skin_reader/skin_document.h"

namespace corvane {

struct AttributeRule {
  const char* name;
  bool (*allows)(std::string_view value);
  const char* wanted;  // "a number from 0 to 32767"
  bool required = false;
};

inline bool is_any_number(std::string_view value) {
  return parse_number(value, std::numeric_limits<std::int32_t>::min(),
                      std::numeric_limits<std::int32_t>::max())
      .has_value();
}
inline bool is_color(std::string_view value) { return parse_color(value).has_value(); }
inline bool is_any_text(std::string_view) { return true; }

inline constexpr char kAnyNumber[] = "a whole number";
inline constexpr char kColor[] = "a colour as #RRGGBB";
inline constexpr char kAnyText[] = "a text";

// Complains of attributes that are missing, unknown, or not what the rules allow.
void check_attributes(const SkinDocument& document, pugi::xml_node node,
                      std::span<const AttributeRule> rules);
// Complains of what a node holds besides elements of that name, and of ids that come twice.
void check_contents(const SkinDocument& document, pugi::xml_node node, const char* name);

}  // namespace corvane
