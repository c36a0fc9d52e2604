#include "corvane/platform/framework/brush.h"

#include "corvane/platform/framework/platform_session.h"

namespace corvane {

bool CBrush::CreateSolidBrush(COLORREF color) {
  open_platform_session();
  DeleteObject();
  return Attach(::CreateSolidBrush(color));
}

}  // namespace corvane
