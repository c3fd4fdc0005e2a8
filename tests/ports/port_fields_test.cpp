// Tests of the table of the two ports: each row must reach the entries of its own port.
#include "ports/port_fields.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

void expect_names(const port_fields& port, const std::string& prefix) {
    const std::string places[] = {"start_inner", "end_inner", "end_outer", "start_outer"};
    for (std::size_t i = 0; i < 4; ++i) {
        const corner_fields& corner = port.corners[i];
        EXPECT_EQ(corner.control, prefix + "_" + places[i]);
        EXPECT_EQ(find_entry(corner.control)->member, corner.box);
        EXPECT_EQ(corner.is_end, places[i].starts_with("end"));
    }
}

TEST(port_fields, rows_name_their_own_port) {
    expect_names(inlet_fields(), "inlet");
    expect_names(outlet_fields(), "outlet");
    EXPECT_EQ(inlet_fields().inner_radius_box, &entries::inlet_inner_radius);
    EXPECT_EQ(outlet_fields().outer_radius_box, &entries::Outlet_outer_radius);
    EXPECT_TRUE(inlet_fields().mirrored);
    EXPECT_FALSE(outlet_fields().mirrored);
}

TEST(port_fields, reach_the_record_of_their_own_port) {
    port_params ports;
    for (const port_side side : {port_side::inlet, port_side::outlet}) {
        EXPECT_EQ(fields_of(side).side, side);
        EXPECT_EQ(&fields_of(side).record(ports), &ports.of(side));
    }
    EXPECT_EQ(&ports.of(port_side::inlet), &ports.inlet);
    EXPECT_EQ(&ports.of(port_side::outlet), &ports.outlet);
}

}  // namespace
}  // namespace kvt
