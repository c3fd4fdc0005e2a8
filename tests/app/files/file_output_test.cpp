// Tests of the entries of the menus that write one file: dialogs, files, what a failing writer
// leaves, the entry of the metering groove; the simulation exchange's files.
#include "app/files/file_output.hpp"

#include "base/path_text.hpp"
#include "support/cnc_design.hpp"
#include "support/expect_failure.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

struct dxf_output : testing::Test {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    scripted_user person;
    temporary_folder folder;

    std::string saved(std::string_view name) {
        person.files = {folder.file("pump.dxf")};
        EXPECT_EQ(save_file(kavetta, person, *find_file(file_group::dxf, name)),
                  folder.file("pump.dxf"));
        return read_file(folder.file("pump.dxf"));
    }

    /// Vertices of a file: lines "VERTEX".
    std::size_t vertices(std::string_view file) {
        const std::vector<std::string> lines = split_lines(saved(file));
        return static_cast<std::size_t>(std::count(lines.begin(), lines.end(), "VERTEX"));
    }
};

TEST_F(dxf_output, asks_for_the_name_of_each_file_in_both_languages) {
    const std::vector<std::string> english = {
        " - Save Inner Rotor Profile As DXF", " - Save Outer Rotor Profile As DXF",
        " - Save Inlet Port Profile As DXF", " - Save Outlet Port Profile As DXF",
        " - Save Metering Groove Profile As DXF"};
    const std::vector<std::string> german = {
        " - Sparen Sie Inneres Rotorprofil Als DXF", " - Sparen Sie Äußeres Rotorprofil Als DXF",
        " - Sparen Sie Einlasshafenprofil Als DXF", " - Sparen Sie Auslaufhafenprofil Als DXF",
        " - Sparen Sie Messenrillenprofil Als DXF"};
    std::size_t index = 0;
    for (const written_file& file : files_of(file_group::dxf)) {
        person.files = {std::nullopt, ""};
        kavetta.app_state.language = ENGLISH;
        EXPECT_FALSE(save_file(kavetta, person, file));
        EXPECT_EQ(person.dialogs.back().title, "Kavetta V2021" + english[index]);
        kavetta.app_state.language = GERMAN;
        EXPECT_FALSE(save_file(kavetta, person, file));
        EXPECT_EQ(person.dialogs.back().title, "Kavetta V2021" + german[index++]);
        EXPECT_EQ(person.dialogs.back().filter, "All files|*.*|DXF|*.dxf");
        EXPECT_EQ(person.dialogs.back().filter_index, 2);
        EXPECT_EQ(person.dialogs.back().default_extension, "dxf");
        EXPECT_EQ(person.dialogs.back().flags, 2);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(dxf_output, names_the_written_file_in_the_status_bar) {
    saved("inner");
    EXPECT_EQ(person.statuses, std::vector<std::string>{"Written: " + folder.file("pump.dxf")});
    kavetta.app_state.language = GERMAN;
    saved("inner");
    EXPECT_EQ(person.statuses.back(), "Geschrieben: " + folder.file("pump.dxf"));
    person.files = {std::nullopt};
    EXPECT_FALSE(save_file(kavetta, person, *find_file(file_group::dxf, "inner")));
    EXPECT_EQ(person.statuses.size(), 2U) << "a cancelled dialog wrote nothing";
}

TEST_F(dxf_output, writes_the_profile_of_each_entry) {
    EXPECT_EQ(vertices("inner"), 3601U);
    EXPECT_EQ(vertices("outer"), 2U + 7U * 320U);
    EXPECT_EQ(vertices("inlet"), 2U + static_cast<std::size_t>(kavetta.port_params.inlet.last));
    EXPECT_EQ(vertices("outlet"), 2U + static_cast<std::size_t>(kavetta.port_params.outlet.last));
    EXPECT_EQ(vertices("groove"), 2U + static_cast<std::size_t>(kavetta.port_params.groove_last));
}

TEST_F(dxf_output, takes_the_outer_rotor_from_the_boxes_as_they_stand) {
    const std::string before = saved("outer");
    kavetta.app_state.drawing_units = INCHES;
    EXPECT_EQ(saved("outer"), before);
    kavetta.entries.outer_root = "23.5";
    EXPECT_NE(saved("outer"), before);
}

TEST_F(dxf_output, saves_what_a_failing_writer_got_to_without_a_message) {
    kavetta.app_state.drawing_units = INCHES;  // the entries as typed
    kavetta.entries.numlobes = "0";
    const std::string bytes = saved("outer");
    EXPECT_TRUE(bytes.ends_with(" 30\r\n0.000000\r\n 0\r\n"));
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(person.statuses, std::vector<std::string>{"Incomplete: " + folder.file("pump.dxf") +
                                                        ": Division by zero"});
}

TEST_F(dxf_output, opens_the_menu_with_the_groove_as_it_is_ticked) {
    kavetta.entries.metering_groove = "1";
    open_dxf_menu(kavetta);
    EXPECT_TRUE(kavetta.enabling.mnudxfmetering);
    kavetta.entries.metering_groove = "0";
    open_dxf_menu(kavetta);
    EXPECT_FALSE(kavetta.enabling.mnudxfmetering);
}

struct step_output : testing::Test {
    program kavetta = design_with_ports("n07_engine_oil_groove");
    scripted_user person;
    temporary_folder folder;

    step_output() { kavetta.date = "11/03/21"; }

    std::optional<std::string> save(std::string_view name) {
        return save_file(kavetta, person, *find_file(file_group::step, name));
    }
    std::vector<std::string> saved_lines(std::string_view name) {
        const std::string path = folder.file("pump.stp");
        person.files = {path};
        save(name);
        return split_lines(read_file(path));
    }
};

TEST_F(step_output, asks_for_the_name_with_the_program_title) {
    person.files = {std::nullopt};
    save("inner");
    ASSERT_EQ(person.dialogs.size(), 1U);
    const file_dialog& dialog = person.dialogs[0];
    EXPECT_EQ(dialog.title, "Kavetta V2021 - Create STEP file");
    EXPECT_EQ(dialog.filter, "All files|*.*|STP|*.stp");
    EXPECT_EQ(dialog.filter_index, 2);
    EXPECT_EQ(dialog.default_extension, "stp");
    EXPECT_EQ(dialog.flags, 2);
    EXPECT_TRUE(dialog.saving);
    EXPECT_EQ(dialog.file_name, "");
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_EQ(person.log.size(), 1U);  // the dialog and nothing else
}

TEST_F(step_output, asks_in_german) {
    kavetta.app_state.language = GERMAN;
    person.files = {""};
    save("ports");
    EXPECT_EQ(person.dialogs[0].title, "Kavetta V2021 - Schaffen Sie STEP Datei");
    EXPECT_EQ(person.log.size(), 1U);
}

TEST_F(step_output, writes_path_date_and_version_into_the_header) {
    const std::vector<std::string> lines = saved_lines("inner");
    EXPECT_EQ(lines[4], "FILE_NAME ('" + folder.file("pump.stp") + "',");
    EXPECT_EQ(lines[5], "    '11/03/21',");
    EXPECT_EQ(lines[9], "    'Kavetta V2021.1.1',");
    EXPECT_EQ(lines.back(), "END-ISO-10303-21;");
}

TEST_F(step_output, writes_a_file_for_every_entry) {
    const auto solids = [&](std::string_view file) {
        std::vector<std::string> names;
        for (const std::string& line : saved_lines(file)) {
            const std::size_t at = line.find("MANIFOLD_SOLID_BREP ( '");
            if (at != std::string::npos) {
                names.push_back(line.substr(0, line.find(' ')) + line.substr(at + 21));
            }
        }
        return names;
    };
    using names = std::vector<std::string>;
    EXPECT_EQ(solids("inner"), (names{"#11 'INNER ROTOR', #12 ) ;"}));
    EXPECT_EQ(solids("outer"), (names{"#20 'Outer rotor', #21 ) ;"}));
    EXPECT_EQ(solids("assembly"),
              (names{"#11 'INNER ROTOR', #12 ) ;", "#1000020 'Outer rotor', #1000021 ) ;"}));
    EXPECT_EQ(solids("ports"), (names{"#11 'PORTING', #12 ) ;", "#1000011 'PORTING', #1000012 ) ;",
                                      "#2000011 'OUTLET UPPER PORTING', #2000012 ) ;",
                                      "#3000011 'INLET UPPER PORTING', #3000012 ) ;",
                                      "#4000011 'Metering Groove PORTING', #4000012 ) ;"}));
    EXPECT_EQ(person.statuses, std::vector<std::string>(4, "Written: " + folder.file("pump.stp")));
}

TEST_F(step_output, never_changes_the_design) {
    const rotor_profiles before = kavetta.rotor_profiles;
    saved_lines("assembly");
    EXPECT_EQ(kavetta.rotor_profiles.outer_xy, before.outer_xy);
    EXPECT_EQ(kavetta.rotor_profiles.outer_x, before.outer_x);
    EXPECT_EQ(kavetta.rotor_profiles.inner_x, before.inner_x);
}

TEST_F(step_output, saves_what_a_failing_writer_got_to_without_a_message) {
    kavetta.design_params.thick = std::numeric_limits<double>::infinity();
    const std::vector<std::string> lines = saved_lines("inner");
    EXPECT_EQ(lines.back(), "DATA;");
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(person.statuses,
              std::vector<std::string>{"Incomplete: " + folder.file("pump.stp") + ": Overflow"});
    kavetta.app_state.language = GERMAN;
    saved_lines("inner");
    EXPECT_EQ(person.statuses.back(), "Unvollständig: " + folder.file("pump.stp") + ": Überlauf");
}

TEST_F(step_output, tells_a_file_that_cannot_be_written_in_the_status_bar_only) {
    person.files = {folder.file("none/pump.stp")};
    save("inner");
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(person.statuses,
              std::vector<std::string>{"The file could not be saved: " +
                                       folder.file("none/pump.stp") + ": Path not found"});
}

TEST_F(step_output, writes_the_files_of_the_simulation_exchange_without_a_dialog) {
    write_gt_step_files(kavetta, utf8_of_path(folder.path()));
    const auto holds = [&](const char* name, const char* solid) {
        const std::string bytes = read_file(folder.file(name));
        EXPECT_NE(bytes.find(solid), std::string::npos) << name;
        EXPECT_NE(bytes.find("FILE_NAME ('" + folder.file(name) + "',"), std::string::npos) << name;
    };
    holds("inner_rotor_GT.stp", "\r\n#11 = MANIFOLD_SOLID_BREP ( 'INNER ROTOR', #12 ) ;\r\n");
    holds("outer_rotor_GT.stp", "\r\n#20 = MANIFOLD_SOLID_BREP ( 'Outer rotor', #21 ) ;\r\n");
    holds("in_port_GT.stp", "\r\n#11 = MANIFOLD_SOLID_BREP ( 'PORTING', #12 ) ;\r\n");
    holds("out_port_GT.stp", "\r\n#1000011 = MANIFOLD_SOLID_BREP ( 'PORTING', #1000012 ) ;\r\n");
    EXPECT_TRUE(person.log.empty());
    EXPECT_FAILURE(write_gt_step_files(kavetta, folder.file("none")), failure::path_not_found);
}

TEST(saved_text, is_whole_or_as_far_as_its_writer_got) {
    const temporary_folder folder;
    EXPECT_FALSE(save_text(folder.file("a"), [](text_lines& text) { text.line("one"); }));
    EXPECT_EQ(read_file(folder.file("a")), "one\r\n");
    const auto failed = save_text(folder.file("b"), [](text_lines& text) {
        text.line("one");
        throw run_time_error(failure::division_by_zero);
    });
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->error.kind(), failure::division_by_zero);
    EXPECT_TRUE(failed->is_there);
    EXPECT_EQ(read_file(folder.file("b")), "one\r\n");
}

}  // namespace
}  // namespace kvt
