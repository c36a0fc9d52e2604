#pragma once
// Pictures -> files. One implementation for Windows, one for all others.
#include "corvane/platform/platform.h"

namespace corvane {

enum class ImageFormat { png, jpeg };

// Writes a part of the picture, in its pixels and not empty, as a new file or over an old one.
// False when it cannot be written; then what stood there may be gone.
bool save_image_part(Gdiplus::Image& image, const RECT& part, const wchar_t* path,
                     ImageFormat format);

}  // namespace corvane
