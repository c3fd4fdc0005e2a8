#include "app/study/study_identity.hpp"

#include "app/program.hpp"

#include <nlohmann/json.hpp>

namespace kvt {

namespace {

using json = nlohmann::ordered_json;

json entries_json(const program& base) {
    json object = json::object();
    for (const entry_field& field : entry_fields()) {
        object[std::string(field.name)] = base.entries.*field.member;
    }
    return object;
}

json variables_json(const std::vector<study_variable>& variables) {
    json list = json::array();
    for (const study_variable& variable : variables) {
        list.push_back({{"control", variable.control},
                        {"levels", variable.levels},
                        {"lowest", variable.lowest},
                        {"highest", variable.highest}});
    }
    return list;
}

json conditions_json(const std::vector<study_condition>& conditions) {
    json list = json::array();
    for (const study_condition& condition : conditions) {
        list.push_back({condition.quantity, static_cast<int>(condition.compared), condition.limit});
    }
    return list;
}

json aims_json(const std::vector<study_aim>& aims) {
    json list = json::array();
    for (const study_aim& aim : aims) {
        list.push_back({aim.quantity, aim.is_largest_best ? "max" : "min"});
    }
    return list;
}

}  // namespace

std::string identity_of(const study& designs, const work_range& part, study_format format) {
    const study_plan& plan = designs.plan();
    const app_state& state = designs.base().app_state;
    const json object = {
        {"entries", entries_json(designs.base())},
        {"units", {state.drawing_units, state.capacity_unit, state.language}},
        {"variables", variables_json(plan.variables)},
        {"sample", {static_cast<int>(plan.sample.kind), plan.sample.count, plan.sample.seed}},
        {"recorded", plan.recorded},
        {"conditions", conditions_json(plan.conditions)},
        {"aims", aims_json(plan.aims)},
        {"last", static_cast<int>(plan.last)},
        {"part", {part.begin, part.end}},
        {"format", static_cast<int>(format)},
    };
    return object.dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace kvt
