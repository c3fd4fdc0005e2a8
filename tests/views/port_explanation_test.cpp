// Tests of the ports' explanation drawing: angles and radii end at the corners and outlines that
// they describe.
#include "views/port_explanation.hpp"

#include "core/text_table.hpp"
#include "ports/build_ports.hpp"
#include "ports/metering_groove.hpp"
#include "support/port_design.hpp"
#include "views/explanation_parts.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

class port_explanation : public testing::Test {
  protected:
    port_explanation()
        : pump(designed()), drawing(explain_ports(pump.design, pump.rotors, pump.ports)) {}

    static port_design designed() {
        port_design pump;
        fill_outer_rotor(pump.design, pump.rotors);
        port_work work = pump.work();
        EXPECT_EQ(build_inlet_port(work), port_end::finished);
        EXPECT_EQ(build_outlet_port(work), port_end::finished);
        pump.ports.groove_depth_mm = 1.0;
        EXPECT_EQ(build_metering_groove(work), port_end::finished);
        return pump;
    }

    const explained_parameter& named(std::string_view label) const {
        const auto found =
            std::ranges::find(drawing.parameters, label, &explained_parameter::label);
        EXPECT_NE(found, drawing.parameters.end()) << label;
        return *found;
    }
    /// The arc of an angle, as the entry has it: the outlet's ends at it, the inlet's starts at its
    /// negative.
    double outlet_angle(std::string_view label) const {
        EXPECT_EQ(named(label).arcs.at(0).from_deg, 0.0);
        return named(label).arcs.at(0).to_deg;
    }
    double inlet_angle(std::string_view label) const {
        EXPECT_EQ(named(label).arcs.at(0).to_deg, 0.0);
        return -named(label).arcs.at(0).from_deg;
    }
    static double length(const measured_line& line) { return distance_between(line.from, line.to); }

    const port_design pump;
    const explanation drawing;
    const point2 inner_axis{0.0, 0.0};
    const point2 outer_axis{-pump.design.ecc, 0.0};
};

/// The corners are computed with the product's pi of eight digits, degrees.
constexpr double CORNER = 1e-5;
constexpr double EXACT = 1e-9;

}  // namespace

TEST_F(port_explanation, names_every_entry_of_the_port_form_once) {
    std::set<std::string_view> labels;
    for (const explained_parameter& parameter : drawing.parameters) {
        EXPECT_NE(find_caption(parameter.form, parameter.label), nullptr) << parameter.label;
        EXPECT_TRUE(labels.insert(parameter.label).second) << parameter.label;
    }
    EXPECT_EQ(labels.size(), 19U) << "sixteen entries, both port names and that of the groove";
}

TEST_F(port_explanation, angles_of_the_outlet_end_at_its_corners) {
    EXPECT_NEAR(outlet_angle("Label9"), 16.0, CORNER);
    EXPECT_NEAR(outlet_angle("Label8"), 14.0, CORNER);
    EXPECT_NEAR(outlet_angle("Label7"), 148.0, CORNER);
    EXPECT_NEAR(outlet_angle("Label6"), 144.0, CORNER);
}

TEST_F(port_explanation, angles_of_the_inlet_run_downwards) {
    EXPECT_NEAR(inlet_angle("Label2"), 14.0, CORNER);
    EXPECT_NEAR(inlet_angle("Label3"), 12.0, CORNER);
    EXPECT_NEAR(inlet_angle("Label4"), 150.0, CORNER);
    EXPECT_NEAR(inlet_angle("Label5"), 146.0, CORNER);
}

TEST_F(port_explanation,
       inner_angles_are_about_the_inner_axis_and_outer_angles_about_the_outer_one) {
    for (const char* label : {"Label9", "Label7", "Label2", "Label4"}) {
        EXPECT_EQ(named(label).arcs.at(0).centre, inner_axis) << label;
        EXPECT_EQ(named(label).extensions.at(0).from, inner_axis) << label;
    }
    for (const char* label : {"Label8", "Label6", "Label3", "Label5"}) {
        EXPECT_EQ(named(label).arcs.at(0).centre, outer_axis) << label;
        EXPECT_EQ(named(label).extensions.at(0).from, outer_axis) << label;
    }
}

TEST_F(port_explanation, radii_lead_from_their_axes_to_the_arcs) {
    EXPECT_NEAR(length(named("Label13").lines.at(0)), 14.5, EXACT);
    EXPECT_NEAR(length(named("Label14").lines.at(0)), 22.4, EXACT);
    EXPECT_NEAR(length(named("Label15").lines.at(0)), 14.6, EXACT);
    EXPECT_NEAR(length(named("Label16").lines.at(0)), 22.2, EXACT);
    EXPECT_EQ(named("Label13").lines.at(0).from, inner_axis);
    EXPECT_EQ(named("Label16").lines.at(0).from, outer_axis);
    EXPECT_LT(named("Label14").lines.at(0).to.y, 0.0) << "the inlet lies below the axis";
}

TEST_F(port_explanation, the_fillet_radius_points_at_a_corner_of_the_outlet) {
    const point2 end = named("Label1").leader.back();
    EXPECT_NEAR(distance_between(end, pump.ports.outlet.corners[END_OUTER].c), 1.5, EXACT);
    EXPECT_LT(distance_between(end, pump.ports.outlet.corners[END_OUTER].p), 1.5)
        << "on the side of the corner without its fillet";
}

TEST_F(port_explanation, the_length_of_the_groove_is_its_angle_from_the_port_to_the_nose) {
    const measured_arc arc = named("Label10").arcs.at(0);
    EXPECT_NEAR(arc.to_deg - arc.from_deg, 12.0, EXACT);
    EXPECT_EQ(arc.centre, (point2{-pump.design.ecc / 2.0, 0.0}));
    const point2 start = named("Label10").extensions.at(0).from;
    EXPECT_NEAR(distance_between(start, pump.ports.groove_b), 0.0, 1e-5);
}

TEST_F(port_explanation, width_and_depth_of_the_groove_have_one_scale) {
    EXPECT_NEAR(length(named("Label11").lines.at(0)), 4.0 * 1.5, EXACT);
    EXPECT_NEAR(length(named("Label12").lines.at(0)), 4.0 * 1.0, EXACT);
}

TEST_F(port_explanation, the_outlines_are_those_of_the_ports) {
    const auto inlet =
        std::ranges::find(drawing.outlines, outline_style::inlet, &explained_outline::style);
    ASSERT_NE(inlet, drawing.outlines.end());
    ASSERT_EQ(inlet->points.size(), static_cast<std::size_t>(pump.ports.inlet.last) + 1);
    EXPECT_EQ(inlet->points[5], (point2{pump.ports.inlet.x[5], pump.ports.inlet.y[5]}));
}

}  // namespace kvt
