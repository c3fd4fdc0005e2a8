// The side wall of a STEP body over a closed contour: control points in four layers, spline curves
// and surfaces.
// Source: docs/formulas/written_files.md, "STEP walls".
#pragma once

#include "base/text_file.hpp"
#include "geometry/point2.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kvt {

/// The wall is cut into two halves at the contour's points 0 and F\2, F being the number of its
/// points: first: points 0 .. F\2, second: points F\2 .. F, where F means point 0.
enum class wall_half { first, second };

/// Layer j of the control points lies at z = bottom + j depth / 3; 0 is the bottom, 3 the top.
inline constexpr int WALL_LAYER_COUNT = 4;

/// A cubic needs four points a half.
inline constexpr std::size_t SMALLEST_CONTOUR = 6;

/// Entity numbers of the wall's curves and surfaces.
struct wall_numbers {
    int first_top, first_bottom, second_top, second_bottom;  ///< curves of both halves
    int first_surface, second_surface;
};

class step_wall {
  public:
    /// contour: the distinct points of a closed contour, mm. Entity numbers are raised by `offset`;
    /// the control points get the numbers from `first_point` on. Throws subscript_out_of_range for
    /// less than SMALLEST_CONTOUR points.
    step_wall(text_lines& out, const std::vector<point2>& contour, double bottom, double depth,
              int first_point, int offset);

    /// "x, y" of point 0 and of point F\2.
    const std::string& start() const { return places_.front(); }
    const std::string& middle() const { return places_[middle_]; }

    /// All control points, then the curves and surfaces in the order of wall_numbers.
    void write(const wall_numbers& numbers);

    /// Four times F points, layer by layer from the bottom.
    void write_points();
    /// A cubic spline of one layer over one half.
    void write_curve(int number, wall_half half, int layer);
    /// A bicubic spline surface over one half; the first direction runs along the contour, the
    /// second downwards.
    void write_surface(int number, wall_half half);

  private:
    /// First and last index of a half.
    std::size_t begin_of(wall_half half) const { return half == wall_half::first ? 0 : middle_; }
    std::size_t end_of(wall_half half) const {
        return half == wall_half::first ? middle_ : places_.size();
    }

    void write_surface_row(std::size_t index, std::string_view end);
    void write_control_point(std::size_t index, int layer);
    void write_multiplicities(wall_half half);
    void write_knots(wall_half half);

    text_lines& out_;
    std::vector<std::string> places_;  // "x, y" of each point
    std::size_t middle_;
    double bottom_, depth_;
    int first_point_, offset_;
    std::string knots_[2];  // of both halves, as text
};

}  // namespace kvt
