// Tests of the bodies: which ones a design has, their names and heights.
#include "exact/pump_bodies.hpp"

#include "support/cnc_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

std::vector<std::string_view> names_of(const std::vector<pump_body>& bodies) {
    std::vector<std::string_view> names;
    for (const pump_body& body : bodies) {
        names.push_back(body.name);
    }
    return names;
}

TEST(pump_bodies, are_those_that_are_ticked_and_finished) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    entries& boxes = kavetta.entries;
    boxes.inlet_double_sided = boxes.outlet_double_sided = boxes.shadow_ports = "0";
    boxes.metering_groove = "0";
    const auto names = [&] {
        return names_of(porting_bodies(kavetta.design_params, kavetta.port_params, boxes));
    };
    EXPECT_EQ(names(), (std::vector<std::string_view>{"Inlet Port Lower", "Outlet Port Lower"}));
    boxes.shadow_ports = boxes.metering_groove = "1";
    EXPECT_EQ(names(), (std::vector<std::string_view>{"Inlet Port Lower", "Outlet Port Lower",
                                                      "Outlet Port Upper", "Inlet Port Upper",
                                                      "Metering Groove"}));
    kavetta.port_params.inlet.last = 0;
    boxes.shadow_ports = "0";
    EXPECT_EQ(names(), (std::vector<std::string_view>{"Outlet Port Lower", "Metering Groove"}));
}

TEST(pump_bodies, stand_above_and_below_the_rotors) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    kavetta.entries.inlet_double_sided = "1";
    kavetta.entries.outlet_double_sided = "0";
    kavetta.entries.shadow_ports = "1";
    const design_params& design = kavetta.design_params;
    const auto bodies = porting_bodies(design, kavetta.port_params, kavetta.entries);
    EXPECT_DOUBLE_EQ(bodies[0].bottom, -design.thick / 2.0);
    EXPECT_DOUBLE_EQ(bodies[0].top, 0.0);
    EXPECT_DOUBLE_EQ(bodies[1].bottom, -design.thick);
    EXPECT_DOUBLE_EQ(bodies[2].bottom, design.thick + design.axial_clear);
    EXPECT_DOUBLE_EQ(bodies[2].top, bodies[2].bottom + 0.2 * design.thick);
    EXPECT_DOUBLE_EQ(bodies[3].top, bodies[3].bottom + 0.5 * design.thick);
    const pump_body outer = outer_rotor_body(design);
    EXPECT_GT(enclosed_area(outer.outline), 0.0);
    EXPECT_LT(enclosed_area(outer.hole), 0.0);
    EXPECT_DOUBLE_EQ(inner_rotor_body(design).top, design.thick);
}

}  // namespace
}  // namespace kvt
