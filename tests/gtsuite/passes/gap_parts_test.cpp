#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

namespace kvt {
namespace {

TEST(add_gap_parts, begins_the_map_with_both_gaps) {
    const passed done = run_pass(add_gap_parts, {"            <part_table>", "x"}, hand_made_pump(),
                                 model_ids{10, 20});
    EXPECT_EQ(done.lines,
              (model_lines{"            <part_table>",
                           "                <part center_x=\"660\" center_y=\"350\" id=\"p21\" "
                           "name=\"Axial_Gap_Upper\" o_id=\"o11\" size_x=\"42\" size_y=\"42\" "
                           "t_id=\"331097\">",
                           "                    <value/>", "                </part>",
                           "                <part center_x=\"660\" center_y=\"250\" id=\"p22\" "
                           "name=\"Axial_Gap_Lower\" o_id=\"o12\" size_x=\"42\" size_y=\"42\" "
                           "t_id=\"331097\">",
                           "                    <value/>", "                </part>", "x"}));
    expect_count(done, 2, 6);
}

TEST(add_gap_parts, needs_the_table) {
    EXPECT_FAILURE(run_pass(add_gap_parts, {"<part_table>"}), failure::input_past_end);
}

}  // namespace
}  // namespace kvt
