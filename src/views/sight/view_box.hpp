// view_box: where the drawing of the Design view stands in its box. The drawing keeps the twips of
// the size that it was made for, and fills the box at any size.
#pragma once

#include "geometry/point2.hpp"
#include "views/view_state.hpp"

#include <optional>

namespace kvt {

/// Three frames: the twips of the drawing (origin in the upper left corner, y down), the pixels of
/// the box (the same corner), and the millimetres of the pump (about the inner rotor axis, y up).
class view_box {
  public:
    /// One twip to one twip: 15 are a pixel.
    view_box() = default;
    /// The side drawn_size of the drawing fills the side view_size of the box. One to one without
    /// a drawing or a box.
    explicit view_box(const view_state& state);

    /// Pixels of a length of the drawing.
    double pixels(double twips) const { return twips * scale_; }
    double pixels_of_mm(double mm) const { return pixels(mm * twips_of_mm_); }
    /// The side of the box, pixels.
    double side() const { return side_; }

    point2 on_box(const point2& twips) const { return {pixels(twips.x), pixels(twips.y)}; }
    point2 on_drawing(const point2& pixels) const { return {pixels.x / scale_, pixels.y / scale_}; }

    /// A point of the pump in the box.
    point2 of_pump(const point2& mm) const;
    /// The point of the pump at a place of the box; nothing while no design has a scale.
    std::optional<point2> on_pump(const point2& pixels) const;

    friend bool operator==(const view_box&, const view_box&) = default;

  private:
    double scale_ = 1.0 / 15.0;  ///< pixels a twip
    double side_ = 0.0;
    double twips_of_mm_ = 0.0;
    point2 inner_axis_;  ///< twips
};

}  // namespace kvt
