// quadrature: integrals and extremes of smooth functions of one variable.
#pragma once

#include <functional>
#include <vector>

namespace kvt {

using real_function = std::function<double(double)>;

/// The integral from a to b by Gauss-Legendre with eight points on each of `panels` equal pieces:
/// exact to rounding for functions that a polynomial of degree 15 follows on a piece.
double integral(const real_function& f, double a, double b, int panels);

struct extreme {
    double at = 0.0, value = 0.0;
};

/// The largest value between a and b, both included, of a function that has at most one bend
/// upwards on two neighbouring ones of `steps` equal pieces: the best of the steps, then a golden
/// section around it until its place is known to 1e-9 of the range.
extreme largest_between(const real_function& f, double a, double b, int steps);
/// The same of a function whose values at a, at each end of a step and at b are known.
extreme largest_between(const real_function& f, double a, double b,
                        const std::vector<double>& values);
/// The end of step i = 0 .. steps.
double step_end(double a, double b, int i, int steps);
/// The smallest value likewise.
extreme smallest_between(const real_function& f, double a, double b, int steps);

}  // namespace kvt
