// Tests of both ports: every refusal with its message in both languages, and the way back from a
// radius too large.
#include "ports/build_ports.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "support/expect_failure.hpp"
#include "support/port_design.hpp"

#include <cmath>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using log_lines = std::vector<std::string>;

/// The angles of both ports, and the fillet radius.
void type_ports(entries& boxes, const std::string& start_inner, const std::string& start_outer,
                const std::string& end_inner, const std::string& end_outer,
                const std::string& radius) {
    boxes.inlet_start_inner = boxes.outlet_start_inner = start_inner;
    boxes.inlet_start_outer = boxes.outlet_start_outer = start_outer;
    boxes.inlet_end_inner = boxes.outlet_end_inner = end_inner;
    boxes.inlet_end_outer = boxes.outlet_end_outer = end_outer;
    boxes.port_radii = radius;
}

struct search_failure {
    const char *start_inner, *start_outer, *end_inner, *end_outer, *radius;
    const char* corner;
    message text;
};

// Each port has a side on which no circle of the radius touches both the arc and the side.
const search_failure SEARCH_FAILURES[] = {
    {"20", "13", "91", "159", "1.5", "start_inner", message::start_angle_inner_radius},
    {"77", "2", "96", "99", "3.7", "start_outer", message::start_angle_outer_radius},
    {"83", "18", "91", "173", "1.5", "end_inner", message::end_angle_inner_radius},
    {"2", "25", "110", "142", "1.5", "end_outer", message::end_angle_outer_radius},
};

TEST(build_ports, a_search_that_runs_out_empties_and_focuses_its_entry_in_both_languages) {
    for (const search_failure& row : SEARCH_FAILURES) {
        for (const std::int16_t language : {ENGLISH, GERMAN}) {
            port_design tested;
            tested.language = language;
            tested.boxes.Outlet_inner_radius = "14.6";
            tested.boxes.inlet_inner_radius = "14.6";
            tested.boxes.inlet_outer_radius = "22.2";
            type_ports(tested.boxes, row.start_inner, row.start_outer, row.end_inner, row.end_outer,
                       row.radius);
            port_work work = tested.work();
            const std::string told = "message " + std::string(message_text(row.text, language));
            const std::string inlet = "inlet_" + std::string(row.corner);
            EXPECT_EQ(build_inlet_port(work), port_end::refused) << inlet;
            EXPECT_EQ(tested.person.log, (log_lines{told, "focus " + inlet}));
            EXPECT_EQ(tested.boxes.*find_entry(inlet)->member, "");

            tested.person.log.clear();
            const std::string outlet = "outlet_" + std::string(row.corner);
            EXPECT_EQ(build_outlet_port(work), port_end::refused) << outlet;
            EXPECT_EQ(tested.person.log, (log_lines{told, "focus " + outlet}));
            EXPECT_EQ(tested.boxes.*find_entry(outlet)->member, "");
            EXPECT_EQ(tested.ports.last_good_port_radius, 0.0);
        }
    }
}

TEST(build_ports, messages_of_the_searches_are_these) {
    EXPECT_EQ(message_text(message::start_angle_inner_radius, ENGLISH),
              "Error with the Start Angle Inner Radius, please enter a different value");
    EXPECT_EQ(message_text(message::end_angle_outer_radius, GERMAN),
              "Fehler mit dem Endwinkel Äußerem Radius, trägt bitte einen verschiedenen Wert ein");
}

TEST(build_ports, a_port_beyond_the_axis_is_told_and_no_entry_is_emptied) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        port_design tested;
        tested.language = language;
        type_ports(tested.boxes, "14", "12", "179", "178", "1.5");
        port_work work = tested.work();
        EXPECT_EQ(build_inlet_port(work), port_end::finished) << "179 is still inside";
        type_ports(tested.boxes, "14", "12", "190", "188", "1.5");
        EXPECT_EQ(build_inlet_port(work), port_end::refused);
        EXPECT_EQ(build_outlet_port(work), port_end::refused);
        const bool german = language == GERMAN;
        EXPECT_EQ(tested.person.messages,
                  (log_lines{german ? "Hafen dehnt zu weit in „Auslauf“ Gebiet der Pumpe aus"
                                    : "Port extends too far into 'Outlet' region of pump",
                             german ? "Hafen dehnt zu weit in „Einlass“ Gebiet der Pumpe aus"
                                    : "Port extends too far into 'Inlet' region of pump"}));
        EXPECT_EQ(tested.boxes.inlet_end_inner, "190");
        EXPECT_EQ(tested.boxes.outlet_end_inner, "190");
    }
}

TEST(build_ports, a_refusal_leaves_the_old_outline_whole) {
    port_design tested;
    port_work work = tested.work();
    ASSERT_EQ(build_inlet_port(work), port_end::finished);
    const zeroed_array x = tested.ports.inlet.x;
    const std::int16_t last = tested.ports.inlet.last;
    tested.boxes.inlet_end_inner = "190";
    tested.boxes.inlet_end_outer = "188";
    ASSERT_EQ(build_inlet_port(work), port_end::refused);
    EXPECT_EQ(tested.ports.inlet.x, x);
    EXPECT_EQ(tested.ports.inlet.last, last);
}

TEST(build_ports, a_shorter_outline_leaves_nothing_of_a_longer_one) {
    port_design tested;
    port_work work = tested.work();
    ASSERT_EQ(build_outlet_port(work), port_end::finished);
    const int longer = tested.ports.outlet.last;
    tested.boxes.port_radii = "0";
    ASSERT_EQ(build_outlet_port(work), port_end::finished);
    ASSERT_LT(tested.ports.outlet.last, longer);
    for (int i = tested.ports.outlet.last + 1; i <= longer; ++i) {
        EXPECT_EQ(checked_at(tested.ports.outlet.x, i), 0.0);
        EXPECT_EQ(checked_at(tested.ports.outlet.y, i), 0.0);
    }
}

std::string too_large(message port, std::int16_t language) {
    return std::string(message_text(port, language)) + "\rPlease enter a smaller port radius";
}

TEST(build_ports, a_radius_too_large_goes_back_to_the_last_good_one) {
    for (const std::int16_t language : {ENGLISH, GERMAN}) {
        port_design tested;
        tested.language = language;
        port_work work = tested.work();
        tested.ports.last_good_port_radius = 1.25;
        tested.boxes.port_radii = "4.6";
        EXPECT_EQ(build_inlet_port(work), port_end::finished);
        EXPECT_EQ(tested.person.messages,
                  log_lines{too_large(message::port_radius_too_large_inlet, language)});
        EXPECT_EQ(tested.boxes.port_radii, "1.25");
        EXPECT_EQ(tested.boxes.inlet_inner_radius, "14.15")
            << "also the radii go back, to the rotors'";
        EXPECT_EQ(tested.boxes.inlet_outer_radius, "22.9");
        EXPECT_EQ(tested.ports.port_radius, 1.25);
    }
}

TEST(build_ports, messages_of_the_radius_are_these) {
    EXPECT_EQ(too_large(message::port_radius_too_large_inlet, ENGLISH),
              "The specified port radius is too large for the Inlet Port\rPlease enter a smaller "
              "port radius");
    EXPECT_EQ(too_large(message::port_radius_too_large_outlet, ENGLISH),
              "The specified port radius is too large for the Outlet Port\rPlease enter a smaller "
              "port radius");
    EXPECT_EQ(message_text(message::smaller_port_radius, GERMAN),
              "Please enter a smaller port radius");
}

TEST(build_ports, a_radius_that_was_good_and_is_too_large_now_goes_back_to_0) {
    port_design tested;
    port_work work = tested.work();
    tested.ports.last_good_port_radius = 4.6;
    tested.boxes.port_radii = "4.6";
    EXPECT_EQ(build_inlet_port(work), port_end::finished);
    EXPECT_EQ(tested.person.messages.size(), 1U);
    EXPECT_EQ(tested.boxes.port_radii, "0");
    EXPECT_EQ(tested.ports.last_good_port_radius, 0.0);
}

TEST(build_ports, texts_in_inches_are_written_back_cut_to_three_decimals) {
    port_design tested;
    tested.inches = true;
    for (const entry_field& field : entry_fields()) {
        const bool is_length = field.name == "ecc" || field.name == "radouter" ||
                               field.name == "radinnroot" || field.name == "inlet_inner_radius" ||
                               field.name == "inlet_outer_radius";
        if (is_length) {
            tested.boxes.*field.member = number_text(val(tested.boxes.*field.member) / 25.4);
        }
    }
    tested.boxes.port_radii = "0.18";  // 4.572 mm
    tested.ports.last_good_port_radius = 1.25;
    port_work work = tested.work();
    EXPECT_EQ(build_inlet_port(work), port_end::finished);
    EXPECT_EQ(tested.person.messages.size(), 1U);
    EXPECT_EQ(tested.boxes.port_radii, "0.049") << "1.25 / 25.4 = 0.0492";
    EXPECT_EQ(tested.boxes.inlet_inner_radius, "0.557");
    EXPECT_EQ(tested.boxes.inlet_outer_radius, "0.901");
    EXPECT_EQ(tested.ports.port_radius, 0.049 * 25.4);
}

/// 0.18 typed as inches is 4.572 mm, and equal to the last good 0.18 mm all the same: it goes to 0.
TEST(build_ports, inches_are_compared_as_typed_with_the_last_good_radius_in_millimetres) {
    port_design tested;
    tested.inches = true;
    for (const entry_field& field : entry_fields()) {
        const bool is_length = field.name == "ecc" || field.name == "radouter" ||
                               field.name == "radinnroot" || field.name == "inlet_inner_radius" ||
                               field.name == "inlet_outer_radius";
        if (is_length) {
            tested.boxes.*field.member = number_text(val(tested.boxes.*field.member) / 25.4);
        }
    }
    tested.boxes.port_radii = "0.18";
    tested.ports.last_good_port_radius = 0.18;
    port_work work = tested.work();
    build_inlet_port(work);
    EXPECT_EQ(tested.boxes.port_radii, "0");
    EXPECT_EQ(tested.ports.last_good_port_radius, 0.0);
}

TEST(build_ports, a_pass_that_would_write_the_same_texts_ends_as_refused) {
    // The arcs lie the wrong way round, so the fillets cross whatever the radius is.
    port_design tested;
    tested.design.radinnroot = 30.0;
    tested.boxes.radinnroot = "30";
    tested.boxes.inlet_inner_radius = "30";
    tested.boxes.inlet_outer_radius = "22.9";
    tested.boxes.port_radii = "0";
    port_work work = tested.work();
    EXPECT_EQ(build_inlet_port(work), port_end::refused);
    EXPECT_EQ(tested.person.log,
              log_lines{"message " + too_large(message::port_radius_too_large_inlet, ENGLISH)});
    EXPECT_EQ(tested.ports.inlet.last, 0);
}

TEST(build_ports, a_radius_for_the_inlet_only_comes_back_from_the_outlet) {
    port_design tested;
    port_work work = tested.work();
    tested.boxes.port_radii = "2.5";
    tested.boxes.Outlet_outer_radius = "20";
    ASSERT_EQ(build_inlet_port(work), port_end::finished);
    EXPECT_TRUE(tested.person.messages.empty());
    ASSERT_EQ(build_outlet_port(work), port_end::finished);
    EXPECT_EQ(tested.person.messages,
              log_lines{too_large(message::port_radius_too_large_outlet, ENGLISH)});
    EXPECT_EQ(tested.boxes.port_radii, "0");
    EXPECT_EQ(tested.boxes.Outlet_inner_radius, "14.15");
    EXPECT_EQ(tested.boxes.Outlet_outer_radius, "22.9");
    // Kept: a side to the right doesn't rebuild the inlet, whose corners keep the refused radius.
    EXPECT_NEAR(std::hypot(tested.ports.inlet.corners[START_INNER].c.x,
                           tested.ports.inlet.corners[START_INNER].c.y),
                14.5 + 2.5, 1e-9);
    EXPECT_EQ(tested.ports.port_radius, 0.0);
    EXPECT_EQ(tested.ports.inlet.built.f, 2.5) << "the outline knows its own radius";
    EXPECT_EQ(tested.ports.outlet.built.f, 0.0);
    EXPECT_FALSE(work.inlet_rebuilt);
}

TEST(build_ports, an_outline_keeps_what_it_was_built_with) {
    port_design tested;
    port_work work = tested.work();
    ASSERT_EQ(build_inlet_port(work), port_end::finished);
    const port_shape built = tested.ports.inlet.built;
    EXPECT_EQ(built.R, 14.5);
    EXPECT_EQ(built.Q, 22.4);
    EXPECT_EQ(built.f, 1.5);
    EXPECT_EQ(built.e, 2.85);
    EXPECT_EQ(built.corners[0].s.x, tested.ports.inlet.x[0]);
    tested.boxes.inlet_inner_radius = "15";
    tested.boxes.inlet_end_inner = "190";
    tested.boxes.inlet_end_outer = "188";
    ASSERT_EQ(build_inlet_port(work), port_end::refused);
    EXPECT_EQ(tested.ports.inlet.inner_r, 15.0);
    EXPECT_EQ(tested.ports.inlet.built.R, 14.5);
    EXPECT_EQ(tested.ports.inlet.built.corners[1].s, built.corners[1].s);
}

TEST(build_ports, a_start_side_to_the_left_rebuilds_the_inlet_too) {
    port_design tested;
    port_work work = tested.work();
    tested.boxes.outlet_start_inner = "30";
    tested.boxes.outlet_start_outer = "60";
    tested.boxes.port_radii = "2.5";
    tested.boxes.Outlet_inner_radius = "14.6";
    tested.boxes.Outlet_outer_radius = "20";
    tested.ports.last_good_port_radius = 0.5;
    ASSERT_EQ(build_inlet_port(work), port_end::finished);
    ASSERT_EQ(build_outlet_port(work), port_end::finished);
    EXPECT_EQ(tested.person.messages,
              log_lines{too_large(message::port_radius_too_large_outlet, ENGLISH)});
    EXPECT_EQ(tested.boxes.port_radii, "0.5");
    EXPECT_EQ(tested.boxes.Outlet_outer_radius, "20") << "the radii are left alone";
    EXPECT_TRUE(work.inlet_rebuilt);
    EXPECT_EQ(tested.ports.inlet.built.f, 0.5);
    EXPECT_NEAR(std::hypot(tested.ports.inlet.corners[START_INNER].c.x,
                           tested.ports.inlet.corners[START_INNER].c.y),
                14.5 + 0.5, 1e-9);
    EXPECT_EQ(tested.ports.last_good_port_radius, 0.5);
}

TEST(build_ports, sharp_corners_have_arcs_and_sides_only) {
    port_design tested;
    tested.boxes.port_radii = "";
    port_work work = tested.work();
    ASSERT_EQ(build_outlet_port(work), port_end::finished);
    const port_params& ports = tested.ports;
    EXPECT_NEAR(ports.outlet.corners[START_INNER].t_deg, 16.0, 0.0021);
    EXPECT_NEAR(ports.outlet.corners[END_OUTER].t_deg, 144.0, 0.0021);
    EXPECT_EQ(ports.outlet.marks[0], 0);
    EXPECT_NEAR(ports.outlet.marks[1], 2 * (148 - 16), 1);
    EXPECT_EQ(ports.outlet.marks[2], ports.outlet.marks[1] + 20);
    EXPECT_NEAR(ports.outlet.marks[3], ports.outlet.marks[2] + 2 * (144 - 14), 1);
    EXPECT_EQ(ports.outlet.last, ports.outlet.marks[3] + 20);
}

TEST(build_ports, a_whole_half_circle_has_no_search_and_touches_the_axis) {
    port_design tested;
    type_ports(tested.boxes, "0", "0", "180", "180", "1.5");
    port_work work = tested.work();
    ASSERT_EQ(build_inlet_port(work), port_end::finished);
    // Kept: the closed form takes an arctangent where the arcsine would touch the axis, so the port
    // reaches beyond it.
    EXPECT_NEAR(tested.ports.inlet.corners[START_INNER].s.y,
                16.0 * std::sin(std::atan(1.5 / 16.0)) - 1.5, 1e-6);
    EXPECT_LT(tested.ports.inlet.corners[START_INNER].s.y, 0.0);
    EXPECT_LT(tested.ports.inlet.corners[END_OUTER].s.y, 0.0);
    for (std::int64_t i = 0; i <= tested.ports.inlet.last; ++i) {
        ASSERT_LE(checked_at(tested.ports.inlet.y, i),
                  -tested.ports.inlet.corners[START_INNER].s.y + 1e-6)
            << i;
    }
    EXPECT_EQ(tested.ports.inlet.corners[END_INNER].angle_deg, 0.0);
}

TEST(build_ports, the_inlet_fills_the_radii_of_both_ports) {
    port_design tested;
    tested.boxes.inlet_inner_radius = tested.boxes.inlet_outer_radius = "";
    tested.boxes.Outlet_inner_radius = tested.boxes.Outlet_outer_radius = "";
    port_work work = tested.work();
    ASSERT_EQ(build_inlet_port(work), port_end::finished);
    EXPECT_EQ(tested.boxes.inlet_inner_radius, "14.15");
    EXPECT_EQ(tested.boxes.Outlet_inner_radius, "14.15");
    EXPECT_EQ(tested.boxes.Outlet_outer_radius, "22.9");
}

TEST(build_ports, a_finished_outlet_sets_the_last_good_radius) {
    port_design tested;
    port_work work = tested.work();
    ASSERT_EQ(build_inlet_port(work), port_end::finished);
    EXPECT_EQ(tested.ports.last_good_port_radius, 0.0);
    ASSERT_EQ(build_outlet_port(work), port_end::finished);
    EXPECT_EQ(tested.ports.last_good_port_radius, 1.5);
}

TEST(build_ports, a_vertical_side_fails) {
    port_design tested;
    tested.boxes.ecc = "0";
    tested.boxes.inlet_inner_radius = "10";
    tested.boxes.inlet_outer_radius = "10";
    tested.boxes.inlet_start_inner = "-30";
    tested.boxes.inlet_start_outer = "30";
    port_work work = tested.work();
    EXPECT_FAILURE(build_inlet_port(work), failure::division_by_zero);
}

}  // namespace
}  // namespace kvt
