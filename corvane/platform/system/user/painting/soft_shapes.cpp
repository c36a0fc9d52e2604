#include "corvane/platform/system/user/painting/soft_shapes.h"

#include <algorithm>
#include <cmath>

namespace corvane::system {

void fill_rect(HDC dc, const RECT& rect, COLORREF color) {
  HBRUSH brush = CreateSolidBrush(color);
  FillRect(dc, &rect, brush);
  DeleteObject(brush);
}

void frame_rect(HDC dc, const RECT& rect, COLORREF color) {
  HBRUSH brush = CreateSolidBrush(color);
  FrameRect(dc, &rect, brush);
  DeleteObject(brush);
}

COLORREF mixed(COLORREF under, COLORREF over, double share) {
  auto channel = [&](int shift) {
    const double low = (under >> shift) & 0xFF;
    const double high = (over >> shift) & 0xFF;
    return static_cast<COLORREF>(std::lround(low + (high - low) * share)) << shift;
  };
  return channel(0) | channel(8) | channel(16);
}

double circle_coverage(double distance, double radius) {
  return std::clamp(radius - distance + 0.5, 0.0, 1.0);
}

void fill_disc(HDC dc, int left, int top, int size, COLORREF color, COLORREF under) {
  const double radius = size / 2.0;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const double share = circle_coverage(std::hypot(x + 0.5 - radius, y + 0.5 - radius), radius);
      if (share > 0) SetPixel(dc, left + x, top + y, mixed(under, color, share));
    }
  }
}

}  // namespace corvane::system
