#include "corvane/platform/base_services/paths.h"

#include "corvane/platform/base_services/installation.h"

namespace corvane {

CString GetConfigPath(const CString& file_name) {
  return Installation::find().config_folder() + L"\\" + file_name;
}

CString GetImagePath() { return Installation::find().image_folder(); }

}  // namespace corvane
