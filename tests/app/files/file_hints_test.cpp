// What is noticed about a file that has been written: that it would scrap the part.
#include "app/files/file_hints.hpp"

#include "app/desk/command_hints.hpp"
#include "app/files/cnc_output.hpp"
#include "app/stages/calculate_profiles.hpp"
#include "support/cnc_design.hpp"
#include "support/temporary_folder.hpp"
#include "support/undercut_design.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

class file_hints_test : public testing::Test {
  protected:
    file_hints_test() : kavetta(design_with_ports("n07_engine_oil_groove")) {
        kavetta.cnc_choices = {4, 0.5, 0.5};
    }

    const std::vector<hint>& hints_of(file_group group, std::string_view name) {
        kavetta.hints.clear();
        note_scrapped_part(kavetta, *find_file(group, name));
        return kavetta.hints;
    }
    /// The boxes of the command that writes one CNC file, behind each other.
    std::vector<std::string> boxes_of(const char* name) {
        scripted_user person;
        cnc_form form = open_cnc_form(kavetta);
        form.machine_res_combo = "0.0001";
        form.toolsize = form.groovetooltext = "0.5";
        tick_cnc_file(kavetta, form, *find_file(file_group::cnc, name), true);
        person.files = {folder.file("any.cnc")};
        run_with_hints(kavetta, person, [&] {
            EXPECT_TRUE(write_cnc_files(kavetta, person, form));
            return false;
        });
        return person.messages;
    }

    void calculate_undercut_rotors() {
        scripted_user person;
        type_undercut_rotors(kavetta.entries);
        EXPECT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    }

    program kavetta;
    temporary_folder folder;
};

TEST_F(file_hints_test, are_none_for_the_files_of_a_sound_design) {
    for (const written_file& file : written_files()) {
        EXPECT_TRUE(hints_of(file.group, file.name).empty()) << file.name;
    }
}

TEST_F(file_hints_test, count_arcs_and_cutter_positions_that_scrap_the_part) {
    calculate_undercut_rotors();
    EXPECT_EQ(hints_of(file_group::cnc, "outer_gcode"),
              (std::vector<hint>{
                  {"Arcs of the file \"Outer Rotor, FANUC G-Codes\" that a machine runs off the "
                   "profile, at lobes of more than half a turn: 14, by up to 0.185 mm. They would "
                   "scrap the part. Use the file \"Outer Rotor, G-codes - arcs checked\".",
                   hint_weight::scraps_part}}));
    EXPECT_EQ(hints_of(file_group::cnc, "outer_offset"),
              (std::vector<hint>{
                  {"Cutter positions of the file \"Outer Rotor, X/Y Co-ords - for specified tool "
                   "size\" that cut into the profile: 184, by up to 0.131 mm. They would scrap the "
                   "part. Use the file \"Outer Rotor, X/Y Co-ords - for specified tool size, "
                   "distance checked\".",
                   hint_weight::scraps_part}}));
    EXPECT_TRUE(hints_of(file_group::cnc, "outer_gcode_checked").empty());
    EXPECT_TRUE(hints_of(file_group::cnc, "outer_offset_checked").empty());
    EXPECT_TRUE(hints_of(file_group::dxf, "outer").empty());
    kavetta.app_state.language = GERMAN;
    EXPECT_TRUE(hints_of(file_group::cnc, "outer_gcode")
                    .at(0)
                    .text.ends_with("14, um bis zu 0.185 mm. Sie würden das Teil zu Ausschuss "
                                    "machen. Benutzen Sie die Datei \"Äußerer Rotor, G-Codes - "
                                    "Bögen geprüft\"."));
}

TEST_F(file_hints_test, stand_in_a_box_once_the_file_is_written) {
    EXPECT_TRUE(boxes_of("outer_gcode").empty());
    calculate_undercut_rotors();
    const std::vector<std::string> boxes = boxes_of("outer_gcode");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes[0].starts_with("Arcs of the file"));
    EXPECT_TRUE(boxes_of("outer_gcode_checked").empty());
}

TEST_F(file_hints_test, tell_a_faulty_groove_with_each_of_its_files) {
    kavetta.entries.outlet_end_inner = "155.65";
    kavetta.entries.outlet_end_outer = "115.91";
    scripted_user person;
    ASSERT_TRUE(design_ports(kavetta, person).groove);
    const auto tells = [&](file_group group, const char* name) {
        const std::vector<hint>& hints = hints_of(group, name);
        return !hints.empty() && hints[0].weight == hint_weight::scraps_part &&
               hints[0].text.starts_with("The metering groove lies on the wrong side");
    };
    for (const char* name : {"outlet_xy", "outlet_pocket", "outlet_gcode"}) {
        EXPECT_TRUE(tells(file_group::cnc, name)) << name;
    }
    EXPECT_TRUE(tells(file_group::dxf, "groove"));
    EXPECT_TRUE(tells(file_group::step, "ports"));
    EXPECT_TRUE(hints_of(file_group::cnc, "inlet_xy").empty());
    EXPECT_TRUE(hints_of(file_group::dxf, "outlet").empty());
    kavetta.entries.metering_groove = "0";
    EXPECT_TRUE(hints_of(file_group::cnc, "outlet_xy").empty());
}

TEST_F(file_hints_test, tell_the_groove_of_an_earlier_run_in_drawings_and_models) {
    kavetta.entries.groove_length = "200";
    scripted_user person;
    ASSERT_FALSE(design_ports(kavetta, person).groove);
    const std::vector<hint> old_one{
        {"The metering groove was refused: this file has the one of an earlier run. It would scrap "
         "the part.",
         hint_weight::scraps_part}};
    EXPECT_EQ(hints_of(file_group::dxf, "groove"), old_one);
    EXPECT_EQ(hints_of(file_group::step, "ports"), old_one);
    EXPECT_TRUE(hints_of(file_group::cnc, "outlet_xy").empty());
    EXPECT_TRUE(hints_of(file_group::dxf, "outlet").empty());
}

}  // namespace
}  // namespace kvt
