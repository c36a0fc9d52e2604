#pragma once
// A file that comes into being whole or not at all. Byte paths of the file system.
#include <cstddef>
#include <string>

namespace corvane::system {

// Bytes on their way to a name. Until they have one nothing stands in the folder, or, where the
// file system knows no files without a name, a hidden one (".corvane-" and a number) that the
// destructor removes.
class NewFile {
 public:
  enum class Until { unnamed, hidden };  // hidden: also where it need not be
  explicit NewFile(std::string folder, Until until_placed = Until::unnamed);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  // Writes the bytes and forces them to the disk; once. False: errno says why.
  bool write(const void* bytes, std::size_t size);

  enum class Placed { yes, name_taken, failed };
  // Gives what was written a name in the folder, never that of something else. May be called again
  // with another name after a failure; errno says why it failed (ENAMETOOLONG among others).
  Placed place(const std::string& name);
  // The same, in place of what has the name until then, in one step; once. False: nothing has
  // changed, and errno says why.
  bool replace(const std::string& name);

 private:
  bool open_unnamed();
  bool open_hidden();
  std::string new_hidden_path() const;
  bool link_as(const std::string& path) const;

  std::string folder_;
  Until until_placed_;
  std::string hidden_;  // path; empty: the file has no name
  int file_ = -1;
};

}  // namespace corvane::system
