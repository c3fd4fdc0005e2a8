#include "gtsuite/pass_case.hpp"

namespace kvt {
namespace {

model_lines volume(const std::string& name, const std::string& widths, const std::string& angles,
                   const std::string& zeros) {
    return {"<object id=\"o1\" name=\"" + name + "\">",
            "<va a_id=\"1\"><![CDATA[1.5" + widths + "]]></va>",
            "<va a_id=\"2\"><![CDATA[def]]></va>",
            "<va a_id=\"3\"><![CDATA[90.0" + angles + "]]></va>",
            "<va a_id=\"4\"><![CDATA[0.0" + zeros + "]]></va>",
            "<va a_id=\"5\"><![CDATA[fifth]]></va>",
            "</object>"};
}

TEST(add_volume_connections, appends_two_entries_to_the_first_third_and_fourth_row) {
    const passed inlet = run_pass(add_volume_connections, volume("InletVol", "", "", ""));
    EXPECT_EQ(inlet.lines, volume("InletVol", "|9.5|9.5", "|90.0|90.0", "|0.0|0.0"));
    expect_count(inlet, 1, 3);
    const passed outlet = run_pass(add_volume_connections, volume("OutletVol", "", "", ""));
    EXPECT_EQ(outlet.lines, volume("OutletVol", "|8.25|8.25", "|90.0|90.0", "|0.0|0.0"));
    expect_count(outlet, 1, 3);
}

TEST(add_volume_connections, takes_the_rows_that_there_are) {
    model_lines lines = volume("InletVol", "", "", "");
    lines.erase(lines.begin() + 2, lines.end() - 1);
    expect_count(run_pass(add_volume_connections, lines), 1, 1);
}

TEST(add_volume_connections, leaves_other_objects) {
    expect_untouched(add_volume_connections, volume("MidVol", "", "", ""));
}

}  // namespace
}  // namespace kvt
