// Tests of what stands before a file is written: no results of the open project, older results.
#include "app/files/written_results.hpp"

#include "app/files/cnc_output.hpp"
#include "app/stages/design_assist.hpp"
#include "app/stages/stale_results.hpp"
#include "app/windows/view_commands.hpp"
#include "core/text_table.hpp"
#include "support/cnc_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

const std::string NO_PROFILES =
    "Calculate Profiles first: there are no profiles of this project yet.";
const std::string NO_PORTS = "Design Ports first: there are no ports of this project yet.";
const std::string OLDER =
    "The entries have changed since the last calculation. Write the calculated design?";

/// X of the first vertex of a DXF file.
double first_x(const std::string& bytes) {
    const std::vector<std::string> lines = split_lines(bytes);
    const auto vertex = std::find(lines.begin(), lines.end(), "VERTEX");
    return std::stod(*(std::find(vertex, lines.end(), " 10") + 1));
}

struct written_results : testing::Test {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    scripted_user person;
    temporary_folder folder;

    using texts = std::vector<std::string>;

    void open_another() {
        load_project(kavetta, person, std::string(KVT_TEST_DATA) + "/designs/n04_fuel.KVT");
        clear_ports(kavetta, person);  // DXF and STEP are enabled again
        person.log.clear();
    }
    void write(file_group group, std::string_view name) {
        save_file_of_menu(kavetta, person, *find_file(group, name));
    }
    std::string saved(file_group group, std::string_view name) {
        person.files = {folder.file("out")};
        write(group, name);
        return read_file(folder.file("out"));
    }
};

TEST_F(written_results, of_the_project_before_are_written_by_no_menu_entry) {
    open_another();
    for (const file_group group : {file_group::dxf, file_group::step}) {
        for (const written_file& file : files_of(group)) {
            person.messages.clear();
            write(group, file.name);
            const bool rotors = file.needs == file_needs::profiles;
            EXPECT_EQ(person.messages, texts{rotors ? NO_PROFILES : NO_PORTS}) << file.name;
        }
    }
    EXPECT_TRUE(person.dialogs.empty());
}

TEST_F(written_results, are_missed_in_german_too) {
    open_another();
    kavetta.app_state.language = GERMAN;
    write(file_group::dxf, "inner");
    write(file_group::dxf, "inlet");
    EXPECT_EQ(person.messages, (texts{"Berechnen Sie zuerst die Profile: es gibt noch keine "
                                      "Profile dieses Projekts.",
                                      "Entwerfen Sie zuerst die Häfen: es gibt noch keine Häfen "
                                      "dieses Projekts."}));
    EXPECT_EQ(
        message_text(message::no_performance_yet, ENGLISH).find("Calculate Performance first"), 0U);
}

TEST_F(written_results, of_the_project_before_open_no_cnc_dialog) {
    open_another();
    EXPECT_FALSE(may_open_cnc_form(kavetta, person));
    EXPECT_EQ(person.messages, texts{NO_PROFILES});
}

TEST_F(written_results, a_port_of_the_project_before_keeps_the_press_of_ok_from_writing) {
    open_another();
    ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    EXPECT_TRUE(may_open_cnc_form(kavetta, person));
    cnc_form form = open_cnc_form(kavetta);
    form.machine_res_combo = "0.001";
    tick_cnc_file(kavetta, form, *find_file(file_group::cnc, "inner_xy"), true);
    tick_cnc_file(kavetta, form, *find_file(file_group::cnc, "outlet_xy"), true);
    EXPECT_FALSE(write_cnc_files(kavetta, person, form));
    EXPECT_EQ(person.messages, texts{NO_PORTS});
    EXPECT_TRUE(person.dialogs.empty());
}

TEST_F(written_results, one_finished_port_does_not_make_the_other_one_of_this_project) {
    open_another();
    ASSERT_EQ(calculate_profiles(kavetta, person), run_end::ok);
    note_result(kavetta, &stage_entries::inlet);
    person.files = {std::nullopt};
    write(file_group::dxf, "inlet");
    EXPECT_EQ(person.dialogs.size(), 1U);
    write(file_group::dxf, "outlet");
    write(file_group::step, "ports");
    EXPECT_EQ(person.messages, (texts{NO_PORTS, NO_PORTS}));
}

TEST_F(written_results, are_gone_when_a_run_or_the_assist_has_begun_to_replace_them) {
    program assisted = kavetta;
    kavetta.entries.shaftdiameter = "1000";
    ASSERT_EQ(calculate_profiles(kavetta, person), run_end::failure);
    person.messages.clear();
    write(file_group::dxf, "inner");
    EXPECT_EQ(person.messages, texts{NO_PROFILES});
    ASSERT_EQ(design_assist(assisted, person), assist_end::found);
    EXPECT_FALSE(assisted.stage_entries.rotors);
}

TEST_F(written_results, of_the_present_entries_are_written_without_a_question) {
    person.files = {std::nullopt, std::nullopt};
    write(file_group::dxf, "inner");
    write(file_group::step, "ports");
    EXPECT_EQ(person.dialogs.size(), 2U);
    EXPECT_TRUE(may_open_cnc_form(kavetta, person));
}

TEST_F(written_results, of_older_entries_ask_once_before_the_dialog) {
    kavetta.entries.thick += "1";
    person.answers = {answer::no};
    write(file_group::step, "inner");
    EXPECT_EQ(person.log, texts{"ask " + OLDER});
    person.answers = {answer::yes};
    person.files = {std::nullopt};
    write(file_group::dxf, "inlet");
    EXPECT_EQ(person.questions, (texts{OLDER, OLDER}));
    EXPECT_EQ(person.dialogs.size(), 1U);
    kavetta.app_state.language = GERMAN;
    person.answers = {answer::no};
    EXPECT_FALSE(may_open_cnc_form(kavetta, person));
    EXPECT_EQ(person.questions.back(),
              "Die Eingaben haben sich seit der letzten Berechnung geändert. Das berechnete Design "
              "schreiben?");
}

TEST_F(written_results, a_port_entry_is_no_question_for_a_file_of_a_rotor) {
    kavetta.entries.port_radii += "1";
    person.files = {std::nullopt};
    write(file_group::dxf, "outer");
    EXPECT_TRUE(person.questions.empty());
    person.answers = {answer::no};
    EXPECT_FALSE(may_open_cnc_form(kavetta, person));
}

TEST_F(written_results, are_asked_about_also_when_clear_values_has_emptied_the_view) {
    clear_ports(kavetta, person);
    person.answers = {answer::no};
    write(file_group::dxf, "outlet");
    EXPECT_EQ(person.questions, texts{OLDER});
}

TEST_F(written_results, the_calculated_design_is_written_whatever_stands_in_the_boxes) {
    const std::string outer_dxf = dxf_bytes(kavetta, "outer");
    kavetta.cnc_choices.cnc_res_digits = 3;
    const std::string outer_gcode = cnc_bytes(kavetta, "outer_gcode");
    kavetta.entries.radouter = "8.25";
    kavetta.entries.numlobes = "9";
    person.answers = {answer::yes};
    EXPECT_EQ(saved(file_group::dxf, "outer"), outer_dxf);
    const written_file& gcode = *find_file(file_group::cnc, "outer_gcode");
    person.files = {folder.file("out.cnc")};
    save_file(kavetta, person, gcode);
    EXPECT_EQ(read_file(folder.file("out.cnc")), outer_gcode);
}

TEST_F(written_results, keep_their_unit_when_the_project_has_another_one_since) {
    program inches = design_with_ports("n07_inch_hydraulic");
    const double first = first_x(dxf_bytes(inches, "outer"));
    inches.app_state.drawing_units = MILLIMETRES;
    const written_file& outer = *find_file(file_group::dxf, "outer");
    text_lines text;
    outer.write(source_of(inches, outer), text);
    EXPECT_NEAR(first_x(text.bytes()), first * 25.4, 1e-4);
}

TEST_F(written_results, the_outer_dxf_of_an_imperial_project_takes_the_entries_as_typed) {
    kavetta = design_with_ports("n07_inch_hydraulic");
    const std::string before = saved(file_group::dxf, "outer");
    kavetta.entries.radouter += "1";
    EXPECT_NE(saved(file_group::dxf, "outer"), before);
    EXPECT_TRUE(person.questions.empty());
    person.answers = {answer::no};
    write(file_group::dxf, "inner");
    EXPECT_EQ(person.questions, texts{OLDER});
}

}  // namespace
}  // namespace kvt
