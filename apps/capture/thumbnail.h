#pragma once
// A small copy of a picture file.
#include <memory>
#include <stop_token>
#include <string>

#include "corvane/platform/platform.h"

namespace capture {

using Thumbnail = std::shared_ptr<Gdiplus::Image>;  // null: the file is no readable picture

// Decodes a picture (wide path), as large as fits into the box, upright. Null also soon after a
// stop was requested. May be called from any thread.
Thumbnail decode_thumbnail(const std::wstring& path, SIZE box, const std::stop_token& stop);

}  // namespace capture
