#include "corvane/platform/system/shell/pooled_folder.h"

#include <utility>

namespace corvane::system {

PooledFolder::PooledFolder(std::shared_ptr<PooledFolder> parent, std::string name,
                           const struct stat& status)
    : parent_(std::move(parent)),
      name_(std::move(name)),
      volume_(status.st_dev),
      number_(status.st_ino) {}

// A chain of folders goes one by one; each destroying its parent would nest as deep as the chain.
PooledFolder::~PooledFolder() {
  give_up_descriptor();
  std::shared_ptr<PooledFolder> next = std::move(parent_);
  while (next && next.use_count() == 1) {
    std::shared_ptr<PooledFolder> above = std::move(next->parent_);
    next = std::move(above);
  }
}

void PooledFolder::give_up_descriptor() {
  if (places_ != nullptr) places_->erase(place_);
  places_ = nullptr;
  descriptor_.reset();
}

void PooledFolder::move_to(Places& places) {
  if (places_ == nullptr) return;
  places.splice(places.begin(), *places_, place_);
  places_ = &places;
}

}  // namespace corvane::system
