#pragma once
// The tree shows folders in the order in which the file system lists them; people look for them by
// name.
#include "corvane/trees/tree_ctrl_ex2.h"

namespace capture {

// Puts the children of every node in the order of their names. Collapses all but the root. Nodes
// are made anew. A tree with a folder of very many children stays as it is.
void SortFolders(corvane::CTreeCtrlEx2& tree, const std::wstring& root);

}  // namespace capture
