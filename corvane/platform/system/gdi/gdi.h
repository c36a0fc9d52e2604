#pragma once
// The drawing half of one window system: its pens, brushes, fonts, bitmaps, cursors' pictures and
// device contexts, by handle. The platform-named drawing functions act on the calling thread's
// current one. Knows nothing of windows.
#include <memory>

#include "corvane/platform/system/gdi/gdi_api.h"
#include "corvane/platform/system/gdi/region.h"
#include "corvane/platform/system/gdi/surface.h"

namespace corvane::system {

class Gdi {
 public:
  Gdi();
  ~Gdi();
  Gdi(const Gdi&) = delete;
  Gdi& operator=(const Gdi&) = delete;

  // The calling thread's current one, or null. set_current returns the previous one.
  static Gdi* current();
  static Gdi* set_current(Gdi* gdi);

  // A device context on a surface: logical (0, 0) is surface pixel `origin`, drawing is limited to
  // `clip` (surface coordinates). The surface is kept alive until the context is closed. Drawing
  // marks the surface's damage.
  HDC open_dc(std::shared_ptr<Surface> surface, POINT origin, const Region& clip);
  // Closes a context made by open_dc; false when the handle is none.
  bool close_dc(HDC dc);

  // The surface behind a device context and the surface position of its logical (0, 0);
  // null for a stale handle.
  std::shared_ptr<Surface> dc_surface(HDC dc, POINT* origin);

  // Fills with a brush of any handle kind the platform accepts as a class background
  // (HBRUSH or system colour index + 1). False for a null or stale brush.
  bool fill(Surface& surface, const Region& region, HBRUSH brush);

  // An icon's pixels, null for a stale handle.
  std::shared_ptr<const Surface> icon(HICON icon);

  // Number of live objects and contexts, without the stock objects (for leak tests).
  int live_objects() const;

  struct Impl;
  Impl& impl() { return *impl_; }

 private:
  std::unique_ptr<Impl> impl_;
};

}  // namespace corvane::system
