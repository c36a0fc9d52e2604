#pragma once
// The drawing objects behind pen, brush, font and bitmap handles.
#include <memory>
#include <optional>
#include <variant>

#include "corvane/platform/system/gdi/gdi_api.h"
#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

struct PenObject {
  int style = PS_SOLID;
  int width = 1;
  COLORREF color = 0;
};
struct BrushObject {
  std::optional<COLORREF> color;  // nothing: the null brush
};
struct FontObject {
  LOGFONTW description{};
};
struct BitmapObject {
  std::shared_ptr<Surface> surface;
  bool monochrome = false;  // pixels are 0x000000 and 0xFFFFFF only
  void* bits = nullptr;     // the pixels' lowest address, when they were handed out
};
struct IconObject {
  std::shared_ptr<const Surface> pixels;
};

struct GdiObject {
  std::variant<PenObject, BrushObject, FontObject, BitmapObject, IconObject> kind;
  int selections = 0;   // device contexts that have it selected
  bool stock = false;   // never deleted; a stock bitmap fits into many contexts
  bool doomed = false;  // deletion was asked for while it was selected
};

}  // namespace corvane::system
