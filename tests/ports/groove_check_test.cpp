// What is wrong with a metering groove.
#include "ports/groove_check.hpp"

#include "ports/build_ports.hpp"
#include "ports/metering_groove.hpp"
#include "support/port_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

groove_faults faults_with_end_angles(const char* inner, const char* outer, const char* length) {
    port_design tested;
    tested.boxes.outlet_end_inner = inner;
    tested.boxes.outlet_end_outer = outer;
    tested.boxes.groove_length = length;
    port_work work = tested.work();
    build_inlet_port(work);
    EXPECT_EQ(build_outlet_port(work), port_end::finished);
    EXPECT_EQ(build_metering_groove(work), port_end::finished);
    return faults_of_groove(tested.ports.groove_built);
}

}  // namespace

TEST(groove_check, clears_a_groove_at_the_end_of_its_port) {
    EXPECT_FALSE(faults_with_end_angles("148", "144", "12").any());
}

TEST(groove_check, finds_a_groove_that_a_steep_side_puts_below_the_axis) {
    const groove_faults faults = faults_with_end_angles("155.65", "115.91", "12");
    EXPECT_TRUE(faults.wrong_side);
}

TEST(groove_check, finds_an_outline_that_crosses_itself) {
    groove_shape shape;
    shape.inner_r = 17.0;
    shape.outer_r = 18.5;
    shape.start_inner_deg = shape.start_outer_deg = 100.0;
    shape.a = polar_point(17.0, 1.745);
    shape.b = polar_point(18.5, 1.745);
    shape.tail_inner = polar_point(17.0, 1.7);
    shape.tail_outer = polar_point(18.5, 1.7);
    shape.inner.t_deg = shape.outer.t_deg = 120.0;
    shape.inner.r = shape.inner.s = polar_point(17.0, 2.0944);
    shape.outer.r = shape.outer.s = polar_point(18.5, 2.0944);
    EXPECT_FALSE(faults_of_groove(shape).any());
    std::swap(shape.tail_inner, shape.tail_outer);
    EXPECT_TRUE(faults_of_groove(shape).crosses_itself);
    EXPECT_FALSE(faults_of_groove(shape).wrong_side);
}

}  // namespace kvt
