#include "support/cad/contour_grid.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kvt {

namespace {

constexpr long CELLS_ALONG = 200;

/// Square of the distance from the line between two points.
double squared_distance(point2 from, point2 start, point2 end) {
    const double dx = end.x - start.x, dy = end.y - start.y;
    const double x = from.x - start.x, y = from.y - start.y;
    const double length_2 = dx * dx + dy * dy;
    const double share = length_2 == 0.0 ? 0.0 : std::clamp((x * dx + y * dy) / length_2, 0.0, 1.0);
    return (x - share * dx) * (x - share * dx) + (y - share * dy) * (y - share * dy);
}

}  // namespace

contour_grid::contour_grid(const std::vector<std::vector<point2>>& closed_contours) {
    for (const std::vector<point2>& contour : closed_contours) {
        for (std::size_t i = 0; i < contour.size(); ++i) {
            sides_.push_back({contour[i], contour[(i + 1) % contour.size()]});
        }
    }
    constexpr double FAR = std::numeric_limits<double>::infinity();
    lowest_ = {FAR, FAR};
    highest_ = {-FAR, -FAR};
    for (const side& one : sides_) {
        lowest_ = {std::min(lowest_.x, one.start.x), std::min(lowest_.y, one.start.y)};
        highest_ = {std::max(highest_.x, one.start.x), std::max(highest_.y, one.start.y)};
    }
    size_ = std::max(highest_.x - lowest_.x, highest_.y - lowest_.y) / CELLS_ALONG;
    columns_ = cell_of(highest_).column + 1;
    rows_ = cell_of(highest_).row + 1;
    cells_.resize(static_cast<std::size_t>(columns_ * rows_));
    for (std::size_t i = 0; i < sides_.size(); ++i) {
        put_into_cells(i);
    }
}

contour_grid::cell contour_grid::cell_of(point2 place) const {
    return {static_cast<long>(std::floor((place.x - lowest_.x) / size_)),
            static_cast<long>(std::floor((place.y - lowest_.y) / size_))};
}

/// Into every cell of the side's box.
void contour_grid::put_into_cells(std::size_t number) {
    const cell a = cell_of(sides_[number].start), b = cell_of(sides_[number].end);
    for (long row = std::min(a.row, b.row); row <= std::max(a.row, b.row); ++row) {
        for (long column = std::min(a.column, b.column); column <= std::max(a.column, b.column);
             ++column) {
            cells_[static_cast<std::size_t>(row * columns_ + column)].push_back(number);
        }
    }
}

const std::vector<std::size_t>& contour_grid::sides_in(cell at) const {
    static const std::vector<std::size_t> NONE;
    const bool is_inside = at.column >= 0 && at.column < columns_ && at.row >= 0 && at.row < rows_;
    return is_inside ? cells_[static_cast<std::size_t>(at.row * columns_ + at.column)] : NONE;
}

double contour_grid::nearest_in_ring(point2 from, cell around, long ring) const {
    double nearest = std::numeric_limits<double>::infinity();
    for (long row = -ring; row <= ring; ++row) {
        const long step = std::abs(row) == ring ? 1 : std::max(1L, 2 * ring);
        for (long column = -ring; column <= ring; column += step) {
            for (const std::size_t i : sides_in({around.column + column, around.row + row})) {
                nearest = std::min(nearest, squared_distance(from, sides_[i].start, sides_[i].end));
            }
        }
    }
    return std::sqrt(nearest);
}

/// Ring by ring around the cell of the point, until no nearer one can hold a nearer side.
double contour_grid::distance(point2 from) const {
    const cell around = cell_of(from);
    const long last = columns_ + rows_ + std::abs(around.column) + std::abs(around.row);
    double nearest = std::numeric_limits<double>::infinity();
    for (long ring = 0; ring <= last && nearest > static_cast<double>(ring - 1) * size_; ++ring) {
        nearest = std::min(nearest, nearest_in_ring(from, around, ring));
    }
    return nearest;
}

/// The ray goes to the right. Of a side one end belongs to it.
bool contour_grid::encloses(point2 place) const {
    const cell at = cell_of(place);
    std::vector<std::size_t> crossed;
    for (long column = std::max(0L, at.column); column < columns_; ++column) {
        for (const std::size_t i : sides_in({column, at.row})) {
            const auto& [start, end] = sides_[i];
            const bool spans = (start.y > place.y) != (end.y > place.y);
            if (spans &&
                start.x + (place.y - start.y) / (end.y - start.y) * (end.x - start.x) > place.x) {
                crossed.push_back(i);
            }
        }
    }
    std::ranges::sort(crossed);
    const auto repeated = std::unique(crossed.begin(), crossed.end());
    return (repeated - crossed.begin()) % 2 == 1;
}

}  // namespace kvt
