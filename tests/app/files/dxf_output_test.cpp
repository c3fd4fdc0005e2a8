// Tests of the DXF entries of the menu: dialogs, files, the entry of the metering groove.
#include "app/files/dxf_output.hpp"

#include "app/stages/calculate_profiles.hpp"
#include "app/stages/design_ports.hpp"
#include "support/open_design.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

struct dxf_output : testing::Test {
    program kavetta = opened_design("n07_engine_oil_groove");
    scripted_user person;
    temporary_folder folder;

    dxf_output() {
        calculate_profiles(kavetta, person);
        design_ports(kavetta, person);
    }

    std::string saved(dxf_file file) {
        person.files = {folder.file("pump.dxf")};
        save_dxf_file(kavetta, person, file);
        return read_file(folder.file("pump.dxf"));
    }

    /// Vertices of a file: lines "VERTEX".
    std::size_t vertices(dxf_file file) {
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
    for (const dxf_file file : DXF_FILES) {
        const auto index = static_cast<std::size_t>(file);
        person.files = {std::nullopt, ""};
        kavetta.app_state.language = ENGLISH;
        save_dxf_file(kavetta, person, file);
        EXPECT_EQ(person.dialogs.back().title, "Kavetta V2021" + english[index]);
        kavetta.app_state.language = GERMAN;
        save_dxf_file(kavetta, person, file);
        EXPECT_EQ(person.dialogs.back().title, "Kavetta V2021" + german[index]);
        EXPECT_EQ(person.dialogs.back().filter, "All files|*.*|DXF|*.dxf");
        EXPECT_EQ(person.dialogs.back().filter_index, 2);
        EXPECT_EQ(person.dialogs.back().default_extension, "dxf");
        EXPECT_EQ(person.dialogs.back().flags, 2);
    }
    EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(dxf_output, writes_the_profile_of_each_entry) {
    EXPECT_EQ(vertices(dxf_file::inner), 3601U);
    EXPECT_EQ(vertices(dxf_file::outer), 2U + 7U * 320U);
    EXPECT_EQ(vertices(dxf_file::inlet),
              2U + static_cast<std::size_t>(kavetta.port_params.inlet_port_last));
    EXPECT_EQ(vertices(dxf_file::outlet),
              2U + static_cast<std::size_t>(kavetta.port_params.outlet_port_last));
    EXPECT_EQ(vertices(dxf_file::groove),
              2U + static_cast<std::size_t>(kavetta.port_params.groove_last));
}

TEST_F(dxf_output, takes_the_outer_rotor_from_the_boxes_as_they_stand) {
    const std::string before = saved(dxf_file::outer);
    kavetta.app_state.drawing_units = INCHES;
    EXPECT_EQ(saved(dxf_file::outer), before);
    kavetta.entries.outer_root = "23.5";
    EXPECT_NE(saved(dxf_file::outer), before);
}

TEST_F(dxf_output, saves_what_a_failing_writer_got_to_without_a_message) {
    kavetta.entries.numlobes = "0";
    const std::string bytes = saved(dxf_file::outer);
    EXPECT_TRUE(bytes.ends_with(" 30\r\n0.000000\r\n 0\r\n"));
    EXPECT_TRUE(person.messages.empty());
    EXPECT_EQ(person.statuses,
              std::vector<std::string>{"The file could not be saved: Division by zero"});
}

TEST_F(dxf_output, opens_the_menu_with_the_groove_as_it_is_ticked) {
    kavetta.entries.metering_groove = "1";
    open_dxf_menu(kavetta);
    EXPECT_TRUE(kavetta.enabling.mnudxfmetering);
    kavetta.entries.metering_groove = "0";
    open_dxf_menu(kavetta);
    EXPECT_FALSE(kavetta.enabling.mnudxfmetering);
}

}  // namespace
}  // namespace kvt
