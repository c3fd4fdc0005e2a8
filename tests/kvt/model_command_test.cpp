#include "kvt/model_command.hpp"

#include "base/path_text.hpp"
#include "base/text_file.hpp"
#include "kvt/command_line.hpp"
#include "kvt/exit_status.hpp"
#include "support/golden_files.hpp"
#include "support/temporary_folder.hpp"

#include <gtest/gtest.h>
#include <sstream>

namespace kvt {
namespace {

struct ended {
    int status = 0;
    std::string out, err;
};

/// kvt model DESIGN and further arguments.
ended run(const std::string& design, std::vector<std::string> arguments) {
    const std::string project = std::string(KVT_TEST_DATA) + "/designs/" + design + ".KVT";
    std::vector<const char*> argv = {"kvt", "model", project.c_str()};
    for (const std::string& argument : arguments) {
        argv.push_back(argument.c_str());
    }
    std::ostringstream out, err;
    const int status = run_command_line(static_cast<int>(argv.size()), argv.data(), out, err);
    return {status, out.str(), err.str()};
}

class model_command : public testing::Test {
  protected:
    std::string log_file() const { return utf8_of_path(folder.path() / "calls.log"); }
    std::string log() const { return bytes_of_file(log_file()); }
    ended record(const std::string& design, const std::string& package, const std::string& what,
                 std::vector<std::string> more = {}) const {
        std::vector<std::string> arguments = {"--package", package,    "--what", what,
                                              "--host",    "recorder", "--log",  log_file()};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return run(design, arguments);
    }

    temporary_folder folder;
};

}  // namespace

TEST_F(model_command, writes_the_calls_of_the_models_into_the_log) {
    const ended result = record("n07_engine_oil_groove", "acad", "trochoid,porting");
    EXPECT_EQ(result.status, EXIT_OK);
    EXPECT_EQ(result.out, "trochoid: built\nporting: built\n");
    EXPECT_TRUE(
        log().starts_with("running autocad.application: none\n#1 = create autocad.application\n"));
    EXPECT_NE(log().find("numbers, sum "), std::string::npos) << "shortened";
}

TEST_F(model_command, writes_every_number_into_the_full_log) {
    EXPECT_EQ(record("n07_engine_oil_groove", "acad", "trochoid", {"--full-log"}).status, EXIT_OK);
    const std::string full = log();
    EXPECT_EQ(full.find("numbers, sum "), std::string::npos);
    EXPECT_GT(std::ranges::count(full, ','), 7200);
}

TEST_F(model_command, drives_nothing_for_a_package_without_automation) {
    const ended result = record("n07_engine_oil_groove", "CREO", "trochoid,assembly");
    EXPECT_EQ(result.status, EXIT_OK);
    EXPECT_EQ(result.out + result.err, "");
    EXPECT_EQ(log(), "");
}

TEST_F(model_command, says_that_there_are_no_ports_and_builds_the_others) {
    const ended result = record("n04_fuel", "acad", "porting,inner", {"--set", "port_radii=50"});
    EXPECT_EQ(result.status, EXIT_REFUSED);
    EXPECT_EQ(result.out, "porting: not built\ninner: built\n");
    EXPECT_NE(result.err.find("no ports\n"), std::string::npos) << result.err;
    EXPECT_NE(log().find("AddExtrudedSolid"), std::string::npos);
    EXPECT_EQ(log().find("Move"), std::string::npos);
}

TEST_F(model_command, calculates_no_ports_for_rotors) {
    const ended result = record("n04_fuel", "acad", "inner", {"--set", "port_radii=50"});
    EXPECT_EQ(result.status, EXIT_OK) << result.err;
}

TEST_F(model_command, tells_the_message_of_a_package_that_is_not_installed) {
    const ended result =
        run("n04_fuel", {"--package", "invent", "--what", "inner,trochoid", "--host", "com"});
    EXPECT_EQ(result.status, EXIT_REFUSED);
    EXPECT_EQ(result.out, "inner: not built\ntrochoid: not built\n");
    EXPECT_EQ(result.err.substr(0, 29), "Error number 429 has occured.");
}

TEST_F(model_command, names_the_models_in_the_language) {
    EXPECT_EQ(record("n04_fuel", "CAT", "inner", {"--language", "2"}).out, "inner: gebaut\n");
}

TEST_F(model_command, refuses_what_it_does_not_know) {
    EXPECT_EQ(run("n04_fuel", {"--package", "r14", "--what", "inner"}).status, EXIT_USAGE);
    EXPECT_EQ(run("n04_fuel", {"--package", "acad", "--what", "rotor"}).status, EXIT_USAGE);
    EXPECT_EQ(run("n04_fuel", {"--package", "acad"}).status, EXIT_USAGE);
    EXPECT_EQ(run("n04_fuel", {"--package", "acad", "--what", "inner", "--full-log"}).status,
              EXIT_USAGE);
    const ended without = run("n04_fuel", {"--package", "acad", "--what", "inner", "--log", "x"});
    EXPECT_EQ(without.status, EXIT_USAGE);
    EXPECT_NE(without.err.find("--log: needs --host recorder"), std::string::npos);
}

TEST_F(model_command, stops_at_a_design_that_is_refused) {
    const ended result = record("n04_fuel", "acad", "inner", {"--set", "ecc=0"});
    EXPECT_EQ(result.status, EXIT_REFUSED);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.substr(0, 16), "The Eccentricity");
}

TEST_F(model_command, tells_a_log_that_cannot_be_written) {
    const ended result =
        run("n04_fuel", {"--package", "acad", "--what", "inner", "--host", "recorder", "--log",
                         utf8_of_path(folder.path() / "no" / "folder.log")});
    EXPECT_EQ(result.status, EXIT_REFUSED);
    EXPECT_NE(result.err.find("folder.log: "), std::string::npos);
}

}  // namespace kvt
