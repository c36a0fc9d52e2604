#include "corvane/platform/system/gdi/image_scaling.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace corvane::system {

namespace {

constexpr std::size_t kKeptCopies = 4;
constexpr long kKeptPixels = 16'000'000;
constexpr std::int64_t kLargePicture = 32'000'000;  // pixels

// The source positions that one target position covers: `count` from `first` on, the ones between
// the two ends with weight kWhole.
struct Cover {
  int first;
  int count;
  std::uint32_t first_weight;
  std::uint32_t last_weight;
  std::uint32_t total;
};
constexpr std::uint32_t kWhole = 256;

std::uint32_t weight_of(const Cover& cover, int index) {
  if (index == 0) return cover.first_weight;
  return index == cover.count - 1 ? cover.last_weight : kWhole;
}

std::vector<Cover> covers_of(int source, int target) {
  std::vector<Cover> covers;
  covers.reserve(static_cast<std::size_t>(target));
  const std::int64_t unit = std::int64_t{source} * kWhole;
  for (int at = 0; at < target; ++at) {
    const std::int64_t begin = unit * at / target;
    const std::int64_t end = unit * (at + 1) / target;
    Cover cover{};
    cover.first = static_cast<int>(begin / kWhole);
    cover.count = static_cast<int>((end + kWhole - 1) / kWhole) - cover.first;
    cover.total = static_cast<std::uint32_t>(end - begin);
    cover.first_weight =
        cover.count == 1
            ? cover.total
            : static_cast<std::uint32_t>((cover.first + 1) * std::int64_t{kWhole} - begin);
    cover.last_weight =
        static_cast<std::uint32_t>(end - (cover.first + cover.count - 1) * std::int64_t{kWhole});
    covers.push_back(cover);
  }
  return covers;
}

// Adds a row's channels to the sums, four per pixel, blue first. The loop is what costs. A sum of
// all rows of the highest picture stays below 2^31.
void add_row(const Pixel* row, std::size_t width, std::uint32_t weight, std::uint32_t* sums) {
  const auto* channels = reinterpret_cast<const std::uint8_t*>(row);
  const auto factor = static_cast<std::uint16_t>(weight);  // times 255 it fits 16 bits
  for (std::size_t at = 0; at < 4 * width; ++at) {
    sums[at] += static_cast<std::uint16_t>(factor * channels[at]);
  }
}

// The weighted mean of the columns' channels.
Pixel average(const float* channels, const Cover& columns) {
  float total[4] = {};
  for (int index = 0; index < columns.count; ++index) {
    const auto weight = static_cast<float>(weight_of(columns, index));
    const float* column = channels + 4 * (columns.first + index);
    for (int channel = 0; channel < 4; ++channel) total[channel] += weight * column[channel];
  }
  const float share = 1.0f / static_cast<float>(columns.total);
  Pixel pixel = 0;
  for (int channel = 0; channel < 4; ++channel) {
    pixel |= static_cast<Pixel>(total[channel] * share + 0.5f) << (8 * channel);
  }
  return pixel;
}

bool same(const RECT& first, const RECT& second) {
  return first.left == second.left && first.top == second.top && first.right == second.right &&
         first.bottom == second.bottom;
}

}  // namespace

std::shared_ptr<Surface> shrunk_by_area(const Surface& picture, const RECT& part, int width,
                                        int height) {
  const auto part_width = static_cast<std::size_t>(part.right - part.left);
  const std::vector<Cover> columns = covers_of(part.right - part.left, width);
  const std::vector<Cover> rows = covers_of(part.bottom - part.top, height);
  std::vector<std::uint32_t> sums(4 * part_width);
  std::vector<float> means(4 * part_width);
  std::vector<Pixel> scratch;
  auto shrunk = std::make_shared<Surface>(width, height);
  for (int y = 0; y < height; ++y) {
    const Cover& cover = rows[static_cast<std::size_t>(y)];
    sums.assign(sums.size(), 0);
    for (int index = 0; index < cover.count; ++index) {
      add_row(picture.read_row(part.top + cover.first + index, scratch) + part.left, part_width,
              weight_of(cover, index), sums.data());
    }
    const float share = 1.0f / static_cast<float>(cover.total);
    for (std::size_t at = 0; at < sums.size(); ++at) {
      means[at] = static_cast<float>(static_cast<std::int32_t>(sums[at])) * share;
    }
    Pixel* out = shrunk->row_to_overwrite(y, 0, width);
    for (int x = 0; x < width; ++x) {
      out[x] = average(means.data(), columns[static_cast<std::size_t>(x)]);
    }
  }
  return shrunk;
}

bool is_large_picture(const Surface& picture) {
  return std::int64_t{picture.width()} * picture.height() > kLargePicture;
}

std::shared_ptr<const Surface> ImageCache::shrunk(const std::shared_ptr<const Surface>& picture,
                                                  const RECT& part, int width, int height) {
  const std::lock_guard<std::mutex> guard(lock_);
  for (auto copy = copies_.begin(); copy != copies_.end(); ++copy) {
    if (!same(copy->part, part) || copy->pixels->width() != width ||
        copy->pixels->height() != height) {
      continue;
    }
    copies_.splice(copies_.begin(), copies_, copy);
    return copies_.front().pixels;
  }
  const RECT all = picture->rect();
  if (is_large_picture(*picture) && EqualRect(&part, &all) != 0) {
    const std::shared_ptr<const Surface> half = smallest_half(picture, width, height);
    copies_.push_front({part, shrunk_by_area(*half, half->rect(), width, height)});
  } else {
    copies_.push_front({part, shrunk_by_area(*picture, part, width, height)});
  }
  drop_oldest();
  return copies_.front().pixels;
}

std::shared_ptr<const Surface> ImageCache::halved(const std::shared_ptr<const Surface>& picture,
                                                  int width, int height) {
  const std::lock_guard<std::mutex> guard(lock_);
  return smallest_half(picture, width, height);
}

std::shared_ptr<const Surface> ImageCache::smallest_half(
    const std::shared_ptr<const Surface>& picture, int width, int height) {
  std::shared_ptr<const Surface> smallest = picture;
  for (std::size_t times = 0;; ++times) {
    const int half_width = smallest->width() / 2;
    const int half_height = smallest->height() / 2;
    if (half_width < std::max(width, 1) || half_height < std::max(height, 1)) return smallest;
    if (times == halves_.size()) {
      halves_.push_back(shrunk_by_area(*smallest, smallest->rect(), half_width, half_height));
    }
    smallest = halves_[times];
  }
}

void ImageCache::drop_oldest() {
  long pixels = 0;
  for (const Copy& copy : copies_) {
    pixels += static_cast<long>(copy.pixels->width()) * copy.pixels->height();
  }
  while (copies_.size() > 1 && (copies_.size() > kKeptCopies || pixels > kKeptPixels)) {
    const Surface& oldest = *copies_.back().pixels;
    pixels -= static_cast<long>(oldest.width()) * oldest.height();
    copies_.pop_back();
  }
}

}  // namespace corvane::system
