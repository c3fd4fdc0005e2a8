#include "python/script_study.hpp"

#include "app/study/pareto_front.hpp"

#include <chrono>
#include <limits>

namespace kvt {

namespace {

/// How often it is asked whether the study goes on.
constexpr std::chrono::milliseconds BETWEEN_QUESTIONS(100);

study_plan plan_of(const script_study& asked) {
    study_plan plan;
    for (const std::string& text : asked.varied) {
        plan.variables.push_back(study_variable_of(text));
    }
    plan.sample = study_sample_of(asked.sample);
    plan.sample.seed = asked.seed;
    plan.recorded = asked.recorded;
    for (const std::string& text : asked.conditions) {
        plan.conditions.push_back(study_condition_of(text));
    }
    for (const std::string& text : asked.aims) {
        plan.aims.push_back(study_aim_of(text));
    }
    plan.last = asked.last;
    return plan;
}

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
    columns.accepted.push_back(row.is_accepted());
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

}  // namespace

study_columns run_script_study(const held_design& design, const script_study& asked,
                               const std::function<bool()>& goes_on) {
    const study designs(design.opened(), plan_of(asked));
    const work_range range = part_of_study(designs.size(), asked.part, asked.parts);
    const bool keeps_front = !asked.aims.empty();
    study_columns columns = empty_columns(designs);
    pareto_front front(designs);
    repeated_question question(goes_on);
    columns.is_whole = run_study(designs, range, asked.jobs == 0 ? processor_count() : asked.jobs,
                                 [&](study_row&& row) {
                                     if (keeps_front) {
                                         front.add(std::move(row));
                                     } else if (row.meets_conditions) {
                                         add_row(columns, std::move(row));
                                     }
                                     return question.goes_on();
                                 });
    for (study_row& row : front.rows()) {
        add_row(columns, std::move(row));
    }
    return columns;
}

std::vector<std::pair<std::string, std::string>> quantity_units(const held_design& design) {
    std::vector<std::pair<std::string, std::string>> units;
    for (const study_quantity& quantity : study_quantities(design.opened())) {
        units.emplace_back(quantity.name + index_form(quantity.spread), quantity.unit);
    }
    return units;
}

}  // namespace kvt
