// polygon_overlap: the area that two polygons share.
#pragma once

#include "geometry/point2.hpp"

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace kvt {

/// A simple polygon, counter-clockwise whatever it was made from, whose edges are found by their
/// height.
class indexed_polygon {
  public:
    explicit indexed_polygon(std::vector<point2> points);

    const std::vector<point2>& points() const { return points_; }
    double area() const;
    /// Whether a point lies inside, by the edges to its right that it crosses.
    bool contains(const point2& point) const;
    /// Adds the shares 0 .. 1 of the way from a to b at which it crosses the outline.
    void add_crossings(const point2& a, const point2& b, std::vector<double>& shares) const;
    /// False when the rectangles around both lie apart.
    bool may_meet(const indexed_polygon& other) const;

  private:
    static constexpr std::size_t BANDS = 256;

    const point2& end_of(std::size_t edge) const {
        return points_[edge + 1 == points_.size() ? 0 : edge + 1];
    }
    std::size_t band_of(double y) const;
    void measure();
    void sort_into_bands();
    std::span<const std::size_t> edges_in(std::size_t band) const;

    std::vector<point2> points_;
    double bottom_ = 0.0, top_ = 0.0, left_ = 0.0, right_ = 0.0;
    std::array<std::size_t, BANDS + 1> band_starts_ = {};  ///< of each, in edges_
    std::vector<std::size_t> edges_;  ///< those that reach into a band, band after band
};

/// The area of both, mm2: the integral over the edges, cut where they cross, of each polygon that
/// lie in the other. Edges of both that lie on each other would count twice or not at all: one of
/// the polygons is to be moved aside.
double shared_area(const indexed_polygon& a, const indexed_polygon& b);

/// A polygon a ten-millionth of a millimetre beside its place.
indexed_polygon moved_aside(std::vector<point2> points);

}  // namespace kvt
