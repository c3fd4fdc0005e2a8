#include "base/number_text.hpp"
#include "gtsuite/model_passes.hpp"

namespace kvt {

std::string drag_formula(const drag_constants& constants) {
    const std::string friction =
        "(1-[Shadow_Port_Enable])*[DesiredPressureDrop-bar]*[Coefficient_Friction]*" +
        number_text(constants.pressure_friction);
    const std::string faces =
        "((1+[Shadow_Port_Enable]+[Shadow_Port_Enable]+[Shadow_Port_Enable])*[fluid_viscosity]*"
        "[fluid_density]/1000000)* " +
        number_text(constants.face_shear) + "*[RPM]/[axial_clearance_each_side]";
    const std::string periphery = "[RPM]*" + number_text(constants.shaft_rate) +
                                  "*([rotor_diameter]/2000)^3 * ([rotor_width] / 1000) * "
                                  "([fluid_viscosity]*[fluid_density]/1000000) * " +
                                  number_text(constants.periphery_shear) + "/ [radial_clearance]";
    return "=1E-10+(" + friction + ")+(" + faces + ")+(" + periphery +
           ")$$UNITS:RPM=139:axial_clearance_each_side=6:radial_clearance=6:fluid_density=66:"
           "fluid_viscosity=412";
}

pass_count set_drag_torque(model_lines& lines, pass_work& work) {
    const std::vector<object_value> values = {{951169, drag_formula(work.pump.drag), 0},
                                              {951188, "h950355", 0}};
    return set_values_of(lines, "name", "PumpAnalysis", values);
}

}  // namespace kvt
