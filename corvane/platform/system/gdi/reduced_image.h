#pragma once
// Small copies of picture files, for lists of pictures.
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

struct ReducedImage {
  int width = 0;  // pixels
  int height = 0;
  std::vector<Pixel> pixels;  // 0xAARRGGBB, not premultiplied, no gaps between the rows
};

// Decodes a file by its byte path, upright and as large as fits into the box with its proportions
// kept; a smaller picture at its own size. Takes far less time and memory than decoding it whole
// where the format allows that (JPEG). Nothing for what decode_image_file refuses, for an empty
// box, when memory is short, and soon after a stop was requested. May be called from any thread.
std::optional<ReducedImage> decode_reduced_image(const std::string& path, SIZE box,
                                                 const std::stop_token& stop);

}  // namespace corvane::system
