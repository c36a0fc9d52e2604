#include "apps/capture/sorted_folders.h"

#include <algorithm>
#include <string>
#include <vector>

namespace capture {
namespace {

using namespace corvane;

// The tree looks through all children before it adds one.
constexpr std::size_t kMostChildren = 4000;

struct Folder {
  const _NODE* node;
  std::wstring name;
  std::size_t parent;  // place in the list
};

// Parents before their children, children by name. Empty when a folder has too many.
std::vector<Folder> InOrder(const _NODE& root) {
  std::vector<Folder> folders = {{&root, root.name().AsStdString(), 0}};
  for (std::size_t at = 0; at < folders.size(); ++at) {
    const auto& children = folders[at].node->children();
    if (children.size() > kMostChildren) return {};
    std::size_t first = folders.size();
    for (const _NODE& child : children) folders.push_back({&child, child.name().AsStdString(), at});
    std::sort(folders.begin() + static_cast<std::ptrdiff_t>(first), folders.end(),
              [](const Folder& a, const Folder& b) { return a.name < b.name; });
  }
  return folders;
}

}  // namespace

void SortFolders(CTreeCtrlEx2& tree, const std::wstring& root) {
  const _NODE* node = tree.FindNode(root.c_str(), nullptr);
  if (node == nullptr) return;
  std::vector<Folder> folders = InOrder(*node);
  if (folders.empty()) return;
  std::vector<_NODE*> nodes = {tree.AddChildNode(folders[0].name.c_str(), nullptr)};
  for (std::size_t at = 1; at < folders.size(); ++at) {
    nodes.push_back(tree.AddChildNode(folders[at].name.c_str(), nodes[folders[at].parent]));
  }
}

}  // namespace capture
