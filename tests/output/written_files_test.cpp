// The table of the written files: names, controls, texts, what each one needs.
#include "output/written_files.hpp"

#include "core/text_table.hpp"

#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

std::vector<std::string> names_of(file_group group) {
    std::vector<std::string> names;
    for (const written_file& file : files_of(group)) {
        names.push_back(file_name(file));
    }
    return names;
}

TEST(written_files, stand_group_by_group) {
    std::size_t count = 0;
    for (const file_group_row& group : file_groups()) {
        EXPECT_EQ(&row_of(group.group), &group);
        for (const written_file& file : files_of(group.group)) {
            EXPECT_EQ(&file, &written_files()[count++]);
            EXPECT_EQ(find_file(group.group, file.name), &file);
        }
    }
    EXPECT_EQ(count, written_files().size());
    EXPECT_EQ(find_file(file_group::cnc, "inner"), nullptr);
    EXPECT_EQ(find_file(file_group::step, "inlet"), nullptr);
}

TEST(written_files, have_the_names_that_people_and_programs_know) {
    EXPECT_EQ(names_of(file_group::dxf),
              (std::vector<std::string>{"inner.dxf", "outer.dxf", "inlet.dxf", "outlet.dxf",
                                        "groove.dxf"}));
    EXPECT_EQ(names_of(file_group::step_exact),
              (std::vector<std::string>{"inner_exact.stp", "outer_exact.stp", "assembly_exact.stp",
                                        "ports_exact.stp"}));
    EXPECT_EQ(names_of(file_group::dxf_exact),
              (std::vector<std::string>{"inner_exact.dxf", "inner_polyline_exact.dxf",
                                        "outer_exact.dxf", "inlet_exact.dxf", "outlet_exact.dxf",
                                        "groove_exact.dxf", "pair_exact.dxf"}));
    EXPECT_EQ(names_of(file_group::stl),
              (std::vector<std::string>{"inner.stl", "outer.stl", "ports.stl"}));
    EXPECT_EQ(names_of(file_group::gt),
              (std::vector<std::string>{"inner_rotor_GT.stp", "outer_rotor_GT.stp",
                                        "in_port_GT.stp", "out_port_GT.stp"}));
    EXPECT_EQ(names_of(file_group::report),
              std::vector<std::string>{"port_radius_coordinates.txt"});
    EXPECT_EQ(names_of(file_group::data),
              (std::vector<std::string>{"perf_flow.txt", "perf_torque.txt", "perf_contact.txt",
                                        "perf_efficiency.txt", "perf_volumetric.txt"}));
}

TEST(written_files, have_a_name_of_their_own) {
    std::set<std::string> names;
    std::set<std::string_view> controls;
    for (const written_file& file : written_files()) {
        EXPECT_TRUE(names.insert(file_name(file)).second) << file_name(file);
        EXPECT_TRUE(file.control.empty() || controls.insert(file.control).second) << file.control;
    }
}

TEST(written_files, have_a_caption_and_the_texts_of_their_dialog) {
    for (const written_file& file : written_files()) {
        const file_group_row& group = row_of(file.group);
        if (group.texts.empty()) {
            EXPECT_EQ(file.control, "") << file.name;
            continue;
        }
        const char* form = file.group == file_group::cnc ? "Form3" : "MDIForm1";
        EXPECT_EQ(file.control.empty(), file.group == file_group::data)
            << "one entry writes all data files";
        EXPECT_TRUE(file.control.empty() || find_caption(form, file.control) != nullptr)
            << file.control;
        EXPECT_NE(find_caption(group.texts, "filter"), nullptr) << group.texts;
        EXPECT_TRUE(find_caption(group.texts, std::string(file.name) + "_title") != nullptr ||
                    find_caption(group.texts, "title") != nullptr)
            << file.name;
    }
}

TEST(written_files, are_asked_for_by_a_flag_that_says_what_they_are) {
    for (const file_group_row& group : file_groups()) {
        EXPECT_EQ(group.choice == file_choice::by_flag, !group.flagged.empty()) << group.name;
    }
}

TEST(written_files, of_the_performance_are_there_before_any_run) {
    EXPECT_TRUE(is_there(file_needs::performance, port_params(), entries()));
}

TEST(written_files, need_finished_ports_and_a_ticked_groove) {
    port_params ports;
    entries boxes;
    boxes.metering_groove = "1";
    EXPECT_TRUE(is_there(file_needs::profiles, ports, boxes));
    EXPECT_FALSE(is_there(file_needs::inlet, ports, boxes));
    EXPECT_FALSE(is_there(file_needs::outlet, ports, boxes));
    EXPECT_FALSE(is_there(file_needs::any_port, ports, boxes));
    EXPECT_FALSE(is_there(file_needs::groove, ports, boxes));
    ports.outlet.last = 4;
    EXPECT_FALSE(is_there(file_needs::inlet, ports, boxes));
    EXPECT_TRUE(is_there(file_needs::outlet, ports, boxes));
    EXPECT_TRUE(is_there(file_needs::any_port, ports, boxes));
    ports.inlet.last = 4;
    ports.groove_last = 4;
    EXPECT_TRUE(is_there(file_needs::inlet, ports, boxes));
    EXPECT_TRUE(is_there(file_needs::groove, ports, boxes));
    boxes.metering_groove = "0";
    EXPECT_FALSE(is_there(file_needs::groove, ports, boxes));
}

}  // namespace
}  // namespace kvt
