// kept_design: a design apart from the records says and shows what the records do.
#include "app/trial/kept_design.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/program.hpp"
#include "support/performed_design.hpp"
#include "views/zoom.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

void expect_same_figures(const labels& kept, const labels& shown) {
    for (const label_field& field : label_fields()) {
        if (field.name != "units_label" && field.name != "unittype") {
            EXPECT_EQ(kept.*field.member, shown.*field.member) << field.name;
        }
    }
}

}  // namespace

TEST(kept_design, has_the_result_labels_of_its_run) {
    const program kavetta = performed_design("n07_engine_oil_groove");
    const kept_design kept = kept_design_of(kavetta);
    EXPECT_TRUE(kept.has_performance);
    expect_same_figures(labels_of(kept, kavetta.app_state), kavetta.labels);
}

TEST(kept_design, has_its_capacity_in_the_unit_in_force) {
    program kavetta = performed_design("n07_engine_oil_groove");
    const kept_design kept = kept_design_of(kavetta);
    select_capacity_unit(kavetta, 2);
    EXPECT_EQ(labels_of(kept, kavetta.app_state).capacity, kavetta.labels.capacity);
}

TEST(kept_design, says_nothing_of_what_was_not_calculated) {
    const program opened = opened_design("n07_engine_oil_groove");
    EXPECT_EQ(labels_of(kept_design_of(opened), opened.app_state).capacity, "");
    const program with_ports = design_with_ports("n07_engine_oil_groove");
    const kept_design kept = kept_design_of(with_ports);
    EXPECT_TRUE(kept.outlines.rotors && kept.outlines.inlet && kept.outlines.outlet);
    EXPECT_FALSE(kept.has_performance);
    EXPECT_EQ(labels_of(kept, with_ports.app_state).max_speed, "");
}

TEST(overlay_place, is_that_of_the_rotors_in_the_view) {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    kavetta.view_state.rotation_angle = 12.0;
    const kept_design kept = kept_design_of(kavetta);
    EXPECT_EQ(overlay_place(kavetta, kept).rotation_angle, 12.0);
    EXPECT_EQ(overlay_place(kavetta, kept).view_scale, kavetta.view_state.view_scale);
}

TEST(overlay_place, is_a_first_drawing_in_an_empty_view) {
    const kept_design kept = kept_design_of(design_with_ports("n07_engine_oil_groove"));
    program empty;
    empty.view_state.view_size = 6000;
    const view_state place = overlay_place(empty, kept);
    EXPECT_EQ(place.view_scale, 6000 * 0.95 / kept.design_params.maxdiameter);
    EXPECT_EQ(place.view_cx, 3000.0);
    EXPECT_TRUE(has_rotors(overlay_of(kept, {.rotors = true}, place)));
}

TEST(overlay_of, is_empty_where_it_can_not_be_drawn) {
    const kept_design kept = kept_design_of(design_with_ports("n07_engine_oil_groove"));
    view_state place = overlay_place(program(), kept);
    place.view_scale = 1e300;
    EXPECT_FALSE(has_rotors(overlay_of(kept, {.rotors = true}, place)));
}

}  // namespace kvt
