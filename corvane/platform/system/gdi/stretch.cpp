#include "corvane/platform/system/gdi/stretch.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <utility>
#include <vector>

#include "corvane/platform/system/gdi/blits.h"
#include "corvane/platform/system/gdi/image_scaling.h"

namespace corvane::system {

namespace {

// The source pixels of one target pixel: [begin, end), both inside the source or begin == end.
struct Span {
  int begin;
  int end;
};

// Maps the target pixels [first, behind) to their source pixels along one axis. A combining mode
// takes all source pixels of a target pixel when shrinking, otherwise the one in the middle.
std::vector<Span> map_axis(const Extent& target, const Extent& source, int source_size, int first,
                           int behind, bool combining) {
  const std::int64_t length = std::abs(std::int64_t{target.length});
  const std::int64_t source_length = std::abs(std::int64_t{source.length});
  std::vector<Span> spans;
  spans.reserve(static_cast<std::size_t>(behind - first));
  for (int at = first; at < behind; ++at) {
    const std::int64_t step = target.length < 0 ? target.start - at : at - target.start;
    std::int64_t begin = (2 * step + 1) * source_length / (2 * length);
    std::int64_t end = begin + 1;
    if (combining && source_length > length) {
      begin = step * source_length / length;
      end = (step + 1) * source_length / length;
    }
    if (source.length < 0) {
      const std::int64_t mirrored = source.start - end + 1;
      end = source.start - begin + 1;
      begin = mirrored;
    } else {
      begin += source.start;
      end += source.start;
    }
    begin = std::max<std::int64_t>(begin, 0);
    end = std::max(begin, std::min<std::int64_t>(end, source_size));
    spans.push_back({static_cast<int>(begin), static_cast<int>(end)});
  }
  return spans;
}

Pixel averaged(const std::uint64_t (&sums)[4], std::uint64_t count) {
  Pixel pixel = 0;
  for (int channel = 0; channel < 4; ++channel) {
    pixel |= static_cast<Pixel>((sums[channel] + count / 2) / count) << (8 * channel);
  }
  return pixel;
}

// One target pixel out of the source pixels of its spans, which are not empty.
Pixel combined(const Surface& source, const Span& columns, const Span& rows, int mode) {
  Pixel both = 0xFFFFFFFF;
  Pixel either = 0;
  std::uint64_t sums[4] = {};
  for (int y = rows.begin; y < rows.end; ++y) {
    const Pixel* row = source.row_if_stored(y);
    for (int x = columns.begin; x < columns.end; ++x) {
      const Pixel pixel = row != nullptr ? row[x] : source.uniform_row(y);
      both &= pixel;
      either |= pixel;
      for (int channel = 0; channel < 4; ++channel) {
        sums[channel] += (pixel >> (8 * channel)) & 0xFF;
      }
    }
  }
  if (mode == BLACKONWHITE) return both;
  if (mode == WHITEONBLACK) return either;
  if (mode == COLORONCOLOR) return both;  // a single pixel
  const auto count = static_cast<std::uint64_t>(columns.end - columns.begin) *
                     static_cast<std::uint64_t>(rows.end - rows.begin);
  return averaged(sums, count);
}

class Stretcher {
 public:
  Stretcher(DeviceContext& target, const DeviceContext& source, const Surface& pixels,
            const Stretch& stretch)
      : target_(target), source_(source), pixels_(pixels), stretch_(stretch) {
    combining_ = target.state.stretch_mode != COLORONCOLOR;
  }

  void draw(const RECT& piece) {
    const std::vector<Span> columns = map_axis(
        stretch_.target_x, stretch_.source_x, pixels_.width(), piece.left, piece.right, combining_);
    const std::vector<Span> rows = map_axis(stretch_.target_y, stretch_.source_y, pixels_.height(),
                                            piece.top, piece.bottom, combining_);
    const bool single = !combining_ || (is_single(columns) && is_single(rows));
    const bool repeats = single && is_whole(columns);
    for (std::size_t line = 0; line < rows.size(); ++line) {
      const int y = piece.top + static_cast<int>(line);
      if (rows[line].begin == rows[line].end) continue;
      if (repeats && line > 0 && rows[line].begin == rows[line - 1].begin) {
        repeat_row(piece, y);
      } else if (single && !monochrome_differs()) {
        pick_row(piece, y, columns, rows[line].begin);
      } else {
        draw_row(piece, y, columns, rows[line]);
      }
    }
  }

 private:
  static bool is_single(const std::vector<Span>& spans) {
    return std::all_of(spans.begin(), spans.end(),
                       [](const Span& span) { return span.end - span.begin <= 1; });
  }
  static bool is_whole(const std::vector<Span>& spans) {
    return std::all_of(spans.begin(), spans.end(),
                       [](const Span& span) { return span.begin < span.end; });
  }
  bool monochrome_differs() const { return target_.monochrome != source_.monochrome; }

  void pick_row(const RECT& piece, int y, const std::vector<Span>& columns, int source_y) {
    Pixel* out = target_.surface->row(y) + piece.left;
    const Pixel* row = pixels_.read_row(source_y, scratch_);
    for (std::size_t at = 0; at < columns.size(); ++at) {
      if (columns[at].begin < columns[at].end) out[at] = row[columns[at].begin];
    }
  }

  void draw_row(const RECT& piece, int y, const std::vector<Span>& columns, const Span& rows) {
    Pixel* out = target_.surface->row(y) + piece.left;
    for (std::size_t at = 0; at < columns.size(); ++at) {
      if (columns[at].begin == columns[at].end) continue;
      const Pixel pixel = combined(pixels_, columns[at], rows, target_.state.stretch_mode);
      out[at] = converted(target_, source_, pixel);
    }
  }

  // For a row that shows the same source row as the one above it.
  void repeat_row(const RECT& piece, int y) {
    const Pixel* above = target_.surface->row_if_stored(y - 1);
    Pixel* out = target_.surface->row_to_overwrite(y, piece.left, piece.right);
    std::memcpy(out + piece.left, above + piece.left,
                sizeof(Pixel) * static_cast<std::size_t>(piece.right - piece.left));
  }

  DeviceContext& target_;
  const DeviceContext& source_;
  const Surface& pixels_;
  const Stretch& stretch_;
  bool combining_ = false;
  std::vector<Pixel> scratch_;
};

bool is_plain_shrinking(const DeviceContext& target, const DeviceContext& source,
                        const Stretch& stretch) {
  const auto shrinks = [](const Extent& to, const Extent& from, int size) {
    return to.length > 0 && from.length >= to.length && from.start >= 0 &&
           from.length <= size - from.start;
  };
  return target.state.stretch_mode == HALFTONE && target.monochrome == source.monochrome &&
         shrinks(stretch.target_x, stretch.source_x, source.surface->width()) &&
         shrinks(stretch.target_y, stretch.source_y, source.surface->height());
}

void shrink_pixels(DeviceContext& target, const DeviceContext& source, const Stretch& stretch) {
  const Extent& x = stretch.source_x;
  const Extent& y = stretch.source_y;
  const auto shrunk =
      shrunk_by_area(*source.surface, {x.start, y.start, x.start + x.length, y.start + y.length},
                     stretch.target_x.length, stretch.target_y.length);
  const POINT at{stretch.target_x.start, stretch.target_y.start};
  copy_pixels(target,
              {at.x, at.y, offset_by(at.x, shrunk->width()), offset_by(at.y, shrunk->height())},
              *shrunk, {-at.x, -at.y});
}

}  // namespace

void stretch_pixels(DeviceContext& target, const DeviceContext& source, const Stretch& stretch) {
  const auto covered = [](const Extent& extent) -> std::pair<LONG, LONG> {
    if (extent.length < 0) return {offset_by(extent.start, extent.length) + 1, extent.start + 1};
    return {extent.start, offset_by(extent.start, extent.length)};
  };
  const auto [left, right] = covered(stretch.target_x);
  const auto [top, bottom] = covered(stretch.target_y);
  Region touched = target.clip();
  touched.intersect(RECT{left, top, right, bottom});
  if (touched.empty()) return;
  if (is_plain_shrinking(target, source, stretch)) {
    shrink_pixels(target, source, stretch);
    return;
  }
  if (source.surface == target.surface) {
    const Surface unchanged(*source.surface);
    Stretcher stretcher(target, source, unchanged, stretch);
    for (const RECT& piece : touched.rects()) stretcher.draw(piece);
  } else {
    Stretcher stretcher(target, source, *source.surface, stretch);
    for (const RECT& piece : touched.rects()) stretcher.draw(piece);
  }
  target.surface->mark(touched);
}

}  // namespace corvane::system
