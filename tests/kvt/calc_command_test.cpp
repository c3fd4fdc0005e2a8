// Tests of kvt calc: how a run ends, what stands in messages, and where the JSON goes.
#include "base/path_text.hpp"
#include "kvt/kvt_run.hpp"

namespace kvt {
namespace {

namespace fs = std::filesystem;

using texts = std::vector<std::string>;

std::vector<std::string> keys(const json& object) {
    std::vector<std::string> names;
    for (const auto& item : object.items()) {
        names.push_back(item.key());
    }
    return names;
}

const texts ALL_KEYS = {"ended",       "messages",     "hints",         "entries",
                        "labels",      "numbers",      "design_params", "rotor_profiles",
                        "port_params", "report_lines", "perf_results"};
const texts KEYS_OF_PORTS(ALL_KEYS.begin(), ALL_KEYS.end() - 1);
const texts KEYS_OF_PROFILES(ALL_KEYS.begin(), ALL_KEYS.end() - 3);
const texts KEYS_WITHOUT_RUN = {"ended", "messages", "hints", "entries", "labels", "numbers"};

TEST(calc_command, ends_ok_without_a_message_for_a_good_design) {
    const kvt_run run = calc_engine_oil({});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.report()["ended"], "ok");
    EXPECT_EQ(run.report()["messages"], json::array());
    EXPECT_EQ(keys(run.report()), ALL_KEYS);
}

TEST(calc_command, stays_ok_with_a_message_that_does_not_stop_the_run) {
    const kvt_run run = calc_engine_oil({"--set", "outer_root=20"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.report()["ended"], "ok");
    // 17 + 3 * 2.6 = 24.8
    EXPECT_EQ(run.report()["messages"], texts{"Minimum value for Outer Rotor Root Radius is 24.8"});
    EXPECT_EQ(run.err, "Minimum value for Outer Rotor Root Radius is 24.8\n");
}

TEST(calc_command, ends_with_validation_before_anything_is_computed) {
    const kvt_run run = calc_engine_oil({"--set", "shaftdiameter=0"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "validation");
    EXPECT_EQ(run.report()["messages"], texts{"Input a value for the diameter of the shaft"});
    EXPECT_EQ(run.err, "Input a value for the diameter of the shaft\n");
    EXPECT_EQ(keys(run.report()), KEYS_WITHOUT_RUN);
}

TEST(calc_command, ends_with_failure_when_the_shaft_is_too_thick) {
    const kvt_run run = calc_engine_oil({"--set", "shaftdiameter=33"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "failure");
    EXPECT_EQ(run.report()["messages"],
              texts{"The material thickness between the drive shaft and the Radius of Inner Root "
                    "is less than specified. "
                    "Reduce the shaft size or increase the Inner Root size."});
    EXPECT_EQ(run.report()["design_params"]["shaftdiameter"], 33.0);
    EXPECT_EQ(keys(run.report()), KEYS_OF_PROFILES);
}

TEST(calc_command, ends_with_closing_when_the_trochoid_has_loops) {
    const kvt_run run = calc_engine_oil({"--set", "ecc=4"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "closing");
    EXPECT_EQ(run.report()["messages"], texts{"This design will create an inner rotor with errors. "
                                              "Try increasing the Radius of the Inner Root, "
                                              "reducing the eccentricity, reducing the Radius "
                                              "Outer Lobes or reducing the number of Outer lobes"});
    EXPECT_EQ(keys(run.report()), KEYS_OF_PROFILES);
}

TEST(calc_command, ends_with_error_when_the_lobes_do_not_reach_the_root) {
    const kvt_run run =
        calc_engine_oil({"--set", "radouter=2", "--set", "fillet=0", "--language", "2"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "error");
    // This message exists in English only.
    EXPECT_EQ(run.report()["messages"].back(),
              "The value of Radius Outer Lobes is too small, enter a larger value");
    EXPECT_EQ(keys(run.report()), KEYS_OF_PROFILES);
}

TEST(calc_command, ends_with_fatal_when_leaving_an_entry_fails) {
    const kvt_run run = calc_engine_oil({"--set", "numlobes=8x"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "fatal");
    EXPECT_EQ(run.report()["messages"], texts{"Run-time error 13: Type mismatch"});
    EXPECT_EQ(run.err, "Run-time error 13: Type mismatch\n");
    EXPECT_EQ(keys(run.report()), KEYS_WITHOUT_RUN);
}

TEST(calc_command, ends_with_fatal_when_the_run_itself_fails) {
    const temporary_folder folder;
    const kvt_run run = run_kvt({"calc", changed_project(folder, {{8, "8x"}}), "--json", "-"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "fatal");
    EXPECT_EQ(run.report()["messages"], texts{"Run-time error 13: Type mismatch"});
    EXPECT_EQ(keys(run.report()), KEYS_OF_PROFILES);
}

TEST(calc_command, speaks_german_with_language_2) {
    const kvt_run run = calc_engine_oil({"--language", "2", "--set", "ecc=0"});
    EXPECT_EQ(run.report()["messages"],
              texts{"Die Exzentrizität kann gleich nicht sein, auf null zu stellen!!"});
    EXPECT_EQ(run.err, "Die Exzentrizität kann gleich nicht sein, auf null zu stellen!!\n");
    EXPECT_EQ(calc_engine_oil({"--language", "2", "--set", "numlobes=8x"}).err,
              "Laufzeitfehler 13: Unverträglicher Typ\n");
}

TEST(calc_command, writes_the_json_to_a_file_beside_the_summary) {
    const temporary_folder folder;
    const std::string file = folder.file("report.json");
    const kvt_run run = run_kvt({"calc", example("engine_oil"), "--json", file});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, run_kvt({"calc", example("engine_oil")}).out);
    EXPECT_EQ(read_file(file), calc_engine_oil({}).out);
}

TEST(calc_command, ends_with_1_when_the_json_cannot_be_written) {
    const temporary_folder folder;
    const std::string file = folder.file("missing/report.json");
    const kvt_run run = run_kvt({"calc", example("engine_oil"), "--json", file});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(file + ": Run-time error 76: Path not found"), std::string::npos)
        << run.err;
}

TEST(calc_command, stops_after_the_stage_asked_for) {
    EXPECT_EQ(keys(calc_engine_oil({"--stage", "profiles"}).report()), KEYS_OF_PROFILES);
    EXPECT_EQ(keys(calc_engine_oil({"--stage", "ports"}).report()), KEYS_OF_PORTS);
    EXPECT_EQ(keys(calc_engine_oil({"--stage", "performance"}).report()), ALL_KEYS);
    EXPECT_EQ(calc_engine_oil({"--stage", "1"}).status, 2);
}

TEST(calc_command, stays_ok_with_status_1_when_a_port_is_refused_and_goes_on) {
    const kvt_run run = calc_engine_oil({"--set", "groove_length=80"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "ok");
    EXPECT_EQ(run.report()["messages"], texts{"Port extends too far into 'Inlet' region of pump"});
    EXPECT_EQ(keys(run.report()), ALL_KEYS);
}

// Without a groove length no port is built at all, and the performance of no port divides by its
// area.
TEST(calc_command, ends_with_fatal_when_no_port_was_ever_built) {
    const kvt_run run = calc_engine_oil({"--set", "groove_length=0"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "fatal");
    EXPECT_EQ(run.report()["messages"],
              (texts{"Enter a value for the length of the Metering Groove",
                     "Run-time error 11: Division by zero"}));
    EXPECT_EQ(run.report()["entries"]["groove_length"], "");
}

TEST(calc_command, prints_a_message_of_two_lines_as_two_lines) {
    const kvt_run run = calc_engine_oil({"--set", "inlet_inner_radius=30"});
    EXPECT_EQ(run.err,
              "The specified port radius is too large for the Inlet Port\nPlease enter a smaller "
              "port radius\n");
    EXPECT_EQ(run.report()["messages"], texts{"The specified port radius is too large for the "
                                              "Inlet Port\rPlease enter a smaller port radius"});
}

TEST(calc_command, reports_no_performance_when_its_entries_are_refused) {
    const kvt_run run = calc_engine_oil({"--set", "kin_visc=0", "--language", "2"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "ok");
    EXPECT_EQ(
        run.report()["messages"],
        texts{"Tragen Sie eine Viskosität für die gepumpte Flüssigkeit, ein in cSt (centistokes)"});
    EXPECT_EQ(keys(run.report()), KEYS_OF_PORTS);
}

TEST(calc_command, ends_with_fatal_when_the_performance_fails) {
    const kvt_run run =
        calc_engine_oil({"--set", "vap_press=800"});  // above an atmosphere of 760 mmHg
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.report()["ended"], "fatal");
    EXPECT_EQ(run.report()["messages"],
              texts{"Run-time error 5: Invalid procedure call or argument"});
    EXPECT_EQ(keys(run.report()), ALL_KEYS);
    EXPECT_EQ(run.report()["perf_results"]["fill_velocity"], 0.0);
}

void expect_read_error(const std::string& project, const std::string& reason) {
    const kvt_run run = run_kvt({"calc", project, "--json", "-"});
    EXPECT_EQ(run.status, 3) << project;
    EXPECT_EQ(run.report()["ended"], "read_error") << project;
    EXPECT_EQ(run.report()["messages"], json::array()) << project;
    EXPECT_EQ(keys(run.report()), KEYS_WITHOUT_RUN) << project;
    EXPECT_EQ(run.err, project + ": " + reason + "\n");
}

TEST(calc_command, ends_with_read_error_for_a_file_that_is_not_there) {
    const temporary_folder folder;
    expect_read_error(folder.file("none.KVT"), "Run-time error 53: File not found");
    expect_read_error(folder.file("none/none.KVT"), "Run-time error 76: Path not found");
    expect_read_error("", "Run-time error 53: File not found");
}

TEST(calc_command, ends_with_read_error_for_a_folder) {
    const temporary_folder folder;
    expect_read_error(utf8_of_path(folder.path()), "Run-time error 75: Path/File access error");
}

TEST(calc_command, ends_with_read_error_for_a_file_that_ends_too_early) {
    for (const std::size_t lines : {0U, 1U, 22U, 24U, 52U, 54U, 56U}) {
        const temporary_folder folder;
        expect_read_error(changed_project(folder, {}, lines),
                          "Run-time error 62: Input past end of file");
    }
}

TEST(calc_command, ends_with_read_error_for_lines_that_hold_no_number) {
    for (const std::size_t line : {11U, 12U, 17U, 33U, 48U}) {
        const temporary_folder folder;
        expect_read_error(changed_project(folder, {{line, "abc"}}),
                          "Run-time error 13: Type mismatch");
    }
}

TEST(calc_command, reads_the_short_layouts_and_stops_at_their_empty_entries) {
    for (const std::size_t lines : {23U, 53U, 57U, 58U}) {
        const temporary_folder folder;
        const kvt_run run = run_kvt({"calc", changed_project(folder, {}, lines), "--json", "-"});
        EXPECT_EQ(run.status, 1) << lines;
        EXPECT_EQ(run.report()["ended"], "validation") << lines;  // radial_clear stands in line 59
        EXPECT_EQ(run.report()["entries"]["radial_clear"], "") << lines;
    }
}

TEST(calc_command, leaves_the_project_file_as_it_is) {
    const temporary_folder folder;
    const std::string project = changed_project(folder, {});
    const std::string before = read_file(project);
    run_kvt({"calc", project, "--set", "thick=20"});
    EXPECT_EQ(read_file(project), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
}

/// The lines of "calc PROJECTS... --jsonl OPTIONS...".
std::vector<json> lines_of_projects(texts arguments, int expected_status) {
    arguments.insert(arguments.begin(), "calc");
    arguments.emplace_back("--jsonl");
    const kvt_run run = run_kvt(arguments);
    EXPECT_EQ(run.status, expected_status) << run.err;
    std::vector<json> lines;
    for (const std::string& line : split_lines(run.out)) {
        lines.push_back(json::parse(line));
    }
    return lines;
}

TEST(calc_command, calculates_many_projects_in_their_order) {
    const texts projects = {example("engine_oil"), example("coolant"), example("engine_oil"),
                            example("inch_hydraulic")};
    const std::vector<json> lines = lines_of_projects(projects, 0);
    ASSERT_EQ(lines.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        json line = lines[i];
        EXPECT_EQ(line["project"], projects[i]);
        line.erase("project");
        const json report = run_kvt({"calc", projects[i], "--json", "-"}).report();
        EXPECT_TRUE(line == report) << projects[i];
    }
}

TEST(calc_command, gives_each_of_many_projects_its_end) {
    const temporary_folder folder;
    const std::vector<json> lines =
        lines_of_projects({example("engine_oil"), "no_such.KVT",
                           changed_project(folder, {{5, "0"}}), "--set", "thick=11"},
                          3);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0]["ended"], "ok");
    EXPECT_EQ(lines[0]["entries"]["thick"], "11");
    EXPECT_EQ(lines[1]["ended"], "read_error");
    EXPECT_EQ(lines[1]["messages"], texts{"no_such.KVT: Run-time error 53: File not found"});
}

TEST(calc_command, takes_one_project_without_jsonl) {
    const kvt_run run = run_kvt({"calc", example("engine_oil"), example("coolant")});
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.err.find("several projects need --jsonl"), std::string::npos);
    const kvt_run both = calc_engine_oil({"--jsonl"});
    EXPECT_EQ(both.status, 2);
    EXPECT_NE(both.err.find("--json is of one project, --jsonl of many"), std::string::npos);
}

}  // namespace
}  // namespace kvt
