#pragma once
// Picture files -> pixels.
#include <memory>
#include <optional>
#include <string>

#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

struct DecodedImage {
  std::shared_ptr<const Surface> pixels;  // premultiplied, all rows stored
  bool opaque = false;                    // every alpha byte is 255
};

// Pictures beyond these are refused before their pixels are allocated.
constexpr int kMaxImageSide = 32767;
constexpr long kMaxImagePixels = 100'000'000;

// Decodes a file by its byte path, turned upright by the orientation it carries; of an animation
// the first frame. Nothing for a file that is missing, no regular file, unknown, damaged, cut off
// or too large.
std::optional<DecodedImage> decode_image_file(const std::string& path);

// Copies pixels that are not premultiplied, 0xAARRGGBB in rows `stride` bytes apart.
DecodedImage premultiplied_copy(const unsigned char* first_row, int width, int height,
                                std::ptrdiff_t stride);

}  // namespace corvane::system
