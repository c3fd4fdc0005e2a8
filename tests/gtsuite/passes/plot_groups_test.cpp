#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

#include <algorithm>

namespace kvt {
namespace {

TEST(add_plot_groups, adds_three_groups_behind_the_axis) {
    const passed done = run_pass(add_plot_groups, {"    <plots axis=\"time\" more=\"1\">", "x"});
    ASSERT_EQ(done.lines.size(), 56U);
    EXPECT_EQ(done.lines[1], "        <group id=\"65542\">");
    EXPECT_EQ(done.lines[2], "            <plot id=\"126\"/>");
    EXPECT_EQ(done.lines[15], "            <plot id=\"904572\" loc=\"def\"/>");
    EXPECT_EQ(done.lines[18], "            <plot id=\"175188\"/>");
    EXPECT_EQ(done.lines[19], "        </group>");
    EXPECT_EQ(done.lines[20], "        <group id=\"65544\">");
    EXPECT_EQ(done.lines[31], "            <plot id=\"10046\"/>");
    EXPECT_EQ(done.lines[33], "        <group id=\"331097\">");
    EXPECT_EQ(done.lines[34], "            <plot id=\"9\"/>");
    EXPECT_EQ(done.lines[53], "            <plot id=\"898346\"/>");
    EXPECT_EQ(done.lines[55], "x");
    EXPECT_EQ(std::ranges::count(done.lines, "        </group>"), 3);
    expect_count(done, 3, 54);
}

TEST(add_plot_groups, needs_the_plots) {
    EXPECT_FAILURE(run_pass(add_plot_groups, {"<plots axis=\"time\">"}), failure::input_past_end);
}

}  // namespace
}  // namespace kvt
