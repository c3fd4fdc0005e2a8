#include "base/number_text.hpp"
#include "gtsuite/model_passes.hpp"

namespace kvt {

pass_count set_friction_inputs(model_lines& lines, pass_work& work) {
    const std::vector<object_value> values = {
        {5, "=[fluid_viscosity]*[fluid_density]/1000000", 352},
        {12, number_text(work.pump.face_area_mm2), 9},
        {14, number_text(work.pump.face_radius), 3},
        {15, "[Axial_Clearance_Each_Side]", 6},
        {17, "[Axial_Clearance_Each_Side]", 6},
        {19, "[Rotor_Width]", 3},
        {20, "[Radial_Clearance]", 6},
        {21, "[Rotor_Diameter]", 3},
        {24, "[shaft_bearing_clearance]", 6},
        {25, number_text(work.pump.shaftdiameter), 3},
        {26, "[shaft_bearing_length]", 3},
        {1073741823, "on", 0}};
    return set_values_of(lines, "name", "GerotorFriction", values);
}

}  // namespace kvt
