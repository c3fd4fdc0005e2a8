#include "app/study/study_words.hpp"

#include <array>

namespace kvt {

namespace {

constexpr std::array USUALLY_RECORDED = {
    "capacity",  "area_ratio",     "max_chamb_vol",       "min_chamb_vol",   "outer_diameter",
    "max_speed", "flow_m3s_max",   "vol_eff_max",         "overall_eff_max", "power_max",
    "hertz_max", "ripple_percent", "max_shaft_side_load", "max_cutter_inner"};

}  // namespace

std::vector<std::string> recorded_or_usual(const std::vector<std::string>& named) {
    return named.empty()
               ? std::vector<std::string>(USUALLY_RECORDED.begin(), USUALLY_RECORDED.end())
               : named;
}

study_plan study_plan_of(const study_words& words) {
    study_plan plan;
    for (const std::string& text : words.varied) {
        plan.variables.push_back(study_variable_of(text));
    }
    plan.sample = study_sample_of(words.sample);
    plan.sample.seed = words.seed;
    plan.recorded = recorded_or_usual(words.recorded);
    for (const std::string& text : words.conditions) {
        plan.conditions.push_back(study_condition_of(text));
    }
    for (const std::string& text : words.aims) {
        plan.aims.push_back(study_aim_of(text));
    }
    plan.last = words.last;
    return plan;
}

}  // namespace kvt
