#pragma once
// A set of pixels held as disjoint rectangles (left and top inside, right and bottom outside).
#include <memory>
#include <vector>

#include "corvane/platform/system/types.h"

namespace corvane::system {

class Region {
 public:
  Region();
  explicit Region(const RECT& rect);
  Region(const Region& other);
  Region(Region&& other) noexcept;
  Region& operator=(const Region& other);
  Region& operator=(Region&& other) noexcept;
  ~Region();

  bool empty() const;
  RECT bounds() const;  // (0, 0, 0, 0) when empty
  int count() const;    // number of rectangles
  RECT rect(int index) const;
  std::vector<RECT> rects() const;
  bool contains(POINT point) const;
  bool intersects(const RECT& rect) const;
  bool covers(const RECT& rect) const;  // wholly

  void clear();
  void unite(const RECT& rect);
  void unite(const Region& other);
  void subtract(const RECT& rect);
  void subtract(const Region& other);
  void intersect(const RECT& rect);
  void intersect(const Region& other);
  void translate(int dx, int dy);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace corvane::system
