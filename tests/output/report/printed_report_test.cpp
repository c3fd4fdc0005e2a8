// The printed report of whole designs against golden files, in both languages and units.
#include "output/report/printed_report.hpp"

#include "app/desk/unit_commands.hpp"
#include "app/files/project_reset.hpp"
#include "output/report/report_design.hpp"
#include "support/expect_failure.hpp"
#include "support/golden_files.hpp"

#include <limits>

namespace kvt {
namespace {

class report_goldens : public testing::TestWithParam<const char*> {
  protected:
    void expect_report(program& kavetta, const std::string& name) {
        expect_golden("report/" + std::string(GetParam()) + name + ".txt", report_text_of(kavetta));
    }
};

/// The captions of the language without what the flag unloads.
void speak_german(program& kavetta) {
    kavetta.app_state.language = GERMAN;
    set_captions(kavetta);
}

TEST_P(report_goldens, are_printed_as_they_stand_in_both_languages) {
    program kavetta = design_with_results(GetParam());
    expect_report(kavetta, "");
    speak_german(kavetta);
    expect_report(kavetta, "_german");
}

INSTANTIATE_TEST_SUITE_P(designs, report_goldens,
                         testing::Values("n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                         "n07_inch_hydraulic", "n09_crank_oil"),
                         [](const auto& design) { return std::string(design.param); });

TEST(printed_report, of_a_new_program_has_labels_and_no_results) {
    program kavetta;
    expect_golden("report/new_program.txt", report_text_of(kavetta));
}

TEST(printed_report, of_a_design_that_never_ran_has_no_results) {
    program kavetta = opened_design("n07_engine_oil_groove");
    expect_golden("report/before_any_run.txt", report_text_of(kavetta));
}

TEST(printed_report, after_a_project_reset_has_nothing_of_the_project_before) {
    program kavetta = design_with_results("n07_engine_oil_groove");
    scripted_user person;
    project_reset(kavetta, person, reset_kind::new_project);
    expect_golden("report/after_a_reset.txt", report_text_of(kavetta));
}

TEST(printed_report, after_the_language_flag_keeps_the_numbers_alone) {
    program kavetta = design_with_results("n07_engine_oil_groove");
    scripted_user person;
    choose_language(kavetta, person, GERMAN);
    expect_golden("report/after_a_language_change.txt", report_text_of(kavetta));
}

TEST(printed_report, without_groove_leaves_its_two_rows_out) {
    program kavetta = opened_design("n07_engine_oil_groove");
    kavetta.entries.metering_groove = "0";
    expect_golden("report/without_groove.txt", report_text_of(kavetta));
}

TEST(printed_report, follows_the_units_that_are_shown_at_the_moment) {
    program kavetta = design_with_results("n04_fuel");
    set_unit_labels(kavetta, length_unit_of(INCHES));
    expect_golden("report/shown_in_inches.txt", report_text_of(kavetta));
}

TEST(printed_report, of_no_language_is_the_title_alone) {
    program kavetta = opened_design("n04_fuel");
    kavetta.app_state.language = 0;
    EXPECT_EQ(report_text_of(kavetta),
              "    Kavetta V2021\n    11/03/21                           14:32:07\n\n\n");
}

/// Notes the sizes and the end.
class noting_printer : public text_printer {
  public:
    void font_size(double points) override { sizes.push_back(points); }
    void end_document() override { ended = true; }

    std::vector<double> sizes;
    bool ended = false;
};

TEST(printed_report, has_a_title_of_20_points_and_rows_of_12) {
    program kavetta;
    noting_printer printer;
    print_report(report_source_of(kavetta), printer);
    EXPECT_EQ(printer.sizes, (std::vector<double>{20.0, 12.0}));
    EXPECT_TRUE(printer.ended);
}

TEST(printed_report, stays_unfinished_at_a_result_that_is_no_number) {
    program kavetta = design_with_results("n04_fuel");
    kavetta.perf_results.vol_eff_max = std::numeric_limits<double>::quiet_NaN();
    noting_printer printer;
    EXPECT_FAILURE(print_report(report_source_of(kavetta), printer), failure::overflow);
    EXPECT_TRUE(printer.lines().back().starts_with("    Max Contact Stress (MPa)"));
    EXPECT_FALSE(printer.ended);
}

}  // namespace
}  // namespace kvt
