// Tests of kvt assist: the dimensions found, printed, as JSON and saved.
#include "kvt/kvt_run.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

kvt_run assist_engine_oil(const std::vector<std::string>& options) {
    std::vector<std::string> arguments = {"assist",          example("engine_oil"),
                                          "--set",           "volumereqd=6",
                                          "--set",           "thick=10",
                                          "--set",           "shaftdiameter=18",
                                          "--set",           "minmaterial=2.5",
                                          "--set",           "clearn=0.12",
                                          "--set",           "numlobes=7",
                                          "--set",           "maxdiameter=52",
                                          "--capacity-unit", "4"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run_kvt(arguments);
}

TEST(assist_command, prints_the_entries_it_found) {
    const kvt_run run = assist_engine_oil({});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out,
              "Eccentricity             2.84 mm\n"
              "Radius Outer Lobes       7.25 mm\n"
              "Radius Inner Root        14.25 mm\n"
              "Outer Rotor Root Radius  22.77 mm\n"
              "Approx. Capacity         6.0241 CC/Rev\n"
              "Ended                    ok\n");
}

TEST(assist_command, prints_json_in_place_of_the_summary) {
    const json report = assist_engine_oil({"--json"}).report();
    EXPECT_EQ(report["ended"], "ok");
    EXPECT_EQ(report["messages"], json::array());
    EXPECT_EQ(report["entries"]["radinnroot"], "14.25");
    EXPECT_EQ(report["entries"]["ecc"], "2.84");
    EXPECT_EQ(report["entries"]["radouter"], "7.25");
    EXPECT_EQ(report["labels"]["capacity"], "6.0241");
    EXPECT_FALSE(report.contains("rotor_profiles"));
}

TEST(assist_command, saves_a_project_that_calculates) {
    const temporary_folder folder;
    const std::string written = folder.file("found.KVT");
    EXPECT_EQ(assist_engine_oil({"--write", written}).status, 0);
    const kvt_run calculated = run_kvt({"calc", written, "--json", "-"});
    EXPECT_EQ(calculated.status, 0);
    EXPECT_EQ(calculated.report()["entries"]["radinnroot"], "14.25");
    EXPECT_EQ(calculated.report()["labels"]["capacity"], "6.0241");
}

TEST(assist_command, ends_with_1_and_saves_nothing_when_the_rotors_do_not_fit) {
    const temporary_folder folder;
    const kvt_run run =
        assist_engine_oil({"--set", "maxdiameter=50", "--write", folder.file("found.KVT")});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "Ended  failure\n");
    EXPECT_NE(run.err.find("will not fit in the maximum diameter"), std::string::npos) << run.err;
    EXPECT_FALSE(std::filesystem::exists(folder.file("found.KVT")));
}

TEST(assist_command, ends_with_1_for_a_refused_entry) {
    const kvt_run run = assist_engine_oil({"--set", "volumereqd=0", "--language", "2"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "Beendet  validation\n");
    EXPECT_NE(run.err.find("Geben Sie einen Wert"), std::string::npos) << run.err;
}

TEST(assist_command, ends_with_1_when_the_search_fails) {
    const kvt_run run = assist_engine_oil({"--set", "numlobes=1800", "--set", "maxdiameter=9999"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "Ended  fatal\n");
    EXPECT_NE(run.err.find("Run-time error 11: Division by zero"), std::string::npos) << run.err;
}

TEST(assist_command, ends_with_1_when_the_project_cannot_be_saved) {
    const temporary_folder folder;
    EXPECT_EQ(assist_engine_oil({"--write", folder.file("none/found.KVT")}).status, 1);
}

TEST(assist_command, ends_with_3_when_the_project_cannot_be_read) {
    EXPECT_EQ(run_kvt({"assist", "none.KVT"}).status, 3);
}

}  // namespace
}  // namespace kvt
