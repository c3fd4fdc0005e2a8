// study_condition: what a design of a study has to be, a quantity compared with a number.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kvt {

enum class comparison { less, at_most, equal, at_least, greater, other };

struct study_condition {
    std::string quantity;
    comparison compared = comparison::at_most;
    double limit = 0.0;

    /// A quantity that a design does not have meets nothing.
    bool is_met(std::optional<double> value) const;
    /// By how much a value misses the condition, 0 where it is met; `other` misses by 1.
    double missed_by(double value) const;
};

/// "outer_diameter<=58", with <, <=, =, ==, >=, > or !=. Throws study_problem for anything else.
study_condition study_condition_of(std::string_view text);

/// Which way a quantity is wanted.
struct study_aim {
    std::string quantity;
    bool is_largest_best = false;
};

/// "ripple:min" or "capacity:max". Throws study_problem for anything else.
study_aim study_aim_of(std::string_view text);

}  // namespace kvt
