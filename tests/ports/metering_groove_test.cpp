// Tests of the metering groove on a finished outlet.
#include "ports/metering_groove.hpp"

#include "base/checked_math.hpp"
#include "ports/build_ports.hpp"
#include "support/expect_failure.hpp"
#include "support/port_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

struct groove_on_outlet : port_design {
    groove_on_outlet() { build_outlet(); }
    void build_outlet() {
        port_work on = work();
        EXPECT_EQ(build_outlet_port(on), port_end::finished);
    }
    port_end build() {
        port_work on = work();
        return build_metering_groove(on);
    }
    point2 at(std::int64_t i) const {
        return {checked_at(ports.groove_x, i), checked_at(ports.groove_y, i)};
    }
    double path_r(std::int64_t i) const { return std::hypot(at(i).x + 2.85 / 2.0, at(i).y); }
};

TEST(metering_groove, runs_between_two_circles_about_the_point_half_way_between_the_centres) {
    groove_on_outlet tested;
    ASSERT_EQ(tested.build(), port_end::finished);
    const port_params& ports = tested.ports;
    EXPECT_DOUBLE_EQ(ports.groove_centre_r, (22.2 - 2.85 - 14.6) / 2.0 + 14.6 + 2.85 / 2.0);
    EXPECT_EQ(ports.groove_inner_r, ports.groove_centre_r - 0.75);
    for (int i = 0; i <= ports.groove_last; ++i) {
        EXPECT_GE(tested.path_r(i), ports.groove_inner_r - 1e-6) << i;
        EXPECT_LE(tested.path_r(i), ports.groove_outer_r + 1e-6) << i;
    }
}

TEST(metering_groove, starts_and_ends_on_the_end_side_of_the_outlet) {
    groove_on_outlet tested;
    ASSERT_EQ(tested.build(), port_end::finished);
    const port_params& ports = tested.ports;
    const auto beside_edge = [&](point2 at) {
        const double dx = ports.outlet.corners[END_OUTER].p.x - ports.outlet.corners[END_INNER].p.x;
        const double dy = ports.outlet.corners[END_OUTER].p.y - ports.outlet.corners[END_INNER].p.y;
        return ((at.x - ports.outlet.corners[END_INNER].p.x) * dy -
                (at.y - ports.outlet.corners[END_INNER].p.y) * dx) /
               std::hypot(dx, dy);
    };
    EXPECT_NEAR(beside_edge(tested.at(0)), 0.0, 1e-9);
    EXPECT_NEAR(beside_edge(tested.at(ports.groove_main_last)), 0.0, 1e-9);
    EXPECT_EQ(tested.at(ports.groove_last), tested.at(0)) << "closed by the tail";
}

TEST(metering_groove, a_narrow_one_ends_in_a_half_circle_without_a_nose_line) {
    groove_on_outlet tested;
    tested.ports.groove_mark_c = 77;
    ASSERT_EQ(tested.build(), port_end::finished);
    EXPECT_EQ(tested.ports.groove_corner_r, 0.75);
    EXPECT_EQ(tested.ports.groove_mark_c, 77) << "the mark keeps its value";
}

TEST(metering_groove, a_wide_one_has_two_corners_and_a_nose_line) {
    groove_on_outlet tested;
    tested.boxes.groove_width = "3.5";
    ASSERT_EQ(tested.build(), port_end::finished);
    const port_params& ports = tested.ports;
    EXPECT_EQ(ports.groove_corner_r, 1.5);
    ASSERT_GT(ports.groove_mark_c, ports.groove_mark_b);
    const int c = ports.groove_mark_c;
    const point2 from = tested.at(c - 1), to = tested.at(c);
    const double line = std::hypot(to.x - from.x, to.y - from.y);
    EXPECT_NEAR(line, 3.5 - 2 * 1.5, 0.05);
}

TEST(metering_groove, twice_the_port_radius_leaves_no_line) {
    groove_on_outlet tested;
    tested.boxes.groove_width = "3";
    ASSERT_EQ(tested.build(), port_end::finished);
    EXPECT_EQ(tested.ports.groove_corner_r, 1.5);
    EXPECT_EQ(tested.ports.groove_mark_c, 0);
}

TEST(metering_groove, sharp_ports_give_it_a_square_nose) {
    groove_on_outlet tested;
    tested.boxes.port_radii = "0";
    tested.build_outlet();
    ASSERT_EQ(tested.build(), port_end::finished);
    const port_params& ports = tested.ports;
    EXPECT_EQ(ports.groove_mark_c, ports.groove_mark_b + 1);
    EXPECT_NEAR(tested.at(ports.groove_mark_b).x, ports.groove_n1.x, 0.001);
    EXPECT_NEAR(tested.at(ports.groove_mark_c).y, ports.groove_n2.y, 0.001);
}

TEST(metering_groove, marks_stand_at_the_tail) {
    groove_on_outlet tested;
    ASSERT_EQ(tested.build(), port_end::finished);
    const port_params& ports = tested.ports;
    EXPECT_EQ(tested.at(ports.groove_mark_d).x, ports.groove_tail_outer.x);
    EXPECT_EQ(tested.at(ports.groove_mark_a).y, ports.groove_tail_inner.y);
    EXPECT_EQ(ports.groove_mark_a, ports.groove_mark_d + 1);
    EXPECT_DOUBLE_EQ(ports.overlap_deg, 1.5 * 216.0 / (2.0 * ports.groove_centre_r * 3.1415927));
    EXPECT_EQ(ports.groove_nose_inner.x, ports.groove_n1.x);
    EXPECT_EQ(ports.groove_nose_outer.y, ports.groove_n2.y);
}

void expect_refused(groove_on_outlet& tested, const std::string& told) {
    const std::int16_t last = tested.ports.groove_last;
    tested.person.log.clear();
    EXPECT_EQ(tested.build(), port_end::refused);
    EXPECT_EQ(tested.person.log,
              (std::vector<std::string>{"message " + told, "focus groove_length"}));
    EXPECT_EQ(tested.boxes.groove_length, "");
    EXPECT_EQ(tested.ports.groove_last, last);
}

TEST(metering_groove, a_nose_past_180_degrees_is_refused) {
    groove_on_outlet tested;
    ASSERT_EQ(tested.build(), port_end::finished);
    tested.boxes.groove_length = "60";
    expect_refused(tested, "Port extends too far into 'Inlet' region of pump");
    tested.boxes.groove_length = "60";
    tested.language = GERMAN;
    expect_refused(tested, "Hafen dehnt zu weit in „Einlass“ Gebiet der Pumpe aus");
}

TEST(metering_groove, a_nose_before_0_degrees_is_refused) {
    groove_on_outlet tested;
    tested.boxes.groove_length = "-170";
    expect_refused(tested, "Port extends too far into 'Inlet' region of pump");
}

TEST(metering_groove, a_nose_that_no_circle_touches_is_refused) {
    groove_on_outlet tested;
    tested.boxes.outlet_start_inner = "61";
    tested.boxes.outlet_start_outer = "38";
    tested.boxes.outlet_end_inner = "155";
    tested.boxes.outlet_end_outer = "158";
    tested.boxes.port_radii = "1.9";
    tested.build_outlet();
    tested.person.log.clear();
    expect_refused(tested, "Error with the Metering Port Angle, please enter a different value");
    tested.boxes.groove_length = "12";
    tested.language = GERMAN;
    expect_refused(
        tested, "Fehler mit dem Messenden Hafenwinkel, trägt bitte einen verschiedenen Wert ein");
}

TEST(metering_groove, a_short_or_negative_length_is_not_refused) {
    for (const char* length : {"0.5", "-3"}) {
        groove_on_outlet tested;
        tested.boxes.groove_length = length;
        EXPECT_EQ(tested.build(), port_end::finished) << length;
    }
}

TEST(metering_groove, inches_convert_the_width_but_not_the_length) {
    groove_on_outlet tested;
    tested.inches = true;
    tested.boxes.groove_width = "0.05";
    tested.boxes.ecc = "0.1122047244094488";
    port_work work = tested.work();
    build_metering_groove(work);
    EXPECT_EQ(tested.ports.groove_width_mm, 0.05 * 25.4);
    EXPECT_EQ(tested.ports.groove_length_deg, 12.0);
}

TEST(metering_groove, a_width_beyond_every_circle_fails) {
    groove_on_outlet tested;
    tested.boxes.groove_width = "36";  // inner circle of 0.4 mm, which the end side does not meet
    EXPECT_FAILURE(tested.build(), failure::invalid_procedure_call);
}

}  // namespace
}  // namespace kvt
