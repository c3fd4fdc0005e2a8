#include "base/number_text.hpp"
#include "gtsuite/model_passes.hpp"

#include <array>

namespace kvt {

namespace {

/// A parameter of the model, and the text of its item in the case of a speed and a pressure.
struct model_parameter {
    std::string_view name;
    int order;
    int unit;
    std::string (*text)(const pass_work& work, std::size_t speed, std::size_t pressure);
    std::string_view description = {};
};

/// A number of the design, the same in every case.
template <double pump_values::*value>
std::string number(const pass_work& work, std::size_t, std::size_t) {
    return number_text(work.pump.*value);
}

std::string pressure_bar(const pass_work& work, std::size_t, std::size_t pressure) {
    return number_text(work.pump.pressure_bar[pressure]);
}

std::string speed_rpm(const pass_work& work, std::size_t speed, std::size_t) {
    return number_text(work.pump.speed_rpm[speed]);
}

/// One lobe delivers the difference of biggest and smallest chamber: litres a minute.
std::string expected_flow(const pass_work& work, std::size_t, std::size_t) {
    const pump_values& pump = work.pump;
    return "=((" + number_text(pump.biggest_chamber_mm3) + "-" +
           number_text(pump.smallest_chamber_mm3) + ")*[Rotor_Width]/" + number_text(pump.thick) +
           ")/1000*" + number_text(pump.numlobes) + "*[rpm]/1000$$UNITS:RPM=139";
}

/// The area in mm2 that passes the expected flow at the desired pressure.
std::string restriction(const pass_work&, std::size_t, std::size_t) {
    return "=[ExpectedFlow-LPM]/60000/sqrt(2*[desiredpressuredrop-bar]*101300/[fluid_density])*1e6";
}

std::string room_temperature(const pass_work&, std::size_t, std::size_t) {
    return "303";  // K
}

std::string fluid(const pass_work& work, std::size_t, std::size_t) {
    return attribute_text(work.pump.fluid, work.encoding);
}

/// Kept: 1 for shadow ports alone, also when a double sided outlet balances the rotors;
/// cases_test holds it.
std::string shadow_port(const pass_work& work, std::size_t, std::size_t) {
    return work.pump.shadow_ports ? "1" : "0";
}

constexpr std::array PARAMETERS = {
    model_parameter{"DesiredPressureDrop-bar", -1, 25, pressure_bar},
    model_parameter{"ExpectedFlow-LPM", -1, 75, expected_flow},
    model_parameter{"OutletRestrictArea", -1, 9, restriction},
    model_parameter{"RPM", -1, 139, speed_rpm},
    model_parameter{"FLUID", 0, 0, fluid},
    model_parameter{"Tip_Clearance", 1, 6, number<&pump_values::tip_clearance_um>},
    model_parameter{"TEMP", 2, 32, room_temperature},
    model_parameter{"WALLTEMP", 2, 32, room_temperature},
    model_parameter{"Fluid_Density", 3, 66, number<&pump_values::density_kgm3>},
    model_parameter{"Fluid_Viscosity", 3, 412, number<&pump_values::kin_visc_cst>},
    model_parameter{"Axial_Clearance_Each_Side", 3, 6,
                    number<&pump_values::axial_clearance_each_side_um>},
    model_parameter{"Radial_Clearance", 3, 6, number<&pump_values::radial_clearance_um>},
    model_parameter{"Rotor_Width", 4, 3, number<&pump_values::thick>},
    model_parameter{"Rotor_Diameter", 4, 3, number<&pump_values::maxdiameter>},
    model_parameter{"Shaft_Bearing_Length", 4, 3, number<&pump_values::bearing_length>},
    model_parameter{"Shaft_Bearing_Clearance", 4, 6, number<&pump_values::bearing_clearance_um>},
    model_parameter{"Coefficient_Friction", 4, 0, number<&pump_values::friction>},
    model_parameter{"Shadow_Port_Enable", 5, 0, shadow_port,
                    "Shadow Port ON = 1; Shadow Port OFF =0"},
};

model_lines parameter_lines() {
    model_lines added;
    for (const model_parameter& parameter : PARAMETERS) {
        const std::string description =
            parameter.description.empty() ? ""
                                          : " desc=\"" + std::string(parameter.description) + "\"";
        added.push_back("        <parameter" + description + " folder=\"1\" name=\"" +
                        std::string(parameter.name) + "\" order=\"" +
                        std::to_string(parameter.order) + "\" unitID=\"" +
                        std::to_string(parameter.unit) + "\">");
        added.emplace_back("            <aa id=\"9\"/>");
        added.emplace_back("        </parameter>");
    }
    return added;
}

void append_case(model_lines& added, const pass_work& work, std::size_t speed,
                 std::size_t pressure) {
    added.emplace_back("        <case label=\"[rpm] RPM : [desiredpressuredrop-bar] bar\">");
    for (const model_parameter& parameter : PARAMETERS) {
        added.push_back("            <item parameter=\"" + std::string(parameter.name) +
                        "\" text=\"" + parameter.text(work, speed, pressure) + "\"/>");
    }
    added.emplace_back("        </case>");
}

model_lines case_lines(const pass_work& work) {
    model_lines added = {"    <cases>"};
    for (std::size_t speed = 0; speed < GRID_SIZE; ++speed) {
        for (std::size_t pressure = 0; pressure < GRID_SIZE; ++pressure) {
            append_case(added, work, speed, pressure);
        }
    }
    added.emplace_back("    </cases>");
    return added;
}

}  // namespace

pass_count add_parameters_and_cases(model_lines& lines, pass_work& work) {
    const std::size_t table = anchor_line(lines, "    <parameter_table>");
    const std::size_t end = anchor_line(lines, "    </parameter_table>");
    const model_lines cases = case_lines(work);
    const model_lines parameters = parameter_lines();
    insert_behind(lines, end, cases);
    insert_behind(lines, table, parameters);
    return {static_cast<int>(PARAMETERS.size() + GRID_SIZE * GRID_SIZE),
            static_cast<int>(cases.size() + parameters.size())};
}

}  // namespace kvt
