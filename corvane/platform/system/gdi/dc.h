#pragma once
// The record behind a device context handle. "Surface coordinates" are pixels of the surface that
// it draws on; logical coordinates are relative to origin().
#include <memory>
#include <optional>
#include <vector>

#include "corvane/platform/system/gdi/gdi_api.h"
#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

// What SaveDC keeps.
struct DcState {
  HPEN pen = nullptr;
  HBRUSH brush = nullptr;
  HFONT font = nullptr;
  COLORREF text_color = 0x000000;
  COLORREF back_color = 0xFFFFFF;
  int back_mode = OPAQUE;
  int stretch_mode = BLACKONWHITE;
  POINT position{};                 // current position, logical
  POINT viewport{};                 // added to the origin
  std::optional<Region> user_clip;  // surface coordinates
};

class DeviceContext {
 public:
  std::shared_ptr<Surface> surface;
  POINT base{};              // surface position of the context's own (0, 0)
  Region system_clip;        // what the context was opened for; not used in memory contexts
  bool memory = false;       // draws on `bitmap`
  bool monochrome = false;   // colours become black and white
  HBITMAP bitmap = nullptr;  // in memory contexts only
  DcState state;
  std::vector<DcState> saved;

  // Surface position of logical (0, 0).
  POINT origin() const;
  RECT to_surface(const RECT& logical) const;
  POINT to_surface(int x, int y) const;
  // Where drawing is allowed, surface coordinates.
  Region clip() const;
  // The colour as this context writes it.
  Pixel pixel(COLORREF color) const;

  // Fills the part inside the clip and marks it. Surface coordinates.
  void fill(const RECT& area, Pixel color);
};

// Fills many rectangles of one drawing operation, inside the context's clip, and marks the smallest
// rectangle around them at its end. Surface coordinates.
class Painter {
 public:
  explicit Painter(DeviceContext& dc);
  ~Painter();
  Painter(const Painter&) = delete;
  Painter& operator=(const Painter&) = delete;

  RECT reach() const { return clip_.bounds(); }  // nothing is drawn outside
  void fill(const RECT& area, Pixel color);

 private:
  Surface& surface_;
  Region clip_;
  std::vector<RECT> pieces_;
  RECT touched_{0, 0, 0, 0};
};

// Overflow-safe sum and difference, far outside any surface at worst.
LONG offset_by(LONG value, LONG delta);
LONG distance(LONG from, LONG to);

// Left < right and top < bottom, with the side given first inside and the other one outside, also
// for an inverted rectangle: (30, 10) becomes (11, 31). Nothing when a side is 0.
std::optional<RECT> ordered(const RECT& rect);

}  // namespace corvane::system
