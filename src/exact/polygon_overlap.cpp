#include "exact/polygon_overlap.hpp"

#include "exact/plane.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace kvt {

namespace {

double signed_area(const std::vector<point2>& points) {
    double twice = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        twice += cross(points[i], points[(i + 1) % points.size()]);
    }
    return twice / 2.0;
}

point2 on_the_way(const point2& a, const point2& b, double share) {
    return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

/// The part of the area integral that the edges of one polygon inside another have.
double edges_inside(const indexed_polygon& edges, const indexed_polygon& other) {
    double twice = 0.0;
    std::vector<double> shares;
    const std::vector<point2>& points = edges.points();
    for (std::size_t i = 0; i < points.size(); ++i) {
        const point2& a = points[i];
        const point2& b = points[i + 1 == points.size() ? 0 : i + 1];
        shares.assign({0.0, 1.0});
        other.add_crossings(a, b, shares);
        std::ranges::sort(shares);
        for (std::size_t k = 0; k + 1 < shares.size(); ++k) {
            const double middle = (shares[k] + shares[k + 1]) / 2.0;
            if (shares[k] < shares[k + 1] && other.contains(on_the_way(a, b, middle))) {
                twice += cross(on_the_way(a, b, shares[k]), on_the_way(a, b, shares[k + 1]));
            }
        }
    }
    return twice / 2.0;
}

}  // namespace

indexed_polygon::indexed_polygon(std::vector<point2> points) : points_(std::move(points)) {
    if (signed_area(points_) < 0.0) {
        std::ranges::reverse(points_);
    }
    if (points_.empty()) {
        return;
    }
    measure();
    sort_into_bands();
}

void indexed_polygon::measure() {
    const auto [lowest, highest] = std::ranges::minmax_element(points_, {}, &point2::y);
    bottom_ = lowest->y;
    top_ = highest->y;
    const auto [leftmost, rightmost] = std::ranges::minmax_element(points_, {}, &point2::x);
    left_ = leftmost->x;
    right_ = rightmost->x;
}

void indexed_polygon::sort_into_bands() {
    const auto for_each_band = [&](const auto& act) {
        for (std::size_t edge = 0; edge < points_.size(); ++edge) {
            const auto [low, high] = std::minmax(points_[edge].y, end_of(edge).y);
            const std::size_t last = band_of(high);
            for (std::size_t band = band_of(low); band <= last; ++band) {
                act(band, edge);
            }
        }
    };
    for_each_band([&](std::size_t band, std::size_t) { ++band_starts_[band + 1]; });
    std::partial_sum(band_starts_.begin(), band_starts_.end(), band_starts_.begin());
    edges_.resize(band_starts_.back());
    std::array<std::size_t, BANDS> next = {};
    std::copy_n(band_starts_.begin(), BANDS, next.begin());
    for_each_band([&](std::size_t band, std::size_t edge) { edges_[next[band]++] = edge; });
}

std::span<const std::size_t> indexed_polygon::edges_in(std::size_t band) const {
    return std::span(edges_).subspan(band_starts_[band],
                                     band_starts_[band + 1] - band_starts_[band]);
}

bool indexed_polygon::may_meet(const indexed_polygon& other) const {
    return !points_.empty() && !other.points_.empty() && bottom_ <= other.top_ &&
           other.bottom_ <= top_ && left_ <= other.right_ && other.left_ <= right_;
}

std::size_t indexed_polygon::band_of(double y) const {
    const double share = top_ > bottom_ ? (y - bottom_) / (top_ - bottom_) : 0.0;
    return static_cast<std::size_t>(
        std::clamp(share * static_cast<double>(BANDS), 0.0, static_cast<double>(BANDS - 1)));
}

double indexed_polygon::area() const {
    return signed_area(points_);
}

bool indexed_polygon::contains(const point2& point) const {
    if (points_.empty() || point.y < bottom_ || point.y > top_ || point.x < left_ ||
        point.x > right_) {
        return false;
    }
    bool is_inside = false;
    for (const std::size_t edge : edges_in(band_of(point.y))) {
        const point2& a = points_[edge];
        const point2& b = end_of(edge);
        if ((a.y > point.y) != (b.y > point.y) &&
            point.x < a.x + (b.x - a.x) * (point.y - a.y) / (b.y - a.y)) {
            is_inside = !is_inside;
        }
    }
    return is_inside;
}

void indexed_polygon::add_crossings(const point2& a, const point2& b,
                                    std::vector<double>& shares) const {
    const auto [low, high] = std::minmax(a.y, b.y);
    if (points_.empty() || high < bottom_ || low > top_ || std::max(a.x, b.x) < left_ ||
        std::min(a.x, b.x) > right_) {
        return;
    }
    const point2 way = difference(b, a);
    const std::size_t last = band_of(high);
    for (std::size_t band = band_of(low); band <= last; ++band) {
        for (const std::size_t edge : edges_in(band)) {
            const point2& c = points_[edge];
            const point2 other = difference(end_of(edge), c);
            const double turn = cross(way, other);
            if (turn == 0.0) {
                continue;
            }
            const point2 apart = difference(c, a);
            const double share = cross(apart, other) / turn;
            const double on_other = cross(apart, way) / turn;
            if (share > 0.0 && share < 1.0 && on_other >= 0.0 && on_other <= 1.0) {
                shares.push_back(share);
            }
        }
    }
}

double shared_area(const indexed_polygon& a, const indexed_polygon& b) {
    return a.may_meet(b) ? edges_inside(a, b) + edges_inside(b, a) : 0.0;
}

indexed_polygon moved_aside(std::vector<point2> points) {
    constexpr point2 ASIDE = {1.0e-7, 0.61e-7};
    for (point2& point : points) {
        point = {point.x + ASIDE.x, point.y + ASIDE.y};
    }
    return indexed_polygon(std::move(points));
}

}  // namespace kvt
