#pragma once
// Brings the folders of a library into its tree while the window can be used: another thread reads
// them into a model of its own, from which the tree gets them piece by piece.
#include <deque>
#include <memory>
#include <stop_token>
#include <string>

#include "corvane/platform/base_services/folder_listing.h"
#include "corvane/trees/owner_drawn/tree_ctrl_ex2.h"

namespace capture {

// The folders directly below one, in order (sorted_listing), and none below these.
std::unique_ptr<corvane::FolderListing> shallow_listing();

// All folders at and below the path (a full wide path, as the tree names it), in order. Null when
// it was stopped. Any thread.
std::shared_ptr<corvane::TreeModel> read_folders(const std::wstring& path,
                                                 const std::stop_token& stop);

// The way of the nodes of such a model into a tree that shows the same root.
class CFolderTransfer {
 public:
  CFolderTransfer() = default;
  CFolderTransfer(std::shared_ptr<const corvane::TreeModel> source, corvane::CTreeCtrlEx2& target);

  // Adds about so many nodes; false when all are there. No node of the tree may be removed before.
  bool Continue(corvane::CTreeCtrlEx2& target, int nodes);

 private:
  struct Folder {
    const corvane::_NODE* from;
    corvane::_NODE* to;
  };

  std::shared_ptr<const corvane::TreeModel> source_;
  std::deque<Folder> waiting_;
};

}  // namespace capture
