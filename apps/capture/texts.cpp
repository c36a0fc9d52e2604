#include "apps/capture/texts.h"

#include "corvane/platform/base_services/utf8.h"

namespace capture {

corvane::CString wide(const std::string& utf8) {
  if (const auto text = corvane::wide_from_utf8(utf8)) return text->c_str();
  std::wstring bytes;
  for (const char byte : utf8) bytes += static_cast<wchar_t>(static_cast<unsigned char>(byte));
  return bytes.c_str();
}

}  // namespace capture
