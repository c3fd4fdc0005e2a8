#include "gtsuite/pass_case.hpp"

namespace kvt {
namespace {

TEST(set_friction_inputs, writes_twelve_values_with_their_units) {
    const passed done = run_pass(
        set_friction_inputs,
        {"<object id=\"o7\" name=\"GerotorFriction\">", "<value>", "</value>", "</object>"});
    const auto line = [](const std::string& a_id, const std::string& text,
                         const std::string& unit) {
        return "                <va a_id=\"" + a_id + "\" text=\"" + text + "\" unitID=\"" + unit +
               "\"/>";
    };
    EXPECT_EQ(
        done.lines,
        (model_lines{
            "<object id=\"o7\" name=\"GerotorFriction\">", "<value>",
            line("5", "=[fluid_viscosity]*[fluid_density]/1000000", "352"), line("12", "4000", "9"),
            line("14", "30", "3"), line("15", "[Axial_Clearance_Each_Side]", "6"),
            line("17", "[Axial_Clearance_Each_Side]", "6"), line("19", "[Rotor_Width]", "3"),
            line("20", "[Radial_Clearance]", "6"), line("21", "[Rotor_Diameter]", "3"),
            line("24", "[shaft_bearing_clearance]", "6"), line("25", "16", "3"),
            line("26", "[shaft_bearing_length]", "3"), line("1073741823", "on", "0"), "</value>",
            "</object>"}));
    expect_count(done, 1, 12);
}

TEST(set_friction_inputs, leaves_other_objects) {
    expect_untouched(set_friction_inputs,
                     {"<object id=\"o7\" name=\"Friction\">", "</value>", "</object>"});
}

}  // namespace
}  // namespace kvt
