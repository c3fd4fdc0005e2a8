#include "support/cad/closed_spline.hpp"

#include <cstddef>

namespace kvt {

namespace {

/// Solves a cyclic system of the closed spline by relaxation: its diagonal is twice the rest, so a
/// sweep halves what is left.
std::vector<double> second_derivatives(const std::vector<double>& h,
                                       const std::vector<double>& values) {
    const std::size_t count = values.size();
    std::vector<double> m(count, 0.0);
    for (int sweep = 0; sweep < 60; ++sweep) {
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t before = (i + count - 1) % count, after = (i + 1) % count;
            const double slope = (values[after] - values[i]) / h[i];
            const double slope_before = (values[i] - values[before]) / h[before];
            const double rest = h[before] * m[before] + h[i] * m[after];
            m[i] = (6.0 * (slope - slope_before) - rest) / (2.0 * (h[before] + h[i]));
        }
    }
    return m;
}

/// One coordinate on a span, share of the way from its start.
double on_span(double start, double end, double m_start, double m_end, double h, double share) {
    const double rest = 1.0 - share;
    return rest * start + share * end +
           h * h / 6.0 *
               ((rest * rest * rest - rest) * m_start + (share * share * share - share) * m_end);
}

}  // namespace

std::vector<point2> closed_spline(const std::vector<point2>& points, int parts) {
    const std::size_t count = points.size();
    std::vector<double> h, x, y;
    for (std::size_t i = 0; i < count; ++i) {
        h.push_back(distance(points[i], points[(i + 1) % count]));
        x.push_back(points[i].x);
        y.push_back(points[i].y);
    }
    const std::vector<double> mx = second_derivatives(h, x), my = second_derivatives(h, y);
    std::vector<point2> curve;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t next = (i + 1) % count;
        for (int part = 0; part < parts; ++part) {
            const double share = 1.0 * part / parts;
            curve.push_back({on_span(x[i], x[next], mx[i], mx[next], h[i], share),
                             on_span(y[i], y[next], my[i], my[next], h[i], share)});
        }
    }
    return curve;
}

}  // namespace kvt
