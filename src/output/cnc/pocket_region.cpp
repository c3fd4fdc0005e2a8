#include "output/cnc/pocket_region.hpp"

#include "base/checked_math.hpp"
#include "geometry/circle_arc.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {

namespace {

/// Cells along the longer side of the grid.
constexpr int CELLS = 64;

double cross(point2 a, point2 b) {
    return a.x * b.y - a.y * b.x;
}

double twice_signed_area(const std::vector<point2>& outline) {
    double area = 0.0;
    for (std::size_t i = 0; i < outline.size(); ++i) {
        area += cross(outline[i], outline[(i + 1) % outline.size()]);
    }
    return area;
}

bool segments_cross(point2 a, point2 b, point2 c, point2 d) {
    const point2 ab = difference(b, a);
    const point2 cd = difference(d, c);
    const bool c_d_apart =
        (cross(ab, difference(c, a)) > 0.0) != (cross(ab, difference(d, a)) > 0.0);
    const bool a_b_apart =
        (cross(cd, difference(a, c)) > 0.0) != (cross(cd, difference(b, c)) > 0.0);
    return c_d_apart && a_b_apart;
}

/// The smallest distance of two straight lines between their ends.
double segments_distance(point2 a, point2 b, point2 c, point2 d) {
    if (segments_cross(a, b, c, d)) {
        return 0.0;
    }
    return std::min({segment_distance(a, c, d), segment_distance(b, c, d),
                     segment_distance(c, a, b), segment_distance(d, a, b)});
}

point2 lowest(point2 a, point2 b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y)};
}

point2 highest(point2 a, point2 b) {
    return {std::max(a.x, b.x), std::max(a.y, b.y)};
}

}  // namespace

double segment_distance(point2 point, point2 start, point2 end) {
    const point2 along = difference(end, start);
    const point2 to = difference(point, start);
    const double t = nearest_share(start, end, point);
    return std::hypot(to.x - t * along.x, to.y - t * along.y);
}

pocket_region::pocket_region(std::vector<point2> outline) : outline_(std::move(outline)) {
    if (outline_.size() > 1 && outline_.front() == outline_.back()) {
        outline_.pop_back();
    }
    if (outline_.size() < 3) {
        throw run_time_error(failure::subscript_out_of_range, "no outline");
    }
    counterclockwise_ = twice_signed_area(outline_) > 0.0;
    fill_cells();
}

void pocket_region::fill_cells() {
    low_ = high_ = outline_.front();
    for (const point2& point : outline_) {
        low_ = lowest(low_, point);
        high_ = highest(high_, point);
    }
    cell_size_ = std::max({high_.x - low_.x, high_.y - low_.y, 1e-6}) / CELLS;
    columns_ = static_cast<int>((high_.x - low_.x) / cell_size_) + 1;
    rows_ = static_cast<int>((high_.y - low_.y) / cell_size_) + 1;
    cells_.resize(static_cast<std::size_t>(columns_) * static_cast<std::size_t>(rows_));
    row_segments_.resize(static_cast<std::size_t>(rows_));
    for (std::size_t i = 0; i < outline_.size(); ++i) {
        const cell_range near =
            cells_near(lowest(outline_[i], end_of(i)), highest(outline_[i], end_of(i)), 0.0);
        for (int row = near.first_row; row <= near.last_row; ++row) {
            row_segments_[static_cast<std::size_t>(row)].push_back(i);
            for (int column = near.first_column; column <= near.last_column; ++column) {
                cells_[place_of(column, row)].push_back(i);
            }
        }
    }
}

pocket_region::cell_range pocket_region::cells_near(point2 low, point2 high,
                                                    double distance) const {
    const auto index = [this](double offset, int count) {
        return static_cast<int>(std::clamp(std::floor(offset / cell_size_), 0.0, count - 1.0));
    };
    return {index(low.x - distance - low_.x, columns_), index(high.x + distance - low_.x, columns_),
            index(low.y - distance - low_.y, rows_), index(high.y + distance - low_.y, rows_)};
}

std::size_t pocket_region::place_of(int column, int row) const {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
}

const std::vector<std::size_t>& pocket_region::cell(int column, int row) const {
    return cells_[place_of(column, row)];
}

bool pocket_region::contains(point2 point) const {
    if (point.x < low_.x || point.x > high_.x || point.y < low_.y || point.y > high_.y) {
        return false;
    }
    bool inside = false;
    const int row = cells_near(point, point, 0.0).first_row;
    for (const std::size_t i : row_segments_[static_cast<std::size_t>(row)]) {
        const point2 a = outline_[i];
        const point2 b = end_of(i);
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x) {
            inside = !inside;
        }
    }
    return inside;
}

bool pocket_region::is_clear(point2 point, double distance) const {
    const cell_range near = cells_near(point, point, distance);
    for (int row = near.first_row; row <= near.last_row; ++row) {
        for (int column = near.first_column; column <= near.last_column; ++column) {
            for (const std::size_t i : cell(column, row)) {
                if (segment_distance(point, outline_[i], end_of(i)) < distance) {
                    return false;
                }
            }
        }
    }
    return true;
}

bool pocket_region::is_clear_move(point2 start, point2 end, double distance) const {
    const cell_range near = cells_near(lowest(start, end), highest(start, end), distance);
    for (int row = near.first_row; row <= near.last_row; ++row) {
        for (int column = near.first_column; column <= near.last_column; ++column) {
            for (const std::size_t i : cell(column, row)) {
                if (segments_distance(start, end, outline_[i], end_of(i)) < distance) {
                    return false;
                }
            }
        }
    }
    return contains(start);
}

}  // namespace kvt
