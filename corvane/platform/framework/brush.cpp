#include "corvane/platform/framework/brush.h"

namespace corvane {

bool CBrush::CreateSolidBrush(COLORREF color) {
  DeleteObject();
  return Attach(::CreateSolidBrush(color));
}

}  // namespace corvane
