// Making, deleting and describing pens, brushes, fonts and bitmaps.
#include <algorithm>
#include <cstdint>
#include <cstring>
#include <cwchar>

#include "corvane/platform/system/gdi/gdi_impl.h"

namespace corvane_system {

using namespace corvane::system;

namespace {

constexpr int kMaxPenWidth = 32767;

template <class Handle>
Handle add(GdiObject object) {
  Gdi::Impl* tables = current_tables();
  return tables != nullptr ? static_cast<Handle>(tables->add(std::move(object))) : nullptr;
}

// Null with an error when the size is negative or the pixels would not fit into memory.
std::shared_ptr<Surface> make_pixels(int width, int height) {
  if (width < 0 || height < 0) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  if (!Surface::can_hold(width, height)) {
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
  }
  return std::make_shared<Surface>(width, height);
}

bool is_supported(const BITMAPINFO* info, UINT usage) {
  if (info == nullptr || info->bmiHeader.biSize < sizeof(BITMAPINFOHEADER) ||
      usage != DIB_RGB_COLORS) {
    return false;
  }
  const BITMAPINFOHEADER& header = info->bmiHeader;
  return header.biPlanes == 1 && header.biBitCount == 32 && header.biCompression == BI_RGB &&
         header.biWidth > 0 && header.biHeight != 0 && header.biHeight != INT32_MIN;
}

BITMAP describe(const BitmapObject& bitmap) {
  BITMAP out{};
  out.bmWidth = bitmap.surface->width();
  out.bmHeight = bitmap.surface->height();
  out.bmWidthBytes = bitmap.monochrome ? (out.bmWidth + 15) / 16 * 2 : out.bmWidth * 4;
  out.bmPlanes = 1;
  out.bmBitsPixel = bitmap.monochrome ? 1 : 32;
  out.bmBits = bitmap.bits;
  return out;
}

// The size of the description; written to `out` when that is given. 0 when it does not fit.
template <class Description>
int give(const Description& description, int size, void* out) {
  constexpr int kNeeded = static_cast<int>(sizeof(Description));
  if (!out) return kNeeded;
  if (size < kNeeded) return 0;
  std::memcpy(out, &description, sizeof(Description));
  return kNeeded;
}

}  // namespace

HPEN CreatePen(int style, int width, COLORREF color) {
  const int checked_width = std::clamp(width, 0, kMaxPenWidth);
  return add<HPEN>({.kind = PenObject{style, checked_width, color & 0xFFFFFF}});
}

HBRUSH CreateSolidBrush(COLORREF color) {
  return add<HBRUSH>({.kind = BrushObject{color & 0xFFFFFF}});
}

HFONT CreateFontIndirectW(const LOGFONTW* description) {
  if (description == nullptr) return nullptr;
  FontObject font{*description};
  font.description.lfFaceName[LF_FACESIZE - 1] = L'\0';
  return add<HFONT>({.kind = font});
}

HFONT CreateFontW(int height, int width, int escapement, int orientation, int weight, DWORD italic,
                  DWORD underline, DWORD strikeout, DWORD charset, DWORD out_precision,
                  DWORD clip_precision, DWORD quality, DWORD pitch_and_family, LPCWSTR face) {
  LOGFONTW description{height,
                       width,
                       escapement,
                       orientation,
                       weight,
                       static_cast<BYTE>(italic != 0),
                       static_cast<BYTE>(underline != 0),
                       static_cast<BYTE>(strikeout != 0),
                       static_cast<BYTE>(charset),
                       static_cast<BYTE>(out_precision),
                       static_cast<BYTE>(clip_precision),
                       static_cast<BYTE>(quality),
                       static_cast<BYTE>(pitch_and_family),
                       {}};
  if (face != nullptr) std::wcsncpy(description.lfFaceName, face, LF_FACESIZE - 1);
  return CreateFontIndirectW(&description);
}

HBITMAP CreateCompatibleBitmap(HDC dc, int width, int height) {
  const DeviceContext* context = find_dc(dc);
  if (context == nullptr) return nullptr;
  return softly<HBITMAP>(nullptr, [&]() -> HBITMAP {
    const bool nothing = width == 0 || height == 0;
    std::shared_ptr<Surface> pixels = nothing ? make_pixels(1, 1) : make_pixels(width, height);
    if (!pixels) return nullptr;
    const bool monochrome = nothing || context->monochrome;
    return add<HBITMAP>({.kind = BitmapObject{std::move(pixels), monochrome, nullptr}});
  });
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                         DWORD) {
  if (bits != nullptr) *bits = nullptr;
  if (!is_supported(info, usage) || section != nullptr) {
    SetLastError(ERROR_INVALID_PARAMETER);
    return nullptr;
  }
  return softly<HBITMAP>(nullptr, [&]() -> HBITMAP {
    const LONG height = info->bmiHeader.biHeight;
    std::shared_ptr<Surface> pixels = make_pixels(info->bmiHeader.biWidth, std::abs(height));
    if (!pixels) return nullptr;
    void* first =
        pixels->pin(height > 0 ? Surface::RowOrder::bottom_up : Surface::RowOrder::top_down);
    const HBITMAP bitmap = add<HBITMAP>({.kind = BitmapObject{std::move(pixels), false, first}});
    if (bits != nullptr && bitmap != nullptr) *bits = first;
    return bitmap;
  });
}

BOOL DestroyIcon(HICON icon) {
  Gdi::Impl* tables = current_tables();
  if (tables == nullptr || tables->get<IconObject>(icon) == nullptr) return FALSE;
  tables->objects.remove(icon);
  return TRUE;
}

BOOL DeleteObject(HGDIOBJ object) {
  Gdi::Impl* tables = current_tables();
  GdiObject* found = tables != nullptr ? tables->objects.find(object) : nullptr;
  if (found == nullptr || std::holds_alternative<IconObject>(found->kind)) return FALSE;
  if (found->stock) return TRUE;
  if (found->selections > 0) {
    found->doomed = true;
    return FALSE;
  }
  tables->objects.remove(object);
  return TRUE;
}

int GetObjectW(HANDLE object, int size, LPVOID out) {
  Gdi::Impl* tables = current_tables();
  if (tables == nullptr) return 0;
  if (const BitmapObject* bitmap = tables->get<BitmapObject>(object)) {
    return give(describe(*bitmap), size, out);
  }
  if (const FontObject* font = tables->get<FontObject>(object)) {
    return give(font->description, size, out);
  }
  SetLastError(ERROR_INVALID_HANDLE);
  return 0;
}

}  // namespace corvane_system
