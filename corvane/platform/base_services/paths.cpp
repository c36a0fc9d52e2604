#include "corvane/platform/base_services/paths.h"

#include "corvane/platform/base_services/installation.h"

namespace corvane {

CString GetConfigPath(const CString& file_name) {
  const CString folder = Installation::find().config_folder();
  // Without a skin the name must not become one in the root of the file system.
  return folder.IsEmpty() ? CString() : folder + L"\\" + file_name;
}

CString GetImagePath() { return Installation::find().image_folder(); }

}  // namespace corvane
