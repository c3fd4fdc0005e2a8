// Tests of the table of exact figures: what stands in it, in which units, and what is told instead.
#include "views/exact/exact_table.hpp"

#include "app/program.hpp"
#include "app/stages/calculate_performance.hpp"
#include "base/number_text.hpp"
#include "support/all_exact_results.hpp"
#include "support/cnc_design.hpp"

#include <algorithm>
#include <gtest/gtest.h>

namespace kvt {
namespace {

/// A delivered design with its exact figures.
struct worked_out_design {
    explicit worked_out_design(const std::string& name) : kavetta(design_with_ports(name)) {
        scripted_user person;
        calculate_performance(kavetta, person);
        show();
    }
    void show() {
        update_exact_record(kavetta);
        kavetta.exact_record.results = all_exact_results(*kavetta.exact_record.source);
    }
    std::vector<exact_row> rows() const { return present_exact_rows(kavetta); }
    exact_row row(std::string_view name) const {
        const std::vector<exact_row> all = rows();
        const auto found = std::ranges::find(all, name, &exact_row::name);
        EXPECT_NE(found, all.end()) << name;
        return found == all.end() ? exact_row() : *found;
    }

    program kavetta;
};

TEST(exact_table, has_the_displacement_beside_the_capacity_of_the_product) {
    worked_out_design design("n03_transfer_sharp");
    design.kavetta.app_state.capacity_unit = 4;
    const exact_row row = design.row("displacement");
    EXPECT_EQ(row.product, "1.3894 CC/Rev");
    EXPECT_EQ(row.exact.substr(0, 6), "1.1914") << row.exact;
    EXPECT_EQ(row.difference, "+16.62");
    EXPECT_TRUE(row.differs);
    EXPECT_EQ(row.section, "Volume and flow");
}

TEST(exact_table, differs_by_more_than_one_percent_only) {
    worked_out_design design("n09_crank_oil");
    EXPECT_FALSE(design.row("displacement").differs) << design.row("displacement").difference;
    EXPECT_TRUE(design.row("contact_50").differs || design.row("contact_55").differs);
}

TEST(exact_table, every_row_has_its_figure_its_sentence_and_its_section) {
    const worked_out_design design("n07_engine_oil_groove");
    const std::vector<exact_row> rows = design.rows();
    EXPECT_EQ(rows.size(), 30U) << "one of them is the groove's";
    for (const exact_row& row : rows) {
        EXPECT_FALSE(row.exact.empty()) << row.name;
        EXPECT_FALSE(row.why.empty()) << row.name;
        EXPECT_FALSE(row.section.empty()) << row.name;
        EXPECT_EQ(row.product.empty(), row.difference.empty()) << row.name;
    }
}

TEST(exact_table, names_the_point_of_the_grid) {
    const worked_out_design design("n07_engine_oil_groove");
    const perf_inputs& inputs = design.kavetta.perf_inputs;
    EXPECT_EQ(design.row("flow_55").quantity, "Flow, " + number_text(inputs.speed_hi) + " rpm, " +
                                                  number_text(inputs.pressure_hi) + " bar");
}

TEST(exact_table, shows_both_ends_of_the_range_of_speeds) {
    const worked_out_design design("n07_engine_oil_groove");
    const perf_inputs& inputs = design.kavetta.perf_inputs;
    const std::string speeds = design.row("inlet_speed").exact;
    EXPECT_NE(speeds.find(" m/s, " + number_text(inputs.speed_lo) + " rpm; "), std::string::npos)
        << speeds;
    EXPECT_NE(speeds.find(" m/s, " + number_text(inputs.speed_hi) + " rpm"), std::string::npos);
}

TEST(exact_table, follows_language_and_units) {
    worked_out_design design("n07_engine_oil_groove");
    design.kavetta.app_state.language = GERMAN;
    design.kavetta.app_state.drawing_units = INCHES;
    design.kavetta.decimal_mark = ',';
    EXPECT_EQ(design.row("dead_volume").quantity, "Totvolumen");
    EXPECT_NE(design.row("dead_volume").exact.find(','), std::string::npos);
    EXPECT_NE(design.row("inlet_speed").exact.find(" ft/s, "), std::string::npos);
    EXPECT_NE(design.row("max_cutter").exact.find(" in"), std::string::npos);
    EXPECT_NE(design.row("contact_55").exact.find(" Ksi"), std::string::npos);
    EXPECT_NE(design.row("flow_55").exact.find(" USGall/min"), std::string::npos);
}

TEST(exact_table, tells_which_stage_is_missing_and_what_waits) {
    program kavetta = opened_design("n07_engine_oil_groove");
    update_exact_record(kavetta);
    EXPECT_EQ(present_exact_rows(kavetta).front().exact,
              "Calculate Profiles first: there are no profiles of this project yet.");
    scripted_user person;
    calculate_profiles(kavetta, person);
    update_exact_record(kavetta);
    const std::vector<exact_row> rows = present_exact_rows(kavetta);
    const auto exact_of = [&](std::string_view name) {
        return std::ranges::find(rows, name, &exact_row::name)->exact;
    };
    EXPECT_EQ(exact_of("least_gap"), "Being worked out...");
    EXPECT_EQ(exact_of("flow"),
              "Calculate Performance first: there is no performance of this project yet.");
}

TEST(exact_table, tells_why_the_geometry_allows_no_figure) {
    worked_out_design design("n07_engine_oil_groove");
    exact_source wide = *design.kavetta.exact_record.source;
    wide.design.outer_root = 1000.0;
    design.kavetta.exact_record.source = std::make_shared<const exact_source>(wide);
    design.kavetta.exact_record.results = all_exact_results(wide);
    EXPECT_EQ(design.row("least_gap").exact,
              "The geometry allows no such figure (Invalid procedure call or argument)");
    EXPECT_FALSE(design.row("displacement").differs);
}

TEST(exact_table, says_why_an_outlet_that_ends_at_180_delivers_nothing_in_the_product) {
    worked_out_design design("n07_engine_oil_groove");
    entries& boxes = design.kavetta.entries;
    boxes.outlet_end_inner = boxes.outlet_end_outer = "180";
    scripted_user person;
    design_ports(design.kavetta, person);
    design.show();
    const exact_row row = design.row("outlet_open");
    EXPECT_NE(row.exact, "none") << "the drawn outlet is open";
    EXPECT_NE(row.why.find("the product's flow is 0 because it takes that end angle as 0"),
              std::string::npos)
        << row.why;
}

TEST(exact_table, the_figures_of_the_forms_have_their_rows) {
    const worked_out_design design("n04_fuel");
    for (const exact_control& control : exact_controls()) {
        EXPECT_FALSE(design.row(control.row).product.empty()) << control.control;
    }
}

}  // namespace
}  // namespace kvt
