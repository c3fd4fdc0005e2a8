// Tests of kvt search: what it finds, writes and refuses.
#include "base/path_text.hpp"
#include "kvt/kvt_run.hpp"

#include <filesystem>
#include <gtest/gtest.h>

namespace kvt {
namespace {

using texts = std::vector<std::string>;

const texts AFTER_CAPACITY = {
    "--vary",     "ecc=2:3",      "--vary",     "thick=8:16",
    "--vary",     "numlobes=6:9", "--step",     "0.05",
    "--target",   "capacity=7.5", "--limit",    "outer_diameter<=57",
    "--minimize", "ripple",       "--maximize", "overall_eff_max",
    "--budget",   "120",          "--record",   "capacity,outer_diameter"};

kvt_run search_engine_oil(texts options, const texts& more = {}) {
    options.insert(options.begin(), {"search", example("engine_oil")});
    options.insert(options.end(), more.begin(), more.end());
    return run_kvt(options);
}

TEST(search_command, finds_designs_that_meet_targets_and_limits) {
    const kvt_run run = search_engine_oil(AFTER_CAPACITY, {"--jsonl", "--seed", "3"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_NE(run.err.find(" designs in "), std::string::npos) << run.err;
    const texts lines = split_lines(run.out);
    ASSERT_FALSE(lines.empty());
    for (const std::string& line : lines) {
        const json row = json::parse(line);
        EXPECT_NEAR(row["values"]["capacity"].get<double>(), 7.5, 0.075);
        EXPECT_LE(row["values"]["outer_diameter"].get<double>(), 57.0);
        // The design calculates to the same numbers on its own.
        texts arguments = {"calc", example("engine_oil"), "--json", "-"};
        for (const auto& [control, text] : row["typed"].items()) {
            arguments.insert(arguments.end(), {"--set", control + "=" + text.get<std::string>()});
        }
        const json report = run_kvt(arguments).report();
        EXPECT_EQ(row["values"]["capacity"], report["numbers"]["capacity"]);
        EXPECT_EQ(row["values"]["ripple"], report["numbers"]["ripple_percent"]);
    }
}

TEST(search_command, writes_its_table_and_projects) {
    const temporary_folder folder;
    const kvt_run run =
        search_engine_oil(AFTER_CAPACITY, {"--save-best", "1", "--out", folder.file("best")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, utf8_of_path(folder.path() / "best" / "best_1.KVT") + "\n");
    const texts table = split_lines(read_file(folder.path() / "best" / "study.csv"));
    ASSERT_GE(table.size(), 2U);
    EXPECT_EQ(table[0],
              "design,ecc [mm],thick [mm],numlobes,end,ports,performance,"
              "capacity [Lit/Min/1000rpm],outer_diameter [mm],ripple [%],overall_eff_max,"
              "messages,hints");
    EXPECT_EQ(run_kvt({"calc", folder.file("best/best_1.KVT")}).status, 0);
}

TEST(search_command, tells_that_nothing_was_found) {
    texts impossible = AFTER_CAPACITY;
    impossible[9] = "capacity=700";
    const kvt_run run = search_engine_oil(impossible);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("no design meets the targets and the limits\n"), std::string::npos);
    EXPECT_EQ(split_lines(run.out).size(), 1U);
}

TEST(search_command, says_what_is_wrong_with_a_search) {
    const auto expect_usage = [](const texts& options, const std::string& told) {
        const kvt_run run = search_engine_oil(options);
        EXPECT_EQ(run.status, 2) << told;
        EXPECT_NE(run.err.find(told), std::string::npos) << run.err;
    };
    expect_usage({"--minimize", "ripple"}, "a search needs something to vary");
    expect_usage({"--minimize", "ripple", "--language", "2"},
                 "eine Suche braucht etwas, das variiert wird");
    expect_usage({"--vary", "ecc=2:3"}, "a search needs something to minimize or to maximize");
    expect_usage({"--vary", "ecc=2:3", "--minimize", "ripples"}, "there is no quantity 'ripples'");
    expect_usage({"--vary", "ecc=2:3", "--minimize", "ripple", "--target", "capacity"},
                 "'capacity' is no target: QUANTITY=VALUE or QUANTITY=VALUE:TOLERANCE");
    expect_usage({"--vary", "ecc=2:3", "--minimize", "ripple", "--step", "0"}, "is no range");
    expect_usage({"--vary", "ecc=2:3", "--minimize", "ripple", "--save-best", "2"},
                 "--save-best needs --out, a folder");
    expect_usage({"--vary", "ecc=2:3", "--minimize", "ripple", "--language", "2", "--limit", "x"},
                 "'x' ist keine Bedingung");
}

}  // namespace
}  // namespace kvt
