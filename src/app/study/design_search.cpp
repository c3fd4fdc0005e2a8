#include "app/study/design_search.hpp"

#include "app/program.hpp"
#include "app/study/front_search.hpp"
#include "app/study/sample_places.hpp"
#include "app/study/study_problem.hpp"
#include "base/loaded_function.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "core/entries.hpp"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace kvt {

namespace {

/// Worse than any value of a quantity, so that a design that misses its conditions never beats one
/// that meets them.
constexpr double MISSED = 1e30;
constexpr double REFUSED = 1e36;

constexpr double USUAL_TOLERANCE = 0.01;
/// The search has converged when so many generations behind each other bring no new design.
constexpr int IDLE_GENERATIONS = 20;

double number_in(std::string_view text, std::string_view target) {
    try {
        return number_of_text(text);
    } catch (const run_time_error&) {
        throw study_problem("no_target", {std::string(target)});
    }
}

/// A range in steps, as if it were typed.
study_variable in_steps(const study_variable& variable, double step) {
    if (!variable.is_continuous()) {
        return variable;
    }
    return study_variable_of(variable.control + "=" + number_text(variable.lowest) + ":" +
                             number_text(variable.highest) + ":" + number_text(step));
}

void add_target(const search_target& target, study_plan& plan) {
    plan.conditions.push_back(
        {target.quantity, comparison::at_least, target.value - target.tolerance});
    plan.conditions.push_back(
        {target.quantity, comparison::at_most, target.value + target.tolerance});
    if (std::ranges::count(plan.recorded, target.quantity) == 0) {
        plan.recorded.push_back(target.quantity);
    }
}

/// The level nearest to a number; the first one for what is none.
std::size_t nearest_level(const study_variable& variable, const std::string& text) {
    const double number = val(commas_to_points(text));
    const auto distance = [&](const std::string& level) {
        return level == text ? -1.0 : std::abs(val(level) - number);
    };
    const auto nearest = std::ranges::min_element(variable.levels, {}, distance);
    return static_cast<std::size_t>(nearest - variable.levels.begin());
}

/// What stands in the project.
std::vector<std::string> present_texts(const study& designs) {
    std::vector<std::string> texts;
    for (const study_variable& variable : designs.plan().variables) {
        const entry_field* field = find_entry(variable.control);
        texts.push_back(field == nullptr ? variable.levels.front()
                                         : designs.base().entries.*field->member);
    }
    return texts;
}

/// The designs of a search as their levels: each is calculated once, in the order in which it is
/// first asked for.
class searched_designs {
  public:
    searched_designs(const study& designs, unsigned jobs,
                     const std::function<void(study_row&&)>& take,
                     const std::atomic<bool>* is_given_up)
        : designs_(designs), jobs_(jobs), take_(take), is_given_up_(is_given_up) {}

    std::uint64_t calculated() const { return known_.size(); }
    bool is_given_up() const { return is_given_up_ != nullptr && *is_given_up_; }

    /// The values of a generation; after giving up those that are missing are as bad as refused
    /// ones.
    std::vector<std::vector<double>> values(const std::vector<level_numbers>& generation) {
        calculate(generation);
        std::vector<std::vector<double>> all;
        for (const level_numbers& levels : generation) {
            const auto known = known_.find(levels);
            all.push_back(known == known_.end() ? refused() : known->second);
        }
        return all;
    }

    void calculate(const std::vector<level_numbers>& generation) {
        const std::vector<level_numbers> fresh = unknown_of(generation);
        using work = ordered_work<study_row>;
        const auto make_worker = [&]() -> work::worker {
            return [&, tried = std::make_shared<program>()](std::uint64_t i) {
                return designs_.calculate(texts_of(fresh[static_cast<std::size_t>(i)]), *tried);
            };
        };
        work({0, fresh.size()}, jobs_)
            .run(
                make_worker,
                [&](std::uint64_t i, study_row&& row) {
                    row.number = known_.size();
                    known_[fresh[static_cast<std::size_t>(i)]] = values_of(row);
                    take_(std::move(row));
                    return true;
                },
                is_given_up_);
    }

  private:
    std::vector<level_numbers> unknown_of(const std::vector<level_numbers>& generation) const {
        std::vector<level_numbers> fresh;
        std::set<level_numbers> seen;
        for (const level_numbers& levels : generation) {
            if (!known_.contains(levels) && seen.insert(levels).second) {
                fresh.push_back(levels);
            }
        }
        return fresh;
    }

    std::vector<std::string> texts_of(const level_numbers& levels) const {
        std::vector<std::string> texts;
        for (std::size_t i = 0; i < levels.size(); ++i) {
            texts.push_back(designs_.plan().variables[i].levels[levels[i]]);
        }
        return texts;
    }

    std::vector<double> refused() const {
        return std::vector<double>(designs_.plan().aims.size(), REFUSED);
    }

    /// Each to be as small as can be.
    std::vector<double> values_of(const study_row& row) const {
        const std::vector<study_aim>& aims = designs_.plan().aims;
        std::vector<double> values = refused();
        if (!row.result.is_accepted() || !std::isfinite(row.missed_by)) {
            return values;
        }
        for (std::size_t i = 0; i < aims.size(); ++i) {
            const std::optional<double> value = row.values[designs_.column_of_aim(i)];
            if (!value) {
                return refused();
            }
            const double wanted = aims[i].is_largest_best ? -*value : *value;
            values[i] = row.meets_conditions ? wanted : MISSED * (1.0 + row.missed_by);
        }
        return values;
    }

    const study& designs_;
    unsigned jobs_;
    const std::function<void(study_row&&)>& take_;
    const std::atomic<bool>* is_given_up_;
    std::map<level_numbers, std::vector<double>> known_;
};

level_numbers counts_of_levels(const study& designs) {
    level_numbers counts;
    for (const study_variable& variable : designs.plan().variables) {
        counts.push_back(variable.levels.size());
    }
    return counts;
}

/// The number of all designs, or a number beyond `most`.
std::uint64_t count_up_to(const level_numbers& counts, std::uint64_t most) {
    std::uint64_t count = 1;
    for (const std::size_t levels : counts) {
        if (count > most / levels) {
            return most + 1;
        }
        count *= levels;
    }
    return count;
}

level_numbers levels_of_number(const level_numbers& counts, std::uint64_t number) {
    level_numbers levels(counts.size());
    for (std::size_t i = counts.size(); i-- > 0;) {
        levels[i] = static_cast<std::size_t>(number % counts[i]);
        number /= counts[i];
    }
    return levels;
}

void calculate_all(const level_numbers& counts, std::uint64_t count, searched_designs& designs) {
    std::vector<level_numbers> all;
    for (std::uint64_t number = 0; number < count; ++number) {
        all.push_back(levels_of_number(counts, number));
    }
    designs.calculate(all);
}

/// Some sqrt(budget), a multiple of four.
std::size_t size_of_generation(std::uint64_t budget) {
    constexpr double LEAST = 8.0;
    constexpr double MOST = 400.0;
    const double size = std::clamp(std::sqrt(static_cast<double>(budget)), LEAST, MOST);
    return 4 * static_cast<std::size_t>(std::ceil(size / 4.0));
}

/// What is there already, then a Latin hypercube.
std::vector<level_numbers> first_generation(const study& designs, const search_plan& plan) {
    const std::vector<study_variable>& variables = designs.plan().variables;
    std::vector<std::vector<std::string>> there = plan.first;
    there.push_back(present_texts(designs));
    std::vector<level_numbers> generation;
    for (const std::vector<std::string>& texts : there) {
        level_numbers& levels = generation.emplace_back();
        for (std::size_t i = 0; i < variables.size(); ++i) {
            levels.push_back(nearest_level(variables[i], texts[i]));
        }
    }
    const std::size_t size = size_of_generation(plan.budget);
    for (std::size_t number = 0; generation.size() < size; ++number) {
        const std::vector<double> place = latin_place(number, size, variables.size(), plan.seed);
        level_numbers& levels = generation.emplace_back();
        for (std::size_t i = 0; i < variables.size(); ++i) {
            const auto count = static_cast<double>(variables[i].levels.size());
            levels.push_back(static_cast<std::size_t>(std::floor(place[i] * count)));
        }
    }
    generation.resize(size);
    return generation;
}

void search_with(const std::filesystem::path& module, const study& designs, const search_plan& plan,
                 searched_designs& searched) {
    const auto run_search =
        reinterpret_cast<run_front_search_function*>(loaded_function(module, RUN_FRONT_SEARCH));
    if (run_search == nullptr) {
        throw study_problem("no_search");
    }
    std::uint64_t before = 0;
    int idle = 0;
    front_search search;
    search.level_counts = counts_of_levels(designs);
    search.aim_count = designs.plan().aims.size();
    search.first = first_generation(designs, plan);
    search.seed = plan.seed;
    search.values = [&](const std::vector<level_numbers>& generation) {
        return searched.values(generation);
    };
    search.goes_on = [&] {
        idle = searched.calculated() == before ? idle + 1 : 0;
        before = searched.calculated();
        return before < plan.budget && idle < IDLE_GENERATIONS && !searched.is_given_up();
    };
    run_search(search);
}

}  // namespace

search_target search_target_of(std::string_view text) {
    const std::size_t equals = text.find('=');
    if (equals == 0 || equals == std::string_view::npos) {
        throw study_problem("no_target", {std::string(text)});
    }
    const std::string_view numbers = text.substr(equals + 1);
    const std::size_t colon = numbers.find(':');
    search_target target;
    target.quantity = text.substr(0, equals);
    target.value = number_in(numbers.substr(0, colon), text);
    target.tolerance = colon == std::string_view::npos ? USUAL_TOLERANCE * std::abs(target.value)
                                                       : number_in(numbers.substr(colon + 1), text);
    if (target.tolerance < 0.0) {
        throw study_problem("no_target", {std::string(text)});
    }
    return target;
}

study_plan study_of_search(const search_plan& plan) {
    if (plan.variables.empty()) {
        throw study_problem("no_variable");
    }
    if (plan.aims.empty()) {
        throw study_problem("no_aims");
    }
    study_plan of_study;
    for (const study_variable& variable : plan.variables) {
        of_study.variables.push_back(in_steps(variable, plan.step));
    }
    of_study.sample = {sample_kind::searched, plan.budget, plan.seed};
    of_study.recorded = plan.recorded;
    of_study.conditions = plan.limits;
    of_study.aims = plan.aims;
    of_study.last = plan.last;
    for (const search_target& target : plan.targets) {
        add_target(target, of_study);
    }
    return of_study;
}

design_search::design_search(const program& base, const search_plan& plan)
    : plan_(plan), designs_(base, study_of_search(plan)), front_(designs_) {}

bool design_search::run(unsigned jobs, const std::filesystem::path& module,
                        const std::function<void(const study_row&)>& step,
                        const std::atomic<bool>* is_given_up) {
    const std::function<void(study_row &&)> take = [&](study_row&& row) {
        step(row);
        front_.add(std::move(row));
    };
    searched_designs searched(designs_, jobs, take, is_given_up);
    const level_numbers counts = counts_of_levels(designs_);
    const std::uint64_t count = count_up_to(counts, plan_.budget);
    if (count <= plan_.budget) {
        calculate_all(counts, count, searched);
    } else {
        search_with(module, designs_, plan_, searched);
    }
    return !searched.is_given_up();
}

}  // namespace kvt
