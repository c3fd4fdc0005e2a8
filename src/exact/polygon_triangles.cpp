#include "exact/polygon_triangles.hpp"

#include "exact/plane.hpp"

#include <cstddef>

namespace kvt {

namespace {

/// Twice the area of a triangle, positive counter-clockwise.
double turn(const point2& a, const point2& b, const point2& c) {
    return cross(difference(b, a), difference(c, a));
}

class ear_cutter {
  public:
    ear_cutter(const std::vector<point2>& points, std::vector<std::uint32_t> polygon)
        : points_(points), polygon_(std::move(polygon)) {}

    std::vector<corner_triple> run() {
        std::size_t at = 0;
        std::size_t refused = 0;
        while (polygon_.size() > 3) {
            at %= polygon_.size();
            // When every corner is refused the polygon touches itself: then any corner goes.
            if (is_ear(at) || refused > polygon_.size()) {
                cut(at);
                refused = 0;
                ++at;  // leave the neighbour for later: triangles stay wide
            } else {
                ++at;
                ++refused;
            }
        }
        triangles_.push_back({polygon_[0], polygon_[1], polygon_[2]});
        return std::move(triangles_);
    }

  private:
    std::size_t before(std::size_t at) const {
        return (at + polygon_.size() - 1) % polygon_.size();
    }
    std::size_t behind(std::size_t at) const { return (at + 1) % polygon_.size(); }
    const point2& place(std::size_t at) const { return points_[polygon_[at]]; }

    bool is_ear(std::size_t at) const {
        const point2& a = place(before(at));
        const point2& b = place(at);
        const point2& c = place(behind(at));
        if (turn(a, b, c) <= 0.0) {
            return false;
        }
        for (std::size_t i = behind(behind(at)); i != before(at); i = behind(i)) {
            const point2& other = place(i);
            if (turn(a, b, other) >= 0.0 && turn(b, c, other) >= 0.0 && turn(c, a, other) >= 0.0) {
                return false;
            }
        }
        return true;
    }

    void cut(std::size_t at) {
        triangles_.push_back({polygon_[before(at)], polygon_[at], polygon_[behind(at)]});
        polygon_.erase(polygon_.begin() + static_cast<std::ptrdiff_t>(at));
    }

    const std::vector<point2>& points_;
    std::vector<std::uint32_t> polygon_;
    std::vector<corner_triple> triangles_;
};

}  // namespace

std::vector<corner_triple> triangles_of(const std::vector<point2>& points,
                                        std::vector<std::uint32_t> polygon) {
    return ear_cutter(points, std::move(polygon)).run();
}

}  // namespace kvt
