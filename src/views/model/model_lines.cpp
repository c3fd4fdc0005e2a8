#include "views/model/model_lines.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

bool is_seen_in(std::size_t pixel, const picture_grid& grid,
                const std::vector<shown_surface>& surfaces, const picture_point& place,
                double reach) {
    if (grid.has_sections() &&
        (place.depth < grid.from[pixel] - reach || place.depth > grid.to[pixel] + reach)) {
        return false;
    }
    const std::uint32_t number = grid.surface[pixel];
    if (number == NO_SURFACE) {
        return true;
    }
    const shown_surface& surface = surfaces[number];
    const double depth = surface.is_cut ? grid.depth[pixel] : surface.depth_at(place.x, place.y);
    return place.depth <= depth + reach;
}

/// A line along one side of the picture: a step goes from column to column or from row to row.
class stepped_line {
  public:
    stepped_line(const picture_point& start, const picture_point& end)
        : start_(start),
          change_{end.x - start.x, end.y - start.y, end.depth - start.depth},
          goes_by_columns_(std::abs(change_.x) >= std::abs(change_.y)) {}

    bool goes_by_columns() const { return goes_by_columns_; }
    /// From where to where it goes, lower end first.
    std::pair<double, double> ends() const {
        return goes_by_columns_ ? std::minmax({start_.x, start_.x + change_.x})
                                : std::minmax({start_.y, start_.y + change_.y});
    }
    picture_point at(double place) const {
        const double length = goes_by_columns_ ? change_.x : change_.y;
        const double from = goes_by_columns_ ? start_.x : start_.y;
        const double share = length == 0.0 ? 0.0 : (place - from) / length;
        return {start_.x + share * change_.x, start_.y + share * change_.y,
                start_.depth + share * change_.depth};
    }

  private:
    picture_point start_, change_;
    bool goes_by_columns_;
};

int whole_pixel(double place, int lowest, int highest) {
    return static_cast<int>(std::floor(std::clamp(place, lowest - 1.0, highest + 1.0)));
}

bool misses(const grid_rows& rows, const picture_grid& grid, const picture_point& start,
            const picture_point& end, int width) {
    const auto [left, right] = std::minmax(start.x, end.x);
    const auto [top, bottom] = std::minmax(start.y, end.y);
    return right < 0.0 || left > grid.width || bottom < rows.first - width ||
           top > rows.end + width;
}

}  // namespace

bool is_seen(const picture_grid& grid, const std::vector<shown_surface>& surfaces,
             const picture_point& place, double reach) {
    const bool is_inside =
        place.x >= 0.0 && place.y >= 0.0 && place.x < grid.width && place.y < grid.height;
    return is_inside && is_seen_in(grid.index(static_cast<int>(place.x), static_cast<int>(place.y)),
                                   grid, surfaces, place, reach);
}

void draw_line(const picture_grid& grid, const grid_rows& rows, const picture_point& start,
               const picture_point& end, const line_pen& pen, std::vector<std::uint32_t>& pixels) {
    if (misses(rows, grid, start, end, pen.width)) {
        return;
    }
    const stepped_line line(start, end);
    const bool by_columns = line.goes_by_columns();
    const auto [lowest, highest] = line.ends();
    const int length = by_columns ? grid.width : grid.height;
    const int first = std::max(whole_pixel(lowest, 0, length), by_columns ? 0 : rows.first - 1);
    const int last = std::min(whole_pixel(highest, 0, length), by_columns ? length : rows.end);
    for (int step = first; step <= last; ++step) {
        const picture_point place = line.at(std::clamp(step + 0.5, lowest, highest));
        for (int side = 0; side < pen.width; ++side) {
            const int shift = side - pen.width / 2;
            const int x = whole_pixel(place.x, 0, grid.width) + (by_columns ? 0 : shift);
            const int y = whole_pixel(place.y, 0, grid.height) + (by_columns ? shift : 0);
            if (x < 0 || x >= grid.width || y < rows.first || y >= rows.end) {
                continue;
            }
            const std::size_t pixel = grid.index(x, y);
            if (is_seen_in(pixel, grid, pen.surfaces, place, pen.reach)) {
                pixels[pixel] = pen.pixel;
            }
        }
    }
}

}  // namespace kvt
