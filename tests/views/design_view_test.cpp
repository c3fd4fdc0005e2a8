// Tests of the Design view's data: the inner rotor's lines and the outside circle.
#include "views/design_view.hpp"

#include "support/expect_failure.hpp"
#include "support/sample_design.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

view_state state_for(const design_params& design) {
    view_state state;
    set_plot_scale(design, state);
    return state;
}

}  // namespace

TEST(line_array, always_has_element_0_and_shows_it_when_set) {
    line_array lines;
    EXPECT_EQ(lines.elements.size(), 1U);
    EXPECT_FALSE(lines.element0_visible);
    lines.set(0, {1.0F, 2.0F, 3.0F, 4.0F});
    lines.set(1, {5.0F, 6.0F, 7.0F, 8.0F});
    EXPECT_TRUE(lines.element0_visible);
    EXPECT_EQ(lines.elements[1].y2, 8.0F);
    lines.clear();
    EXPECT_EQ(lines.elements.size(), 1U);
    EXPECT_FALSE(lines.element0_visible);
}

TEST(line_array, fails_for_an_element_that_was_not_loaded) {
    line_array lines;
    EXPECT_FAILURE(lines.set(2, {}), failure::subscript_out_of_range);
}

TEST(plot_scale, gives_the_maximum_diameter_95_percent_of_the_view) {
    const view_state state = state_for(sample_design());
    EXPECT_EQ(state.view_scale, 3000.0 * 0.95 / 52.0);
    EXPECT_EQ(state.view_ecc, 2.85 * state.view_scale);
}

TEST(inner_rotor_lines, stand_beside_the_outer_rotor_with_y_not_flipped) {
    const design_params design = sample_design();
    const rotor_profiles rotors = inner_rotor_of(design);
    const view_state state = state_for(design);
    design_view view;
    draw_inner_rotor(design, rotors, state, view);
    const drawn_line& first = view.Line1.elements[0];
    const double s = state.view_scale;
    EXPECT_FLOAT_EQ(first.x1,
                    static_cast<float>(s * rotors.inner_x[0] + 1500.0 + s * 2.85 + s * 0.06));
    EXPECT_FLOAT_EQ(first.y1, static_cast<float>(s * rotors.inner_y[0] + 1500.0));
    EXPECT_FLOAT_EQ(first.x2,
                    static_cast<float>(s * rotors.inner_x[1] + 1500.0 + s * 2.85 + s * 0.06));
    EXPECT_TRUE(view.Line1.element0_visible);
}

TEST(inner_rotor_lines, are_one_a_plotted_point_and_a_closing_one) {
    for (const int coarseness : {1, 2, 3, 4, 5, 6, 8, 9, 10}) {
        design_params design = sample_design();
        design.coarseness = static_cast<std::int16_t>(coarseness);
        design_view view;
        draw_inner_rotor(design, inner_rotor_of(design), state_for(design), view);
        EXPECT_EQ(view.Line1.elements.size(), 3600U / static_cast<std::size_t>(coarseness) + 1U)
            << coarseness;
    }
}

TEST(inner_rotor_lines, form_a_closed_outline) {
    const design_params design = sample_design();
    design_view view;
    draw_inner_rotor(design, inner_rotor_of(design), state_for(design), view);
    const auto& lines = view.Line1.elements;
    for (std::size_t i = 1; i < lines.size(); ++i) {
        ASSERT_EQ(lines[i].x1, lines[i - 1].x2);
        ASSERT_EQ(lines[i].y1, lines[i - 1].y2);
    }
    EXPECT_EQ(lines.back().x2, lines.front().x1);
    EXPECT_EQ(lines.back().y2, lines.front().y1);
}

TEST(inner_rotor_lines, of_a_resolution_that_does_not_divide_the_points_round_their_number) {
    design_params design = sample_design();
    design.coarseness = 7;
    rotor_profiles rotors = inner_rotor_of(sample_design());
    rotors.inner_plot_len = 7200.0 / 7.0 + 1.0;
    rotors.inner_plot_xy.assign(1031, 0.0);
    fill_inner_rotor(design, rotors);
    design_view view;
    draw_inner_rotor(design, rotors, state_for(design), view);
    EXPECT_EQ(view.Line1.elements.size(), 515U);  // j = 0 .. 513, and the closing one
}

TEST(inner_rotor_lines, fail_when_they_do_not_fit_single_precision) {
    const design_params design = sample_design();
    view_state state = state_for(design);
    state.view_scale = 1e300;
    design_view view;
    EXPECT_FAILURE(draw_inner_rotor(design, inner_rotor_of(design), state, view),
                   failure::overflow);
}

TEST(outside_circle, has_the_maximum_diameter_about_the_centre) {
    const design_params design = sample_design();
    design_view view;
    draw_inner_rotor(design, inner_rotor_of(design), state_for(design), view);
    EXPECT_TRUE(view.Shape1.visible);
    EXPECT_EQ(view.Shape1.x, 1500.0);
    EXPECT_EQ(view.Shape1.y, 1500.0);
    EXPECT_NEAR(view.Shape1.diameter, 2850.0, 1e-9);
}

TEST(clearing, of_the_rotors_leaves_the_ports) {
    const design_params design = sample_design();
    design_view view;
    draw_inner_rotor(design, inner_rotor_of(design), state_for(design), view);
    view.Picture1.resize(3);
    view.inlet_portline.set(1, {});
    clear_rotors(view);
    EXPECT_EQ(view.Line1.elements.size(), 1U);
    EXPECT_FALSE(view.Line1.element0_visible);
    EXPECT_FALSE(view.Shape1.visible);
    EXPECT_TRUE(view.Picture1.empty());
    EXPECT_EQ(view.inlet_portline.elements.size(), 2U);
    clear_all(view);
    EXPECT_EQ(view.inlet_portline.elements.size(), 1U);
}

}  // namespace kvt
