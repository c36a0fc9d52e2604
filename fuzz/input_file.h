#pragma once
// The fuzzer's bytes as a file in memory, for readers that take a path.
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

class InputFile {
 public:
  InputFile(const std::uint8_t* data, std::size_t size) : descriptor_(memfd_create("input", 0)) {
    while (size > 0) {
      const ssize_t written = write(descriptor_, data, size);
      if (written <= 0) std::abort();
      data += written;
      size -= static_cast<std::size_t>(written);
    }
  }
  ~InputFile() { close(descriptor_); }
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }
  // The same as the library's wide paths name it.
  std::wstring wide_path() const { return L"Z:\\proc\\self\\fd\\" + std::to_wstring(descriptor_); }

 private:
  int descriptor_;
};
