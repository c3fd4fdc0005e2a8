// A pocket, and the region of it that a cutter's centre may reach.
// Source: docs/formulas/written_files.md, "Pocket".
#pragma once

#include "geometry/point2.hpp"

#include <cstddef>
#include <vector>

namespace kvt {

/// A pocket between two arcs, mm. The clearing arcs run about `centre`.
struct pocket_shape {
    std::vector<point2> outline;
    point2 centre;
    double inner_r = 0.0, outer_r = 0.0;
    double fillet_r = 0.0;  ///< f, of the corners
    double tool_radius = 0.0;
};

/// How much nearer to the outline than asked for a point of a moved outline may come, mm: the
/// corners of the half degree steps.
inline constexpr double POCKET_TOLERANCE_MM = 0.002;

double segment_distance(point2 point, point2 start, point2 end);

/// A closed outline and the distances from it, mm. A grid of cells keeps the queries short.
class pocket_region {
  public:
    /// The outline's points; a last point that repeats the first one is left out. Needs three
    /// points or more: throws subscript_out_of_range otherwise.
    explicit pocket_region(std::vector<point2> outline);

    const std::vector<point2>& outline() const { return outline_; }
    /// Whether the outline runs counterclockwise, its inside on the left.
    bool counterclockwise() const { return counterclockwise_; }
    bool contains(point2 point) const;
    /// Whether no point of the outline lies nearer than `distance`.
    bool is_clear(point2 point, double distance) const;
    /// Whether a straight move stays inside and at least `distance` from the outline.
    bool is_clear_move(point2 start, point2 end, double distance) const;

  private:
    struct cell_range {
        int first_column, last_column, first_row, last_row;
    };

    void fill_cells();
    cell_range cells_near(point2 low, point2 high, double distance) const;
    point2 end_of(std::size_t segment) const { return outline_[(segment + 1) % outline_.size()]; }
    /// Of a cell in cells_.
    std::size_t place_of(int column, int row) const;
    const std::vector<std::size_t>& cell(int column, int row) const;

    std::vector<point2> outline_;
    bool counterclockwise_ = true;
    point2 low_, high_;
    double cell_size_ = 1.0;
    int columns_ = 1, rows_ = 1;
    std::vector<std::vector<std::size_t>> cells_;  // segments that touch each cell, row by row
    std::vector<std::vector<std::size_t>> row_segments_;
};

}  // namespace kvt
