// The whole road: every delivered example and every test design goes from its file to all that kvt
// reports.
#include "base/number_text.hpp"
#include "base/path_text.hpp"
#include "kvt/kvt_run.hpp"

#include <algorithm>
#include <cmath>

namespace kvt {
namespace {

namespace fs = std::filesystem;

std::vector<std::string> projects_in(const fs::path& folder) {
    std::vector<std::string> paths;
    if (fs::exists(folder)) {
        for (const auto& file : fs::directory_iterator(folder)) {
            if (file.path().extension() == ".KVT") {
                paths.push_back(utf8_of_path(file.path()));
            }
        }
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

std::vector<std::string> examples() {
    return projects_in(KVT_EXAMPLES);
}

std::vector<std::string> all_designs() {
    std::vector<std::string> paths = examples();
    const std::vector<std::string> designs = projects_in(fs::path(KVT_TEST_DATA) / "designs");
    paths.insert(paths.end(), designs.begin(), designs.end());
    return paths;
}

json brief_report(const std::string& project) {
    return run_kvt({"calc", project, "--json", "-"}).report();
}

json full_rotors(const std::string& project) {
    return run_kvt({"calc", project, "--json", "-", "--full", "--stage", "profiles"})
        .report()["rotor_profiles"];
}

/// A number that is infinite or none would have become null.
void expect_no_null(const json& value, const std::string& where) {
    EXPECT_FALSE(value.is_null()) << where;
    if (value.is_structured()) {
        for (const auto& item : value.items()) {
            expect_no_null(item.value(), where + "/" + item.key());
        }
    }
}

double polygon_area(const std::vector<double>& x, const std::vector<double>& y) {
    double twice = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const std::size_t next = (i + 1) % x.size();
        twice += x[i] * y[next] - x[next] * y[i];
    }
    return std::abs(twice) / 2.0;
}

TEST(examples, are_five_or_more) {
    EXPECT_GE(examples().size(), 5U);
}

TEST(examples, end_ok_without_any_message) {
    for (const std::string& project : examples()) {
        const kvt_run run = run_kvt({"calc", project, "--json", "-"});
        EXPECT_EQ(run.status, 0) << project;
        EXPECT_EQ(run.err, "") << project;
        EXPECT_EQ(run.report()["ended"], "ok") << project;
        EXPECT_EQ(run.report()["messages"], json::array()) << project;
    }
}

TEST(examples, hold_the_capacity_that_they_calculate_to) {
    for (const std::string& project : examples()) {
        const std::string line16 = split_lines(read_file(project)).at(15);
        EXPECT_EQ(brief_report(project)["labels"]["capacity"], line16) << project;
    }
}

TEST(examples, are_whole_files_with_a_path_of_their_own_in_the_first_line) {
    for (const std::string& project : examples()) {
        const std::string bytes = read_file(project);
        const std::vector<std::string> lines = split_lines(bytes);
        const std::string name = utf8_of_path(path_of_utf8(project).stem());
        ASSERT_EQ(lines.size(), 59U) << project;
        EXPECT_EQ(lines[0], "C:\\Kavetta\\projects\\" + name + ".KVT");
        EXPECT_EQ(lines[1], name);
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\r'), 59) << project;
        EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 59) << project;
    }
}

TEST(examples, differ_in_size_and_unit) {
    int in_inches = 0;
    int without_fillets = 0;
    std::vector<int> lobes;
    for (const std::string& project : examples()) {
        const json report = brief_report(project);
        in_inches += split_lines(read_file(project)).at(2).empty() ? 1 : 0;
        without_fillets += report["design_params"]["fillet"] == 0.0 ? 1 : 0;
        lobes.push_back(report["design_params"]["numlobes"]);
    }
    EXPECT_GE(in_inches, 1);
    EXPECT_GE(without_fillets, 1);
    EXPECT_EQ(*std::min_element(lobes.begin(), lobes.end()), 4);
    EXPECT_EQ(*std::max_element(lobes.begin(), lobes.end()), 11);
}

TEST(whole_road, gives_nothing_but_numbers) {
    for (const std::string& project : all_designs()) {
        expect_no_null(run_kvt({"calc", project, "--json", "-", "--full"}).report(), project);
    }
}

TEST(whole_road, gives_labels_that_agree_with_the_records) {
    for (const std::string& project : all_designs()) {
        const json report = brief_report(project);
        ASSERT_EQ(report["ended"], "ok") << project;
        EXPECT_EQ(report["labels"]["capacity"], report["rotor_profiles"]["capacity"]) << project;
        const double largest = val(report["labels"]["max_chamb_vol"].get<std::string>());
        const double smallest = val(report["labels"]["min_chamb_vol"].get<std::string>());
        EXPECT_GT(smallest, 0.0) << project;
        EXPECT_GT(largest, smallest) << project;
    }
}

TEST(whole_road, keeps_the_inner_rotor_inside_the_outer_one) {
    for (const std::string& project : all_designs()) {
        const json rotors = full_rotors(project);
        EXPECT_LT(polygon_area(rotors["inner_x"], rotors["inner_y"]),
                  polygon_area(rotors["outer_x"], rotors["outer_y"]))
            << project;
    }
}

TEST(whole_road, closes_the_plotted_outline) {
    for (const std::string& project : all_designs()) {
        const json plot = full_rotors(project)["inner_plot_xy"];
        EXPECT_EQ(plot[0], plot[plot.size() - 2]) << project;
        EXPECT_EQ(plot[1], plot[plot.size() - 1]) << project;
    }
}

TEST(whole_road, gives_the_same_report_in_both_languages_but_for_texts) {
    for (const std::string& project : all_designs()) {
        json english = run_kvt({"calc", project, "--json", "-", "--language", "1"}).report();
        json german = run_kvt({"calc", project, "--json", "-", "--language", "2"}).report();
        for (json* report : {&english, &german}) {
            report->erase("messages");
            (*report)["labels"].erase("Label5");
            (*report)["labels"].erase("Label1");
        }
        EXPECT_TRUE(english == german) << project;
    }
}

TEST(whole_road, exports_a_project_that_exports_to_the_same_lines) {
    for (const std::string& project : all_designs()) {
        const temporary_folder folder;
        const std::string name = utf8_of_path(path_of_utf8(project).filename());
        ASSERT_EQ(run_kvt({"export", project, "--out", folder.file("a")}).status, 0) << project;
        ASSERT_EQ(run_kvt({"export", folder.file("a/" + name), "--out", folder.file("b")}).status,
                  0)
            << project;
        std::vector<std::string> first = split_lines(read_file(folder.file("a/" + name)));
        std::vector<std::string> second = split_lines(read_file(folder.file("b/" + name)));
        first[0].clear();  // the path
        second[0].clear();
        EXPECT_EQ(first, second) << project;
    }
}

}  // namespace
}  // namespace kvt
