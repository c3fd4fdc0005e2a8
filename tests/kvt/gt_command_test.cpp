// Tests of kvt gt: the whole generation with the stand-in of the package, and the passes alone.
#include "base/path_text.hpp"
#include "kvt/kvt_run.hpp"
#include "support/gt_stand_in.hpp"

namespace kvt {
namespace {

std::string gt_sample(const std::string& name) {
    return std::string(KVT_TEST_DATA) + "/gtsuite/" + name;
}

kvt_run run_gt(const std::vector<std::string>& options) {
    std::vector<std::string> arguments = {"gt", example("engine_oil")};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return run_kvt(arguments);
}

class gt_command_test : public testing::Test {
  protected:
    std::vector<std::string> given_files() const {
        return {"--gtm", gt_sample("sample_KVT_GT_conv.gtm"),
                "--txt", gt_sample("sample_chambers.txt"),
                "--out", folder.file("out.gtm")};
    }
    kvt_run change_given(const std::vector<std::string>& more = {}) {
        std::vector<std::string> options = given_files();
        options.insert(options.end(), more.begin(), more.end());
        return run_gt(options);
    }
    std::string written() const { return read_file(folder / "out.gtm"); }
    bool holds(const std::string& text) const { return written().find(text) != std::string::npos; }

    temporary_folder folder;
    environment_value home{"KAVETTA_HOME", utf8_of_path(folder.path())};
    gt_stand_in package;
};

TEST_F(gt_command_test, changes_a_given_model_without_any_package) {
    package.home_variable().set(std::nullopt);
    const kvt_run run = change_given({"--fluid", "oil 5"});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.err, "");
    EXPECT_TRUE(run.out.starts_with("pass 1: 7 objects, 1 lines\npass 2: 1 objects, 1 lines\n"));
    EXPECT_NE(run.out.find("\npass 6: 2 objects, 6 lines\n"), std::string::npos);
    EXPECT_TRUE(
        run.out.ends_with("pass 14: 54 objects, 776 lines\n" + folder.file("out.gtm") + "\n"));
    EXPECT_TRUE(holds("<item parameter=\"FLUID\" text=\"oil 5\"/>"));
}

TEST_F(gt_command_test, writes_the_same_model_again) {
    change_given();
    const std::string first = written();
    change_given();
    EXPECT_EQ(written(), first);
}

TEST_F(gt_command_test, assumes_the_bearing_or_takes_the_one_given) {
    change_given({"--set", "shaftdiameter=15"});
    EXPECT_TRUE(holds("\"Shaft_Bearing_Length\" text=\"15\""));
    EXPECT_TRUE(holds("\"Shaft_Bearing_Clearance\" text=\"15\""));
    change_given({"--bearing-length", "22.5", "--bearing-clearance", "40"});
    EXPECT_TRUE(holds("\"Shaft_Bearing_Length\" text=\"22.5\""));
    EXPECT_TRUE(holds("\"Shaft_Bearing_Clearance\" text=\"40\""));
}

TEST_F(gt_command_test, writes_the_pressures_of_an_imperial_project_in_bar) {
    const kvt_run run =
        run_kvt({"gt", example("inch_hydraulic"), "--set", "pressure_lo=145", "--set",
                 "pressure_hi=290", "--gtm", gt_sample("sample_KVT_GT_conv.gtm"), "--txt",
                 gt_sample("sample_chambers.txt"), "--out", folder.file("out.gtm")});
    ASSERT_EQ(run.status, 0) << run.err;
    for (const char* bar : {"10", "12", "14", "16", "18", "20"}) {
        EXPECT_TRUE(holds("\"DesiredPressureDrop-bar\" text=\"" + std::string(bar) + "\"/>"))
            << bar;
    }
}

TEST_F(gt_command_test, refuses_files_that_are_no_model) {
    const kvt_run run = run_gt({"--gtm", gt_sample("sample_chambers.txt"), "--txt",
                                gt_sample("sample_chambers.txt"), "--out", folder.file("out.gtm")});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("Input past end of file"), std::string::npos) << run.err;
    EXPECT_FALSE(std::filesystem::exists(folder / "out.gtm"));
    EXPECT_EQ(run_gt({"--gtm", "none.gtm", "--txt", "none.txt", "--out", "o.gtm"}).status, 1);
}

TEST_F(gt_command_test, makes_the_model_with_the_package) {
    const kvt_run run = run_gt({"--year", "2021", "--fluid", "oil_C"});
    EXPECT_EQ(run.status, 0) << run.err;
    const std::string model = folder.file("GT_files/engine_oil.gtm");
    EXPECT_TRUE(run.out.ends_with("\n" + model + "\n")) << run.out;
    EXPECT_NE(read_file(model).find("\"FLUID\" text=\"oil_C\""), std::string::npos);
    EXPECT_FALSE(package.has_opened_a_model()) << "without --open";
}

TEST_F(gt_command_test, opens_the_model) {
    EXPECT_EQ(run_gt({"--year", "2021", "--fluid", "oil_A", "--open"}).status, 0);
    EXPECT_NE(package.editor_log().find("args=-v2021|" + folder.file("GT_files/engine_oil.gtm")),
              std::string::npos);
}

TEST_F(gt_command_test, tells_what_is_missing) {
    const auto told = [](const std::vector<std::string>& options) {
        const kvt_run run = run_gt(options);
        EXPECT_EQ(run.status, 1);
        EXPECT_EQ(run.out, "");
        return run.err;
    };
    EXPECT_EQ(told({}), "You must select a version of GT-SUITE to run the simulation\n");
    EXPECT_EQ(told({"--year", "2021"}),
              "You must select a suitable Fluid Type to run the simulation\n");
    EXPECT_EQ(told({"--year", "2021", "--fluid", "water"}),
              "The library has no fluid of this name. It has: oil_A oil_C\n");
    EXPECT_EQ(told({"--year", "2020", "--fluid", "oil_A"}),
              "You must have GT-SUITE installed in order to use this function\n");
}

TEST_F(gt_command_test, answers_the_questions_of_a_conversion_that_fails) {
    package.fail("1");
    const kvt_run run = run_gt({"--year", "2021", "--fluid", "oil_A"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "");
    EXPECT_NE(run.err.find("Do you have GT-SUITE already installed on this PC? Yes\n"),
              std::string::npos)
        << run.err;
    EXPECT_TRUE(std::filesystem::is_empty(folder / "KVT_GT_temp"));
}

TEST_F(gt_command_test, ends_with_a_design_that_is_refused) {
    const kvt_run run = change_given({"--set", "friction=0"});
    EXPECT_EQ(run.status, 1);
    EXPECT_FALSE(std::filesystem::exists(folder / "out.gtm"));
}

}  // namespace
}  // namespace kvt
