// Create Charts, the flags and places of the charts, the file of their picture.
#include "app/windows/result_charts.hpp"

#include "app/program.hpp"
#include "base/text_file.hpp"
#include "support/expect_failure.hpp"
#include "support/scripted_user.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

using log_lines = std::vector<std::string>;

class result_charts : public testing::Test {
  protected:
    result_charts() {
        kavetta.folder = folder.path();
        kavetta.app_state.project_name = "pump";
        std::filesystem::create_directory(folder / "images");
    }

    void save(const std::string& picture) {
        save_chart_picture(kavetta, person, load_chart(kavetta, chart_kind::flow), picture);
    }

    temporary_folder folder;
    program kavetta;
    scripted_user person;
};

}  // namespace

TEST_F(result_charts, show_the_ticked_ones_in_the_order_of_the_boxes) {
    create_charts(kavetta, person);
    EXPECT_EQ(person.log, log_lines());
    kavetta.entries.ovr_effic_checkbox = kavetta.entries.power_checkbox = "1";
    create_charts(kavetta, person);
    EXPECT_EQ(person.log, (log_lines{"show LOAD_graphview2", "show OVREFF_graphview2"}));
}

TEST_F(result_charts, all_seven_boxes_have_their_chart) {
    for (const char* box : {"flow_checkbox", "power_checkbox", "stress_checkbox", "ripple_checkbox",
                            "ve_checkbox", "effic_checkbox", "ovr_effic_checkbox"}) {
        kavetta.entries.*find_entry(box)->member = "1";
    }
    create_charts(kavetta, person);
    EXPECT_EQ(person.log,
              (log_lines{"show FLOW_graphview2", "show LOAD_graphview2", "show HERTZ_graphview2",
                         "show PRESS_RIP_graphview2", "show VE_graphview2", "show EFFIC_graphview2",
                         "show OVREFF_graphview2"}));
}

TEST_F(result_charts, have_a_flag_each_from_load_to_unload) {
    load_chart(kavetta, chart_kind::ripple);
    EXPECT_TRUE(kavetta.app_state.chart_open_ripple);
    EXPECT_FALSE(kavetta.app_state.chart_open_flow || kavetta.app_state.chart_open_overall);
    EXPECT_TRUE(is_chart_open(kavetta.app_state, chart_kind::ripple));
    unload_chart(kavetta, chart_kind::ripple);
    EXPECT_FALSE(kavetta.app_state.chart_open_ripple);
}

TEST_F(result_charts, load_in_the_language_and_units_in_force) {
    EXPECT_EQ(load_chart(kavetta, chart_kind::flow).title, "Pump Flow (Lit/min)");
    kavetta.app_state.language = GERMAN;
    kavetta.app_state.drawing_units = INCHES;
    EXPECT_EQ(load_chart(kavetta, chart_kind::flow).title, "Pumpen Sie Ablauf (USGall/min)");
}

TEST_F(result_charts, open_at_their_stored_place_each_number_by_itself) {
    EXPECT_EQ(chart_place(kavetta, chart_kind::ve), (window_rectangle{6630, 8790, 1500, 1500}));
    kavetta.window_rectangles.of("VE_graphview2") = window_rectangle{4500, 0, -150, 0};
    EXPECT_EQ(chart_place(kavetta, chart_kind::ve), (window_rectangle{4500, 8790, -150, 1500}));
}

TEST_F(result_charts, save_their_picture_under_the_name_of_the_project) {
    save("picture");
    EXPECT_EQ(read_file(folder / "images/pump. Pump Flow.bmp"), "picture");
    EXPECT_EQ(person.statuses, log_lines{"Written: " + folder.file("images/pump. Pump Flow.bmp")});
}

TEST_F(result_charts, save_no_picture_without_the_folder_or_under_a_name_that_files_cannot_have) {
    for (const char* name : {"../pump", "a:b", "what?"}) {
        kavetta.app_state.project_name = name;
        EXPECT_FAILURE(save("picture"), failure::path_file_access);
    }
    kavetta.app_state.project_name = "pump";
    std::filesystem::remove(folder / "images");
    EXPECT_FAILURE(save("picture"), failure::path_not_found);
    EXPECT_EQ(person.log, log_lines());
}

TEST_F(result_charts, are_exported_under_a_proposed_name_with_the_type_to_choose) {
    kavetta.app_state.language = GERMAN;
    const file_dialog dialog =
        chart_export_dialog(kavetta, load_chart(kavetta, chart_kind::overall));
    EXPECT_EQ(dialog.title, "Kavetta V2021 - Diagramm Exportieren");
    EXPECT_EQ(dialog.file_name, "pump - Overall Efficiency");
    EXPECT_EQ(dialog.filter, "PNG|*.png|SVG|*.svg|PDF|*.pdf|CSV|*.csv");
    EXPECT_EQ(dialog.filter_index, 1);
    EXPECT_EQ(dialog.default_extension, "");
    EXPECT_TRUE(dialog.saving);
}

}  // namespace kvt
