#include "app/study/study_variable.hpp"

#include "app/program.hpp"
#include "app/study/study_problem.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "base/stepped_number.hpp"
#include "core/entry_numbers.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <optional>

namespace kvt {

namespace {

std::vector<std::string> split(std::string_view text, char mark) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == mark) {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

double end_of_range(const std::string& text, std::string_view range) {
    try {
        return number_of_text(text);
    } catch (const run_time_error&) {
        throw study_problem("no_number_in_range", {std::string(range), text});
    }
}

/// As many decimals as the first number and the step are written with; nothing for an exponent.
std::optional<int> decimals_of_steps(const std::string& first, const std::string& step) {
    const std::optional<int> of_first = decimals_of(first);
    const std::optional<int> of_step = decimals_of(step);
    return of_first && of_step ? std::optional(std::max(*of_first, *of_step)) : std::nullopt;
}

/// A step that ends beside the last number by rounding alone ends at it.
constexpr double PART_OF_A_STEP = 1e-9;

/// first + i step for i = 0 .. Int((last - first) / step), each as the decimal number that it is
/// meant to be.
std::vector<std::string> stepped_levels(std::string_view range,
                                        const std::vector<std::string>& ends) {
    const double first = end_of_range(ends[0], range);
    const double last = end_of_range(ends[1], range);
    const double step = end_of_range(ends[2], range);
    const double steps = step > 0.0 ? std::floor((last - first) / step + PART_OF_A_STEP) : -1.0;
    if (!(steps >= 0.0) || steps >= MOST_LEVELS) {
        throw study_problem("no_steps", {std::string(range)});
    }
    const std::optional<int> decimals = decimals_of_steps(ends[0], ends[2]);
    const double unit = decimals ? std::pow(10.0, *decimals) : 1.0;
    const auto level = [&](double i) {
        const double number = first + i * step;
        return decimals ? std::nearbyint(number * unit) / unit : number;
    };
    std::vector<std::string> levels;
    for (double i = 0.0; i <= steps; ++i) {
        levels.push_back(number_text(level(i)));
    }
    return levels;
}

void set_range(std::string_view range, study_variable& variable) {
    std::vector<std::string> ends = split(range, ':');
    if (ends.size() == 2 && number_kind_of(variable.control) == number_kind::whole) {
        ends.emplace_back("1");
    }
    if (ends.size() == 3) {
        variable.levels = stepped_levels(range, ends);
        return;
    }
    if (ends.size() != 2) {
        throw study_problem("no_range", {std::string(range)});
    }
    variable.lowest = end_of_range(ends[0], range);
    variable.highest = end_of_range(ends[1], range);
    if (!(variable.lowest < variable.highest)) {
        throw study_problem("falling_range", {std::string(range)});
    }
}

/// A range is one of numbers: the first text stands for all of them.
void check_typed(const study_variable& variable) {
    std::vector<std::string> texts = variable.levels;
    if (variable.is_continuous()) {
        texts = {number_text(variable.lowest)};
    }
    for (const std::string& text : texts) {
        const std::string problem = typed_entry_problem({variable.control, text});
        if (!problem.empty()) {
            throw study_problem("typed", {problem});
        }
    }
}

}  // namespace

study_variable study_variable_of(std::string_view text) {
    const std::size_t equals = text.find('=');
    if (equals == std::string_view::npos || equals + 1 == text.size()) {
        throw study_problem("no_assignment", {std::string(text)});
    }
    study_variable variable;
    variable.control = text.substr(0, equals);
    const std::string_view values = text.substr(equals + 1);
    if (values.find(':') == std::string_view::npos) {
        variable.levels = split(values, ',');
    } else {
        set_range(values, variable);
    }
    check_typed(variable);
    return variable;
}

std::string unit_of_variable(const study_variable& variable, const program& base) {
    const entry_field* field = find_entry(variable.control);
    return field == nullptr ? "" : entry_unit(*field, base.captions, base.app_state);
}

std::vector<typed_entry> typed_entries(const std::vector<study_variable>& variables,
                                       const std::vector<std::string>& texts) {
    std::vector<typed_entry> typed;
    typed.reserve(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        typed.push_back({variables[i].control, texts[i]});
    }
    return typed;
}

std::string text_at(const study_variable& variable, double place) {
    if (variable.is_continuous()) {
        return number_text(variable.lowest + place * (variable.highest - variable.lowest));
    }
    const auto count = static_cast<double>(variable.levels.size());
    const double level = std::min(std::floor(place * count), count - 1.0);
    return variable.levels[static_cast<std::size_t>(level)];
}

}  // namespace kvt
