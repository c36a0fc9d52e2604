#include "tests/trees/support/tree_text.h"

#include <vector>

namespace corvane::test {

std::wstring tree_text(const _NODE& node) {
  std::wstring text;
  std::vector<const _NODE*> left = {&node};
  while (!left.empty()) {
    const _NODE& next = *left.back();
    left.pop_back();
    text.append(static_cast<std::size_t>(next.level() - node.level()), L' ');
    text += (next.expanded() ? L"-" : L"") + next.name().AsStdString() + L' ' +
            std::to_wstring(next.level()) + L'\n';
    for (auto child = next.children().rbegin(); child != next.children().rend(); ++child) {
      left.push_back(&*child);
    }
  }
  return text;
}

}  // namespace corvane::test
