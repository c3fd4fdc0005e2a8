// model_lines: the edges and curves of a model over its surfaces, the hidden ones left out.
#pragma once

#include "views/model/picture_grid.hpp"

#include <cstdint>
#include <vector>

namespace kvt {

/// Whether nothing lies in front of a place, nor a section took it. A place lies on its surfaces,
/// so it is compared with the plane of what its pixel shows, not with the depth of the pixel's
/// centre; it may be deeper by `reach`, mm. False outside the picture.
bool is_seen(const picture_grid& grid, const std::vector<shown_surface>& surfaces,
             const picture_point& place, double reach);

/// How lines are drawn over a grid whose surfaces are known.
struct line_pen {
    const std::vector<shown_surface>& surfaces;  ///< by their numbers in the grid
    std::uint32_t pixel;
    int width;  ///< pixels, 1 or more
    /// How much deeper than a surface a line may lie and still be seen on it, mm.
    double reach;
};

/// Draws what is seen of a straight line in the rows of a picture; its pixels stand as those of the
/// grid.
void draw_line(const picture_grid& grid, const grid_rows& rows, const picture_point& start,
               const picture_point& end, const line_pen& pen, std::vector<std::uint32_t>& pixels);

}  // namespace kvt
