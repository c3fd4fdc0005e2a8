#include "gtsuite/pass_case.hpp"

namespace kvt {
namespace {

TEST(scale_pressure_area, lets_the_area_follow_the_rotor_width) {
    const passed done = run_pass(scale_pressure_area,
                                 {"<object id=\"o7\" name=\"PresForceArea\">",
                                  "<va a_id=\"876981\" text=\"1\"/>", "</value>", "</object>"});
    EXPECT_EQ(done.lines[1],
              "                <va a_id=\"876981\" "
              "text=\"=[Rotor_Width]/12.5$$UNITS:Rotor_Width=3\" unitID=\"0\"/>");
    expect_count(done, 1, 1);
}

TEST(scale_pressure_area, leaves_other_objects) {
    expect_untouched(scale_pressure_area, {"<object id=\"o7\" name=\"ForceArea\">",
                                           "<va a_id=\"876981\" text=\"1\"/>", "</object>"});
}

}  // namespace
}  // namespace kvt
