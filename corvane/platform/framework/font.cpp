#include "corvane/platform/framework/font.h"

#include "corvane/platform/framework/platform_session.h"

namespace corvane {

bool CFont::CreateFontIndirectW(const LOGFONTW* description) {
  if (description == nullptr) return false;
  open_platform_session();
  DeleteObject();
  return Attach(::CreateFontIndirectW(description));
}

bool CFont::GetLogFont(LOGFONTW* description) const {
  return description != nullptr && m_hObject != nullptr &&
         ::GetObjectW(m_hObject, sizeof *description, description) != 0;
}

}  // namespace corvane
