#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

namespace kvt {
namespace {

model_lines volumes_at(const std::string& inlet_x, const std::string& outlet_x) {
    return {"  <part center_x=\"" + inlet_x + "\" id=\"p5\" name=\"InletVol\">",
            "  <part center_x=\"" + outlet_x + "\" id=\"p6\" name=\"OutletVol\">",
            "            <port_link_table>"};
}

std::string link(const std::string& end_id, const std::string& id, const std::string& from,
                 const std::string& to, const std::string& points, const std::string& start_id) {
    return "                <link end_id=\"" + end_id + "\" id=\"" + id + "\" name_start=\"" +
           from + "\" name_end=\"" + to + "\" points=\"" + points + "\" start_id=\"" + start_id +
           "\" type=\"1\"/>";
}

model_lines linked(const model_lines& lines) {
    const passed done = run_pass(add_gap_links, lines, hand_made_pump(), model_ids{10, 20});
    expect_count(done, 4, 4);
    return {done.lines.begin() + 3, done.lines.end()};
}

TEST(add_gap_links, leads_each_gap_from_the_inlet_to_the_outlet) {
    EXPECT_EQ(linked(volumes_at("300", "1100")),
              (model_lines{link("p6", "l23", "Axial_Gap_Upper", "OutletVol", "(1025,350)", "p21"),
                           link("p21", "l24", "InletVol", "Axial_Gap_Upper", "(375,350)", "p5"),
                           link("p6", "l25", "Axial_Gap_Lower", "OutletVol", "(1100,250)", "p22"),
                           link("p22", "l26", "InletVol", "Axial_Gap_Lower", "(300,250)", "p5")}));
}

TEST(add_gap_links, changes_the_volumes_when_the_outlet_stands_left) {
    EXPECT_EQ(linked(volumes_at("1100", "300")),
              (model_lines{link("p5", "l23", "Axial_Gap_Upper", "InletVol", "(1025,350)", "p21"),
                           link("p21", "l24", "OutletVol", "Axial_Gap_Upper", "(375,350)", "p6"),
                           link("p5", "l25", "Axial_Gap_Lower", "InletVol", "(1100,250)", "p22"),
                           link("p22", "l26", "OutletVol", "Axial_Gap_Lower", "(300,250)", "p6")}));
}

TEST(add_gap_links, needs_the_table_and_both_volumes) {
    EXPECT_FAILURE(run_pass(add_gap_links, {}), failure::input_past_end);
    for (const std::size_t missing : {0U, 1U, 2U}) {
        model_lines lines = volumes_at("1", "2");
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(missing));
        EXPECT_FAILURE(run_pass(add_gap_links, lines), failure::input_past_end);
    }
}

}  // namespace
}  // namespace kvt
