#pragma once
// The root of classes that know their own class at run time.
#include "corvane/platform/framework/runtime_class.h"

namespace corvane {

class CObject {
 public:
  virtual ~CObject() = default;
  CObject(const CObject&) = delete;
  CObject& operator=(const CObject&) = delete;

  static const CRuntimeClass classCObject;
  virtual const CRuntimeClass* GetRuntimeClass() const { return &classCObject; }
  // True for the object's own class and every base of it.
  bool IsKindOf(const CRuntimeClass* wanted) const {
    return GetRuntimeClass()->IsDerivedFrom(wanted);
  }

 protected:
  CObject() = default;
};

inline constexpr CRuntimeClass CObject::classCObject{"CObject", nullptr};

}  // namespace corvane
