#include "gtsuite/pass_case.hpp"

namespace kvt {
namespace {

TEST(switch_on_analysis, switches_the_first_value_on) {
    const std::string off = "<va a_id=\"973742\" text=\"\" unitID=\"0\"/>";
    const passed done = run_pass(switch_on_analysis, {"a", "  " + off + " ", "  " + off});
    EXPECT_EQ(done.lines,
              (model_lines{
                  "a", "                <va a_id=\"973742\" on=\"true\" text=\"\" unitID=\"0\"/>",
                  "  " + off}));
    expect_count(done, 1, 1);
}

TEST(switch_on_analysis, leaves_another_value) {
    expect_untouched(switch_on_analysis, {"<va a_id=\"973742\" text=\"1\" unitID=\"0\"/>",
                                          "<va a_id=\"973743\" text=\"\" unitID=\"0\"/>"});
}

}  // namespace
}  // namespace kvt
