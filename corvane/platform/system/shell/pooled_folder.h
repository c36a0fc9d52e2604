#pragma once
// One folder of a FolderPool, which alone looks into it.
#include <sys/stat.h>

#include <list>
#include <memory>
#include <string>

#include "corvane/platform/system/shell/file_descriptor.h"

namespace corvane::system {

class PooledFolder {
 public:
  PooledFolder(std::shared_ptr<PooledFolder> parent, std::string name, const struct stat& status);
  PooledFolder(const PooledFolder&) = delete;
  PooledFolder& operator=(const PooledFolder&) = delete;
  ~PooledFolder();

  dev_t volume() const { return volume_; }
  ino_t number() const { return number_; }
  bool is(const struct stat& status) const {
    return status.st_dev == volume_ && status.st_ino == number_;
  }

 private:
  friend class FolderPool;
  using Places = std::list<PooledFolder*>;

  bool is_root() const { return parent_ == nullptr; }
  void give_up_descriptor();
  void move_to(Places& places);  // to its front, from where it stands; nothing for a root

  std::shared_ptr<PooledFolder> parent_;
  std::string name_;  // in the parent, bytes
  dev_t volume_;
  ino_t number_;
  FileDescriptor descriptor_;
  Places* places_ = nullptr;  // the pool's list that the folder stands in
  Places::iterator place_;
  int listings_ = 0;  // under way
  bool listed_ = false;
};

}  // namespace corvane::system
