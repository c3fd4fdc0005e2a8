// Tests of the rotors' explanation drawing: every dimension line ends at what it measures.
#include "views/rotor_explanation.hpp"

#include "core/text_table.hpp"
#include "geometry/outer_flank.hpp"
#include "support/sample_design.hpp"
#include "views/explanation_parts.hpp"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

class rotor_explanation : public testing::Test {
  protected:
    const explained_parameter& named(std::string_view label) const {
        const auto found =
            std::ranges::find(drawing.parameters, label, &explained_parameter::label);
        EXPECT_NE(found, drawing.parameters.end()) << label;
        return *found;
    }
    static double length(const measured_line& line) { return distance_between(line.from, line.to); }
    /// The distance between the tips of two arrows that hold a gap.
    static double gap(const explained_parameter& parameter) {
        return distance_between(parameter.lines.at(0).to, parameter.lines.at(1).to);
    }
    double to_inner_profile(const point2& place) const {
        double nearest = 1e9;
        for (std::size_t i = 0; i < 3600; ++i) {
            nearest =
                std::min(nearest, distance_between(place, {rotors.inner_x[i], rotors.inner_y[i]}));
        }
        return nearest;
    }
    double to_outer_profile(const point2& place) const {
        double nearest = 1e9;
        for (std::size_t i = 0; i <= static_cast<std::size_t>(rotors.outer_last); ++i) {
            nearest =
                std::min(nearest, distance_between(place, {rotors.outer_x[i], rotors.outer_y[i]}));
        }
        return nearest;
    }

    const design_params design = sample_design();
    const rotor_profiles rotors = rotor_pair_of(design);
    const explanation drawing = explain_rotors(design, rotors);
    const point2 outer{-design.ecc, 0.0};
};

/// Points of the outer profile stand up to so far apart, mm.
constexpr double SPACING = 0.1;
constexpr double EXACT = 1e-9;

}  // namespace

TEST_F(rotor_explanation, names_every_dimension_of_the_design_form_once) {
    std::set<std::string_view> labels;
    for (const explained_parameter& parameter : drawing.parameters) {
        EXPECT_NE(find_caption(parameter.form, parameter.label), nullptr) << parameter.label;
        EXPECT_TRUE(labels.insert(parameter.label).second) << parameter.label;
    }
    EXPECT_EQ(labels, (std::set<std::string_view>{"Label2", "Label3", "Label4", "Label5", "Label6",
                                                  "Label7", "Label8", "Label9", "Label10",
                                                  "Label12", "Label15", "Label20", "Label21"}));
}

TEST_F(rotor_explanation, the_eccentricity_lies_between_the_two_axes) {
    const explained_parameter& eccentricity = named("Label3");
    EXPECT_NEAR(gap(eccentricity), design.ecc, EXACT);
    EXPECT_EQ(eccentricity.lines.at(0).to.x, outer.x);
    EXPECT_EQ(eccentricity.lines.at(1).to.x, 0.0);
}

TEST_F(rotor_explanation, the_radius_of_the_inner_root_ends_on_the_inner_profile) {
    const measured_line line = named("Label10").lines.at(0);
    EXPECT_EQ(line.from, (point2{0.0, 0.0}));
    EXPECT_NEAR(length(line), design.radinnroot, design.clearn_half + EXACT)
        << "less half the tip clearance";
    EXPECT_NEAR(to_inner_profile(line.to), 0.0, EXACT);
}

TEST_F(rotor_explanation, the_radius_of_the_lobes_leads_from_a_lobe_centre_to_the_lobe) {
    const measured_line line = named("Label5").lines.at(0);
    EXPECT_NEAR(length(line), design.radouter, EXACT);
    EXPECT_NEAR(distance_between(line.from, outer), lobe_centre_radius(design, rotors), EXACT);
    EXPECT_LT(to_outer_profile(line.to), SPACING);
}

TEST_F(rotor_explanation, the_root_radius_leads_from_the_outer_axis_to_a_root) {
    const measured_line line = named("Label20").lines.at(0);
    EXPECT_EQ(line.from, outer);
    EXPECT_NEAR(length(line), design.outer_root, EXACT);
    EXPECT_LT(to_outer_profile(line.to), SPACING);
}

TEST_F(rotor_explanation, the_fillet_is_pointed_at_where_it_is) {
    const point2 end = named("Label6").leader.back();
    EXPECT_LT(to_outer_profile(end), SPACING);
    const double radius = distance_between(end, outer);
    EXPECT_LT(radius, design.outer_root);
    EXPECT_GT(radius, design.outer_root - design.fillet) << "between root circle and fillet centre";
    EXPECT_TRUE(named("Label6").leader_has_arrow);
}

TEST_F(rotor_explanation, half_the_tip_clearance_lies_between_a_lobe_and_the_inner_rotor) {
    const explained_parameter& clearance = named("Label4");
    EXPECT_LT(to_outer_profile(clearance.lines.at(0).to), SPACING);
    EXPECT_NEAR(to_inner_profile(clearance.lines.at(1).to), 0.0, EXACT);
}

TEST_F(rotor_explanation, the_tip_clearance_of_an_even_number_of_lobes_is_measured_tip_to_tip) {
    design_params even = design;
    even.numlobes = 6;
    even.outer_root = 24.0;
    const explanation six = explain_rotors(even, rotor_pair_of(even));
    const auto found =
        std::ranges::find(six.parameters, std::string_view("Label4"), &explained_parameter::label);
    ASSERT_NE(found, six.parameters.end());
    EXPECT_NEAR(gap(*found), even.clearn_half, 1e-6);
}

TEST_F(rotor_explanation, material_lies_outside_the_root_and_between_shaft_and_inner_rotor) {
    const explained_parameter& material = named("Label12");
    const measured_line outside = material.lines.at(0);
    EXPECT_NEAR(distance_between(outside.from, outer), design.outer_root, EXACT);
    EXPECT_NEAR(distance_between(outside.to, outer), design.maxdiameter / 2.0, EXACT);
    const measured_line inside = material.lines.at(1);
    EXPECT_NEAR(distance_between(inside.from, {0.0, 0.0}), design.shaftdiameter / 2.0, EXACT);
    EXPECT_NEAR(to_inner_profile(inside.to), 0.0, EXACT);
}

TEST_F(rotor_explanation, diameters_thickness_and_clearances_have_their_size) {
    EXPECT_NEAR(length(named("Label9").lines.at(0)), design.maxdiameter, EXACT);
    EXPECT_NEAR(length(named("Label2").lines.at(0)), design.shaftdiameter, EXACT);
    EXPECT_NEAR(length(named("Label8").lines.at(0)), design.thick, EXACT);
    EXPECT_NEAR(gap(named("Label15")), design.axial_clear, EXACT);
    EXPECT_NEAR(gap(named("Label21")), design.radial_clear, EXACT);
}

TEST_F(rotor_explanation, numbers_the_lobes) {
    ASSERT_EQ(drawing.marks.size(), 7U);
    EXPECT_EQ(drawing.marks.front().text, "1");
    EXPECT_EQ(drawing.marks.back().text, "7");
    EXPECT_NEAR(drawing.marks.back().at.y, 0.0, 1e-6) << "the last lobe stands on the axis";
}

}  // namespace kvt
