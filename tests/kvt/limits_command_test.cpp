// Tests of kvt limits: the ranges of entries as lines and as JSON.
#include "kvt/kvt_run.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

kvt_run limits_of_engine_oil(const std::vector<std::string>& options) {
    std::vector<std::string> arguments = {"limits", example("engine_oil")};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run_kvt(arguments);
}

/// The one object of "limits ... --json".
json limits_json(std::vector<std::string> options) {
    options.emplace_back("--json");
    return limits_of_engine_oil(options).report().at("limits").at(0);
}

int status_of_calc(const std::string& typed) {
    return run_kvt({"calc", example("engine_oil"), "--stage", "profiles", "--set", typed}).status;
}

TEST(limits_command, prints_a_line_for_each_entry) {
    const kvt_run run = limits_of_engine_oil({"ecc", "axial_clear", "--stage", "profiles"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    const std::vector<std::string> lines = split_lines(run.out);
    ASSERT_GE(lines.size(), 2U);
    EXPECT_TRUE(lines[0].starts_with("Eccentricity ")) << lines[0];
    EXPECT_NE(lines[0].find(" mm (limited by: inner rotor errors)"), std::string::npos);
    EXPECT_NE(lines[1].find("no limits"), std::string::npos);
}

TEST(limits_command, speaks_german) {
    const std::string out =
        limits_of_engine_oil({"ecc", "--stage", "profiles", "--language", "2"}).out;
    EXPECT_NE(out.find("Exzentrizität"), std::string::npos) << out;
    EXPECT_NE(out.find("begrenzt durch: Fehler im inneren Rotor"), std::string::npos) << out;
    EXPECT_NE(out.find(','), std::string::npos) << out;
}

TEST(limits_command, says_as_json_what_calc_accepts) {
    const json limits = limits_json({"radouter", "--stage", "profiles"});
    EXPECT_EQ(limits["entry"], "radouter");
    EXPECT_EQ(limits["unit"], "mm");
    EXPECT_EQ(limits["stage"], "profiles");
    EXPECT_TRUE(limits["is_present_accepted"]);
    for (const char* end : {"lowest", "highest"}) {
        const json& told = limits[end];
        EXPECT_EQ(status_of_calc("radouter=" + told["shown"].get<std::string>()), 0);
        EXPECT_EQ(status_of_calc("radouter=" + told["accepted"].dump()), 0);
        EXPECT_EQ(status_of_calc("radouter=" + told["refused"].dump()), 1);
        EXPECT_FALSE(told["message"].get<std::string>().empty());
    }
}

TEST(limits_command, names_the_nearest_value_of_a_refused_number) {
    const std::vector<std::string> refused = {"ecc", "--set", "ecc=9", "--stage", "profiles"};
    const json limits = limits_json(refused);
    EXPECT_FALSE(limits["is_present_accepted"]);
    EXPECT_EQ(limits["nearest"], limits["highest"]["shown"]);
    EXPECT_NE(limits_of_engine_oil(refused).out.find("; Nearest valid value: "), std::string::npos);
}

TEST(limits_command, takes_the_stage_that_reads_the_entry) {
    EXPECT_EQ(limits_json({"port_radii", "--stage", "profiles"})["stage"], "ports");
}

TEST(limits_command, prints_every_entry_without_a_name) {
    const kvt_run run = limits_of_engine_oil({"--stage", "profiles", "--json"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.report()["limits"].size(), 15U);
}

TEST(limits_command, refuses_a_design_that_nothing_makes_valid) {
    const kvt_run run =
        limits_of_engine_oil({"ecc", "--set", "numlobes=5000", "--stage", "profiles"});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.out.find("no valid value found"), std::string::npos);
}

TEST(limits_command, knows_the_names_of_boxes_alone) {
    EXPECT_EQ(limits_of_engine_oil({"eccc"}).status, 2);
    EXPECT_NE(limits_of_engine_oil({"eccc"}).err.find("near names: ecc"), std::string::npos);
    EXPECT_EQ(limits_of_engine_oil({"shadow_ports"}).status, 2);
    EXPECT_EQ(run_kvt({"limits", "missing.KVT", "ecc"}).status, 3);
}

}  // namespace
}  // namespace kvt
