#include "corvane/platform/skin_reader/element_rules.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <string>

namespace corvane {
namespace {

const AttributeRule* rule_for(const char* attribute, std::span<const AttributeRule> rules) {
  const auto found = std::find_if(rules.begin(), rules.end(), [attribute](const auto& rule) {
    return std::strcmp(rule.name, attribute) == 0;
  });
  return found == rules.end() ? nullptr : &*found;
}

std::string in_tag(pugi::xml_node node) { return " in <" + std::string(node.name()) + ">"; }

void check_attribute(const SkinDocument& document, pugi::xml_node node,
                     pugi::xml_attribute attribute, std::span<const AttributeRule> rules) {
  const std::string name = attribute.name();
  const int line = document.line_of(node);
  const AttributeRule* const rule = rule_for(attribute.name(), rules);
  if (rule == nullptr) {
    document.complain_at(line, "the attribute " + name + in_tag(node) + " is not known",
                         "correct or remove it; it is ignored");
  } else if (node.attribute(attribute.name()) != attribute) {
    document.complain_at(line, name + " stands twice" + in_tag(node),
                         "remove one; the first counts");
  } else if (!rule->allows(attribute.value())) {
    document.complain_at(
        line, name + "=\"" + attribute.value() + "\"" + in_tag(node) + " is not " + rule->wanted,
        "correct it; it counts as missing");
  }
}

}  // namespace

void check_attributes(const SkinDocument& document, pugi::xml_node node,
                      std::span<const AttributeRule> rules) {
  for (const auto& attribute : node.attributes()) check_attribute(document, node, attribute, rules);
  for (const AttributeRule& rule : rules) {
    if (!rule.required || node.attribute(rule.name) != nullptr) continue;
    const bool is_id = std::strcmp(rule.name, "id") == 0;
    document.complain_at(document.line_of(node),
                         std::string(rule.name) + " is missing" + in_tag(node),
                         std::string("write ") + rule.name + "=\"...\", " + rule.wanted +
                             (is_id ? "; without it this is left out" : ""));
  }
}

void check_contents(const SkinDocument& document, pugi::xml_node node, const char* name) {
  std::map<std::int32_t, int> lines;
  int line = document.line_of(node);
  for (const auto& child : node.children()) {
    if (child.type() != pugi::node_element) {
      document.complain_at(line, "below this line stands text outside of the tags", "remove it");
      continue;
    }
    line = document.line_of(child);
    if (std::strcmp(child.name(), name) != 0) {
      document.complain_at(
          line, "the tag <" + std::string(child.name()) + "> is not known" + in_tag(node),
          "correct or remove it; it is ignored");
    } else if (const auto id = id_of(child)) {
      const auto first = lines.emplace(*id, line);
      if (first.second) continue;
      document.complain_at(
          line, "a second <" + std::string(name) + "> with id " + std::to_string(*id),
          "give it another id; the one in line " + std::to_string(first.first->second) + " counts");
    }
  }
}

}  // namespace corvane
