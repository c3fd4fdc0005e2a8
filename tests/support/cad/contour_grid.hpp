// The sides of closed contours, sorted so that thousands of points are compared with thousands of
// sides quickly.
#pragma once

#include "geometry/point2.hpp"

#include <cstddef>
#include <vector>

namespace kvt {

class contour_grid {
  public:
    explicit contour_grid(const std::vector<std::vector<point2>>& closed_contours);

    /// To the nearest side.
    double distance(point2 from) const;
    /// Whether a ray leaves the contours an odd number of times.
    bool encloses(point2 place) const;

  private:
    struct side {
        point2 start, end;
    };
    struct cell {
        long column, row;
    };
    void put_into_cells(std::size_t number);
    cell cell_of(point2 place) const;
    const std::vector<std::size_t>& sides_in(cell at) const;
    double nearest_in_ring(point2 from, cell around, long ring) const;

    std::vector<side> sides_;
    point2 lowest_, highest_;
    double size_ = 1.0;
    long columns_ = 1, rows_ = 1;
    std::vector<std::vector<std::size_t>> cells_;  ///< row by row
};

}  // namespace kvt
