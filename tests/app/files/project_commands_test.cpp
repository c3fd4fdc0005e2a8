// Open, Previous design, Save, Save As and New.
#include "app/files/project_commands.hpp"

#include "app/desk/autosave.hpp"
#include "app/files/project_entries.hpp"
#include "app/files/project_fixture.hpp"
#include "base/run_time_error.hpp"
#include "support/property_runs.hpp"

namespace kvt {
namespace {

using open_project_test = project_test;
using save_project_test = project_test;
using texts_of_boxes = std::vector<std::string>;
using new_project_test = project_test;

std::vector<std::string> first_lines(std::vector<std::string> lines, std::size_t count) {
    lines.resize(count);
    return lines;
}

TEST_F(open_project_test, assigns_every_box_of_a_full_file) {
    const std::string path = project_file("pump.KVT", project_lines());
    person.files = {path};
    open_project(kavetta, person);

    const entries& boxes = kavetta.entries;
    EXPECT_EQ(boxes.volumereqd, "6");
    EXPECT_EQ(boxes.shaftdiameter, "18");
    EXPECT_EQ(boxes.thick, "10");
    EXPECT_EQ(boxes.maxdiameter, "52");
    EXPECT_EQ(boxes.numlobes, "7");
    EXPECT_EQ(boxes.clearn, "0.12");
    EXPECT_EQ(boxes.minmaterial, "2.5");
    EXPECT_EQ(boxes.ecc, "2.85");
    EXPECT_EQ(boxes.radinnroot, "14.15");
    EXPECT_EQ(boxes.radouter, "7.5");
    EXPECT_EQ(boxes.fillet, "1.5");
    EXPECT_EQ(boxes.outer_root, "22.9");
    EXPECT_EQ(boxes.axial_clear, "0.06");
    EXPECT_EQ(boxes.radial_clear, "0.15");
    EXPECT_EQ(boxes.inlet_start_inner, "14");
    EXPECT_EQ(boxes.inlet_start_outer, "12");
    EXPECT_EQ(boxes.inlet_end_inner, "150");
    EXPECT_EQ(boxes.inlet_end_outer, "146");
    EXPECT_EQ(boxes.outlet_start_inner, "16");
    EXPECT_EQ(boxes.outlet_start_outer, "14.5");
    EXPECT_EQ(boxes.outlet_end_inner, "148");
    EXPECT_EQ(boxes.outlet_end_outer, "144");
    EXPECT_EQ(boxes.inlet_double_sided, "0");
    EXPECT_EQ(boxes.outlet_double_sided, "0");
    EXPECT_EQ(boxes.port_radii, "1.25");
    EXPECT_EQ(boxes.fluid_density, "860");
    EXPECT_EQ(boxes.kin_visc, "12.6");
    EXPECT_EQ(boxes.vap_press, "0.5");
    EXPECT_EQ(boxes.speed_lo, "600");
    EXPECT_EQ(boxes.speed_hi, "6000");
    EXPECT_EQ(boxes.pressure_lo, "1.1");
    EXPECT_EQ(boxes.pressure_hi, "6.1");
    EXPECT_EQ(boxes.young_inner, "140");
    EXPECT_EQ(boxes.young_outer, "141");
    EXPECT_EQ(boxes.poissons_inner, "0.28");
    EXPECT_EQ(boxes.poissons_outer, "0.29");
    EXPECT_EQ(boxes.friction, "0.08");
    EXPECT_EQ(boxes.shadow_ports, "1");
    EXPECT_EQ(boxes.bulk_mod_text, "1.4");
    EXPECT_EQ(boxes.metering_groove, "1");
    EXPECT_EQ(boxes.groove_length, "12.1");
    EXPECT_EQ(boxes.groove_width, "1.6");
    EXPECT_EQ(boxes.groove_depth, "1.7");
    EXPECT_EQ(boxes.inlet_inner_radius, "14.6");
    EXPECT_EQ(boxes.inlet_outer_radius, "22.4");
    EXPECT_EQ(boxes.Outlet_inner_radius, "14.7");
    EXPECT_EQ(boxes.Outlet_outer_radius, "22.2");
    EXPECT_TRUE(kavetta.enabling.groove_length) << "the loaded check box acts like a click";
    EXPECT_EQ(kavetta.app_state.cnc_file_troc, "t.cnc");
    EXPECT_EQ(kavetta.app_state.cnc_file_inner, "i.cnc");
    EXPECT_EQ(kavetta.app_state.cnc_file_xyouter, "xyo.cnc");
    EXPECT_EQ(kavetta.app_state.cnc_file_innertooloffset, "ito.cnc");
    EXPECT_EQ(kavetta.app_state.cnc_file_outertooloffset, "oto.cnc");
    EXPECT_EQ(kavetta.app_state.cnc_file_outer, "o.cnc");
}

TEST_F(open_project_test, sets_name_title_file_and_recent_list) {
    const std::string path = project_file("pump.KVT", project_lines());
    person.files = {path};
    open_project(kavetta, person);

    EXPECT_EQ(kavetta.app_state.project_path, path);
    EXPECT_EQ(kavetta.app_state.project_name, "pump");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'pump'");
    EXPECT_TRUE(kavetta.app_state.project_has_file);
    EXPECT_EQ(kavetta.app_state.mnufileprev[0], path);
    EXPECT_EQ(kavetta.app_state.projects_folder, folder.file("projects"));
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(open_project_test,
       keeps_the_drawing_resolution_at_1_and_rewrites_capacity_and_required_capacity) {
    std::vector<std::string> lines = project_lines();
    lines[3] = "6,5";
    lines[15] = "7.12345";
    person.files = {project_file("pump.KVT", lines)};
    open_project(kavetta, person);

    EXPECT_EQ(kavetta.entries.coarseness, "1");
    EXPECT_EQ(kavetta.entries.volumereqd, "6") << "the comma cuts it";
    EXPECT_EQ(kavetta.labels.capacity, "7.1234") << "half to even, four decimals";
    EXPECT_EQ(kavetta.labels.units_label, "Lit/Min/1000rpm");
}

TEST_F(open_project_test, leaves_list_and_required_capacity_alone_for_an_unknown_unit) {
    std::vector<std::string> lines = project_lines();
    lines[3] = "6,5";
    lines[16] = " 9 ";
    person.files = {project_file("pump.KVT", lines)};
    open_project(kavetta, person);

    EXPECT_EQ(kavetta.app_state.capacity_unit, 9);
    EXPECT_EQ(kavetta.labels.unittype, "Lit/Min/1000rpm");
    EXPECT_EQ(kavetta.entries.volumereqd, "6,5");
    EXPECT_TRUE(kavetta.app_state.project_has_file);
}

TEST_F(open_project_test, reads_anything_but_mm_as_inches) {
    for (const char* units : {"", "MM", "inch", " mm"}) {
        std::vector<std::string> lines = project_lines();
        lines[2] = units;
        person.files = {project_file("pump.KVT", lines)};
        open_project(kavetta, person);
        EXPECT_EQ(kavetta.app_state.drawing_units, INCHES) << "line 3 \"" << units << '"';
    }
}

TEST_F(open_project_test, stores_eccentricity_and_inner_root_as_typed_also_in_inches) {
    std::vector<std::string> lines = project_lines();
    lines[2] = "";
    lines[10] = " 0,12 ";
    lines[11] = "0.6";
    person.files = {project_file("pump.KVT", lines)};
    open_project(kavetta, person);

    EXPECT_EQ(kavetta.design_params.ecc, 0.12);
    EXPECT_EQ(kavetta.design_params.radinnroot, 0.6);
    EXPECT_EQ(kavetta.entries.ecc, " 0,12 ") << "the box keeps what was typed";
}

TEST_F(open_project_test, clears_the_boxes_that_an_older_file_lacks) {
    kavetta.entries.axial_clear = "0.5";
    kavetta.entries.inlet_double_sided = "1";
    kavetta.entries.radial_clear = "0.4";
    person.files = {project_file("old.KVT", first_lines(project_lines(), 23))};
    open_project(kavetta, person);

    EXPECT_EQ(kavetta.entries.axial_clear, "");
    EXPECT_EQ(kavetta.entries.radial_clear, "");
    EXPECT_EQ(kavetta.entries.inlet_double_sided, "0");
    EXPECT_EQ(kavetta.entries.fluid_density, "");
    EXPECT_EQ(kavetta.entries.outer_root, "");
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
    EXPECT_TRUE(kavetta.app_state.project_has_file);
}

TEST_F(open_project_test, that_fails_leaves_everything_as_it_was) {
    std::vector<std::string> other = project_lines();
    other[2] = "";  // inches
    other[10] = "";
    const std::vector<std::string> bad = {
        project_file("cut.KVT", first_lines(project_lines(), 24)), project_file("ecc.KVT", other),
        project_file("empty.KVT", {}), folder.file("projects/none.KVT")};
    open_project_file(kavetta, person, project_file("pump.KVT", project_lines()));
    kavetta.entries.ecc = "3.3 mm";
    kavetta.entries.shadow_ports = "1";
    const program before = kavetta;
    for (const std::string& path : bad) {
        person.files = {path};
        person.statuses.clear();
        open_project(kavetta, person);
        EXPECT_EQ(kavetta.entries, before.entries) << path;
        EXPECT_EQ(kavetta.app_state.project_path, before.app_state.project_path) << path;
        EXPECT_EQ(kavetta.app_state.project_name, "pump") << path;
        EXPECT_TRUE(kavetta.app_state.project_has_file) << path;
        EXPECT_EQ(kavetta.app_state.drawing_units, MILLIMETRES) << path;
        EXPECT_EQ(kavetta.app_state.capacity_unit, before.app_state.capacity_unit) << path;
        EXPECT_EQ(kavetta.app_state.mnufileprev[0], before.app_state.mnufileprev[0]) << path;
        EXPECT_EQ(kavetta.labels.title, before.labels.title) << path;
        EXPECT_EQ(kavetta.labels.capacity, before.labels.capacity) << path;
        EXPECT_EQ(kavetta.enabling, before.enabling) << path;
        ASSERT_EQ(person.statuses.size(), 1U) << path;
        EXPECT_TRUE(person.statuses[0].starts_with("The file could not be opened: ")) << path;
    }
    EXPECT_EQ(person.statuses[0],
              "The file could not be opened: File not found (No such file or directory)");
    EXPECT_TRUE(person.messages.empty());
    person.answers = {answer::yes};
    save_project(kavetta, person);  // to its own file, not to the one that was refused
    EXPECT_EQ(split_lines(read_file(bad[0])).size(), 24U);
}

TEST_F(open_project_test, stays_open_when_the_settings_cannot_be_written) {
    std::filesystem::remove(folder.path() / "KVT.ini");
    std::filesystem::create_directory(folder.path() / "KVT.ini");
    const std::string path = project_file("pump.KVT", project_lines());
    open_project_file(kavetta, person, path);
    EXPECT_EQ(kavetta.app_state.project_path, path);
    EXPECT_EQ(kavetta.app_state.projects_folder, folder.file("projects"));
    EXPECT_EQ(person.statuses.back(),
              "The file could not be saved: Path/File access error (Is a directory)");
}

TEST_F(open_project_test, finds_a_name_that_the_code_page_cannot_hold_in_that_of_the_file) {
    const std::string path = folder.file("projects/насос 2.KVT");
    person.files = {path};
    ASSERT_TRUE(save_project_as(kavetta, person));
    EXPECT_EQ(kavetta.app_state.project_name, "насос 2");
    EXPECT_EQ(line_of(path, 2), "????? 2");
    kavetta.app_state.project_name = "other";
    open_project_file(kavetta, person, path);
    EXPECT_EQ(kavetta.app_state.project_name, "насос 2");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'насос 2'");
    // A file that was renamed keeps the name that stands in it.
    const std::string renamed = folder.file("projects/фильтр.KVT");
    std::filesystem::copy_file(path_of_utf8(path), path_of_utf8(renamed));
    open_project_file(kavetta, person, renamed);
    EXPECT_EQ(kavetta.app_state.project_name, "????? 2");
}

TEST_F(open_project_test, leaves_everything_alone_when_the_dialog_is_cancelled) {
    const entries before = kavetta.entries;
    person.files = {std::nullopt};
    open_project(kavetta, person);
    EXPECT_EQ(kavetta.entries, before);
    EXPECT_EQ(kavetta.app_state.project_path, "");
    EXPECT_TRUE(person.statuses.empty());
}

TEST_F(open_project_test,
       starts_the_dialog_in_the_folder_of_recent_entry_1_until_a_project_is_open) {
    const std::string path = project_file("pump.KVT", project_lines());
    write_settings_lines({path, "", "", "", "1", "manual", "##"});
    person.files = {std::nullopt, std::nullopt};
    open_project(kavetta, person);
    open_project(kavetta, person);

    ASSERT_EQ(person.dialogs.size(), 2U);
    EXPECT_EQ(person.dialogs[0].folder, folder.file("projects"));
    EXPECT_EQ(person.dialogs[0].title, "Kavetta V2021 - Open Project");
    EXPECT_EQ(person.dialogs[0].filter, "All files|*.*|KVT|*.KVT");
    EXPECT_EQ(person.dialogs[0].filter_index, 2);
    EXPECT_EQ(person.dialogs[0].default_extension, "KVT");
    EXPECT_EQ(person.dialogs[0].flags, 4);
    EXPECT_EQ(person.dialogs[1].folder, folder.file("projects"));
    std::filesystem::create_directories(folder.path() / "pumps");
    std::filesystem::copy_file(path, folder.path() / "pumps/pump.KVT");
    person.files = {folder.file("pumps/pump.KVT"), std::nullopt, std::nullopt};
    open_project(kavetta, person);
    open_project(kavetta, person);
    save_project_as(kavetta, person);
    EXPECT_EQ(person.dialogs[3].folder, folder.file("pumps"));
    EXPECT_EQ(person.dialogs[4].folder, folder.file("pumps"));
}

TEST_F(open_project_test, falls_back_to_the_projects_folder_when_the_recent_one_is_gone) {
    write_settings_lines({"/nowhere/at/all/pump.KVT", "", "", "", "1", "manual", "##"});
    person.files = {std::nullopt};
    open_project(kavetta, person);
    EXPECT_EQ(person.dialogs.at(0).folder, folder.file("projects"));
}

TEST_F(open_project_test, writes_the_settings_at_once) {
    const std::string first = project_file("first.KVT", project_lines());
    const std::string second = project_file("second.KVT", project_lines());
    kavetta.app_state.mnufileprev[0] = "";
    person.files = {first, second};
    open_project(kavetta, person);
    open_project(kavetta, person);
    EXPECT_EQ(line_of(folder.file("KVT.ini"), 1), first) << "the project before the open one";
    EXPECT_EQ(line_of(folder.file("KVT.ini"), 5), "1");
}

TEST_F(open_project_test, puts_a_path_into_the_recent_list_again_when_another_was_open) {
    const std::string first = project_file("first.KVT", project_lines());
    const std::string second = project_file("second.KVT", project_lines());
    person.files = {first, first, second, first};
    open_project(kavetta, person);
    open_project(kavetta, person);
    EXPECT_EQ(kavetta.app_state.mnufileprev[1], "&1") << "opened twice in a row: unchanged";
    open_project(kavetta, person);
    open_project(kavetta, person);
    EXPECT_EQ(kavetta.app_state.mnufileprev[0], first);
    EXPECT_EQ(kavetta.app_state.mnufileprev[1], second);
    EXPECT_EQ(kavetta.app_state.mnufileprev[2], first) << "its old entry stays";
}

TEST_F(open_project_test, refuses_a_check_line_that_is_neither_0_nor_1) {
    std::vector<std::string> lines = project_lines();
    lines[47] = " 5 ";
    person.files = {project_file("pump.KVT", lines)};
    open_project(kavetta, person);
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021");
    EXPECT_EQ(kavetta.entries.shadow_ports, "0");
    EXPECT_EQ(person.statuses.size(), 1U);
}

TEST_F(open_project_test, drops_results_of_the_design_before_it) {
    kavetta.enabling.mnudxf = kavetta.enabling.calc_perf = kavetta.enabling.design_ports = true;
    kavetta.labels.area_ratio = "28.65 %";
    kavetta.rotor_profiles.area_ratio = kavetta.rotor_profiles.max_chamber_volume = 28.65;
    kavetta.rotor_profiles.min_chamber_volume = 7.0;
    kavetta.app_state.profiles_calculated = -1;
    kavetta.app_state.assist_on = true;
    kavetta.design_view.angleline.elements.resize(4);
    person.files = {project_file("pump.KVT", project_lines())};
    open_project(kavetta, person);
    EXPECT_EQ(kavetta.view_state.angleline_count, 4.0) << "as it was before the reset";
    EXPECT_EQ(kavetta.design_view.angleline.elements.size(), 1U);
    EXPECT_FALSE(kavetta.enabling.mnudxf || kavetta.enabling.calc_perf ||
                 kavetta.enabling.design_ports);
    EXPECT_EQ(kavetta.labels.area_ratio, "");
    EXPECT_EQ(kavetta.rotor_profiles.area_ratio, 0.0);
    EXPECT_EQ(kavetta.rotor_profiles.max_chamber_volume, 0.0);
    EXPECT_EQ(kavetta.rotor_profiles.min_chamber_volume, 0.0);
    EXPECT_EQ(kavetta.app_state.profiles_calculated, 0);
    EXPECT_FALSE(kavetta.app_state.assist_on);
}

TEST_F(open_project_test, previous_design_says_that_its_file_is_gone_and_goes_on) {
    open_project_file(kavetta, person, project_file("pump.KVT", project_lines()));
    kavetta.app_state.mnufileprev[2] = folder.file("projects/gone.KVT");
    previous_design(kavetta, person, 2);
    EXPECT_EQ(person.statuses.back(),
              "The file could not be opened: File not found (No such file or directory)");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'pump'");
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
    kavetta.app_state.language = GERMAN;
    kavetta.app_state.mnufileprev[2] = folder.file("none/gone.KVT");
    previous_design(kavetta, person, 2);
    EXPECT_EQ(person.statuses.back(),
              "Die Datei konnte nicht geöffnet werden: Pfad nicht gefunden");
}

TEST_F(open_project_test, previous_design_loads_without_dialog_and_leaves_the_settings_alone) {
    const std::string path = project_file("pump.KVT", project_lines());
    kavetta.app_state.mnufileprev[3] = path;
    const std::string settings = read_file(folder.path() / "KVT.ini");
    previous_design(kavetta, person, 3);
    EXPECT_EQ(kavetta.entries.ecc, "2.85");
    EXPECT_EQ(kavetta.app_state.mnufileprev[0], path);
    EXPECT_EQ(kavetta.app_state.mnufileprev[3], "&3");
    EXPECT_EQ(kavetta.app_state.projects_folder, folder.file("projects"));
    EXPECT_EQ(read_file(folder.path() / "KVT.ini"), settings);
    EXPECT_TRUE(person.dialogs.empty());
}

TEST_F(save_project_test, writes_every_line_of_what_was_opened_but_those_that_open_changes) {
    const std::string path = project_file("pump.KVT", project_lines());
    person.files = {path};
    open_project(kavetta, person);
    save_project(kavetta, person);

    std::vector<std::string> expected = project_lines();
    expected[0] = path;
    expected[13] = "1";
    EXPECT_EQ(split_lines(read_file(path)), expected);
    const std::string once = read_file(path);
    person.files = {path};
    open_project(kavetta, person);
    save_project(kavetta, person);
    EXPECT_EQ(read_file(path), once);
}

TEST_F(save_project_test, keeps_typed_commas_and_blanks_to_the_byte) {
    kavetta.entries.ecc = " 2,85 ";
    kavetta.entries.thick = "10 mm \xC3\xA4";
    const std::string path = folder.file("typed.KVT");
    write_entries(kavetta, path);
    EXPECT_EQ(line_of(path, 11), " 2,85 ");
    EXPECT_EQ(line_of(path, 6), "10 mm \xE4");
}

TEST_F(save_project_test, writes_an_empty_unit_line_for_inches) {
    kavetta.app_state.drawing_units = INCHES;
    write_entries(kavetta, folder.file("inch.KVT"));
    EXPECT_EQ(line_of(folder.file("inch.KVT"), 3), "");
    EXPECT_EQ(split_lines(read_file(folder.file("inch.KVT"))).size(), 59U);
}

TEST_F(save_project_test, asks_for_a_file_while_the_project_has_none) {
    kavetta.app_state.project_name = "new pump";
    person.files = {folder.file("projects/other.KVT")};
    save_project(kavetta, person);
    ASSERT_EQ(person.dialogs.size(), 1U);
    EXPECT_TRUE(person.dialogs[0].saving);
    EXPECT_EQ(person.dialogs[0].file_name, "new pump");
    EXPECT_EQ(person.dialogs[0].title, "Kavetta V2021 - Save Project");
    EXPECT_EQ(person.dialogs[0].flags, 2);
    EXPECT_EQ(person.dialogs[0].folder, folder.file("projects"));
    EXPECT_EQ(kavetta.app_state.project_name, "other");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'other'");
    EXPECT_EQ(kavetta.app_state.mnufileprev[0], folder.file("projects/other.KVT"));
    EXPECT_EQ(line_of(folder.file("projects/other.KVT"), 2), "other");
    EXPECT_EQ(line_of(folder.file("KVT.ini"), 1), "") << "the settings are written at exit only";
}

TEST_F(save_project_test, cuts_the_last_four_characters_of_the_name_whatever_they_are) {
    const struct {
        const char* file;
        const char* name;
    } cases[] = {{"pump.KVT", "pump"},
                 {"pump.project", "pump.pro"},
                 {"a.KV", ""},
                 {"four", ""},
                 {"gr\xC3\xB6\xC3\x9F"
                  "e.KVT",
                  "gr\xC3\xB6\xC3\x9F"
                  "e"},
                 {"x\xC3\xA4\xC3\xB6\xC3\xBC\xC3\x9F", "x"}};
    for (const auto& one : cases) {
        person.files = {folder.file(one.file)};
        EXPECT_TRUE(save_project_as(kavetta, person)) << one.file;
        EXPECT_EQ(kavetta.app_state.project_name, one.name) << one.file;
    }
}

TEST_F(save_project_test, save_as_ends_silently_when_cancelled_or_not_writable) {
    person.files = {std::nullopt, folder.file("no/such/folder/a.KVT")};
    EXPECT_FALSE(save_project_as(kavetta, person));
    EXPECT_EQ(kavetta.app_state.project_path, "");
    EXPECT_FALSE(save_project_as(kavetta, person));
    EXPECT_FALSE(kavetta.app_state.project_has_file);
    EXPECT_TRUE(person.messages.empty());
}

TEST_F(save_project_test, that_fails_says_why_and_the_project_stays_open_and_unsaved) {
    const std::string path = project_file("pump.KVT", project_lines());
    open_project_file(kavetta, person, path);
    kavetta.entries.ecc = "2.9";
    std::filesystem::remove(path);
    std::filesystem::create_directory(path);
    save_project(kavetta, person);
    EXPECT_EQ(person.statuses.back(),
              "The file could not be saved: Path/File access error (Is a directory)");
    EXPECT_TRUE(kavetta.app_state.project_has_file);
    EXPECT_TRUE(has_unsaved_changes(kavetta));
    kavetta.app_state.language = GERMAN;
    save_project(kavetta, person);
    EXPECT_TRUE(person.statuses.back().starts_with("Die Datei konnte nicht gespeichert werden: "));
}

TEST_F(save_project_test, save_as_takes_the_folder_of_the_file_for_the_next_dialog) {
    std::filesystem::create_directories(folder.path() / "pumps");
    open_project_file(kavetta, person, project_file("pump.KVT", project_lines()));
    person.files = {folder.file("pumps/pump.KVT")};
    ASSERT_TRUE(save_project_as(kavetta, person));
    EXPECT_EQ(kavetta.app_state.projects_folder, folder.file("pumps"));
}

TEST_F(save_project_test, save_as_needs_no_settings_file) {
    std::filesystem::remove(folder.path() / "KVT.ini");
    person.files = {folder.file("pump.KVT")};
    EXPECT_TRUE(save_project_as(kavetta, person));
    EXPECT_EQ(person.dialogs[0].folder, folder.file("projects"));
}

TEST_F(save_project_test, keeps_the_boxes_that_have_no_line_and_empties_them_without_one) {
    kavetta.entries.UTS_value = " 1.100,5 für Öl ";
    const std::string path = folder.file("projects/uts.KVT");
    person.files = {path};
    EXPECT_TRUE(save_project_as(kavetta, person));
    EXPECT_EQ(line_of(path, 60), "UTS_value= 1.100,5 f\xFCr \xD6l ");
    kavetta.entries.UTS_value = "other";
    open_project_file(kavetta, person, path);
    EXPECT_EQ(kavetta.entries.UTS_value, " 1.100,5 für Öl ");
    open_project_file(kavetta, person, project_file("pump.KVT", project_lines()));
    EXPECT_EQ(kavetta.entries.UTS_value, "");
}

TEST_F(save_project_test, asks_first_when_the_file_could_not_be_opened_again_and_names_the_entry) {
    open_project_file(kavetta, person, project_file("pump.KVT", project_lines()));
    const std::string path = kavetta.app_state.project_path;
    const std::string before = read_file(path);
    kavetta.entries.ecc = "abc";
    person.answers = {answer::no, answer::no, answer::yes};
    save_project(kavetta, person);
    EXPECT_EQ(person.questions.at(0),
              "This project could not be opened again because of the entry 'Eccentricity'. Do you "
              "wish to save it all the same?");
    EXPECT_EQ(person.log.back(), "focus ecc");
    EXPECT_EQ(read_file(path), before);
    EXPECT_TRUE(has_unsaved_changes(kavetta));
    EXPECT_FALSE(save_project_as(kavetta, person));
    EXPECT_TRUE(person.dialogs.empty()) << "the question comes before the dialog";
    save_project(kavetta, person);
    EXPECT_EQ(line_of(path, 11), "abc");
}

TEST_F(save_project_test, names_the_entry_in_german) {
    kavetta.app_state.language = GERMAN;
    kavetta.entries.radinnroot.clear();
    person.answers = {answer::no};
    EXPECT_FALSE(save_project_as(kavetta, person));
    EXPECT_EQ(person.questions.at(0),
              "Dieses Projekt ließe sich nicht wieder öffnen, wegen der Eingabe „Radius Innere "
              "Wurzel“. Möchten Sie es trotzdem speichern?");
}

TEST_F(save_project_test, finds_an_unopenable_entry_exactly_when_open_would_fail) {
    const texts_of_boxes typed = {"",     "0",   "2,85", " 3 ",    "abc",    "1e999", "1e300",
                                  "-1e9", "5 5", "7a",   "1e-400", "9.9e14", "1e15",  "+.5"};
    random_values random;
    for (int left = property_count(300); left > 0; --left) {
        for (std::string entries::*box :
             {&entries::volumereqd, &entries::ecc, &entries::radinnroot, &entries::thick}) {
            kavetta.entries.*box = typed.at(
                static_cast<std::size_t>(random.whole(0, static_cast<int>(typed.size()) - 1)));
        }
        kavetta.app_state.capacity_unit = static_cast<std::int16_t>(random.whole(0, 6));
        const std::string path = folder.file("typed.KVT");
        write_file(path, write_project(project_record_of(kavetta, path)),
                   disk_write::left_to_the_system);
        program opened;
        std::string failed;
        try {
            load_entries(opened, person, path);
        } catch (const run_time_error& error) {
            failed = error.what();
        }
        const auto entry = find_unopenable_entry(kavetta);
        EXPECT_EQ(entry.has_value(), !failed.empty())
            << failed << kavetta.entries.volumereqd << "; " << kavetta.entries.ecc << "; "
            << kavetta.entries.radinnroot << "; unit " << kavetta.app_state.capacity_unit;
    }
}

TEST_F(save_project_test, save_as_that_fails_leaves_path_and_name) {
    open_project_file(kavetta, person, project_file("pump.KVT", project_lines()));
    const app_state before = kavetta.app_state;
    person.files = {folder.file("no/other.KVT")};
    EXPECT_FALSE(save_project_as(kavetta, person));
    EXPECT_EQ(kavetta.app_state.project_path, before.project_path);
    EXPECT_EQ(kavetta.app_state.project_name, "pump");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'pump'");
}

TEST_F(new_project_test, takes_the_typed_name_and_clears_the_design) {
    kavetta.entries.ecc = "3";
    kavetta.app_state.project_has_file = true;
    kavetta.app_state.project_path = "/somewhere/old.KVT";
    kavetta.app_state.capacity_unit = 5;
    person.project_names = {"oil pump"};
    person.answers = {answer::yes};
    new_project(kavetta, person);

    EXPECT_EQ(kavetta.app_state.project_name, "oil pump");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'oil pump'");
    EXPECT_EQ(kavetta.entries.ecc, "0");
    EXPECT_EQ(kavetta.entries.volumereqd, "0");
    EXPECT_EQ(kavetta.labels.capacity, "0.0");
    EXPECT_EQ(kavetta.app_state.capacity_unit, 1);
    EXPECT_EQ(kavetta.labels.unittype, "Lit/Min/1000rpm");
    EXPECT_FALSE(kavetta.app_state.project_has_file);
    EXPECT_EQ(kavetta.app_state.project_path, "/somewhere/old.KVT") << "the path is not cleared";
}

TEST_F(new_project_test, goes_on_with_the_name_before_when_the_name_dialog_is_cancelled) {
    kavetta.labels.hiddenprojnamelabel = "before";
    kavetta.app_state.project_name = "loaded from a file";
    person.project_names = {std::nullopt};
    person.answers = {answer::yes};
    new_project(kavetta, person);
    EXPECT_EQ(kavetta.app_state.project_name, "before");
    EXPECT_EQ(kavetta.labels.title, "Kavetta V2021 - 'before'");
}

TEST_F(new_project_test, unloads_its_own_set_of_result_forms) {
    person.project_names = {"a"};
    person.answers = {answer::yes};
    new_project(kavetta, person);
    const auto unloads = [this](const std::string& form) {
        return std::count(person.log.begin(), person.log.end(), "unload " + form);
    };
    EXPECT_EQ(unloads("PRESS_RIP_graphview2"), 1);
    EXPECT_EQ(unloads("perf_res"), 1);

    person.log.clear();
    load_project(kavetta, person, project_file("pump.KVT", project_lines()));
    EXPECT_EQ(unloads("PRESS_RIP_graphview2"), 0) << "Open leaves this one loaded";
    EXPECT_EQ(unloads("OVREFF_graphview2"), 1);
}

}  // namespace
}  // namespace kvt
