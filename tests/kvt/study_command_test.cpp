// Tests of kvt study: its rows beside single runs of kvt calc, parts and resuming, the front, and
// what it refuses.
#include "base/path_text.hpp"
#include "kvt/kvt_run.hpp"
#include "support/property_runs.hpp"

#include <filesystem>
#include <gtest/gtest.h>

namespace kvt {
namespace {

namespace fs = std::filesystem;

using texts = std::vector<std::string>;

texts study_of(const std::string& name, const texts& options) {
    texts arguments = {"study", example(name)};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
}

kvt_run study_engine_oil(const texts& options) {
    return run_kvt(study_of("engine_oil", options));
}

/// Each line of JSON of a study.
std::vector<json> rows_of(const std::string& out) {
    std::vector<json> rows;
    for (const std::string& line : split_lines(out)) {
        rows.push_back(json::parse(line));
    }
    return rows;
}

TEST(study_command, prints_a_table) {
    const kvt_run run = study_engine_oil({"--vary", "ecc=2.6,9", "--record", "capacity,ripple"});
    EXPECT_EQ(run.status, 0);
    const texts lines = split_lines(run.out);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0],
              "design,ecc [mm],end,ports,performance,capacity [Lit/Min/1000rpm],"
              "ripple [%],messages,hints");
    EXPECT_EQ(lines[1].substr(0, 15), "0,2.6,ok,ok,ok,");
    EXPECT_EQ(lines[2].substr(0, 12), "1,9,closing,") << lines[2];
    EXPECT_NE(run.err.find("2 designs in "), std::string::npos) << run.err;
}

TEST(study_command, records_what_the_forms_show_when_nothing_is_named) {
    const std::string head = split_lines(study_engine_oil({"--vary", "ecc=2.6"}).out).at(0);
    EXPECT_NE(head.find("capacity [Lit/Min/1000rpm],area_ratio [%]"), std::string::npos) << head;
    EXPECT_NE(head.find("max_cutter_inner [mm]"), std::string::npos) << head;
}

/// A row equals kvt calc with the same texts: end, messages and every number.
void expect_row_of_calc(const std::string& project, const json& row) {
    texts arguments = {"calc", example(project), "--json", "-"};
    for (const auto& [control, text] : row["typed"].items()) {
        arguments.insert(arguments.end(), {"--set", control + "=" + text.get<std::string>()});
    }
    const json report = run_kvt(arguments).report();
    SCOPED_TRACE(row.dump());
    EXPECT_EQ(row["end"], report["ended"]);
    EXPECT_EQ(row["messages"], report["messages"]);
    EXPECT_EQ(row["hints"], report["hints"]);
    const bool is_ok = report["ended"] == "ok";
    const bool has_results = is_ok && report.contains("perf_results");
    EXPECT_EQ(is_ok && row["performance"] == "ok", has_results);
    const json& values = row["values"];
    if (is_ok) {
        EXPECT_EQ(values["capacity"], report.at("numbers").at("capacity"));
        EXPECT_EQ(values["area_ratio"], report.at("numbers").at("area_ratio"));
        EXPECT_EQ(values["inlet_c1_x"], report.at("port_params").at("inlet_c1_x"));
    }
    if (has_results) {
        EXPECT_EQ(values["max_shaft_side_load"], report.at("numbers").at("max_shaft_side_load"));
        EXPECT_EQ(values["side_load_direction"], report.at("numbers").at("side_load_direction"));
        EXPECT_EQ(values["flow_max"], report.at("perf_results").at("flow_max"));
        EXPECT_EQ(values["vol_eff[2][3]"], report.at("perf_results").at("vol_eff")[2][3]);
        EXPECT_EQ(values["hertz_max"], report.at("perf_results").at("hertz_max"));
    }
}

TEST(study_command, has_the_rows_of_single_runs) {
    // Wide ranges, so that most stages refuse some of them. A tenth of the rows of the full run.
    const std::string count = number_text(property_count(700));
    std::map<std::string, int> ends;
    for (const char* project : {"engine_oil", "coolant", "inch_hydraulic"}) {
        const kvt_run run = run_kvt(study_of(
            project, {"--vary", "ecc=1:5", "--vary", "numlobes=3:12", "--vary", "thick=0:20:0.5",
                      "--vary", "port_radii=0,1,4", "--vary", "metering_groove=0,1", "--sample",
                      "sobol:" + count, "--seed", "7", "--jsonl", "--record",
                      "capacity,area_ratio,inlet_c1_x,max_shaft_side_load,side_load_direction,"
                      "flow_max,vol_eff[2][3],hertz_max"}));
        for (const json& row : rows_of(run.out)) {
            expect_row_of_calc(project, row);
            ++ends[row["end"]];
        }
    }
    EXPECT_GE(ends.size(), property_count(700) > 100 ? 3U : 1U);
}

TEST(study_command, has_the_exact_figures_of_single_runs) {
    const kvt_run run =
        study_engine_oil({"--vary", "ecc=2.5,2.8", "--jsonl", "--record",
                          "exact_swept_cc,exact_least_gap,exact_trapped_change,exact_outlet_speed,"
                          "exact_contact_pressure[4],exact_vol_eff[1][2]"});
    for (const json& row : rows_of(run.out)) {
        const json exact =
            calc_engine_oil({"--exact", "--set", "ecc=" + row["typed"]["ecc"].get<std::string>()})
                .report()["exact"];
        const json& values = row["values"];
        EXPECT_EQ(values["exact_swept_cc"], exact["rotors"]["swept_cc"]);
        EXPECT_EQ(values["exact_least_gap"], exact["gap"]["least"]);
        EXPECT_EQ(values["exact_trapped_change"], exact["timing"]["trapped_change"]);
        EXPECT_EQ(values["exact_outlet_speed"], exact["timing"]["outlet_speed"]["speed_hi"]);
        EXPECT_EQ(values["exact_contact_pressure[4]"], exact["performance"]["contact_pressure"][4]);
        EXPECT_EQ(values["exact_vol_eff[1][2]"], exact["performance"]["vol_eff"][1][2]);
    }
}

TEST(study_command, types_what_set_says_before) {
    const kvt_run run = study_engine_oil(
        {"--set", "thick=20", "--vary", "ecc=2.6", "--jsonl", "--record", "capacity"});
    const json report = calc_engine_oil({"--set", "thick=20", "--set", "ecc=2.6"}).report();
    EXPECT_EQ(rows_of(run.out).at(0)["values"]["capacity"], report.at("numbers").at("capacity"));
}

TEST(study_command, keeps_what_meets_the_conditions) {
    const texts plan = {"--vary", "ecc=2:3:0.05", "--jsonl", "--record", "outer_diameter,capacity"};
    texts limited = plan;
    limited.insert(limited.end(), {"--where", "outer_diameter<=54", "--where", "capacity>5"});
    std::vector<json> expected;
    for (const json& row : rows_of(study_engine_oil(plan).out)) {
        const json& values = row["values"];
        if (!values["capacity"].is_null() && values["outer_diameter"] <= 54.0 &&
            values["capacity"] > 5.0) {
            expected.push_back(row);
        }
    }
    EXPECT_GT(expected.size(), 0U);
    EXPECT_LT(expected.size(), 21U);
    EXPECT_EQ(rows_of(study_engine_oil(limited).out), expected);
}

/// Twelve designs in a file.
texts short_plan(const std::string& path) {
    return {"--vary", "ecc=2:3", "--sample", "latin:12", "--record", "capacity", "--out", path};
}

TEST(study_command, has_parts_that_are_the_whole) {
    const temporary_folder folder;
    EXPECT_EQ(study_engine_oil(short_plan(folder.file("whole.csv"))).status, 0);
    std::string parts;
    for (const char* part : {"1", "2", "3", "4", "5"}) {
        texts options = short_plan(folder.file("part.csv"));
        options.insert(options.end(), {"--shard", std::string(part) + "/5"});
        EXPECT_EQ(study_engine_oil(options).status, 0);
        const std::string text = read_file(folder / "part.csv");
        parts += parts.empty() ? text : text.substr(text.find('\n') + 1);
    }
    EXPECT_EQ(parts, read_file(folder / "whole.csv"));
}

TEST(study_command, has_nothing_to_do_for_a_finished_study) {
    const temporary_folder folder;
    const std::string path = folder.file("study.csv");
    study_engine_oil(short_plan(path));
    const std::string whole = read_file(folder / "study.csv");
    texts resumed = short_plan(path);
    resumed.emplace_back("--resume");
    const kvt_run finished = study_engine_oil(resumed);
    EXPECT_EQ(finished.status, 0);
    EXPECT_EQ(finished.err, path + ": the study is finished\n");
    EXPECT_EQ(read_file(folder / "study.csv"), whole);
}

TEST(study_command, does_not_go_on_with_another_study) {
    const temporary_folder folder;
    const std::string path = folder.file("study.csv");
    write_file(folder / "study.csv", "design,other\r\n");
    texts resumed = short_plan(path);
    resumed.emplace_back("--resume");
    const kvt_run run = study_engine_oil(resumed);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.err, path + " is the file of another study\n");
    EXPECT_EQ(read_file(folder / "study.csv"), "design,other\r\n");
}

TEST(study_command, keeps_the_front_and_saves_its_designs) {
    const temporary_folder folder;
    const kvt_run run = study_engine_oil(
        {"--vary", "ecc=2:3:0.05", "--vary", "numlobes=6,7", "--record", "capacity,ripple",
         "--pareto", "capacity:max,ripple:min", "--save-best", "3", "--out", folder.file("best")});
    EXPECT_EQ(run.status, 0) << run.err;
    const texts saved = split_lines(run.out);
    ASSERT_EQ(saved.size(), 3U);
    EXPECT_EQ(saved[0], utf8_of_path(folder.path() / "best" / "best_1.KVT"));
    const texts table = split_lines(read_file(folder.path() / "best" / "study.csv"));
    ASSERT_GE(table.size(), 4U);
    // The first one has the largest capacity of all that are accepted.
    double largest = 0.0;
    for (const json& row :
         rows_of(study_engine_oil({"--vary", "ecc=2:3:0.05", "--vary", "numlobes=6,7", "--record",
                                   "capacity", "--jsonl"})
                     .out)) {
        const bool is_accepted = row["performance"] == "ok" && row["ports"] == "ok";
        largest =
            is_accepted ? std::max(largest, row["values"]["capacity"].get<double>()) : largest;
    }
    const json best = run_kvt({"calc", saved[0], "--json", "-"}).report();
    EXPECT_EQ(best["numbers"]["capacity"], largest);
}

TEST(study_command, lists_its_quantities) {
    const kvt_run run = study_engine_oil({"--quantities"});
    EXPECT_EQ(run.status, 0);
    const texts lines = split_lines(run.out);
    EXPECT_EQ(lines.at(0), "capacity [Lit/Min/1000rpm]");
    EXPECT_EQ(std::ranges::count(lines, "flow_m3s[SPEED][PRESSURE] [m3/s]"), 1);
    EXPECT_EQ(std::ranges::count(lines, "exact_swept_cc [cm3/rev]"), 1);
    EXPECT_EQ(std::ranges::count(lines, "thick [mm]"), 1);
}

TEST(study_command, calculates_the_project_itself_where_nothing_varies) {
    const kvt_run run = study_engine_oil({"--record", "capacity", "--jsonl"});
    EXPECT_EQ(run.status, 0) << run.err;
    const texts rows = split_lines(run.out);
    ASSERT_EQ(rows.size(), 1U);
    const json report = run_kvt({"calc", example("engine_oil"), "--json", "-"}).report();
    EXPECT_EQ(json::parse(rows[0])["values"]["capacity"], report["numbers"]["capacity"]);
}

TEST(study_command, says_what_is_wrong_with_a_study) {
    const auto expect_usage = [](const texts& options, const std::string& told) {
        const kvt_run run = study_engine_oil(options);
        EXPECT_EQ(run.status, 2) << told;
        EXPECT_NE(run.err.find(told), std::string::npos) << run.err;
        EXPECT_EQ(run.out, "");
    };
    expect_usage({"--vary", "eccc=2"}, "there is no control 'eccc'; near names: ecc");
    expect_usage({"--vary", "ecc=2:3"},
                 "a grid takes lists and ranges with a step; ecc has neither");
    expect_usage({"--vary", "ecc=2", "--vary", "ecc=3"}, "ecc is varied twice");
    expect_usage({"--sample", "random"}, "'random' is no sample: grid, latin:N or sobol:N");
    expect_usage({"--sample", "latin:200"},
                 "a sample needs something to vary: all 200 designs would be the same\n");
    expect_usage({"--sample", "sobol:200", "--vary", "ecc=2.5"},
                 "a sample needs something to vary");
    expect_usage(
        {"--sample", "sobol:5", "--language", "2"},
        "eine Stichprobe braucht etwas, das variiert wird: alle 5 Entwürfe wären gleich\n");
    expect_usage({"--record", "nothing"}, "there is no quantity 'nothing'");
    expect_usage({"--where", "capacity"}, "'capacity' is no condition");
    expect_usage({"--pareto", "capacity"}, "'capacity' is no aim: QUANTITY:max or QUANTITY:min");
    expect_usage({"--shard", "3/2"}, "'3/2' is not I/N with I from 1 to N");
    expect_usage({"--shard", "0/2"}, "'0/2' is not I/N");
    expect_usage({"--resume"}, "--resume needs --out");
    expect_usage({"--save-best", "3"}, "--save-best needs --pareto");
    expect_usage({"--jobs", "0"}, "--jobs");
}

TEST(study_command, tells_that_a_project_can_not_be_read) {
    const kvt_run run = run_kvt({"study", "no_such.KVT", "--vary", "ecc=2"});
    EXPECT_EQ(run.status, 3);
    EXPECT_NE(run.err.find("no_such.KVT: "), std::string::npos);
}

TEST(study_command, tells_that_its_file_can_not_be_written) {
    const temporary_folder folder;
    const kvt_run run =
        study_engine_oil({"--vary", "ecc=2", "--out", folder.file("none/study.csv")});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("none"), std::string::npos) << run.err;
}

}  // namespace
}  // namespace kvt
