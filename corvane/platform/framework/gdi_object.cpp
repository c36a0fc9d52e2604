#include "corvane/platform/framework/gdi_object.h"

#include <utility>

namespace corvane {

bool CGdiObject::Attach(HGDIOBJ object) {
  if (m_hObject != nullptr || object == nullptr) return false;
  m_hObject = object;
  return true;
}

HGDIOBJ CGdiObject::Detach() { return std::exchange(m_hObject, nullptr); }

bool CGdiObject::DeleteObject() {
  const HGDIOBJ object = Detach();
  return object != nullptr && (::DeleteObject(object) != 0);
}

}  // namespace corvane
