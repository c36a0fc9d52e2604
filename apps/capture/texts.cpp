#include "apps/capture/texts.h"

#include <algorithm>
#include <cwchar>

#include "corvane/platform/system/shell/wide_path.h"

namespace capture {

corvane::CString wide(const std::string& utf8) {
  return corvane::CString(corvane::system::wide_name(utf8).c_str());
}

LOGFONTW ui_font(int height, int weight) {
  LOGFONTW font{};
  font.lfHeight = height;
  font.lfWeight = weight;
  font.lfCharSet = DEFAULT_CHARSET;
  font.lfQuality = CLEARTYPE_NATURAL_QUALITY;
  constexpr wchar_t kFace[] = L"黑体";
  std::copy(std::begin(kFace), std::end(kFace), font.lfFaceName);
  return font;
}

}  // namespace capture
