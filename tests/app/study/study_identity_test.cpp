// Tests of a study's identity: the same for the same study, another one for any other.
#include "app/study/study_identity.hpp"

#include "support/open_design.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

study_plan usual_plan() {
    study_plan plan;
    plan.variables = {study_variable_of("ecc=2,3")};
    plan.recorded = {"capacity"};
    plan.conditions = {study_condition_of("capacity>1")};
    plan.aims = {study_aim_of("capacity:max")};
    return plan;
}

std::string identity(const study_plan& plan, const program& base = opened_design("n04_fuel")) {
    return identity_of(study(base, plan), {0, 2}, study_format::csv);
}

TEST(study_identity, is_the_same_for_the_same_study) {
    EXPECT_EQ(identity(usual_plan()), identity(usual_plan()));
    EXPECT_EQ(identity(usual_plan()).find('\n'), std::string::npos);
}

TEST(study_identity, tells_every_other_study_apart) {
    std::set<std::string> identities = {identity(usual_plan())};
    std::size_t studies = 1;
    const auto add = [&](const std::string& other) {
        identities.insert(other);
        EXPECT_EQ(identities.size(), ++studies) << other;
    };
    const auto changed = [&](const auto& change) {
        study_plan plan = usual_plan();
        change(plan);
        add(identity(plan));
    };
    changed([](study_plan& plan) { plan.variables = {study_variable_of("ecc=2,4")}; });
    changed([](study_plan& plan) { plan.variables = {study_variable_of("thick=2,3")}; });
    changed([](study_plan& plan) { plan.sample = {sample_kind::latin, 2, 0}; });
    changed([](study_plan& plan) { plan.sample = {sample_kind::latin, 2, 1}; });
    changed([](study_plan& plan) { plan.recorded = {"area_ratio"}; });
    changed([](study_plan& plan) { plan.conditions = {study_condition_of("capacity>2")}; });
    changed([](study_plan& plan) { plan.conditions = {study_condition_of("capacity>=1")}; });
    changed([](study_plan& plan) { plan.aims = {study_aim_of("capacity:min")}; });
    changed([](study_plan& plan) { plan.last = calc_stage::ports; });
    program base = opened_design("n04_fuel");
    base.entries.thick += "0";
    add(identity(usual_plan(), base));
    const study designs(opened_design("n04_fuel"), usual_plan());
    add(identity_of(designs, {1, 2}, study_format::csv));
    add(identity_of(designs, {0, 2}, study_format::json_lines));
}

}  // namespace
}  // namespace kvt
