#include "gtsuite/pass_case.hpp"
#include "support/expect_failure.hpp"

namespace kvt {
namespace {

model_lines gap_lines(const std::string& id, const std::string& name, const std::string& height) {
    return {"        <object id=\"" + id + "\" name=\"" + name + "\" t_id=\"331097\">",
            "            <value>",
            "                <va a_id=\"331255\" text=\"[Rotor_Diameter]\" unitID=\"3\"/>",
            "                <va a_id=\"331286\" text=\"" + height + "\" unitID=\"6\"/>",
            "                <va a_id=\"331337\" text=\"[Rotor_Width]\" unitID=\"3\"/>",
            "                <va a_id=\"331368\" text=\"=0.0025*[RPM]\" unitID=\"41\"/>",
            "                <va a_id=\"331399\" text=\"def\" unitID=\"32\"/>",
            "                <va a_id=\"897757\" text=\"def\" unitID=\"0\"/>",
            "                <va a_id=\"967237\" text=\"def\" unitID=\"0\"/>",
            "                <va a_id=\"978687\" text=\"h969428\" unitID=\"0\"/>",
            "                <va a_id=\"978897\" text=\"def\" unitID=\"0\"/>",
            "                <va a_id=\"978898\" text=\"def\" unitID=\"0\"/>",
            "                <va a_id=\"978899\" text=\"h969573\" unitID=\"0\"/>",
            "                <va a_id=\"978900\" text=\"def\" unitID=\"36\"/>",
            "            </value>",
            "        </object>"};
}

TEST(add_gap_objects, begins_the_table_with_the_upper_and_the_lower_gap) {
    const passed done = run_pass(add_gap_objects, {"    <object_table>", "x"}, hand_made_pump(),
                                 model_ids{60016, 0});
    model_lines expected = {"    <object_table>"};
    insert_behind(expected, expected.size() - 1,
                  gap_lines("o60017", "Axial_Gap_Upper",
                            "=[Shadow_Port_Enable]*[axial_clearance_each_side]"));
    insert_behind(expected, expected.size() - 1,
                  gap_lines("o60018", "Axial_Gap_Lower",
                            "=(2-[Shadow_Port_Enable])*[axial_clearance_each_side]"));
    expected.emplace_back("x");
    EXPECT_EQ(done.lines, expected);
    expect_count(done, 2, 32);
}

TEST(add_gap_objects, needs_the_table) {
    EXPECT_FAILURE(run_pass(add_gap_objects, {}), failure::input_past_end);
}

}  // namespace
}  // namespace kvt
