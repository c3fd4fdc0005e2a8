// Names and roles of the bodies that a routine left behind.
#include "cad/body_labels.hpp"

#include "app/program.hpp"
#include "support/cad/fake_model_store.hpp"
#include "support/cad/model_designs.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

model_body numbered(body_number number, point3 lowest, point3 highest) {
    model_body body = box_body(lowest, highest);
    body.number = number;
    return body;
}

class body_labels : public testing::Test {
  protected:
    program kavetta = double_sided_design();
    model_source source{kavetta.design_params, kavetta.rotor_profiles, kavetta.port_params,
                        kavetta.entries, length_unit_of(kavetta.app_state.drawing_units)};

    /// "number name" of each label.
    texts labels(const std::vector<model_body>& built, model_kind kind) const {
        texts lines;
        for (const body_label& one : labels_of(built, kind, source)) {
            lines.push_back(std::to_string(one.body) + " " + std::string(one.name));
        }
        return lines;
    }

    /// The bodies that a porting has, in the order of the table, slightly off their places.
    std::vector<model_body> ports() const {
        std::vector<model_body> bodies;
        for (const port_body& one : port_bodies(source.design, source.ports, source.boxes)) {
            const auto [left, right] = std::ranges::minmax(one.outline, {}, &point2::x);
            const auto [low, high] = std::ranges::minmax(one.outline, {}, &point2::y);
            bodies.push_back(numbered(static_cast<body_number>(bodies.size() + 1),
                                      {left.x + 1e-3, low.y, one.from_z},
                                      {right.x, high.y - 1e-3, one.to_z}));
        }
        return bodies;
    }
};

TEST_F(body_labels, names_a_single_rotor_by_its_model) {
    const std::vector<model_body> one = {numbered(7, {-1, -1, 0}, {1, 1, 5})};
    EXPECT_EQ(labels(one, model_kind::inner), texts{"7 Inner Rotor"});
    EXPECT_EQ(labels(one, model_kind::outer), texts{"7 Outer Rotor"});
    EXPECT_EQ(labels_of(one, model_kind::outer, source)[0].role, body_role::outer_rotor);
}

TEST_F(body_labels, calls_a_curve_the_trochoid) {
    model_body curve = numbered(1, {-1, -1, 0}, {1, 1, 0});
    curve.is_curve = true;
    EXPECT_EQ(labels({curve}, model_kind::trochoid), texts{"1 Trochoid"});
}

TEST_F(body_labels, tells_the_rotors_of_an_assembly_by_their_width_in_either_order) {
    const model_body small = numbered(1, {-20, -20, 0}, {20, 20, 9});
    const model_body large = numbered(2, {-33, -30, 0}, {27, 30, 9});
    EXPECT_EQ(labels({small, large}, model_kind::assembly),
              (texts{"1 Inner Rotor", "2 Outer Rotor"}));
    EXPECT_EQ(labels({large, small}, model_kind::assembly),
              (texts{"2 Outer Rotor", "1 Inner Rotor"}));
}

TEST_F(body_labels, tells_the_bodies_of_a_porting_by_their_places_in_any_order) {
    std::vector<model_body> bodies = ports();
    const texts expected = {"1 Inlet Port Lower", "2 Outlet Port Lower", "3 Metering Groove",
                            "4 Outlet Port Upper", "5 Inlet Port Upper"};
    EXPECT_EQ(labels(bodies, model_kind::porting), expected);
    std::ranges::reverse(bodies);
    EXPECT_EQ(labels(bodies, model_kind::porting), texts(expected.rbegin(), expected.rend()));
}

TEST_F(body_labels, has_roles_for_the_bodies_of_a_porting) {
    std::vector<body_role> roles;
    for (const body_label& one : labels_of(ports(), model_kind::porting, source)) {
        roles.push_back(one.role);
    }
    EXPECT_EQ(roles, (std::vector{body_role::inlet, body_role::outlet, body_role::groove,
                                  body_role::outlet, body_role::inlet}));
}

TEST_F(body_labels, of_no_bodies_are_none) {
    EXPECT_EQ(labels({}, model_kind::assembly), texts());
}

}  // namespace
}  // namespace kvt
