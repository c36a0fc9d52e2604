#pragma once
// Picture files -> pixels.
#include <memory>
#include <optional>
#include <string>

#include "corvane/platform/system/gdi/surface.h"

struct _GdkPixbuf;

namespace corvane::system {

// The pixels of a file as they stand in it, not premultiplied; owned by the decoding library.
using SourcePixels = std::shared_ptr<_GdkPixbuf>;

struct DecodedImage {
  std::shared_ptr<const Surface> pixels;  // premultiplied, all rows stored
  bool opaque = false;                    // every alpha byte is 255
  SourcePixels source;                    // of a file that is not opaque
};

// Pictures beyond these are refused before their pixels are allocated. While it is decoded a
// picture takes 7 bytes a pixel, 8 when it is not opaque; later 4 or 8, and 4 / 3 more for its
// halves.
constexpr int kMaxImageSide = 32767;
constexpr long kMaxImagePixels = 256'000'000;

// Decodes a file by its byte path, turned upright by the orientation it carries; of an animation
// the first frame. Nothing for a file that is missing, no regular file, unknown, damaged, cut off
// or too large.
std::optional<DecodedImage> decode_image_file(const std::string& path);

// Copies pixels that are not premultiplied, 0xAARRGGBB in rows `stride` bytes apart.
DecodedImage premultiplied_copy(const unsigned char* first_row, int width, int height,
                                std::ptrdiff_t stride);

}  // namespace corvane::system
