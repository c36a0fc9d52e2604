#pragma once
// Brings the folders of a disk into the tree's model.
#include "corvane/platform/base_services/folder_listing.h"
#include "corvane/trees/model/tree_model.h"

namespace corvane {

// Adds the folder `path` and all folders below it: as the root (null parent: the tree starts over
// and the base path is what stands before the last '\'), or as a child of `parent`. Nodes that are
// there already are kept with their flags and children; none is removed. Names that begin with a
// dot are left out; siblings stay in the order of the listing.
//
// True: the folder could be listed. Otherwise its node is in the tree without children of the
// disk's. Below it, folders that cannot be listed, that vanish meanwhile, or that are links back to
// a folder above themselves stay without children; so does each link below another link to a folder
// that a hundred such links led to before. The cost is linear in the number of folders; neither the
// depth nor the length of a path is limited.
bool load_folders(TreeModel& model, FolderListing& listing, const wchar_t* path, _NODE* parent);

}  // namespace corvane
