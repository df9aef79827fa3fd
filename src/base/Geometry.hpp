#pragma once

namespace quenby {

/// Points and rectangles in the global screen space: origin at the bottom left of the primary
/// display, y growing upwards.
struct Point {
  double x = 0;
  double y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
  double width = 0;
  double height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  /// The usual containment: minimum edges inside, maximum edges outside.
  [[nodiscard]] bool contains(Point p) const {
    return p.x >= x && p.x < x + width && p.y >= y && p.y < y + height;
  }
  friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace quenby
