#pragma once
// The subset of GDI+ that the library passes around and draws with. Positive angles turn
// clockwise; transforms are prepended. Colours are 0xAARRGGBB, not premultiplied.
#include <memory>

#include "corvane/platform/system/gdi/gdi_api.h"
#include "corvane/platform/system/types.h"

struct _GdkPixbuf;

namespace corvane::system {
class Surface;
class ImageCache;
struct DecodedImage;
}  // namespace corvane::system

namespace corvane_system::Gdiplus {

using REAL = float;
using ARGB = DWORD;
enum Status {
  Ok = 0,
  GenericError = 1,
  InvalidParameter = 2,
  OutOfMemory = 3,
  InsufficientBuffer = 5,
  FileNotFound = 10,
  UnknownImageFormat = 13,
  GdiplusNotInitialized = 18
};
enum Unit { UnitWorld, UnitDisplay, UnitPixel, UnitPoint };
enum InterpolationMode {
  InterpolationModeDefault = 0,
  InterpolationModeLowQuality = 1,
  InterpolationModeHighQuality = 2,
  InterpolationModeBilinear = 3,
  InterpolationModeBicubic = 4,
  InterpolationModeNearestNeighbor = 5,
  InterpolationModeHighQualityBilinear = 6,
  InterpolationModeHighQualityBicubic = 7
};
enum PixelOffsetMode {
  PixelOffsetModeDefault = 0,
  PixelOffsetModeNone = 3,
  PixelOffsetModeHalf = 4
};
enum SmoothingMode { SmoothingModeDefault = 0, SmoothingModeNone = 3, SmoothingModeAntiAlias = 4 };
enum TextRenderingHint { TextRenderingHintSystemDefault = 0, TextRenderingHintAntiAlias = 4 };
enum StringAlignment { StringAlignmentNear = 0, StringAlignmentCenter = 1, StringAlignmentFar = 2 };
enum StringFormatFlags { StringFormatFlagsNoWrap = 0x1000, StringFormatFlagsNoClip = 0x4000 };

struct Rect {
  INT X = 0, Y = 0, Width = 0, Height = 0;
  Rect() = default;
  Rect(INT x, INT y, INT width, INT height) : X(x), Y(y), Width(width), Height(height) {}
};
struct RectF {
  REAL X = 0, Y = 0, Width = 0, Height = 0;
  RectF() = default;
  RectF(REAL x, REAL y, REAL width, REAL height) : X(x), Y(y), Width(width), Height(height) {}
};
class Color {
 public:
  Color() = default;
  explicit Color(ARGB argb) : argb_(argb) {}
  Color(BYTE r, BYTE g, BYTE b) : Color(255, r, g, b) {}
  Color(BYTE a, BYTE r, BYTE g, BYTE b)
      : argb_((static_cast<ARGB>(a) << 24) | (static_cast<ARGB>(r) << 16) |
              (static_cast<ARGB>(g) << 8) | b) {}
  ARGB GetValue() const { return argb_; }

 private:
  ARGB argb_ = 0xFF000000;
};

// A decoded picture (JPEG, PNG, BMP, GIF ...). A file that cannot be decoded gives an image of
// width 0 whose status is InvalidParameter. Pictures above 256 megapixels are refused.
class Image {
 public:
  explicit Image(const WCHAR* path, BOOL embedded_color_management = FALSE);
  virtual ~Image();
  Image(const Image&) = delete;
  Image& operator=(const Image&) = delete;
  static Image* FromFile(const WCHAR* path, BOOL embedded_color_management = FALSE);
  Image* Clone() const;  // the caller owns it; shares the pixels
  UINT GetWidth() const;
  UINT GetHeight() const;
  Status GetLastStatus() const;  // of the last operation; reading resets it to Ok

  // The premultiplied pixels, null when nothing was decoded. Shared with clones; never modified.
  const std::shared_ptr<const corvane::system::Surface>& pixels() const { return pixels_; }
  // The same as they stand in the file; null for what is opaque, and for what came from memory.
  const std::shared_ptr<_GdkPixbuf>& source() const { return source_; }
  // What drawing keeps for the next time; null when pixels() is.
  corvane::system::ImageCache* cache() const { return cache_.get(); }

 protected:
  Image() = default;
  void take_pixels(corvane::system::DecodedImage decoded);

  std::shared_ptr<const corvane::system::Surface> pixels_;
  std::shared_ptr<_GdkPixbuf> source_;
  std::shared_ptr<corvane::system::ImageCache> cache_;  // shared with clones
  mutable Status status_ = Ok;
};
// A picture made from memory: 32-bit ARGB rows, not premultiplied, stride in bytes; copied.
class Bitmap : public Image {
 public:
  Bitmap(INT width, INT height, INT stride, DWORD format, BYTE* scan0);
  explicit Bitmap(const WCHAR* path, BOOL embedded_color_management = FALSE)
      : Image(path, embedded_color_management) {}
  // A new icon with these pixels; the caller frees it with DestroyIcon.
  Status GetHICON(HICON* icon);
};
#define PixelFormat32bppARGB 0x26200Au

class Brush {
 public:
  virtual ~Brush() = default;
};
class SolidBrush : public Brush {
 public:
  explicit SolidBrush(const Color& color) : color_(color) {}
  Color color() const { return color_; }

 private:
  Color color_;
};
class Pen {
 public:
  explicit Pen(const Color& color, REAL width = 1.0f) : color_(color), width_(width) {}
  Color color() const { return color_; }
  REAL GetWidth() const { return width_; }

 private:
  Color color_;
  REAL width_;
};
class Font {
 public:
  Font(HDC dc, const LOGFONTW* description);
  const LOGFONTW& description() const { return description_; }

 private:
  LOGFONTW description_{};
};
class StringFormat {
 public:
  explicit StringFormat(INT flags = 0) : flags_(flags) {}
  Status SetAlignment(StringAlignment alignment);
  Status SetLineAlignment(StringAlignment alignment);
  Status SetFormatFlags(INT flags);
  StringAlignment GetAlignment() const { return alignment_; }
  StringAlignment GetLineAlignment() const { return line_alignment_; }
  INT GetFormatFlags() const { return flags_; }

 private:
  INT flags_;
  StringAlignment alignment_ = StringAlignmentNear;
  StringAlignment line_alignment_ = StringAlignmentNear;
};

// Draws on a device context for as long as it lives; the device context must outlive it.
class Graphics {
 public:
  explicit Graphics(HDC dc);
  ~Graphics();
  Graphics(const Graphics&) = delete;
  Graphics& operator=(const Graphics&) = delete;
  Status GetLastStatus() const;
  Status SetInterpolationMode(InterpolationMode mode);
  Status SetPixelOffsetMode(PixelOffsetMode mode);
  Status SetSmoothingMode(SmoothingMode mode);
  Status SetTextRenderingHint(TextRenderingHint hint);
  Status TranslateTransform(REAL dx, REAL dy);
  Status RotateTransform(REAL degrees);
  Status ScaleTransform(REAL sx, REAL sy);
  Status ResetTransform();
  Status DrawImage(Image* image, const Rect& target);
  Status DrawImage(Image* image, const RectF& target);
  // Draws the part (x, y, width, height) of the image, in image pixels, into target.
  Status DrawImage(Image* image, const Rect& target, INT x, INT y, INT width, INT height,
                   Unit unit);
  Status FillRectangle(const Brush* brush, INT x, INT y, INT width, INT height);
  Status DrawRectangle(const Pen* pen, INT x, INT y, INT width, INT height);
  Status DrawLine(const Pen* pen, INT x1, INT y1, INT x2, INT y2);
  Status DrawString(const WCHAR* text, INT length, const Font* font, const RectF& layout,
                    const StringFormat* format, const Brush* brush);

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace corvane_system::Gdiplus
