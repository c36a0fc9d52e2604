#include "corvane/platform/framework/pen.h"

#include "corvane/platform/framework/platform_session.h"

namespace corvane {

bool CPen::CreatePen(int style, int width, COLORREF color) {
  OpenPlatformSession();
  DeleteObject();
  return Attach(::CreatePen(style, width, color));
}

}  // namespace corvane
