// quarter_steps: a search in steps of 0.25 mm that passes over the steps which cannot end it.
// Source: docs/formulas/design_assist.md, "Passing over steps".
#pragma once

namespace kvt {

/// The step of the searches, mm, in inch mode too.
inline constexpr double QUARTER_MM = 0.25;

/// value + step. Throws overflow when the sum is the value itself: the search would never end.
double next_quarter(double value, double step);

/// Whether the values from, from + step, ..., to are reached without a rounding, and so are those
/// of single steps: both lie between the same two powers of two and below 2^51.
bool are_exact_quarters(double from, double to);

/// The value from which single steps of +0.25 or -0.25 go on: as many steps as `none_ends(from,
/// to)` allows are made at once. none_ends says that no value behind `from` up to and with `to` can
/// end the search or fail; it may say no at any time, since the single steps then decide. A search
/// over metres or kilometres thus ends at once, at the very value at which single steps end it.
template <typename predicate>
double pass_over_quarters(double value, double step, const predicate& none_ends) {
    double count = 1.0;
    bool growing = true;
    while (count >= 1.0) {
        const double to = value + step * count;
        if (are_exact_quarters(value, to) && none_ends(value, to)) {
            value = to;
            count = growing ? count * 2.0 : count;
        } else {
            growing = false;
            count = count / 2.0;
        }
    }
    return value;
}

}  // namespace kvt
