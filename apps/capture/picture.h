#pragma once
// The picture that the program shows.
#include <memory>
#include <string>
#include <vector>

#include "corvane/platform/platform.h"

namespace capture {

class CPicture {
 public:
  // `path` is a byte path of the file system. Null when it is no readable picture.
  static std::unique_ptr<CPicture> Open(const std::string& path);

  const std::string& path() const { return path_; }
  std::string name() const;
  Gdiplus::Image* image() const { return image_.get(); }
  SIZE size() const;  // pixels

  // The part (pixels of the picture) as a PNG file; empty when memory is short. Any thread.
  std::vector<std::uint8_t> EncodePart(const RECT& part) const;

 private:
  CPicture(std::string path, std::unique_ptr<Gdiplus::Image> image)
      : path_(std::move(path)), image_(std::move(image)) {}

  std::string path_;
  std::unique_ptr<Gdiplus::Image> image_;
};

}  // namespace capture
