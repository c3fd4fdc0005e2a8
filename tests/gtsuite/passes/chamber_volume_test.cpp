#include "gtsuite/pass_case.hpp"

namespace kvt {
namespace {

TEST(scale_chamber_volume, lets_the_object_o60015_follow_the_rotor_width) {
    const passed done = run_pass(
        scale_chamber_volume,
        {"<object id=\"o60015\" name=\"any\">", "<va a_id=\"876981\" text=\"1\"/>", "</object>"});
    EXPECT_EQ(done.lines[1],
              "                <va a_id=\"876981\" "
              "text=\"=[Rotor_Width]/12.5$$UNITS:Rotor_Width=3\" unitID=\"0\"/>");
    expect_count(done, 1, 1);
}

TEST(scale_chamber_volume, leaves_other_objects) {
    expect_untouched(scale_chamber_volume, {"<object id=\"o600150\" name=\"o60015\">",
                                            "<va a_id=\"876981\" text=\"1\"/>", "</object>"});
}

}  // namespace
}  // namespace kvt
