// Any bytes as a picture file and as a cursor file. What was decoded is drawn, turned and scaled.
#include <memory>

#include "corvane/platform/platform.h"
#include "corvane/platform/system/gdi/gdi.h"
#include "corvane/platform/system/gdi/surface.h"
#include "fuzz/input_file.h"
#include "fuzz/require.h"
#include "tests/support/own_system.h"

namespace {

constexpr int kSide = 24;  // of the surface that is drawn on, pixels
// A few bytes may honestly decode to the largest picture allowed; drawing that with every check on
// takes long and tells nothing new.
constexpr UINT kLargestDrawn = 4000000;  // pixels

void draw(HDC dc, Gdiplus::Image& image) {
  Gdiplus::Graphics graphics(dc);
  graphics.DrawImage(&image, Gdiplus::Rect(1, 2, kSide - 4, kSide - 3));
  graphics.TranslateTransform(kSide / 2.0f, kSide / 2.0f);
  graphics.RotateTransform(33);
  graphics.DrawImage(&image, Gdiplus::Rect(-5, -5, 10, 10), 0, 0,
                     static_cast<INT>(image.GetWidth()), static_cast<INT>(image.GetHeight()),
                     Gdiplus::UnitPixel);
}

void read_picture(const std::wstring& path, corvane::system::Gdi& gdi) {
  const auto before = gdi.live_objects();
  {
    Gdiplus::Image image(path.c_str());
    require((image.GetLastStatus() == Gdiplus::Ok) == (image.GetWidth() > 0),
            "a picture without a size has failed, and only that");
    auto surface = std::make_shared<corvane::system::Surface>(kSide, kSide);
    const HDC dc = gdi.open_dc(surface, {0, 0}, corvane::system::Region(surface->rect()));
    if (image.GetWidth() * image.GetHeight() <= kLargestDrawn) draw(dc, image);
    const std::unique_ptr<Gdiplus::Image> copy(image.Clone());
    require(!copy || copy->GetWidth() == image.GetWidth(), "a copy has the size of the picture");
    gdi.close_dc(dc);
  }
  require(gdi.live_objects() == before, "reading a picture leaves no drawing object behind");
}

void read_cursor(const std::wstring& path) {
  const HCURSOR cursor = LoadCursorFromFileW(path.c_str());
  if (!cursor) return;
  SetCursor(cursor);
  SetCursor(nullptr);
  require(DestroyCursor(cursor), "a loaded cursor can be destroyed");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  corvane::test::Desktop desktop({kSide, kSide});
  const InputFile file(data, size);
  read_picture(file.wide_path(), desktop.own().windows.gdi());
  read_cursor(file.wide_path());
  return 0;
}
