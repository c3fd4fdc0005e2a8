// Tests of the options: what is a usage error, and what help and version say.
#include "kvt/kvt_run.hpp"

#include <streambuf>
#include <utility>

namespace kvt {
namespace {

TEST(command_line, ends_with_2_and_a_reason_for_what_it_does_not_understand) {
    const std::string project = example("engine_oil");
    const std::vector<std::vector<std::string>> refused = {
        {},
        {"draw", project},
        {"calc"},
        {"calc", project, project},
        {"calc", project, "--fast"},
        {"calc", project, "--language", "3"},
        {"calc", project, "--language", "de"},
        {"calc", project, "--capacity-unit", "0"},
        {"calc", project, "--capacity-unit", "6"},
        {"calc", project, "--stage", "drawing"},
        {"calc", project, "--set"},
        {"calc", project, "--set", "thick"},
        {"calc", project, "--set", "=12"},
        {"calc", project, "--set", "depth=12"},
        {"calc", project, "--json", "-", "--set", "depth=12"},
        {"calc", project, "--set", "shadow_ports=2"},
        {"calc", project, "--set", "shadow_ports="},
        {"calc", project, "--set", "dimens2=0"},
        {"calc", project, "--set", "unittype=Litres"},
        {"calc", project, "--set", "thick=12\r\n13"},
        {"gt"},
        {"gt", project, "--year", "2017"},
        {"gt", project, "--gtm", "a.gtm"},
        {"gt", project, "--txt", "a.txt"},
        {"gt", project, "--gtm", "a.gtm", "--txt", "a.txt"},
        {"gt", project, "--bearing-length", "0"},
        {"export", project},
        {"export", project, "--out", "files", "--json", "-"},
    };
    for (const auto& arguments : refused) {
        const kvt_run run = run_kvt(arguments);
        const std::string shown = testing::PrintToString(arguments);
        EXPECT_EQ(run.status, 2) << shown;
        EXPECT_EQ(run.out, "") << shown;
        EXPECT_NE(run.err, "") << shown;
    }
}

TEST(command_line, names_the_controls_near_an_unknown_one) {
    const kvt_run run = calc_engine_oil({"--set", "rodouter=7"});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("there is no control 'rodouter'; near names: radouter"),
              std::string::npos)
        << run.err;
}

TEST(command_line, refuses_a_character_that_a_project_file_cannot_hold) {
    EXPECT_EQ(calc_engine_oil({"--set", "fluid_density=8\xE6\x97\xA5"}).status, 2);
    EXPECT_EQ(calc_engine_oil({"--set", "fluid_density=8\xC3\xBC"}).status,
              0);  // u with dots is in the code page
    EXPECT_EQ(calc_engine_oil({"--set", "fluid_density=8\xC3"}).status, 2);  // no character at all
}

TEST(command_line, names_the_texts_of_the_unit_list) {
    const kvt_run run = calc_engine_oil({"--set", "unittype=Litres"});
    EXPECT_NE(
        run.err.find("Lit/Min/1000rpm, USGall/Min/1000rpm, ImpGall/Min/1000rpm, CC/Rev, Cu In/Rev"),
        std::string::npos)
        << run.err;
}

TEST(command_line, takes_options_before_the_project) {
    const kvt_run run =
        run_kvt({"calc", "--set", "thick=11", "--set", "fillet=1", example("engine_oil")});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
}

TEST(command_line, cuts_control_from_text_at_the_first_equals_sign) {
    const kvt_run run = calc_engine_oil({"--set", "friction=a=b", "--stage", "profiles"});
    EXPECT_EQ(run.report()["entries"]["friction"], "a=b");
}

TEST(command_line, takes_an_empty_text) {
    EXPECT_EQ(calc_engine_oil({"--set", "friction="}).report()["entries"]["friction"], "");
}

TEST(command_line, helps_with_an_example) {
    for (const auto& arguments :
         std::vector<std::vector<std::string>>{{"--help"}, {"calc", "--help"}}) {
        const kvt_run run = run_kvt(arguments);
        EXPECT_EQ(run.status, 0);
        EXPECT_EQ(run.err, "");
        EXPECT_NE(run.out.find("kvt calc engine_oil.KVT --set thick=12 --set fillet=0 --json -"),
                  std::string::npos);
    }
}

TEST(command_line, tells_its_version) {
    const kvt_run run = run_kvt({"--version"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "2021.1.1\n");
}

/// Takes nothing, as a full disk does.
class full_buffer : public std::streambuf {
  protected:
    int_type overflow(int_type) override { return traits_type::eof(); }
    std::streamsize xsputn(const char*, std::streamsize) override { return 0; }
};

TEST(command_line, ends_with_1_when_what_it_prints_is_not_taken) {
    const std::string project = example("engine_oil");
    const std::vector<std::pair<std::vector<const char*>, int>> cases = {
        {{"kvt", "calc", project.c_str(), "--stage", "profiles"}, 1},
        {{"kvt", "--version"}, 1},
        {{"kvt", "calc", "none.KVT", "--language", "2"}, 3},
    };
    for (const auto& [argv, status] : cases) {
        full_buffer full;
        std::ostream out(&full);
        std::ostringstream err;
        EXPECT_EQ(run_command_line(static_cast<int>(argv.size()), argv.data(), out, err), status);
        EXPECT_NE(err.str().find("standard output: "), std::string::npos) << err.str();
    }
}

}  // namespace
}  // namespace kvt
