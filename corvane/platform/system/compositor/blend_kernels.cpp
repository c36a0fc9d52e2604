#include "corvane/platform/system/compositor/blend_kernels.h"

#include <algorithm>
#include <bit>

// The loader picks the widest clone that the processor has. Needs ifunc, which glibc provides.
#if defined(__x86_64__) && defined(__GLIBC__) && defined(__GNUC__) && !defined(__clang__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) && !defined(CORVANE_NO_CLONES)
#define CORVANE_CLONES [[gnu::target_clones("default", "arch=x86-64-v3")]]
#else
#define CORVANE_CLONES
#endif
#ifdef __clang__
#define CORVANE_VECTORIZE _Pragma("clang loop vectorize(enable)")
#else
#define CORVANE_VECTORIZE _Pragma("GCC ivdep")
#endif

namespace corvane::system::blend {

namespace {

using Half = std::uint16_t;  // two channels of a pixel
using HalfInMemory [[gnu::may_alias]] = Half;

constexpr std::size_t kBlock = 8;  // pixels that fill a vector register
constexpr std::size_t kHalves = 2 * kBlock;
constexpr Pixel kPairMask = 0x00FF00FF;  // red and blue, each with room for 16 bits

// Signed sums on purpose: the compiler keeps to 16-bit lanes with them, not with unsigned ones.
constexpr Half half(int value) { return static_cast<Half>(value); }

// One factor or term per channel: `low` belongs to the bytes 0 (blue) and 2 (red) of the pixels,
// `high` to the bytes 1 (green) and 3 (alpha).
struct Channels {
  Half low[kHalves];
  Half high[kHalves];
};

inline Channels channels(int blue, int green, int red, int alpha) {
  constexpr bool kLittle = std::endian::native == std::endian::little;
  Channels result;
  for (std::size_t i = 0; i < kHalves; i += 2) {
    result.low[i] = half(kLittle ? blue : red);
    result.low[i + 1] = half(kLittle ? red : blue);
    result.high[i] = half(kLittle ? green : alpha);
    result.high[i + 1] = half(kLittle ? alpha : green);
  }
  return result;
}

// For the channels that a pixel keeps; its alpha channel becomes 0.
inline Channels same_factor(int factor) { return channels(factor, factor, factor, 0); }

// x / 255 to the nearest, of a sum that already holds the 128 for rounding: the quotient in the
// high byte or in the low one. Exact for x up to 255 * 255, where it equals
// (x + 127) / 255.
inline Half quotient_above(Half sum) { return half(half(sum + (sum >> 8)) & 0xFF00); }
inline Half quotient(Half sum) { return half(half(sum + (sum >> 8)) >> 8); }

inline void uniform_block(Pixel* out, const Pixel* below, const Channels& factor,
                          const Channels& term) {
  auto* target = reinterpret_cast<HalfInMemory*>(out);
  const auto* old = reinterpret_cast<const HalfInMemory*>(below);
  CORVANE_VECTORIZE
  for (std::size_t i = 0; i < kHalves; ++i) {
    const Half low = half((old[i] & 0xFF) * factor.low[i] + term.low[i]);
    const Half high = half((old[i] >> 8) * factor.high[i] + term.high[i]);
    target[i] = half(quotient(low) | quotient_above(high));
  }
}

inline void mix_block(Half* result, const Pixel* below, const Pixel* source,
                      const Channels& below_factor, const Channels& source_factor) {
  const auto* old = reinterpret_cast<const HalfInMemory*>(below);
  const auto* top = reinterpret_cast<const HalfInMemory*>(source);
  CORVANE_VECTORIZE
  for (std::size_t i = 0; i < kHalves; ++i) {
    const Half low =
        half((old[i] & 0xFF) * below_factor.low[i] + (top[i] & 0xFF) * source_factor.low[i] + 128);
    const Half high =
        half((old[i] >> 8) * below_factor.high[i] + (top[i] >> 8) * source_factor.high[i] + 128);
    result[i] = half(quotient(low) | quotient_above(high));
  }
}

inline void keyed_block(Pixel* out, const Pixel* below, const Pixel* source, Pixel key,
                        const Channels& below_factor, const Channels& source_factor) {
  Half mixed[kHalves];
  mix_block(mixed, below, source, below_factor, source_factor);
  using PixelInMemory [[gnu::may_alias]] = Pixel;
  const auto* mixed_pixels = reinterpret_cast<const PixelInMemory*>(mixed);
  CORVANE_VECTORIZE
  for (std::size_t i = 0; i < kBlock; ++i) {
    const Pixel taken = (source[i] & kColorMask) == key ? below[i] : mixed_pixels[i];
    out[i] = taken | kOpaqueBits;
  }
}

// Two channels at a time in the halves of a 32-bit sum.
inline Pixel pair_quotient(Pixel sums) {
  return ((sums + ((sums >> 8) & kPairMask)) >> 8) & kPairMask;
}

inline Pixel scaled(Pixel pixel, Pixel factor) {
  return pair_quotient((pixel & kPairMask) * factor + 0x00800080u) |
         (pair_quotient(((pixel >> 8) & kPairMask) * factor + 0x00800080u) << 8);
}

inline Pixel saturated(Pixel sums) {
  const Pixel carries = (sums >> 8) & 0x00010001u;
  return (sums | ((carries << 8) - carries)) & kPairMask;
}

inline Pixel over_pixel(Pixel below, Pixel scaled_source) {
  const Pixel rest = scaled(below, 255 - (scaled_source >> 24));
  const Pixel red_blue = saturated((rest & kPairMask) + (scaled_source & kPairMask));
  const Pixel green =
      saturated(((rest >> 8) & kPairMask) + ((scaled_source >> 8) & kPairMask)) & 0xFFu;
  return red_blue | (green << 8) | kOpaqueBits;
}

}  // namespace

CORVANE_CLONES void fill(Pixel* out, std::size_t count, Pixel color) {
  const Pixel value = color | kOpaqueBits;
  for (std::size_t i = 0; i < count; ++i) out[i] = value;
}

CORVANE_CLONES void copy(Pixel* out, const Pixel* source, std::size_t count) {
  CORVANE_VECTORIZE
  for (std::size_t i = 0; i < count; ++i) out[i] = source[i] | kOpaqueBits;
}

CORVANE_CLONES void uniform(Pixel* out, const Pixel* below, std::size_t count, Pixel color,
                            std::uint8_t alpha) {
  const int a = alpha;
  const auto term_of = [&](int shift) {
    return static_cast<int>((color >> shift) & 0xFF) * a + 128;
  };
  const Channels factor = same_factor(255 - a);
  const Channels term = channels(term_of(0), term_of(8), term_of(16), 0xFF00);
  std::size_t done = 0;
  for (; done + kBlock <= count; done += kBlock) {
    uniform_block(out + done, below + done, factor, term);
  }
  if (done == count) return;
  Pixel rest[kBlock] = {};
  std::copy(below + done, below + count, rest);
  uniform_block(rest, rest, factor, term);
  std::copy(rest, rest + (count - done), out + done);
}

CORVANE_CLONES void keyed(Pixel* out, const Pixel* below, const Pixel* source, std::size_t count,
                          Pixel key, std::uint8_t alpha) {
  const Channels source_factor = same_factor(alpha);
  const Channels below_factor = same_factor(255 - alpha);
  std::size_t done = 0;
  for (; done + kBlock <= count; done += kBlock) {
    keyed_block(out + done, below + done, source + done, key, below_factor, source_factor);
  }
  if (done == count) return;
  Pixel rest[kBlock] = {};
  Pixel source_rest[kBlock] = {};
  std::copy(below + done, below + count, rest);
  std::copy(source + done, source + count, source_rest);
  keyed_block(rest, rest, source_rest, key, below_factor, source_factor);
  std::copy(rest, rest + (count - done), out + done);
}

CORVANE_CLONES void over_uniform(Pixel* out, const Pixel* below, std::size_t count, Pixel color,
                                 std::uint8_t alpha) {
  const Pixel source = scaled(color, alpha);
  CORVANE_VECTORIZE
  for (std::size_t i = 0; i < count; ++i) out[i] = over_pixel(below[i], source);
}

CORVANE_CLONES void over(Pixel* out, const Pixel* below, const Pixel* source, std::size_t count,
                         Pixel key, std::uint8_t alpha) {
  const Pixel constant = alpha;
  CORVANE_VECTORIZE
  for (std::size_t i = 0; i < count; ++i) {
    const Pixel blended = over_pixel(below[i], scaled(source[i], constant));
    out[i] = (source[i] & kColorMask) == key ? below[i] | kOpaqueBits : blended;
  }
}

CORVANE_CLONES bool same(const Pixel* source, std::size_t count) {
  if (count == 0) return true;
  const Pixel first = source[0];
  Pixel difference = 0;
  for (std::size_t i = 0; i < count; ++i) difference |= source[i] ^ first;
  return difference == 0;
}

}  // namespace corvane::system::blend
