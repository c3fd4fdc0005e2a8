#include "exact/quadrature.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace kvt {

namespace {

struct node {
    double at, weight;
};

/// Abscissas and weights of Gauss-Legendre with eight points on -1 .. 1; the others are mirrored.
constexpr std::array<node, 4> NODES = {{{0.18343464249564980494, 0.36268378337836198297},
                                        {0.52553240991632898582, 0.31370664587788728734},
                                        {0.79666647741362673959, 0.22238103445337447054},
                                        {0.96028985649753623168, 0.10122853629037625915}}};

double panel(const real_function& f, double middle, double half) {
    double sum = 0.0;
    for (const node& each : NODES) {
        sum += each.weight * (f(middle - half * each.at) + f(middle + half * each.at));
    }
    return sum * half;
}

/// Narrows the range around a maximum that lies within it.
extreme golden_section(const real_function& f, double a, double b, double nearness) {
    const double ratio = (std::sqrt(5.0) - 1.0) / 2.0;
    double left = b - ratio * (b - a);
    double right = a + ratio * (b - a);
    double f_left = f(left);
    double f_right = f(right);
    while (b - a > nearness) {
        if (f_left < f_right) {
            a = left;
            left = right;
            f_left = f_right;
            right = a + ratio * (b - a);
            f_right = f(right);
        } else {
            b = right;
            right = left;
            f_right = f_left;
            left = b - ratio * (b - a);
            f_left = f(left);
        }
    }
    const double at = (a + b) / 2.0;
    return {at, f(at)};
}

}  // namespace

double integral(const real_function& f, double a, double b, int panels) {
    const double half = (b - a) / (2.0 * panels);
    double sum = 0.0;
    for (int i = 0; i < panels; ++i) {
        sum += panel(f, a + (2.0 * i + 1.0) * half, half);
    }
    return sum;
}

double step_end(double a, double b, int i, int steps) {
    return i == steps ? b : a + (b - a) / steps * i;
}

extreme largest_between(const real_function& f, double a, double b, int steps) {
    std::vector<double> values;
    values.reserve(static_cast<std::size_t>(steps) + 1);
    for (int i = 0; i <= steps; ++i) {
        values.push_back(f(step_end(a, b, i, steps)));
    }
    return largest_between(f, a, b, values);
}

extreme largest_between(const real_function& f, double a, double b,
                        const std::vector<double>& values) {
    constexpr double NEARNESS = 1e-9;
    const int steps = static_cast<int>(values.size()) - 1;
    const double step = (b - a) / steps;
    extreme best{a, values.front()};
    for (int i = 1; i <= steps; ++i) {
        const double value = values[static_cast<std::size_t>(i)];
        if (value > best.value) {
            best = {step_end(a, b, i, steps), value};
        }
    }
    const extreme refined = golden_section(f, std::max(a, best.at - step),
                                           std::min(b, best.at + step), NEARNESS * (b - a));
    return refined.value > best.value ? refined : best;
}

extreme smallest_between(const real_function& f, double a, double b, int steps) {
    const extreme largest = largest_between([&](double at) { return -f(at); }, a, b, steps);
    return {largest.at, -largest.value};
}

}  // namespace kvt
