// Tests of the Design view's commands on calculated designs.
#include "app/windows/view_commands.hpp"

#include "app/files/project_reset.hpp"
#include "app/program.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "base/path_text.hpp"
#include "base/whole_file.hpp"
#include "support/sample_design.hpp"
#include "support/scripted_user.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class view_commands_test : public testing::Test {
  protected:
    void calculate() {
        kavetta.entries = sample_entries();
        ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
        person.log.clear();
    }
    void drag(double x1, double y1, double x2, double y2) {
        rubber_band_down(kavetta, x1, y1);
        rubber_band_move(kavetta, x2, y2);
        rubber_band_up(kavetta, person, x2, y2);
    }

    program kavetta;
    scripted_user person;
};

TEST_F(view_commands_test, a_drag_zooms_with_a_busy_pointer) {
    calculate();
    drag(500.0, 500.0, 2000.0, 2000.0);
    EXPECT_EQ(kavetta.view_state.view_zoom, 2.0);
    EXPECT_EQ(kavetta.view_state.view_cx, 2000.0);
    EXPECT_EQ(kavetta.design_view.Picture1.back().x, 2000.0);
    EXPECT_EQ(person.log, (std::vector<std::string>{"busy", "not busy"}));
}

TEST_F(view_commands_test, a_second_zoom_goes_on_from_the_first) {
    calculate();
    const double scale = kavetta.view_state.view_scale;
    drag(500.0, 500.0, 2000.0, 2000.0);
    drag(0.0, 0.0, 1000.0, 500.0);
    EXPECT_EQ(kavetta.view_state.view_scale, scale * 2.0 * 3.0);
    EXPECT_EQ(kavetta.view_state.view_cx, 6000.0);
}

TEST_F(view_commands_test, a_click_changes_nothing) {
    calculate();
    const design_view before = kavetta.design_view;
    drag(700.0, 700.0, 700.0, 700.0);
    EXPECT_EQ(kavetta.design_view.Line1.elements, before.Line1.elements);
    EXPECT_EQ(kavetta.view_state.view_zoom, 1.0);
}

TEST_F(view_commands_test, a_zoom_keeps_the_angle_and_zoom_all_turns_back) {
    calculate();
    kavetta.entries.rotated_angle = "30";
    take_typed_angle(kavetta);
    drag(500.0, 500.0, 2000.0, 2000.0);
    design_view zoomed = kavetta.design_view;
    redraw_rotated(kavetta.design_params, kavetta.rotor_profiles, kavetta.view_state,
                   kavetta.design_view);
    EXPECT_EQ(kavetta.design_view.Line1.elements, zoomed.Line1.elements);
    EXPECT_EQ(kavetta.view_state.rotation_angle, 30.0);
    zoom_all(kavetta, person);
    EXPECT_EQ(kavetta.view_state.rotation_angle, 0.0);
    EXPECT_EQ(kavetta.entries.rotated_angle, "0");
    EXPECT_EQ(kavetta.view_state.view_zoom, 1.0);
    EXPECT_EQ(kavetta.view_state.view_cx, 1500.0);
}

TEST_F(view_commands_test, zoom_all_keeps_results_and_enablings) {
    calculate();
    kavetta.enabling.calc_perf = true;
    kavetta.enabling.create_charts = true;
    zoom_all(kavetta, person);
    EXPECT_TRUE(kavetta.enabling.calc_perf);
    EXPECT_TRUE(kavetta.enabling.create_charts);
    EXPECT_EQ(kavetta.app_state.zoom_all_requested, 0);
    for (const std::string& line : person.log) {
        EXPECT_FALSE(line.starts_with("unload")) << line;
    }
}

TEST_F(view_commands_test, zoom_redraws_designed_ports_with_their_counts) {
    calculate();
    const temporary_folder folder;
    kavetta.app_state.projects_folder = utf8_of_path(folder.path());
    kavetta.entries.port_radii = "0.5";
    design_ports(kavetta, person);
    const std::size_t inlet = kavetta.design_view.inlet_portline.elements.size();
    const std::size_t outlet = kavetta.design_view.outlet_portline.elements.size();
    ASSERT_GT(inlet, 1U);
    ASSERT_GT(outlet, 1U);
    const drawn_line before = kavetta.design_view.inlet_portline.elements[0];
    drag(500.0, 500.0, 2000.0, 2000.0);
    EXPECT_EQ(kavetta.design_view.inlet_portline.elements.size(), inlet);
    EXPECT_EQ(kavetta.design_view.outlet_portline.elements.size(), outlet);
    EXPECT_NEAR(kavetta.design_view.inlet_portline.elements[0].x1, (before.x1 - 500.0F) * 2.0F,
                1e-2);
    EXPECT_NEAR(kavetta.design_view.inlet_portline.elements[0].y1, (before.y1 - 500.0F) * 2.0F,
                1e-2);
}

TEST_F(view_commands_test, ticks_and_the_typed_angle_show_the_angle_taken) {
    calculate();
    rotation_tick(kavetta, turning::counter_clockwise);
    EXPECT_EQ(kavetta.entries.rotated_angle, "359");
    rotation_tick(kavetta, turning::clockwise);
    EXPECT_EQ(kavetta.entries.rotated_angle, "0");
    kavetta.entries.rotated_angle = "12.7";
    take_typed_angle(kavetta);
    EXPECT_EQ(kavetta.entries.rotated_angle, "12");
    kavetta.entries.rotated_angle = "800";
    take_typed_angle(kavetta);
    EXPECT_EQ(kavetta.entries.rotated_angle, "440");
}

TEST_F(view_commands_test, nothing_happens_with_nothing_drawn) {
    const auto expect_nothing = [this] {
        const view_state before = kavetta.view_state;
        kavetta.entries.rotated_angle = "45";
        drag(500.0, 500.0, 2000.0, 2000.0);
        rotation_tick(kavetta, turning::clockwise);
        take_typed_angle(kavetta);
        EXPECT_EQ(kavetta.view_state.view_scale, before.view_scale);
        EXPECT_EQ(kavetta.view_state.rotation_angle, before.rotation_angle);
        EXPECT_EQ(kavetta.entries.rotated_angle, "45");
        EXPECT_FALSE(kavetta.design_view.Line1.element0_visible);
        EXPECT_FALSE(kavetta.design_view.Line3.visible);
        EXPECT_TRUE(kavetta.design_view.Picture1.empty());
    };
    expect_nothing();
    calculate();
    project_reset(kavetta, person, reset_kind::open_project);
    expect_nothing();
    calculate();
    kavetta.entries.shaftdiameter = "40";
    ASSERT_EQ(calculate_profiles(kavetta, person), run_end::failure);
    expect_nothing();
}

TEST_F(view_commands_test, a_resize_changes_only_the_next_drawing) {
    calculate();
    const design_view before = kavetta.design_view;
    resize_design_view(kavetta, 7185.0);
    EXPECT_EQ(kavetta.view_state.view_size, 6000);
    EXPECT_EQ(kavetta.design_view.Line1.elements, before.Line1.elements);
    zoom_all(kavetta, person);
    EXPECT_EQ(kavetta.view_state.view_cx, 3000.0);
    EXPECT_EQ(kavetta.view_state.view_scale, 6000.0 * 0.95 / 52.0);
}

TEST_F(view_commands_test, the_wheel_zooms_at_its_place_and_keeps_angle_and_ports) {
    calculate();
    kavetta.entries.rotated_angle = "30";
    take_typed_angle(kavetta);
    const drawn_line before = kavetta.design_view.Line1.elements[10];
    zoom_by_wheel(kavetta, 2.0, 1500.0, 1500.0);
    const drawn_line& after = kavetta.design_view.Line1.elements[10];
    EXPECT_NEAR(after.x1, 1500.0 + (before.x1 - 1500.0) * 2.0, 0.01);
    EXPECT_NEAR(after.y1, 1500.0 + (before.y1 - 1500.0) * 2.0, 0.01);
    EXPECT_EQ(kavetta.view_state.rotation_angle, 30.0);
}

TEST_F(view_commands_test, the_middle_button_moves_everything_by_the_way_of_the_mouse) {
    calculate();
    zoom_by_wheel(kavetta, 1.0, 0.0, 0.0);  // a zoom draws the inner rotor on its axis
    const drawn_line before = kavetta.design_view.Line1.elements[10];
    pan_view(kavetta, 100.0, -50.0);
    EXPECT_NEAR(kavetta.design_view.Line1.elements[10].x1, before.x1 + 100.0, 0.01);
    EXPECT_NEAR(kavetta.design_view.Line1.elements[10].y1, before.y1 - 50.0, 0.01);
    EXPECT_EQ(kavetta.design_view.Shape1.x, 1600.0);
}

TEST_F(view_commands_test, without_rotors_wheel_and_middle_button_do_nothing) {
    zoom_by_wheel(kavetta, 2.0, 100.0, 100.0);
    pan_view(kavetta, 10.0, 10.0);
    EXPECT_EQ(kavetta.view_state.view_cx, view_state().view_cx);
    EXPECT_EQ(kavetta.view_state.view_scale, 0.0);
}

TEST_F(view_commands_test, the_picture_goes_to_the_path_that_was_chosen) {
    const temporary_folder folder;
    const std::string path = folder.file("view.svg");
    person.files = {path};
    const auto bytes = [](const std::string& asked) { return "bytes of " + asked; };
    save_view_picture(kavetta, person, bytes);
    EXPECT_EQ(read_file(path), "bytes of " + path);
    person.files = {std::nullopt};
    save_view_picture(kavetta, person, bytes);
    EXPECT_EQ(read_file(path), "bytes of " + path);
}

}  // namespace
}  // namespace kvt
