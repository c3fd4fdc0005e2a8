// Tests of a port's point list with corners put by hand.
#include "ports/port_outline.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

/// A sharp half ring from 0 to 90 degrees between the radii 10 and 20, without eccentricity.
port_shape quarter_ring() {
    port_shape port;
    port.R = 10.0;
    port.Q = 20.0;
    port.corners = {
        corner_at(0.0, 10.0, 10.0, 0.0, 0.0, 0.0), corner_at(90.0, 10.0, 10.0, 0.0, 0.0, 0.0),
        corner_at(90.0, 20.0, 20.0, 0.0, 0.0, 0.0), corner_at(0.0, 20.0, 20.0, 0.0, 0.0, 0.0)};
    return port;
}

TEST(port_outline, sharp_ports_have_two_arcs_and_two_sides) {
    const port_outline built = outline_of_port(quarter_ring());
    EXPECT_EQ(built.marks, (std::array<std::int16_t, 4>{0, 180, 200, 380}));
    EXPECT_EQ(built.outline.last(), 400);
    EXPECT_EQ(built.outline.points().front(), built.outline.points().back());
    EXPECT_EQ(built.outline.points()[0], (point2{10.0, 0.0}));
    EXPECT_EQ(built.outline.points()[380], (point2{20.0, 0.0}));
    EXPECT_EQ(built.outline.points()[390], (point2{15.0, 0.0}));
}

TEST(port_outline, a_radius_whose_text_is_0_has_no_fillets) {
    port_shape port = quarter_ring();
    port.f = 0.0;
    EXPECT_EQ(outline_of_port(port).outline.last(), 400);
}

}  // namespace
}  // namespace kvt
