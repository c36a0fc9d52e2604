#pragma once
// A drawing object's handle with an owner: the destructor deletes it. An object selected into a
// device context must be deselected before it is deleted.
#include "corvane/platform/platform.h"

namespace corvane {

class CGdiObject {
 public:
  CGdiObject() = default;
  ~CGdiObject() { DeleteObject(); }
  CGdiObject(const CGdiObject&) = delete;
  CGdiObject& operator=(const CGdiObject&) = delete;

  HGDIOBJ GetSafeHandle() const { return m_hObject; }
  // Takes over the handle; false, and nothing changes, when there is one already or it is null.
  bool Attach(HGDIOBJ object);
  HGDIOBJ Detach();  // the caller owns the result
  bool DeleteObject();

  HGDIOBJ m_hObject = nullptr;
};

}  // namespace corvane
