#pragma once
// Pictures of a skin's image folder.
#include "corvane/platform/framework/c_string.h"
#include "corvane/platform/images/gdi_image.h"

namespace corvane {

// Loads the named picture; an empty name, or one without a picture, empties the object. 1 or 0.
int load_skin_image(CGdiImage& image, const CString& name);

}  // namespace corvane
