#include "corvane/platform/system/display/sdl/drawn_cursors.h"

#include <cmath>
#include <iterator>
#include <string_view>

namespace corvane::system {

namespace {

constexpr int kReach = 12;  // pixels from the middle to each edge
constexpr Pixel kInk = 0xFF000000;
constexpr Pixel kOutline = 0xFFFFFFFF;

// Whether a shape covers the pixel this far to the right of and below its middle.
using Shape = bool (*)(int x, int y);

bool cross(int x, int y) { return (x == 0 || y == 0) && std::abs(x + y) <= 10; }

// From the tip at 11 to the opposite one: heads with sides of 45 degrees, a shaft between them.
bool arrow(double along, double across) {
  constexpr double kTip = 11;
  constexpr double kHead = 5;
  constexpr double kShaft = 1;  // half its width
  const double to_tip = kTip - std::abs(along);
  return to_tip >= 0 && std::abs(across) <= (to_tip <= kHead ? to_tip : kShaft);
}
bool arrow_we(int x, int y) { return arrow(x, y); }
bool arrow_ns(int x, int y) { return arrow(y, x); }
bool arrow_nwse(int x, int y) { return arrow((x + y) * M_SQRT1_2, (x - y) * M_SQRT1_2); }
bool arrow_nesw(int x, int y) { return arrow_nwse(-x, y); }
bool arrows_all(int x, int y) { return arrow_we(x, y) || arrow_ns(x, y); }

bool no(int x, int y) {
  constexpr double kOuter = 10.5;
  constexpr double kInner = 7.5;
  const double radius = std::hypot(x, y);
  return radius <= kOuter && (radius >= kInner || std::abs(x - y) <= 2);
}

Shape shape_of(CursorShape shape) {
  constexpr struct {
    CursorShape shape;
    Shape covers;
  } kShapes[] = {{CursorShape::cross, cross},
                 {CursorShape::size_we, arrow_we},
                 {CursorShape::size_ns, arrow_ns},
                 {CursorShape::size_nwse, arrow_nwse},
                 {CursorShape::size_nesw, arrow_nesw},
                 {CursorShape::size_all, arrows_all},
                 {CursorShape::no, no}};
  for (const auto& row : kShapes) {
    if (row.shape == shape) return row.covers;
  }
  return nullptr;
}

bool is_beside(Shape covers, int x, int y) {
  for (int dy = -1; dy <= 1; ++dy) {
    for (int dx = -1; dx <= 1; ++dx) {
      if (covers(x + dx, y + dy)) return true;
    }
  }
  return false;
}

// The finger points with its tip.
constexpr POINT kFingertip{4, 0};
constexpr std::string_view kHand[] = {"    ##          ",  //
                                      "   #..#         ",  //
                                      "   #..#         ",  //
                                      "   #..#         ",  //
                                      "   #..#         ",  //
                                      "   #..###       ",  //
                                      "   #..#..###    ",  //
                                      "   #..#..#..##  ",  //
                                      "   #..#..#..#.# ",  //
                                      "## #..#..#..#..#",  //
                                      "#..#........#..#",  //
                                      "#...#..........#",  //
                                      " #.............#",  //
                                      "  #............#",  //
                                      "  #............#",  //
                                      "   #...........#",  //
                                      "   #..........# ",  //
                                      "    #.........# ",  //
                                      "    #.........# ",  //
                                      "    ########### "};

DrawnCursor draw_hand() {
  DrawnCursor cursor{
      {static_cast<LONG>(kHand[0].size()), static_cast<LONG>(std::size(kHand))}, kFingertip, {}};
  for (const std::string_view row : kHand) {
    for (const char dot : row) {
      cursor.pixels.push_back(dot == '#' ? kInk : dot == '.' ? kOutline : 0);
    }
  }
  return cursor;
}

}  // namespace

DrawnCursor draw_cursor(CursorShape shape) {
  if (shape == CursorShape::hand) return draw_hand();
  const Shape covers = shape_of(shape);
  if (covers == nullptr) return {};
  constexpr int kSide = 2 * kReach + 1;
  DrawnCursor cursor{{kSide, kSide}, {kReach, kReach}, {}};
  for (int y = -kReach; y <= kReach; ++y) {
    for (int x = -kReach; x <= kReach; ++x) {
      cursor.pixels.push_back(covers(x, y) ? kInk : is_beside(covers, x, y) ? kOutline : 0);
    }
  }
  return cursor;
}

}  // namespace corvane::system
