// Tests of the corners of a side: closed forms on the axis, replaced angles, crossing fillets.
#include "ports/port_sides.hpp"

#include "ports/port_entries.hpp"
#include "support/port_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

/// Entries and radii read, side lines set.
struct read_ports : port_design {
    explicit read_ports(const port_fields& port) : fields(port) {}

    void read() {
        read_port_angles(fields, rotors, boxes, ports);
        read_port_radii(fields, boxes, unit(), ports);
        set_side_lines(fields, design, ports);
    }

    const port_fields& fields;
};

TEST(port_sides, unfilleted_corners_lie_on_the_two_circles) {
    read_ports tested(inlet_fields());
    tested.read();
    const port_params& ports = tested.ports;
    EXPECT_NEAR(
        std::hypot(ports.inlet.corners[START_INNER].p.x, ports.inlet.corners[START_INNER].p.y),
        14.5, 1e-12);
    EXPECT_NEAR(std::hypot(ports.inlet.corners[END_INNER].p.x, ports.inlet.corners[END_INNER].p.y),
                14.5, 1e-12);
    EXPECT_NEAR(
        std::hypot(ports.inlet.corners[END_OUTER].p.x + 2.85, ports.inlet.corners[END_OUTER].p.y),
        22.4, 1e-12);
    EXPECT_NEAR(std::hypot(ports.inlet.corners[START_OUTER].p.x + 2.85,
                           ports.inlet.corners[START_OUTER].p.y),
                22.4, 1e-12);
}

TEST(port_sides, start_angles_of_zero_take_the_closed_form) {
    read_ports tested(inlet_fields());
    tested.boxes.inlet_start_inner = "0";
    tested.boxes.inlet_start_outer = "0.0";
    tested.read();
    port_work work = tested.work();
    EXPECT_EQ(set_start_corners(inlet_fields(), work), port_end::finished);
    const port_params& ports = tested.ports;
    EXPECT_NEAR(ports.inlet.corners[START_INNER].c.y, std::sin(std::atan(1.5 / 16.0)) * 16.0,
                1e-12);
    EXPECT_NEAR(ports.inlet.corners[START_INNER].t_deg, std::atan(1.5 / 16.0) * 180.0 / 3.1415927,
                1e-12);
    EXPECT_NEAR(ports.inlet.corners[START_OUTER].t_deg, std::atan(1.5 / 20.9) * 180.0 / 3.1415927,
                1e-12);
    EXPECT_EQ(ports.inlet.corners[START_INNER].angle_deg, 0.0);
    EXPECT_EQ(ports.inlet.corners[START_OUTER].angle_deg, 0.0);
}

TEST(port_sides, one_start_angle_of_zero_is_searched) {
    read_ports tested(inlet_fields());
    tested.boxes.inlet_start_inner = "0";
    tested.read();
    port_work work = tested.work();
    const port_end end = set_start_corners(inlet_fields(), work);
    EXPECT_EQ(end, port_end::finished);
    EXPECT_NE(tested.ports.inlet.corners[START_INNER].angle_deg, 0.0)
        << "the angle of the tangent point";
}

TEST(port_sides, end_angles_of_180_become_0_in_the_record) {
    read_ports tested(outlet_fields());
    tested.boxes.outlet_end_inner = "180";
    tested.boxes.outlet_end_outer = "180.000";
    tested.read();
    port_work work = tested.work();
    EXPECT_EQ(set_end_corners(outlet_fields(), work), port_end::finished);
    EXPECT_EQ(tested.ports.outlet.corners[END_INNER].angle_deg, 0.0);
    EXPECT_EQ(tested.ports.outlet.corners[END_OUTER].angle_deg, 0.0);
    EXPECT_EQ(tested.boxes.outlet_end_inner, "180") << "the entry stays";
    EXPECT_NEAR(tested.ports.outlet.corners[END_INNER].t_deg,
                180.0 - std::atan(1.5 / 16.1) * 180.0 / 3.1415927, 1e-12);
    EXPECT_NEAR(tested.ports.outlet.corners[END_OUTER].t_deg,
                180.0 - std::atan(1.5 / 20.7) * 180.0 / 3.1415927, 1e-12);
}

TEST(port_sides, angles_become_those_of_the_tangent_points_but_for_the_outlet_s_outer_start) {
    for (const port_fields* fields : {&inlet_fields(), &outlet_fields()}) {
        read_ports tested(*fields);
        tested.read();
        const auto& corners = fields->record(tested.ports).corners;
        const double entered = corners[START_OUTER].angle_deg;
        port_work work = tested.work();
        EXPECT_EQ(set_start_corners(*fields, work), port_end::finished);
        EXPECT_EQ(set_end_corners(*fields, work), port_end::finished);
        const point2 s1 = corners[START_INNER].s;
        const point2 s3 = corners[END_OUTER].s;
        const point2 s4 = corners[START_OUTER].s;
        const auto degrees = [](double y, double x) {
            return std::atan(y / x) * 180.0 / 3.1415927;
        };
        EXPECT_EQ(corners[START_INNER].angle_deg, degrees(s1.y, s1.x));
        EXPECT_EQ(corners[END_OUTER].angle_deg, degrees(s3.y, 2.85 + s3.x) + 180.0);
        EXPECT_EQ(corners[START_OUTER].angle_deg,
                  fields->keeps_start_outer_angle ? entered : degrees(s4.y, 2.85 + s4.x));
    }
}

TEST(port_sides, fillets_cross_in_x_on_a_side_to_the_right_and_in_y_on_one_to_the_left) {
    port_params ports;
    ports.side_angle_start = 0.5;
    ports.inlet.corners[START_INNER].c.x = 2.0;
    ports.inlet.corners[START_OUTER].c.x = 1.0;
    EXPECT_TRUE(start_fillets_cross(inlet_fields(), ports));
    ports.side_angle_start = -0.5;
    EXPECT_FALSE(start_fillets_cross(inlet_fields(), ports));
    ports.inlet.corners[START_INNER].c.y = 1.0;
    EXPECT_TRUE(start_fillets_cross(inlet_fields(), ports));
    ports.side_angle_start = 0.0;
    ports.inlet.corners[START_INNER].c.x = 1.0;
    EXPECT_FALSE(start_fillets_cross(inlet_fields(), ports)) << "equal centres don't cross";
}

}  // namespace
}  // namespace kvt
