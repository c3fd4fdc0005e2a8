// Tests of the table of the two ports: each row must reach the fields and entries of its own port.
#include "ports/port_fields.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

std::string name_of(double port_params::*member) {
    for (const auto& field : port_values()) {
        if (field.member == member) {
            return std::string(field.name);
        }
    }
    return "(none)";
}

void expect_names(const port_fields& port, const std::string& prefix) {
    const std::string places[] = {"start_inner", "end_inner", "end_outer", "start_outer"};
    for (std::size_t i = 0; i < 4; ++i) {
        const corner_fields& corner = port.corners[i];
        const std::string n = std::to_string(i + 1);
        EXPECT_EQ(name_of(corner.t_deg), prefix + "_t" + n + "_deg");
        EXPECT_EQ(name_of(corner.c.x), prefix + "_c" + n + "_x");
        EXPECT_EQ(name_of(corner.s.y), prefix + "_s" + n + "_y");
        EXPECT_EQ(name_of(corner.r.x), prefix + "_r" + n + "_x");
        EXPECT_EQ(name_of(corner.p.y), prefix + "_p" + n + "_y");
        EXPECT_EQ(name_of(corner.angle_deg), prefix + "_" + places[i] + "_deg");
        EXPECT_EQ(corner.control, prefix + "_" + places[i]);
        EXPECT_EQ(find_entry(corner.control)->member, corner.box);
    }
    EXPECT_EQ(name_of(port.inner_r), prefix + "_inner_r");
    EXPECT_EQ(name_of(port.outer_r), prefix + "_outer_r");
}

TEST(port_fields, rows_name_their_own_port) {
    expect_names(inlet_fields(), "inlet");
    expect_names(outlet_fields(), "outlet");
    EXPECT_EQ(inlet_fields().inner_radius_box, &entries::inlet_inner_radius);
    EXPECT_EQ(outlet_fields().outer_radius_box, &entries::Outlet_outer_radius);
    EXPECT_TRUE(inlet_fields().mirrored);
    EXPECT_FALSE(outlet_fields().mirrored);
}

}  // namespace
}  // namespace kvt
