#include "tests/trees/support/tree_text.h"

#include <cstdio>
#include <vector>

namespace corvane::test {
namespace {

std::string printable(const corvane::CString& name) {
  std::string text;
  for (wchar_t character : name.AsStdString()) {
    if (character > L' ' && character < 127) {
      text += static_cast<char>(character);
    } else {
      char code[16];
      std::snprintf(code, sizeof(code), "\\u%04X", static_cast<unsigned>(character));
      text += code;
    }
  }
  return text;
}

}  // namespace

std::string tree_text(const corvane::_NODE& node) {
  std::string text;
  std::vector<const corvane::_NODE*> left = {&node};
  while (!left.empty()) {
    const corvane::_NODE& next = *left.back();
    left.pop_back();
    text.append(static_cast<std::size_t>(next.level() - node.level()), ' ');
    text += (next.expanded() ? "-" : "") + printable(next.name()) + ' ' +
            std::to_string(next.level()) + '\n';
    for (auto child = next.children().rbegin(); child != next.children().rend(); ++child) {
      left.push_back(&*child);
    }
  }
  return text;
}

}  // namespace corvane::test
