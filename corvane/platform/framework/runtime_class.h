#pragma once
// The record of a class at run time: one constant per class, named class + class name.

namespace corvane {

struct CRuntimeClass {
  const char* m_lpszClassName;
  const CRuntimeClass* m_pBaseClass;  // null: the root

  constexpr bool IsDerivedFrom(const CRuntimeClass* wanted) const {
    for (const CRuntimeClass* each = this; each != nullptr; each = each->m_pBaseClass) {
      if (each == wanted) return true;
    }
    return false;
  }
};

}  // namespace corvane
