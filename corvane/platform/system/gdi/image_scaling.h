#pragma once
// Smaller copies of pictures.
#include <list>
#include <memory>
#include <mutex>
#include <vector>

#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

// Shrinks a part of a picture by averaging areas, so that every source pixel counts by what it
// covers. 0 < width <= the part's width, the same for heights; the part lies inside the picture.
std::shared_ptr<Surface> shrunk_by_area(const Surface& picture, const RECT& part, int width,
                                        int height);

// One that cannot be averaged within a frame: its halves are made with it, and shrunk copies are
// made from them.
bool is_large_picture(const Surface& picture);

// What drawing a picture keeps for the next time. Thread-safe; belongs to one picture.
class ImageCache {
 public:
  explicit ImageCache(bool opaque) : opaque_(opaque) {}

  bool opaque() const { return opaque_; }  // every alpha byte of the picture is 255
  // As shrunk_by_area; the copies made last are kept.
  std::shared_ptr<const Surface> shrunk(const std::shared_ptr<const Surface>& picture,
                                        const RECT& part, int width, int height);
  // The whole picture, halved as often as its sides stay at least that long. All halves are kept: a
  // third of the picture's size.
  std::shared_ptr<const Surface> halved(const std::shared_ptr<const Surface>& picture, int width,
                                        int height);

 private:
  struct Copy {
    RECT part;
    std::shared_ptr<const Surface> pixels;
  };
  std::shared_ptr<const Surface> smallest_half(const std::shared_ptr<const Surface>& picture,
                                               int width, int height);
  void drop_oldest();

  bool opaque_;
  std::mutex lock_;
  std::list<Copy> copies_;  // used last first
  std::vector<std::shared_ptr<const Surface>> halves_;
};

}  // namespace corvane::system
