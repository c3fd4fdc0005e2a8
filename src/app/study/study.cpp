#include "app/study/study.hpp"

#include "app/program.hpp"
#include "app/stages/silent_user.hpp"
#include "app/stages/typed_entry.hpp"
#include "app/study/study_problem.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kvt {

namespace {

void check_variables(const std::vector<study_variable>& variables) {
    std::set<std::string> controls;
    for (const study_variable& variable : variables) {
        if (!controls.insert(variable.control).second) {
            throw study_problem("varied_twice", {variable.control});
        }
    }
}

void compare(const study_condition& condition, std::optional<double> value, study_row& row) {
    row.meets_conditions = row.meets_conditions && condition.is_met(value);
    const double scale = condition.limit == 0.0 ? 1.0 : std::abs(condition.limit);
    row.missed_by += value ? condition.missed_by(*value) / scale : HUGE_VAL;
}

}  // namespace

study::study(const program& base, study_plan plan)
    : base_(std::make_shared<const program>(base)),
      plan_(std::move(plan)),
      size_(design_count(plan_.variables, plan_.sample)) {
    check_variables(plan_.variables);
    choose(study_quantities(base));
}

void study::choose(const std::vector<study_quantity>& quantities) {
    const auto chosen = [&](const std::string& name) {
        const chosen_quantity quantity = chosen_quantity_of(quantities, name);
        if (quantity.quantity.part) {
            parts_.insert(*quantity.quantity.part);
        }
        return quantity;
    };
    for (const std::string& name : plan_.recorded) {
        recorded_.push_back(chosen(name));
    }
    for (const study_condition& condition : plan_.conditions) {
        conditions_.push_back(chosen(condition.quantity));
    }
    for (const study_aim& aim : plan_.aims) {
        const auto found = std::ranges::find(recorded_, aim.quantity, &chosen_quantity::name);
        aim_columns_.push_back(static_cast<std::size_t>(found - recorded_.begin()));
        if (found == recorded_.end()) {
            recorded_.push_back(chosen(aim.quantity));
        }
    }
}

std::string study::heading_of_variable(std::size_t variable) const {
    const std::string& control = plan_.variables[variable].control;
    const std::string unit = unit_of_variable(plan_.variables[variable], *base_);
    return unit.empty() ? control : control + " [" + unit + "]";
}

exact_results study::exact_of(const program& tried, const batch_result& result) const {
    exact_results exact;
    if (parts_.empty() || result.end != batch_end::ok) {
        return exact;
    }
    const exact_source source = exact_source_of(tried, result);
    for (const exact_part part : EXACT_PARTS) {
        if (parts_.contains(part)) {
            work_out(part, source, exact);
        }
    }
    return exact;
}

study_row study::calculate(std::vector<std::string> texts, program& tried) const {
    tried = *base_;
    silent_user person;
    study_row row;
    row.result =
        type_and_calculate(tried, person, typed_entries(plan_.variables, texts), plan_.last);
    row.texts = std::move(texts);
    row.messages = person.messages();
    for (const hint& noticed : tried.hints) {
        row.hints.push_back(noticed.text);
    }

    const exact_results exact = exact_of(tried, row.result);
    const finished_design design{tried, row.result, exact};
    for (const chosen_quantity& quantity : recorded_) {
        row.values.push_back(quantity.value_of(design));
    }
    row.meets_conditions = true;
    for (std::size_t i = 0; i < conditions_.size(); ++i) {
        compare(plan_.conditions[i], conditions_[i].value_of(design), row);
    }
    return row;
}

work_range part_of_study(std::uint64_t size, std::uint64_t shard, std::uint64_t shards) {
    const std::uint64_t least = size / shards;
    const std::uint64_t longer = size % shards;  // so many parts, the first ones, have one more
    const auto start = [&](std::uint64_t part) { return part * least + std::min(part, longer); };
    return {start(shard - 1), start(shard)};
}

bool run_study(const study& designs, work_range range, unsigned jobs,
               const std::function<bool(study_row&&)>& take, const std::atomic<bool>* is_given_up) {
    using work = ordered_work<study_row>;
    const auto make_worker = [&]() -> work::worker {
        return [&designs, tried = std::make_shared<program>()](std::uint64_t number) {
            study_row row = designs.calculate(designs.texts_of(number), *tried);
            row.number = number;
            return row;
        };
    };
    return work(range, jobs)
        .run(
            make_worker, [&](std::uint64_t, study_row&& row) { return take(std::move(row)); },
            is_given_up);
}

}  // namespace kvt
