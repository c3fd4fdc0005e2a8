#include "python/script_study.hpp"

#include "app/study/pareto_front.hpp"
#include "app/study/study_problem.hpp"
#include "python/script_failure.hpp"

#include <chrono>
#include <limits>

namespace kvt {

namespace {

/// How often it is asked whether the study goes on.
constexpr std::chrono::milliseconds BETWEEN_QUESTIONS(100);

study_columns empty_columns(const study& designs) {
    study_columns columns;
    for (const study_variable& variable : designs.plan().variables) {
        columns.texts.emplace_back(variable.control, std::vector<std::string>());
    }
    for (const chosen_quantity& quantity : designs.recorded()) {
        columns.values.emplace_back(quantity.name, std::vector<double>());
    }
    return columns;
}

void add_row(study_columns& columns, study_row&& row) {
    columns.numbers.push_back(row.number);
    columns.ends.emplace_back(batch_end_name(row.result.end));
    columns.accepted.push_back(row.result.is_accepted());
    columns.messages.push_back(std::move(row.messages));
    columns.hints.push_back(std::move(row.hints));
    for (std::size_t i = 0; i < columns.texts.size(); ++i) {
        columns.texts[i].second.push_back(std::move(row.texts[i]));
    }
    for (std::size_t i = 0; i < columns.values.size(); ++i) {
        columns.values[i].second.push_back(
            row.values[i].value_or(std::numeric_limits<double>::quiet_NaN()));
    }
}

/// Asks whether to go on, but not at every row.
class repeated_question {
  public:
    explicit repeated_question(const std::function<bool()>& question) : question_(question) {}

    bool goes_on() {
        const auto now = std::chrono::steady_clock::now();
        if (now - asked_ < BETWEEN_QUESTIONS) {
            return true;
        }
        asked_ = now;
        return question_();
    }

  private:
    const std::function<bool()>& question_;
    std::chrono::steady_clock::time_point asked_ = std::chrono::steady_clock::now();
};

study_columns columns_of(const study& designs, const script_study& asked,
                         const std::function<bool()>& goes_on) {
    const work_range range = part_of_study(designs.size(), asked.part, asked.parts);
    const bool keeps_front = !asked.aims.empty();
    study_columns columns = empty_columns(designs);
    pareto_front front(designs);
    repeated_question question(goes_on);
    const auto take = [&](study_row&& row) {
        if (keeps_front) {
            front.add(std::move(row));
        } else if (row.meets_conditions) {
            add_row(columns, std::move(row));
        }
        return question.goes_on();
    };
    const unsigned jobs = asked.jobs == 0 ? processor_count() : asked.jobs;
    columns.is_whole = run_study(designs, range, jobs, take);
    for (study_row& row : front.rows()) {
        add_row(columns, std::move(row));
    }
    return columns;
}

}  // namespace

study_columns run_script_study(const held_design& design, const script_study& asked,
                               const std::function<bool()>& goes_on) {
    const program base = design.opened();
    try {
        return columns_of(study(base, study_plan_of(asked)), asked, goes_on);
    } catch (const study_problem& problem) {
        throw script_failure(script_error::study_refused, problem.text(base.app_state.language));
    }
}

std::vector<std::pair<std::string, std::string>> quantity_units(const held_design& design) {
    std::vector<std::pair<std::string, std::string>> units;
    for (const study_quantity& quantity : study_quantities(design.opened())) {
        units.emplace_back(quantity.name + index_form(quantity.spread), quantity.unit);
    }
    return units;
}

}  // namespace kvt
