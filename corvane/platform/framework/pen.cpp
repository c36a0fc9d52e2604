#include "corvane/platform/framework/pen.h"

#include "corvane/platform/framework/platform_session.h"

namespace corvane {

bool CPen::CreatePen(int style, int width, COLORREF color) {
  open_platform_session();
  DeleteObject();
  return Attach(::CreatePen(style, width, color));
}

}  // namespace corvane
