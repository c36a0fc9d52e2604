#pragma once
// The fuzzer's bytes, taken one after the other; zeros when they are used up.
#include <cstddef>
#include <cstdint>

class ByteStream {
 public:
  ByteStream(const std::uint8_t* data, std::size_t size) : next_(data), end_(data + size) {}

  bool empty() const { return next_ == end_; }
  unsigned byte() { return empty() ? 0u : *next_++; }
  unsigned word() {
    const unsigned high = byte();
    return high << 8 | byte();
  }
  bool flag() { return byte() % 2 != 0; }
  int below(std::size_t limit) { return static_cast<int>(byte() % static_cast<unsigned>(limit)); }
  // Mostly on a small screen, sometimes beside it.
  int coordinate() { return static_cast<int>(word() % 600) - 100; }

 private:
  const std::uint8_t* next_;
  const std::uint8_t* end_;
};
