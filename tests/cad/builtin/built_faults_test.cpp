// One failing call of each member that the routines ask of the built-in modeller: the package's
// message once, or none where the call doesn't matter, the progress gone, and the next run sound.
#include "app/models/solid_models.hpp"
#include "support/cad/faulty_host.hpp"
#include "support/cad/model_designs.hpp"
#include "support/cad/test_modeller.hpp"

#include <algorithm>
#include <cstddef>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace kvt {
namespace {

constexpr std::int32_t FAULT = -2147467259;
constexpr int POINTS = 6;

point2 corner(double radius, int number) {
    return polar_point(radius, number * 3.14159265358979 / 3.0);
}

void make_six_pointed(port_record& port, double radius) {
    for (int i = 0; i < POINTS; ++i) {
        port.x[static_cast<std::size_t>(i)] = corner(radius, i).x;
        port.y[static_cast<std::size_t>(i)] = corner(radius, i).y;
    }
    port.last = POINTS;
}

/// Its trochoid, inner rotor and ports are hexagons, so that a run takes no time.
program six_pointed_design() {
    program kavetta = double_sided_design();
    rotor_profiles& rotors = kavetta.rotor_profiles;
    rotors.profile_points = POINTS;
    rotors.inner_plot_len = 2.0 * POINTS + 1.0;
    rotors.inner_plot_xy.assign(2 * POINTS + 2, 0.0);
    rotors.troch_xy.assign(2 * POINTS + 2, 0.0);
    for (std::size_t i = 0; i <= POINTS; ++i) {
        const point2 at = corner(10.0, static_cast<int>(i) % POINTS);
        rotors.inner_x[i] = rotors.inner_plot_xy[2 * i] = rotors.troch_xy[2 * i] = at.x;
        rotors.inner_y[i] = rotors.inner_plot_xy[2 * i + 1] = rotors.troch_xy[2 * i + 1] = at.y;
    }
    make_six_pointed(kavetta.port_params.inlet, 8.0);
    make_six_pointed(kavetta.port_params.outlet, 6.0);
    kavetta.port_params.groove_last = 0;
    return kavetta;
}

/// Messages of a model drawn through a host; the progress was shown and taken away.
std::vector<std::string> told_by(program& kavetta, const std::string& code, model_kind kind,
                                 const std::shared_ptr<automation::host>& programs) {
    kavetta.app_state.modelling_package = code;
    kavetta.packages = programs;
    scripted_user person;
    draw_model(kavetta, person, kind);
    EXPECT_EQ(std::ranges::count(person.log, "unload progressfrm"), 1);
    EXPECT_EQ(std::ranges::count(person.log, "not busy"), 1);
    return person.messages;
}

/// The members that a model of a package is built with.
std::set<std::string> members_of(program& kavetta, const std::string& code, model_kind kind) {
    test_modeller made;
    const auto watching = std::make_shared<faulty_host>(made.host);
    EXPECT_EQ(told_by(kavetta, code, kind, watching), std::vector<std::string>());
    kavetta.driven_package = nullptr;
    return watching->calls->members;
}

struct fault_case {
    std::string code;
    /// Members whose failure ends no run.
    std::set<std::string> harmless;
    /// In the order in which they are tried; a member is failed in the first that has it.
    std::vector<model_kind> kinds;
};

const std::vector<model_kind> SMALL_MODELS = {model_kind::inner, model_kind::porting,
                                              model_kind::trochoid};
const std::vector<fault_case> CASES = {
    {"acad", {"ActiveDocument", "ActiveViewport", "Delete"}, SMALL_MODELS},
    {"invent", {}, SMALL_MODELS},
    {"SE", {}, SMALL_MODELS},
    {"SW", {}, SMALL_MODELS},
    {"CAT", {}, SMALL_MODELS}};

std::vector<std::string> expected_texts(const fault_case& of, const std::string& member,
                                        model_kind kind) {
    const std::string text = model_package_of(of.code)->failure_text({kind, FAULT, false, ENGLISH});
    if (of.harmless.contains(member) || text.empty()) {
        return {};
    }
    return {text};
}

void expect_message_of_fault(program& kavetta, const fault_case& of, model_kind kind,
                             const std::string& member) {
    SCOPED_TRACE(of.code + " " + member);
    test_modeller made;
    const auto failing = std::make_shared<faulty_host>(made.host);
    failing->calls->failing = member;
    failing->calls->error = FAULT;
    EXPECT_EQ(told_by(kavetta, of.code, kind, failing), expected_texts(of, member, kind));
    EXPECT_TRUE(failing->calls->has_failed);
    EXPECT_EQ(told_by(kavetta, of.code, kind, failing), std::vector<std::string>())
        << "the next run";
    kavetta.driven_package = nullptr;
}

}  // namespace

TEST(built_faults, of_each_member_end_in_the_message_of_the_package) {
    program kavetta = six_pointed_design();
    for (const fault_case& one : CASES) {
        std::set<std::string> tried;
        for (const model_kind kind : one.kinds) {
            for (const std::string& member : members_of(kavetta, one.code, kind)) {
                if (tried.insert(member).second) {
                    expect_message_of_fault(kavetta, one, kind, member);
                }
            }
        }
        EXPECT_GT(tried.size(), 9U) << one.code;
    }
}

TEST(built_faults, of_an_assemblys_solids_point_at_the_dimensions_in_autocad) {
    program kavetta = six_pointed_design();
    const std::map<std::string, bool> members = {
        {"Visible", false},   {"ModelSpace", false}, {"AddCylinder", true}, {"Boolean", true},
        {"SliceSolid", true}, {"ArrayPolar", true},  {"Select", true},      {"ZoomExtents", false}};
    for (const auto& [member, of_solids] : members) {
        SCOPED_TRACE(member);
        test_modeller made;
        const auto failing = std::make_shared<faulty_host>(made.host);
        failing->calls->failing = member;
        failing->calls->error = FAULT;
        EXPECT_EQ(told_by(kavetta, "acad", model_kind::assembly, failing),
                  std::vector<std::string>{model_package_of("acad")->failure_text(
                      {model_kind::assembly, FAULT, of_solids, ENGLISH})});
        kavetta.driven_package = nullptr;
    }
}

TEST(built_faults, of_a_second_body_in_solid_edge_are_made_up_for_by_a_protrusion) {
    program kavetta = six_pointed_design();
    test_modeller made;
    const auto failing = std::make_shared<faulty_host>(made.host);
    failing->calls->failing = "AddFiniteExtrudedProtrusion";
    failing->calls->error = FAULT;
    failing->calls->calls_before = 1;
    EXPECT_EQ(told_by(kavetta, "SE", model_kind::porting, failing), std::vector<std::string>());
    EXPECT_EQ(failing->calls->members.count("AddFiniteMulti"), 1U);
    kavetta.driven_package = nullptr;
}

}  // namespace kvt
