// Tests of the sections of a finished run: which it came to, and the values that they hold.
#include "app/results/result_sections.hpp"

#include "app/stages/batch_run.hpp"
#include "base/number_text.hpp"
#include "support/performed_design.hpp"

#include <algorithm>

namespace kvt {
namespace {

const value_content& content_of_name(const named_values& values, std::string_view name) {
    return std::ranges::find(values, name, &named_value::name)->content;
}

const number_block& block_of(const named_values& values, std::string_view name) {
    return std::get<number_block>(content_of_name(values, name));
}

std::vector<std::string_view> reached_sections(const batch_result& result) {
    std::vector<std::string_view> names;
    for (const result_section_row& row : result_sections()) {
        if (is_reached(row, result)) {
            names.push_back(row.name);
        }
    }
    return names;
}

TEST(result_sections, follow_how_far_the_run_came) {
    using names = std::vector<std::string_view>;
    batch_result result;
    EXPECT_EQ(reached_sections(result), (names{"entries", "labels", "numbers"}));
    result.profiles_reached = true;
    EXPECT_EQ(reached_sections(result),
              (names{"entries", "labels", "numbers", "design_params", "rotor_profiles"}));
    result.ports_reached = true;
    EXPECT_EQ(reached_sections(result).back(), "port_params");
    result.performance_reached = true;
    EXPECT_EQ(reached_sections(result).back(), "perf_results");
}

TEST(result_sections, hold_the_number_behind_a_label) {
    const program kavetta = performed_design("n07_engine_oil_groove");
    const named_values numbers = values_of(result_section::numbers, kavetta);
    EXPECT_EQ(std::get<double>(content_of_name(numbers, "capacity")), val(kavetta.labels.capacity));
    EXPECT_EQ(std::get<double>(content_of_name(numbers, "area_ratio")),
              kavetta.rotor_profiles.area_ratio);
}

TEST(result_sections, show_the_outline_of_a_rotor_where_it_lies) {
    const program kavetta = performed_design("n07_engine_oil_groove");
    const named_values rotors = values_of(result_section::rotor_profiles, kavetta);
    const number_block& outer = block_of(rotors, "outer_x");
    ASSERT_EQ(outer.pieces.size(), 1U);
    EXPECT_EQ(outer.pieces[0].data(), kavetta.rotor_profiles.outer_x.data());
    EXPECT_EQ(outer.shape, std::vector<std::size_t>{
                               static_cast<std::size_t>(kavetta.rotor_profiles.outer_last) + 1});
}

TEST(result_sections, have_no_outline_of_a_port_that_was_never_built) {
    const program kavetta;
    const named_values ports = values_of(result_section::port_params, kavetta);
    EXPECT_EQ(block_of(ports, "inlet_port_x").shape, std::vector<std::size_t>{0});
}

TEST(result_sections, hold_the_boxes_as_they_were_typed) {
    program kavetta;
    kavetta.entries.thick = " 12,5";
    const named_values boxes = values_of(result_section::entries, kavetta);
    EXPECT_EQ(std::get<std::string>(content_of_name(boxes, "thick")), " 12,5");
}

}  // namespace
}  // namespace kvt
