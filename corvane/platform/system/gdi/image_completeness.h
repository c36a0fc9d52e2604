#pragma once
// Decoders show what there is of a cut-off file; a picture that lost its end is refused instead.
#include <cstdio>

namespace corvane::system {

// Reads the file from its start. True when a JPEG or PNG file runs to its end marker and a BMP file
// to its last pixel; true for other formats, whose decoders notice the loss themselves.
bool is_complete_image(std::FILE* file);

}  // namespace corvane::system
