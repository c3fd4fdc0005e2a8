// Tests of the results of the performance under their names: where their numbers lie.
#include "app/results/result_sections.hpp"
#include "performance/result_quantities.hpp"

#include <algorithm>

namespace kvt {
namespace {

const named_value& find_value(const named_values& values, std::string_view name) {
    return *std::ranges::find(values, name, &named_value::name);
}

const number_block& block_of(const named_values& values, std::string_view name) {
    return std::get<number_block>(find_value(values, name).content);
}

TEST(performance_values, hold_every_quantity_that_a_report_has) {
    const perf_results results;
    const named_values values = performance_values(results);
    std::size_t expected = 0;
    for (const result_quantity& quantity : result_quantities()) {
        expected += quantity.json == json_part::none ? 0 : 1;
    }
    EXPECT_EQ(values.size(), expected);
    EXPECT_EQ(std::ranges::find(values, "largest_stress", &named_value::name), values.end());
}

TEST(performance_values, show_a_grid_where_it_lies) {
    perf_results results;
    results.flow_m3s[5][5] = 0.125;
    const named_values values = performance_values(results);
    const number_block& flow = block_of(values, "flow_m3s");
    EXPECT_EQ(flow.shape, (std::vector<std::size_t>{6, 6}));
    ASSERT_EQ(flow.pieces.size(), 1U);
    EXPECT_EQ(flow.pieces[0].data(), results.flow_m3s[0].data());
    EXPECT_EQ(&flow.pieces[0][35], &results.flow_m3s[5][5]);
}

TEST(performance_values, cut_an_array_over_the_angle_to_its_used_part) {
    perf_results results;
    results.ripple_pressure[3599] = 1.0;
    const perf_results& kept = results;
    const named_values values = performance_values(kept);
    const number_block& ripple = block_of(values, "ripple_pressure");
    EXPECT_EQ(ripple.shape, std::vector<std::size_t>{3600});
    EXPECT_EQ(ripple.pieces[0].data(), kept.ripple_pressure.data());
}

TEST(performance_values, give_a_table_of_arrays_piece_by_piece) {
    perf_results results;
    results.hertz_stress[1][2][90] = 7.0;
    const perf_results& kept = results;
    const named_values values = performance_values(kept);
    const number_block& stress = block_of(values, "hertz_stress");
    EXPECT_EQ(stress.shape, (std::vector<std::size_t>{6, 6, 180}));
    ASSERT_EQ(stress.pieces.size(), 36U);
    EXPECT_EQ(stress.pieces[8].data(), kept.hertz_stress[1][2].data());
    EXPECT_TRUE(find_value(values, "hertz_stress").full_only);
}

}  // namespace
}  // namespace kvt
