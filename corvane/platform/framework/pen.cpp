#include "corvane/platform/framework/pen.h"

namespace corvane {

bool CPen::CreatePen(int style, int width, COLORREF color) {
  DeleteObject();
  return Attach(::CreatePen(style, width, color));
}

}  // namespace corvane
