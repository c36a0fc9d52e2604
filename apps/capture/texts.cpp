#include "apps/capture/texts.h"

#include "corvane/platform/system/shell/wide_path.h"

namespace capture {

corvane::CString wide(const std::string& utf8) {
  return corvane::CString(corvane::system::wide_name(utf8).c_str());
}

}  // namespace capture
