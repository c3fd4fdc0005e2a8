#include "views/model/picture_grid.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace kvt {

namespace {

/// What lies in a section's plane counts as left by it, mm.
constexpr float IN_PLANE = 1e-4F;
/// Twice the area below which the rows tell which face of a triangle is seen, pixels^2.
constexpr double NEARLY_FROM_ITS_SIDE = 1e-3;

/// The first row or column of a picture whose centre is not before a place.
int first_centre(double place, int lowest, int highest) {
    return static_cast<int>(std::ceil(
        std::clamp(place - 0.5, static_cast<double>(lowest), static_cast<double>(highest))));
}

/// A part of a row that one triangle covers, with its depths.
struct covered_row {
    std::size_t first;
    std::size_t count;
    float depth, depth_per_x, nearest, farthest;

    float depth_at(std::size_t i) const {
        return std::clamp(depth + depth_per_x * static_cast<float>(i), nearest, farthest);
    }
};

covered_row covered(const picture_grid& grid, const shown_surface& plane, int y, int first,
                    int end) {
    const double depth = plane.corner.depth + plane.depth_per_x * (first + 0.5 - plane.corner.x) +
                         plane.depth_per_y * (y + 0.5 - plane.corner.y);
    return {grid.index(first, y),
            static_cast<std::size_t>(end - first),
            static_cast<float>(depth),
            static_cast<float>(plane.depth_per_x),
            static_cast<float>(plane.nearest),
            static_cast<float>(plane.farthest)};
}

void take_row(picture_grid& grid, const covered_row& row, std::uint32_t surface) {
    float* const depths = grid.depth.data() + row.first;
    std::uint32_t* const surfaces = grid.surface.data() + row.first;
    for (std::size_t i = 0; i < row.count; ++i) {
        const float depth = row.depth_at(i);
        const bool is_nearer = depth < depths[i];
        depths[i] = is_nearer ? depth : depths[i];
        surfaces[i] = is_nearer ? surface : surfaces[i];
    }
}

void take_cut_row(picture_grid& grid, const covered_row& row, std::uint32_t surface, bool front) {
    for (std::size_t i = 0; i < row.count; ++i) {
        const std::size_t pixel = row.first + i;
        const float depth = row.depth_at(i);
        if (depth < grid.from[pixel] - IN_PLANE) {
            continue;
        }
        grid.entered[pixel] = static_cast<std::int8_t>(grid.entered[pixel] + (front ? 1 : -1));
        if (front && depth <= grid.to[pixel] + IN_PLANE && depth < grid.depth[pixel]) {
            grid.depth[pixel] = depth;
            grid.surface[pixel] = surface;
        }
    }
}

}  // namespace

double shown_surface::depth_at(double x, double y) const {
    return std::clamp(corner.depth + depth_per_x * (x - corner.x) + depth_per_y * (y - corner.y),
                      nearest, farthest);
}

picture_grid::picture_grid(int columns, int rows, bool has_sections)
    : width(columns), height(rows) {
    const std::size_t count = index(0, rows);
    depth.assign(count, std::numeric_limits<float>::infinity());
    surface.assign(count, NO_SURFACE);
    if (has_sections) {
        from.resize(count);
        to.resize(count);
        entered.resize(count);
    }
}

filled_triangle::side::side(const picture_point& upper, const picture_point& lower)
    : x(upper.x),
      y(upper.y),
      x_per_y(lower.y > upper.y ? (lower.x - upper.x) / (lower.y - upper.y) : 0.0) {}

filled_triangle::filled_triangle(const picture_point& a, const picture_point& b,
                                 const picture_point& c, std::uint32_t surface)
    : surface_(surface) {
    std::array corners = {&a, &b, &c};
    bool swapped = false;
    const auto order = [&](std::size_t i, std::size_t j) {
        if (corners[j]->y < corners[i]->y) {
            std::swap(corners[i], corners[j]);
            swapped = !swapped;
        }
    };
    order(0, 1);
    order(1, 2);
    order(0, 1);
    whole_ = {*corners[0], *corners[2]};
    upper_ = {*corners[0], *corners[1]};
    lower_ = {*corners[1], *corners[2]};
    top_ = corners[0]->y;
    middle_ = corners[1]->y;
    bottom_ = corners[2]->y;
    // Top, middle, bottom run clockwise on the screen when the middle is right of the whole side;
    // a front runs counter-clockwise.
    front_when_whole_is_left_ = swapped;
    const double area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    is_turned_away_ = area > NEARLY_FROM_ITS_SIDE;
}

void filled_triangle::fill(picture_grid& grid, const grid_rows& rows,
                           const shown_surface& plane) const {
    const int end = first_centre(bottom_, rows.first, rows.end);
    for (int y = first_centre(top_, rows.first, rows.end); y < end; ++y) {
        const double row = y + 0.5;
        const double whole = whole_.at(row);
        const double bent = (row < middle_ ? upper_ : lower_).at(row);
        const bool is_front = (whole < bent) == front_when_whole_is_left_;
        const int first = first_centre(std::min(whole, bent), 0, grid.width);
        const int past = first_centre(std::max(whole, bent), 0, grid.width);
        if (past <= first) {
            continue;
        }
        const covered_row pixels = covered(grid, plane, y, first, past);
        if (grid.has_sections()) {
            take_cut_row(grid, pixels, surface_, is_front);
        } else if (is_front) {
            take_row(grid, pixels, surface_);
        }
    }
}

void take_cuts(picture_grid& grid, const grid_rows& rows, std::uint32_t surface) {
    const std::size_t end = grid.index(0, rows.end);
    for (std::size_t pixel = grid.index(0, rows.first); pixel < end; ++pixel) {
        const float from = grid.from[pixel];
        if (grid.entered[pixel] < 0 && from <= grid.to[pixel] && from < grid.depth[pixel]) {
            grid.depth[pixel] = from;
            grid.surface[pixel] = surface;
        }
        grid.entered[pixel] = 0;
    }
}

}  // namespace kvt
