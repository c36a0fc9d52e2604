#pragma once
// The entries of a folder, block by block as the system hands them over.
#include <dirent.h>

#include <array>
#include <cstddef>

namespace corvane::system {

class EntryReader {
 public:
  // Forgets what was read, for another folder or another listing.
  void restart();
  // The next entry of the folder behind the descriptor, "." and ".." included, valid until the next
  // call. Null at the end, and when reading fails: then error() is the errno.
  const dirent64* next(int folder);
  int error() const { return error_; }

 private:
  bool read_block(int folder);

  static constexpr std::size_t kBlock = 32768;
  alignas(dirent64) std::array<char, kBlock> block_;
  std::size_t filled_ = 0;
  std::size_t at_ = 0;
  int error_ = 0;
};

enum class EntryKind { folder, link_to_folder, other };
EntryKind kind_of(int folder, const dirent64& entry);
bool is_dot_or_dot_dot(const char* name);

}  // namespace corvane::system
