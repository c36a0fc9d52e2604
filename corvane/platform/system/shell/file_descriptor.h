#pragma once
// Owns an open file or folder of the system and closes it.
#include <unistd.h>

#include <utility>

namespace corvane::system {

class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int number) : number_(number) {}
  FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~FileDescriptor() { reset(); }

  void reset() {
    if (number_ >= 0) close(number_);
    number_ = -1;
  }
  int number() const { return number_; }  // negative: none
  explicit operator bool() const { return number_ >= 0; }

 private:
  int number_ = -1;
};

}  // namespace corvane::system
