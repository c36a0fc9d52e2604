#include "corvane/platform/controls/image_file.h"

#include "corvane/platform/base_services/paths.h"

namespace corvane {

int load_skin_image(CGdiImage& image, const CString& name) {
  image.Release();
  return name.IsEmpty() ? 0 : image.Load(GetImagePath() + L"\\" + name);
}

}  // namespace corvane
