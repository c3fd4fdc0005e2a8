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
    plan.variables = parts_of(words.varied, study_variable_of);
    plan.sample = study_sample_of(words.sample);
    plan.sample.seed = words.seed;
    plan.recorded = recorded_or_usual(words.recorded);
    plan.conditions = parts_of(words.conditions, study_condition_of);
    plan.aims = parts_of(words.aims, study_aim_of);
    plan.last = words.last;
    return plan;
}

}  // namespace kvt
