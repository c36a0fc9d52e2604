#pragma once
// Composes the pixels of one row that the same layers touch.
#include <vector>

#include "corvane/platform/system/compositor/compositor.h"

namespace corvane::system {

class RowComposer {
 public:
  explicit RowComposer(Pixel background) : background_(background) {}

  // Writes `count` pixels to `out`, which shows the frame from `start` rightward. Every layer of
  // the stack (bottom first) covers all of them.
  void compose(Pixel* out, POINT start, int count, const std::vector<const Layer*>& stack);

 private:
  // A layer's part of the row: pixels, or one colour where they are null.
  struct Step {
    const Layer* layer;
    const Pixel* pixels;
    Pixel color;
  };
  static Step step_of(const Layer& layer, POINT start);
  static bool shows_nothing(const Step& step);
  static bool hides_what_is_below(const Step& step);

  void collect_steps(POINT start, const std::vector<const Layer*>& stack);
  void compose_piece(Pixel* out, std::size_t offset, std::size_t count) const;

  Pixel background_;
  std::vector<Step> steps_;  // top first
};

}  // namespace corvane::system
