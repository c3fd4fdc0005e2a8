// number_range: what a formula can give while one of its numbers lies between two bounds.
// Source: docs/formulas/design_assist.md, "Passing over steps".
#pragma once

namespace kvt {

/// All numbers from low to high. The rounding of the bounds is not covered: widen by the error that
/// matters.
struct number_range {
    double low = 0.0, high = 0.0;

    bool has(double number) const { return !(low > number) && !(high < number); }
};

number_range widened(const number_range& range, double by);

number_range operator+(const number_range& a, const number_range& b);
number_range operator-(const number_range& a, const number_range& b);
number_range operator*(const number_range& a, const number_range& b);
number_range operator*(const number_range& a, double factor);
/// Not a number when the divisor has 0: such a range compares with nothing.
number_range operator/(const number_range& a, const number_range& b);
/// The squares of the numbers of a range.
number_range square_of(const number_range& a);

}  // namespace kvt
