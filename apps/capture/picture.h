#pragma once
// The picture that the program shows, and its neighbours in the same folder.
#include <memory>
#include <optional>
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

  // The picture `step` places further in the folder's sorted pictures, going round; empty when
  // there is no other.
  std::string Neighbour(int step) const;
  // The part as a PNG file; pixels of the picture.
  std::vector<std::uint8_t> EncodePart(const RECT& part) const;

 private:
  CPicture(std::string path, std::unique_ptr<Gdiplus::Image> image)
      : path_(std::move(path)), image_(std::move(image)) {}

  std::string path_;
  std::unique_ptr<Gdiplus::Image> image_;
};

// Whether the name ends like a picture's (.jpg, .jpeg, .png, .bmp, .gif in any case).
bool HasPictureEnding(const std::string& name);

struct SavedPart {
  std::string path;  // empty when it could not be saved
  int error = 0;     // then why, as errno tells it
};
// Saves bytes beside the picture as NAME_1.png, NAME_2.png ..., never over an existing file.
SavedPart SaveBeside(const std::string& picture_path, const std::vector<std::uint8_t>& png);

}  // namespace capture
