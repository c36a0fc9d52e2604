#include "corvane/platform/system/compositor/row_composer.h"

#include <algorithm>

#include "corvane/platform/system/compositor/blend_kernels.h"

namespace corvane::system {

namespace {

constexpr std::size_t kPieceSize = 768;  // pixels; stays in the first cache over all layers
constexpr std::size_t kRunUnit = 64;     // pixels that are looked at together for one colour

Pixel key_of(const Layer& layer) {
  return layer.keyed ? layer.key & blend::kColorMask : blend::kNoKey;
}

bool is_key(const Layer& layer, Pixel color) {
  return (color & blend::kColorMask) == key_of(layer);
}

bool shows_nothing(const Layer& layer, Pixel color) {
  return is_key(layer, color) || (layer.pixel_alpha && color == 0);
}

bool hides_what_is_below(const Layer& layer, Pixel color) {
  return layer.alpha == 255 && !is_key(layer, color) &&
         (!layer.pixel_alpha || (color & blend::kOpaqueBits) == blend::kOpaqueBits);
}

void blend_color(const Layer& layer, Pixel color, Pixel* out, const Pixel* below,
                 std::size_t count) {
  if (shows_nothing(layer, color)) {
    if (out != below) blend::copy(out, below, count);
  } else if (hides_what_is_below(layer, color)) {
    blend::fill(out, count, color);
  } else if (layer.pixel_alpha) {
    blend::over_uniform(out, below, count, color, layer.alpha);
  } else {
    blend::uniform(out, below, count, color, layer.alpha);
  }
}

void blend_mixture(const Layer& layer, const Pixel* source, Pixel* out, const Pixel* below,
                   std::size_t count) {
  if (layer.pixel_alpha) {
    blend::over(out, below, source, count, key_of(layer), layer.alpha);
  } else {
    blend::keyed(out, below, source, count, key_of(layer), layer.alpha);
  }
}

// A stretch of units that each have one colour, the same in all, or of units that do not.
struct Run {
  std::size_t end;
  bool one_color;
};

Run run_from(const Pixel* source, std::size_t begin, std::size_t count) {
  Run run{begin, true};
  while (run.end < count) {
    const std::size_t unit = std::min(kRunUnit, count - run.end);
    const bool one_color = blend::same(source + run.end, unit);
    if (run.end == begin) {
      run.one_color = one_color;
    } else if (one_color != run.one_color || (one_color && source[run.end] != source[begin])) {
      break;
    }
    run.end += unit;
  }
  return run;
}

// Windows are mostly plain areas, and to look for them costs less than to blend every pixel.
void blend_pixels(const Layer& layer, const Pixel* source, Pixel* out, const Pixel* below,
                  std::size_t count) {
  for (std::size_t begin = 0; begin < count;) {
    const Run run = run_from(source, begin, count);
    const std::size_t length = run.end - begin;
    if (run.one_color) {
      blend_color(layer, source[begin], out + begin, below + begin, length);
    } else {
      blend_mixture(layer, source + begin, out + begin, below + begin, length);
    }
    begin = run.end;
  }
}

}  // namespace

RowComposer::Step RowComposer::step_of(const Layer& layer, POINT start) {
  const int x = static_cast<int>(std::int64_t{start.x} - layer.origin.x);
  const int y = static_cast<int>(std::int64_t{start.y} - layer.origin.y);
  const Pixel* const row = layer.surface->row_if_stored(y);
  if (row != nullptr) return {&layer, row + x, 0};
  return {&layer, nullptr, layer.surface->uniform_row(y)};
}

bool RowComposer::shows_nothing(const Step& step) {
  return step.pixels == nullptr && system::shows_nothing(*step.layer, step.color);
}

bool RowComposer::hides_what_is_below(const Step& step) {
  if (step.pixels == nullptr) return system::hides_what_is_below(*step.layer, step.color);
  return step.layer->alpha == 255 && !step.layer->keyed && !step.layer->pixel_alpha;
}

void RowComposer::collect_steps(POINT start, const std::vector<const Layer*>& stack) {
  steps_.clear();
  for (auto layer = stack.rbegin(); layer != stack.rend(); ++layer) {
    const Step step = step_of(**layer, start);
    if (shows_nothing(step)) continue;
    steps_.push_back(step);
    if (hides_what_is_below(step)) break;
  }
}

void RowComposer::compose(Pixel* out, POINT start, int count,
                          const std::vector<const Layer*>& stack) {
  collect_steps(start, stack);
  const auto size = static_cast<std::size_t>(count);
  for (std::size_t offset = 0; offset < size; offset += kPieceSize) {
    compose_piece(out + offset, offset, std::min(kPieceSize, size - offset));
  }
}

void RowComposer::compose_piece(Pixel* out, std::size_t offset, std::size_t count) const {
  auto step = steps_.rbegin();
  const Pixel* below = out;
  if (step == steps_.rend() || !hides_what_is_below(*step)) {
    blend::fill(out, count, background_);
  } else {
    if (step->pixels != nullptr) {
      below = step->pixels + offset;
    } else {
      blend::fill(out, count, step->color);
    }
    ++step;
  }
  for (; step != steps_.rend(); ++step) {
    if (step->pixels != nullptr) {
      blend_pixels(*step->layer, step->pixels + offset, out, below, count);
    } else {
      blend_color(*step->layer, step->color, out, below, count);
    }
    below = out;
  }
  if (below != out) blend::copy(out, below, count);
}

}  // namespace corvane::system
