#include "app/gt/gt_simulation.hpp"

#include "app/gt/gt_fluids.hpp"
#include "app/gt/gt_folders.hpp"
#include "app/gt/gt_person.hpp"
#include "app/stages/performance_fixture.hpp"
#include "base/path_text.hpp"
#include "support/expect_failure.hpp"
#include "support/gt_stand_in.hpp"

namespace kvt {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using texts = std::vector<std::string>;

class gt_simulation_test : public performance_test {
  protected:
    gt_simulation_test() {
        prepare("n04_fuel");
        calculate_performance(kavetta, person);
        kavetta.app_state.project_name = "Pump";
        fs::copy_file(fs::path(KVT_SOURCE_FOLDER) / "share/KVT_GT_conv.gem",
                      folder / "KVT_GT_conv.gem");
        select_gt_version(kavetta, person, "GT 2021");
        select_gt_fluid(kavetta, 1);
    }

    std::optional<gt_result> simulate() {
        gt_request request = gt_request_of(kavetta);
        request.limits.unchanged = milliseconds(60);
        request.limits.after_end = milliseconds(100);
        request.limits.whole = whole;
        request.limits.step = milliseconds(20);
        tester.log.clear();
        return simulate_in_gt(kavetta, tester, request);
    }
    /// The run fails with the questions, which are answered; nothing of it is left.
    void expect_failure() {
        tester.answers = {answer::yes, answer::yes};
        EXPECT_FALSE(simulate());
        EXPECT_EQ(tester.questions.size(), 2U);
        EXPECT_EQ(tester.messages.size(), 2U);
        EXPECT_EQ(tester.log.back(), "unload progressfrm");
        EXPECT_TRUE(is_temporary_folder_empty());
        EXPECT_TRUE(results().empty());
        EXPECT_FALSE(package.has_opened_a_model());
    }

    fs::path temporary() const { return folder / "KVT_GT_temp"; }
    bool is_temporary_folder_empty() const { return fs::is_empty(temporary()); }
    texts results() const {
        texts names = file_names(folder / "GT_files");
        std::ranges::sort(names);
        return names;
    }

    gt_stand_in package;
    gt_person tester;
    milliseconds whole{20000};
};

TEST_F(gt_simulation_test, makes_the_model_and_opens_it) {
    const auto made = simulate();
    ASSERT_TRUE(made);
    const std::string bin = utf8_of_path(package.home() / "bin");
    const std::string model = folder.file("GT_files/Pump.gtm");
    EXPECT_EQ(made->model, model);
    EXPECT_EQ(made->passes.size(), 14U);
    EXPECT_EQ(tester.log,
              (texts{"titled progress Generating STEP files... 10",
                     "titled progress Performing GEM3D Conversions..... 25",
                     "start " + bin + "/gemc -v2021 " + folder.file("KVT_GT_temp/KVT_GT_conv.gem"),
                     "titled progress Building GT-ISE file.... 75",
                     "titled progress Opening model in GT-ISE.... 100",
                     "detached " + bin + "/gtise -v2021 " + model, "unload progressfrm"}));
    EXPECT_EQ(package.converter_log(),
              "cwd=" + bin + " args=-v2021 " + folder.file("KVT_GT_temp/KVT_GT_conv.gem") + "\n");
    EXPECT_EQ(package.editor_log(), "cwd=" + bin + " args=-v2021|" + model + "\n");
    EXPECT_TRUE(is_temporary_folder_empty());
    EXPECT_EQ(results(), (texts{"Pump.gtm", "Pump.txt"}));
    EXPECT_NE(read_file(model).find("\"FLUID\" text=\"oil_A\""), std::string::npos);
    EXPECT_EQ(read_file(folder / "GT_files/Pump.txt"),
              read_file(fs::path(KVT_TEST_DATA) / "gtsuite/sample_chambers.txt"));
}

TEST_F(gt_simulation_test, numbers_the_models_of_a_project_and_makes_the_same_again) {
    ASSERT_TRUE(simulate());
    ASSERT_TRUE(simulate());
    ASSERT_TRUE(simulate());
    EXPECT_EQ(results(), (texts{"Pump-1.gtm", "Pump-2.gtm", "Pump.gtm", "Pump.txt"}));
    EXPECT_EQ(read_file(folder / "GT_files/Pump-1.gtm"), read_file(folder / "GT_files/Pump.gtm"));
}

TEST_F(gt_simulation_test, takes_a_project_name_that_has_to_be_escaped) {
    kavetta.app_state.project_name = "A & B \"C\" Öl";
    ASSERT_TRUE(simulate());
    EXPECT_EQ(results(), (texts{"A & B \"C\" Öl.gtm", "A & B \"C\" Öl.txt"}));
}

TEST_F(gt_simulation_test, empties_the_folder_of_an_earlier_run) {
    fs::create_directories(temporary());
    write_file(temporary() / "Pump.txt", "of an earlier run");
    package.fail("1");
    expect_failure();
}

TEST_F(gt_simulation_test, leaves_the_model_closed_when_it_is_not_to_be_opened) {
    gt_request request = gt_request_of(kavetta);
    request.opens_model = false;
    EXPECT_TRUE(simulate_in_gt(kavetta, tester, request));
    EXPECT_TRUE(is_temporary_folder_empty());
    EXPECT_FALSE(package.has_opened_a_model());
}

TEST_F(gt_simulation_test, needs_a_version_then_a_fluid) {
    kavetta.gt_choices = {};
    EXPECT_FALSE(simulate());
    kavetta.gt_choices.gt_version = 2021;
    EXPECT_FALSE(simulate());
    EXPECT_EQ(tester.messages,
              (texts{"You must select a version of GT-SUITE to run the simulation",
                     "You must select a suitable Fluid Type to run the simulation"}));
    EXPECT_FALSE(fs::exists(temporary())) << "nothing was begun";
}

TEST_F(gt_simulation_test, asks_why_when_the_converter_leaves_nothing) {
    package.fail("1");
    expect_failure();
}

TEST_F(gt_simulation_test, asks_why_without_the_chamber_profile) {
    package.fail("txt");
    expect_failure();
}

TEST_F(gt_simulation_test, asks_why_when_the_time_is_over) {
    package.delay("30");
    whole = milliseconds(200);
    expect_failure();
    EXPECT_GT(tester.waits, 1) << "the window was painted meanwhile";
}

TEST_F(gt_simulation_test, asks_why_after_escape) {
    package.delay("30");
    tester.patience = 3;
    expect_failure();
    EXPECT_EQ(tester.waits, 3);
}

TEST_F(gt_simulation_test, waits_for_a_slow_converter) {
    package.delay("0.4");
    EXPECT_TRUE(simulate());
    EXPECT_GT(tester.waits, 10);
}

TEST_F(gt_simulation_test, asks_why_without_an_installation) {
    package.home_variable().set(std::nullopt);
    expect_failure();
}

TEST_F(gt_simulation_test, asks_why_when_the_converter_refuses_a_missing_port) {
    kavetta.port_params.inlet.last = 0;
    expect_failure();
}

TEST_F(gt_simulation_test, asks_why_when_the_editor_is_missing) {
    fs::remove(package.home() / "bin/gtise");
    tester.answers = {answer::yes, answer::no};
    EXPECT_FALSE(simulate());
    EXPECT_EQ(tester.questions.size(), 2U);
    EXPECT_EQ(results(), (texts{"Pump.gtm", "Pump.txt"})) << "made, but not opened";
}

TEST_F(gt_simulation_test, asks_why_without_the_template) {
    fs::remove(folder / "KVT_GT_conv.gem");
    expect_failure();
}

TEST_F(gt_simulation_test, takes_no_project_name_that_leads_elsewhere) {
    kavetta.app_state.project_name = "../Pump";
    expect_failure();
    EXPECT_FALSE(fs::exists(folder / "Pump.gtm"));
}

TEST_F(gt_simulation_test, shows_the_guide_to_somebody_without_the_package) {
    package.fail("1");
    tester.answers = {answer::no};
    EXPECT_FALSE(simulate());
    const texts end(tester.log.end() - 2, tester.log.end());
    EXPECT_EQ(end, (texts{"show GT_form", "unload progressfrm"}));
    EXPECT_TRUE(is_temporary_folder_empty());
}

TEST_F(gt_simulation_test, stops_the_timer_and_starts_it_never) {
    kavetta.gt_choices.tim_gemc_enabled = true;
    ASSERT_TRUE(simulate());
    EXPECT_FALSE(kavetta.gt_choices.tim_gemc_enabled);
}

TEST_F(gt_simulation_test, a_tick_of_the_timer_opens_a_model_that_has_come) {
    kavetta.gt_choices.tim_gemc_enabled = true;
    prepare_gt_folders(gt_folders_of(kavetta.folder));
    look_for_converted_model(kavetta, tester);
    EXPECT_TRUE(tester.log.empty());
    EXPECT_TRUE(kavetta.gt_choices.tim_gemc_enabled);

    write_file(temporary() / "KVT_GT_conv.gtm", "");
    write_file(folder / "GT_files/Pump.gtm", "");
    look_for_converted_model(kavetta, tester);
    EXPECT_FALSE(kavetta.gt_choices.tim_gemc_enabled);
    EXPECT_EQ(tester.log, (texts{"message Opening Pump-1.gtm in GT-SUITE",
                                 "detached " + utf8_of_path(package.home() / "bin/gtise") + " " +
                                     folder.file("GT_files/Pump-1.gtm")}));
}

TEST_F(gt_simulation_test, writes_one_port_for_the_entries_that_no_menu_shows) {
    write_gt_inlet_file(kavetta, tester);
    EXPECT_EQ(file_names(temporary()), texts{"in_port_GT.stp"});
    write_gt_outlet_file(kavetta, tester);
    EXPECT_TRUE(fs::exists(temporary() / "out_port_GT.stp"));
    EXPECT_TRUE(fs::exists(temporary() / "in_port_GT.stp")) << "nothing is emptied";
}

}  // namespace
}  // namespace kvt
