#pragma once
// A picture, decoded from a file; parts of it can be saved.
#include <memory>

#include "corvane/platform/platform.h"

namespace corvane {

// Copies share the decoded picture; it is freed with the last of them.
class CGdiImage {
 public:
  // Replaces the picture by that of a file (wide path). 1, or 0 when there is no such file or it is
  // no picture; then the object is empty.
  int Load(const wchar_t* path);

  // Writes a part (pixels of the picture, cut to it) as PNG or, when the wide path ends with ".jpg"
  // or ".jpeg", as JPEG; the ending is compared without regard to case, others are refused. A file
  // of that name is replaced when all of the new one is on the disk. In a JPEG what was clear is
  // white. 1, or 0 when the part is empty or cannot be written; then no file has changed.
  int Save(const wchar_t* path, const RECT& part) const;

  // The picture, or null; valid until this object changes, never freed by the caller.
  Gdiplus::Image* GetImage() const { return image_.get(); }
  int GetWidth() const;   // pixels; 0 when empty
  int GetHeight() const;  // pixels; 0 when empty

  void Release() { image_.reset(); }
  void DelImage() { Release(); }

 private:
  std::shared_ptr<Gdiplus::Image> image_;
};

}  // namespace corvane
