#pragma once
// Pictures -> files. One implementation for Windows, one for all others.
#include <cstdint>
#include <vector>

#include "corvane/platform/platform.h"

namespace corvane {

enum class ImageFormat { png, jpeg };

// Writes a part of the picture, in its pixels and not empty, as a new file or in place of an old
// one, which goes when all of the new one is on the disk. False, and nothing has changed, when it
// cannot be written.
bool save_image_part(Gdiplus::Image& image, const RECT& part, const wchar_t* path,
                     ImageFormat format);

// A part of the picture, in its pixels, as the bytes of a PNG file; empty when the part is or when
// memory is short. Any thread.
std::vector<std::uint8_t> encode_image_part(Gdiplus::Image& image, const RECT& part);

}  // namespace corvane
