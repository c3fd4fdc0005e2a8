#include "app/study/study_condition.hpp"

#include "app/study/study_problem.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace kvt {

namespace {

struct comparison_row {
    std::string_view sign;
    comparison compared;
};
/// Longer signs first.
constexpr std::array COMPARISONS = {
    comparison_row{"<=", comparison::at_most}, comparison_row{">=", comparison::at_least},
    comparison_row{"==", comparison::equal},   comparison_row{"!=", comparison::other},
    comparison_row{"<", comparison::less},     comparison_row{">", comparison::greater},
    comparison_row{"=", comparison::equal},
};

double limit_of(std::string_view text, std::string_view condition) {
    try {
        return number_of_text(text);
    } catch (const run_time_error&) {
        throw study_problem("no_number_in_condition", {std::string(condition), std::string(text)});
    }
}

}  // namespace

bool study_condition::is_met(std::optional<double> value) const {
    if (!value) {
        return false;
    }
    switch (compared) {
        case comparison::less:
            return *value < limit;
        case comparison::at_most:
            return *value <= limit;
        case comparison::equal:
            return *value == limit;
        case comparison::at_least:
            return *value >= limit;
        case comparison::greater:
            return *value > limit;
        case comparison::other:
            break;
    }
    return *value != limit;
}

double study_condition::missed_by(double value) const {
    if (is_met(value)) {
        return 0.0;
    }
    return compared == comparison::other ? 1.0 : std::abs(value - limit);
}

study_condition study_condition_of(std::string_view text) {
    const std::size_t place = text.find_first_of("<>=!");
    if (place != 0 && place != std::string_view::npos) {
        const std::string_view behind = text.substr(place);
        const auto row = std::ranges::find_if(COMPARISONS, [&](const comparison_row& candidate) {
            return behind.starts_with(candidate.sign);
        });
        if (row != COMPARISONS.end()) {
            return {std::string(text.substr(0, place)), row->compared,
                    limit_of(behind.substr(row->sign.size()), text)};
        }
    }
    throw study_problem("no_condition", {std::string(text)});
}

study_aim study_aim_of(std::string_view text) {
    const std::size_t colon = text.rfind(':');
    if (colon != std::string_view::npos && colon > 0) {
        const std::string_view word = text.substr(colon + 1);
        if (word == "max" || word == "min") {
            return {std::string(text.substr(0, colon)), word == "max"};
        }
    }
    throw study_problem("no_aim", {std::string(text)});
}

}  // namespace kvt
