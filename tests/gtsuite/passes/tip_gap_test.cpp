#include "gtsuite/pass_case.hpp"

namespace kvt {
namespace {

const std::string HEIGHT =
    "                <va a_id=\"331286\" text=\"[Tip_Clearance]\" unitID=\"6\"/>";
const std::string LENGTH =
    "                <va a_id=\"331337\" text=\"=max(1,1.5*(6.55-55.55*[Tip_Clearance]/1000))\""
    " unitID=\"3\"/>";

TEST(set_tip_gap, lets_height_and_length_follow_the_tip_clearance) {
    const passed done = run_pass(
        set_tip_gap, {"<object id=\"o1\" name=\"gap\">", "<va a_id=\"331286\" text=\"1\"/>",
                      "<va a_id=\"331337\" text=\"2\"/>", "</object>"});
    EXPECT_EQ(done.lines,
              (model_lines{"<object id=\"o1\" name=\"gap\">", HEIGHT, LENGTH, "</object>"}));
    expect_count(done, 1, 2);
}

TEST(set_tip_gap, adds_a_value_that_is_missing) {
    const passed done =
        run_pass(set_tip_gap, {"<object id=\"o1\" name=\"gap\">", "</value>", "</object>"});
    EXPECT_EQ(done.lines, (model_lines{"<object id=\"o1\" name=\"gap\">", HEIGHT, LENGTH,
                                       "</value>", "</object>"}));
}

TEST(set_tip_gap, leaves_a_file_without_the_object) {
    expect_untouched(set_tip_gap, {"<object id=\"o1\" name=\"gap2\">",
                                   "<va a_id=\"331286\" text=\"1\"/>", "</object>"});
}

}  // namespace
}  // namespace kvt
