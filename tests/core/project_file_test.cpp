// Project files of every length that was ever written, broken ones, and the round trip to the byte.
#include "core/project_file.hpp"

#include "base/code_page.hpp"
#include "base/text_file.hpp"
#include "support/expect_failure.hpp"
#include "support/property_runs.hpp"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace kvt {

namespace {

std::string fixture(const std::string& name) {
    return read_file(std::filesystem::path(KVT_TEST_DATA) / "projects" / (name + ".KVT"));
}

project_record read_fixture(const std::string& name) {
    std::string project_name;
    return read_project(fixture(name), project_name);
}

/// The bytes saved again under the path that line 1 of the fixture names.
std::string saved_again(const std::string& name) {
    project_record record = read_fixture(name);
    record.project_path = "C:\\pumps\\full.KVT";
    return write_project(record);
}

struct box_case {
    int line;
    std::string entries::*box;
    const char* text;
};

/// Lines 4 to 15 and 24 to 59 of the full fixture.
const box_case FULL_BOXES[] = {
    {4, &entries::volumereqd, "1,5"},
    {5, &entries::shaftdiameter, "12"},
    {6, &entries::thick, " 8 "},
    {7, &entries::maxdiameter, "60.0"},
    {8, &entries::numlobes, "7"},
    {9, &entries::clearn, "0,12"},
    {10, &entries::minmaterial, "3"},
    {11, &entries::ecc, "2.8"},
    {12, &entries::radinnroot, "16.5"},
    {13, &entries::radouter, "8.4"},
    {14, &entries::coarseness, "2"},
    {15, &entries::fillet, "1.0"},
    {24, &entries::axial_clear, "0.03"},
    {25, &entries::inlet_start_inner, "10"},
    {26, &entries::inlet_start_outer, "-11.5"},
    {27, &entries::inlet_end_inner, "+160"},
    {28, &entries::inlet_end_outer, "161"},
    {29, &entries::outlet_start_inner, "190"},
    {30, &entries::outlet_start_outer, "191"},
    {31, &entries::outlet_end_inner, "340"},
    {32, &entries::outlet_end_outer, "341"},
    {33, &entries::inlet_double_sided, "1"},
    {34, &entries::outlet_double_sided, "0"},
    {35, &entries::port_radii, "1.5"},
    {36, &entries::fluid_density, "870"},
    {37, &entries::kin_visc, "46"},
    {38, &entries::vap_press, "0.01"},
    {39, &entries::speed_lo, "500"},
    {40, &entries::speed_hi, "5000"},
    {41, &entries::pressure_lo, "1"},
    {42, &entries::pressure_hi, "6"},
    {43, &entries::young_inner, "210"},
    {44, &entries::young_outer, "205"},
    {45, &entries::poissons_inner, "0.30"},
    {46, &entries::poissons_outer, "0.28"},
    {47, &entries::friction, "0.1"},
    {48, &entries::shadow_ports, "1"},
    {49, &entries::bulk_mod_text, "1.4"},
    {50, &entries::metering_groove, "1"},
    {51, &entries::groove_length, "4"},
    {52, &entries::groove_width, "1.2"},
    {53, &entries::groove_depth, "0.8"},
    {54, &entries::inlet_inner_radius, "12.1"},
    {55, &entries::inlet_outer_radius, "17.9"},
    {56, &entries::Outlet_inner_radius, "12.2"},
    {57, &entries::Outlet_outer_radius, "17.8"},
    {58, &entries::outer_root, "22.7"},
    {59, &entries::radial_clear, "0.05"},
};

bool is_check_line(int line) {
    return line == 33 || line == 34 || line == 48 || line == 50;
}

/// Every box up to the last line as typed; every box behind it empty, a check box off.
void expect_boxes(const project_record& record, int last_line) {
    for (const box_case& expected : FULL_BOXES) {
        const std::string missing = is_check_line(expected.line) ? "0" : "";
        EXPECT_EQ(record.boxes.*expected.box, expected.line <= last_line ? expected.text : missing)
            << "line " << expected.line << " of " << last_line;
    }
}

TEST(read_project, reads_every_box_of_each_length_that_was_ever_written) {
    for (const int count : {23, 53, 57, 58, 59}) {
        expect_boxes(read_fixture("lines_" + std::to_string(count)), count);
    }
}

TEST(read_project, reads_the_items_that_are_no_boxes) {
    const project_record record = read_fixture("lines_23");
    EXPECT_EQ(record.project_name, "full");
    EXPECT_EQ(record.units, "mm");
    EXPECT_EQ(record.capacity, "12.3456");
    EXPECT_EQ(record.capacity_unit, 1);
    EXPECT_EQ(record.cnc_file_troc, "C:\\cnc\\troc.txt");
    EXPECT_EQ(record.cnc_file_inner, "C:\\cnc\\inner.txt");
    EXPECT_EQ(record.cnc_file_xyouter, "C:\\cnc\\xyouter.txt");
    EXPECT_EQ(record.cnc_file_innertooloffset, "C:\\cnc\\inneroffset.txt");
    EXPECT_EQ(record.cnc_file_outertooloffset, "C:\\cnc\\outeroffset.txt");
    EXPECT_EQ(record.cnc_file_outer, "C:\\cnc\\outer.txt");
}

TEST(read_project, throws_line_1_away) {
    EXPECT_EQ(read_fixture("lines_59").project_path, "");
}

TEST(read_project, takes_an_empty_line_3_as_it_stands) {
    EXPECT_EQ(read_fixture("inches").units, "");
}

TEST(read_project, fails_when_the_lines_end_elsewhere) {
    const std::vector<std::string> all = split_lines(fixture("lines_59"));
    text_lines file;
    for (std::size_t count = 0; count < all.size(); ++count) {
        const bool may_end = count == 23 || count == 53 || count == 57 || count == 58;
        std::string name;
        if (!may_end) {
            EXPECT_FAILURE(read_project(file.bytes(), name), failure::input_past_end);
        }
        file.raw_line(all[count]);
    }
}

TEST(read_project, fails_on_the_short_fixtures) {
    for (const char* name : {"empty", "lines_22", "lines_24"}) {
        EXPECT_FAILURE(read_fixture(name), failure::input_past_end);
    }
}

TEST(read_project, gives_the_name_also_when_a_later_line_fails) {
    std::string name = "before";
    EXPECT_FAILURE(read_project(fixture("integer_word"), name), failure::type_mismatch);
    EXPECT_EQ(name, "full");
}

TEST(read_project, leaves_the_name_when_line_2_is_missing) {
    std::string name = "before";
    EXPECT_FAILURE(read_project("only\r\n", name), failure::input_past_end);
    EXPECT_EQ(name, "before");
}

TEST(read_project, ignores_lines_behind_59) {
    EXPECT_EQ(saved_again("lines_60"), fixture("lines_59"));
}

TEST(read_project, takes_the_named_line_behind_59_as_it_stands) {
    const project_record record = read_fixture("named_59");
    expect_boxes(record, 59);
    EXPECT_EQ(record.boxes.UTS_value, " 1.100,5 für Öl = roh ");
    EXPECT_EQ(read_fixture("lines_59").boxes.UTS_value, "");
}

TEST(read_project, takes_the_first_of_a_known_name_and_ignores_every_other_line_behind_59) {
    const project_record record = read_fixture("named_others");
    expect_boxes(record, 59);
    EXPECT_EQ(record.boxes.UTS_value, "520");
}

TEST(read_project, takes_a_line_before_the_59_by_its_place_also_when_it_has_a_name) {
    EXPECT_FAILURE(read_fixture("named_23"), failure::input_past_end);
    EXPECT_FAILURE(read_fixture("named_53"), failure::input_past_end);
    EXPECT_EQ(read_fixture("named_57").boxes.outer_root, "UTS_value= 1.100,5 für Öl = roh ");
    EXPECT_EQ(read_fixture("named_58").boxes.radial_clear, "UTS_value= 1.100,5 für Öl = roh ");
    for (const char* name : {"named_57", "named_58"}) {
        EXPECT_EQ(read_fixture(name).boxes.UTS_value, "") << name;
    }
}

TEST(read_project, takes_any_blanks_around_an_integer) {
    EXPECT_EQ(read_fixture("integer_blanks").capacity_unit, 4);
}

TEST(read_project, rounds_an_integer_line_half_to_even) {
    EXPECT_EQ(read_fixture("integer_fraction").capacity_unit, 2);
}

TEST(read_project, fails_on_an_integer_line_without_a_16_bit_number) {
    EXPECT_FAILURE(read_fixture("integer_word"), failure::type_mismatch);
    EXPECT_FAILURE(read_fixture("check_word"), failure::type_mismatch);
    EXPECT_FAILURE(read_fixture("integer_too_large"), failure::overflow);
}

TEST(read_project, keeps_a_check_line_that_is_neither_0_nor_1) {
    EXPECT_EQ(read_fixture("check_two").boxes.inlet_double_sided, "2");
}

TEST(read_project, reads_every_kind_of_line_end_alike) {
    for (const char* name : {"lone_cr", "lone_lf", "last_line_open"}) {
        EXPECT_EQ(saved_again(name), fixture("lines_59")) << name;
    }
}

TEST(read_project, reads_umlauts_and_all_high_bytes) {
    const project_record record = read_fixture("high_bytes");
    EXPECT_EQ(record.project_name, "Zahnringpumpe für Öl, Größe 3");
    std::string high;
    for (int number = 0x80; number < 0x100; ++number) {
        high += static_cast<char>(number);
    }
    EXPECT_EQ(code_page_of_utf8(record.cnc_file_troc), high);
}

TEST(write_project, gives_back_the_bytes_that_were_read) {
    for (const char* name : {"lines_59", "inches", "high_bytes", "named_59"}) {
        EXPECT_EQ(saved_again(name), fixture(name)) << name;
    }
}

TEST(write_project, writes_an_older_file_in_full_and_then_the_same_bytes_again) {
    for (const char* name : {"lines_23", "lines_53", "lines_57", "lines_58", "check_two"}) {
        const std::string first = saved_again(name);
        EXPECT_EQ(split_lines(first).size(), 59u) << name;
        std::string project_name;
        project_record again = read_project(first, project_name);
        again.project_path = "C:\\pumps\\full.KVT";
        EXPECT_EQ(write_project(again), first) << name;
    }
}

TEST(write_project, writes_the_boxes_of_a_new_program_in_59_lines) {
    project_record record;
    record.units = "mm";
    record.capacity = "0.0";
    record.capacity_unit = 1;
    EXPECT_EQ(write_project(record),
              "\r\n\r\nmm\r\n0\r\n0\r\n1\r\n1\r\n3\r\n0\r\n0\r\n0\r\n0\r\n0\r\n1\r\n0\r\n0.0\r\n 1 "
              "\r\n"                                                       // 1 to 17
              "\r\n\r\n\r\n\r\n\r\n\r\n0\r\n"                              // to 24
              "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n 0 \r\n 0 \r\n\r\n"         // to 35
              "\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"           // to 47
              " 0 \r\n\r\n 0 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n0\r\n");  // to 59
}

TEST(write_project, adds_a_named_line_only_for_a_box_that_is_not_empty) {
    project_record record = read_fixture("lines_59");
    const std::string without = write_project(record);
    record.boxes.UTS_value = "520";
    EXPECT_EQ(write_project(record), without + "UTS_value=520\r\n");
    record.boxes.Face_area_value = "90";
    EXPECT_EQ(write_project(record), without + "UTS_value=520\r\n") << "no box of a project";
}

TEST(write_project, refuses_a_line_end_in_a_box) {
    project_record record;
    record.boxes.ecc = "1\n2";
    EXPECT_FAILURE(write_project(record), failure::invalid_property_value);
}

TEST(write_project, refuses_a_check_box_that_holds_no_number) {
    project_record record;
    record.boxes.shadow_ports = "on";
    EXPECT_FAILURE(write_project(record), failure::type_mismatch);
}

/// A text as a user may type it, any byte of the code page but the line ends.
std::string typed_text(random_values& random) {
    std::string bytes;
    for (int count = random.whole(0, 12); count > 0; --count) {
        const char byte = static_cast<char>(random.whole(0, 255));
        bytes += byte == '\r' || byte == '\n' ? ' ' : byte;
    }
    return utf8_of_code_page(bytes);
}

TEST(project_file, keeps_random_typed_texts_to_the_byte) {
    random_values random;
    for (int left = property_count(500); left > 0; --left) {
        project_record record;
        record.project_path = "/a/path";
        record.project_name = typed_text(random);
        record.capacity_unit = static_cast<std::int16_t>(random.whole(-32768, 32767));
        for (const box_case& row : FULL_BOXES) {
            record.boxes.*row.box =
                is_check_line(row.line) ? std::to_string(random.whole(0, 1)) : typed_text(random);
        }
        record.boxes.UTS_value = typed_text(random);
        std::string name;
        project_record again = read_project(write_project(record), name);
        EXPECT_EQ(again.boxes, record.boxes);
        EXPECT_EQ(again.capacity_unit, record.capacity_unit);
        EXPECT_EQ(name, record.project_name);
        again.project_path = record.project_path;
        EXPECT_EQ(write_project(again), write_project(record));
    }
}

/// The text of every box of a project, also of one that a project does not hold.
void type_everywhere(entries& boxes, random_values& random) {
    for (const entry_field& field : entry_fields()) {
        const bool is_check = field.kind == entry_kind::check;
        boxes.*field.member = is_check ? std::to_string(random.whole(0, 1)) : typed_text(random);
    }
    for (const char* of_no_project :
         {"rotated_angle", "flow_checkbox", "power_checkbox", "stress_checkbox", "ripple_checkbox",
          "ve_checkbox", "effic_checkbox", "ovr_effic_checkbox"}) {
        boxes.*find_entry(of_no_project)->member = entries().*find_entry(of_no_project)->member;
    }
}

TEST(unsaved_entries, come_back_to_the_byte_with_every_box_as_it_was_typed) {
    random_values random;
    for (int left = property_count(500); left > 0; --left) {
        unsaved_record record;
        record.project.project_path = "/a/Größe.KVT";
        record.project.project_name = typed_text(random);
        record.project.capacity_unit = static_cast<std::int16_t>(random.whole(-32768, 32767));
        record.session = typed_text(random);
        type_everywhere(record.project.boxes, random);
        const std::string written = write_unsaved(record);
        const unsaved_record again = read_unsaved(written);
        EXPECT_EQ(again.project.boxes, record.project.boxes);
        EXPECT_EQ(again.project.project_path, record.project.project_path);
        EXPECT_EQ(again.project.project_name, record.project.project_name);
        EXPECT_EQ(again.project.capacity_unit, record.project.capacity_unit);
        EXPECT_EQ(again.session, record.session);
        EXPECT_EQ(write_unsaved(again), written);
    }
}

TEST(unsaved_entries, keep_a_name_and_a_path_outside_the_code_page) {
    unsaved_record record;
    record.project.project_path = "/a/Насос.KVT";
    record.project.project_name = "Насос 5%";
    const std::string written = write_unsaved(record);
    EXPECT_EQ(fits_code_page(record.project.project_name), false);
    EXPECT_EQ(written.substr(0, 14), "/a/?????.KVT\r\n");
    const unsaved_record again = read_unsaved(written);
    EXPECT_EQ(again.project.project_path, "/a/Насос.KVT");
    EXPECT_EQ(again.project.project_name, "Насос 5%");
}

TEST(unsaved_entries, are_a_project_of_59_lines_for_the_other_readers) {
    unsaved_record record;
    record.project = read_fixture("lines_59");
    record.session = "one";
    const std::string written = write_unsaved(record);
    std::string name;
    EXPECT_EQ(read_project(written, name).boxes, record.project.boxes);
    EXPECT_EQ(written.substr(written.find("UTS_value")),
              "UTS_value=\r\nFace_area_value=100\r\nOD_area_value=100\r\nsession=one\r\n");
}

TEST(read_unsaved, reads_every_length_that_was_ever_written_and_those_between) {
    for (const int count : {23, 24, 53, 57, 58, 59, 60}) {
        const unsaved_record record = read_unsaved(fixture("lines_" + std::to_string(count)));
        expect_boxes(record.project, count);
        EXPECT_EQ(record.project.boxes.Face_area_value, "100");
        EXPECT_EQ(record.session, "");
    }
}

TEST(read_unsaved, reads_lines_without_their_number) {
    EXPECT_EQ(read_unsaved(fixture("integer_word")).project.capacity_unit, 1);
    EXPECT_EQ(read_unsaved(fixture("integer_too_large")).project.capacity_unit, 1);
    EXPECT_EQ(read_unsaved(fixture("check_word")).project.boxes.shadow_ports, "0");
    EXPECT_EQ(read_unsaved(fixture("check_two")).project.boxes.inlet_double_sided, "0");
}

TEST(read_unsaved, fails_on_fewer_lines_than_any_project_has) {
    for (const char* name : {"empty", "lines_22"}) {
        EXPECT_FAILURE(read_unsaved(fixture(name)), failure::input_past_end);
    }
}

}  // namespace

}  // namespace kvt
