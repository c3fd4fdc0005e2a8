// model_passes: the fourteen changes that turn the converter's model into the model of the pump,
// one function each, lines to lines, in their order.
// Source: docs/file-formats.md, "Model files of the simulation exchange".
#pragma once

#include "gtsuite/model_ids.hpp"
#include "gtsuite/model_text.hpp"
#include "gtsuite/pump_values.hpp"

#include <span>
#include <string_view>

namespace kvt {

/// What a pass reads beside the lines. The first pass fills the numbers.
struct pass_work {
    const pump_values& pump;
    model_encoding encoding = model_encoding::utf8;
    model_ids ids{};
};

// Pass 1. Reads the highest numbers; next_obj of the file is raised above every new number.
pass_count find_free_ids(model_lines& lines, pass_work& work);
// Pass 2. Switches the value 973742 on.
pass_count switch_on_analysis(model_lines& lines, pass_work& work);
// Pass 3. The templates of the volumes and of the fluids join the template table.
pass_count add_templates(model_lines& lines, pass_work& work);
// Pass 4. The objects Axial_Gap_Upper and Axial_Gap_Lower: the leaks over both faces.
pass_count add_gap_objects(model_lines& lines, pass_work& work);
// Pass 5. Height and length of the tip gap follow the tip clearance.
pass_count set_tip_gap(model_lines& lines, pass_work& work);
// Pass 6. Two more connections of the volumes at inlet and outlet, one a gap.
pass_count add_volume_connections(model_lines& lines, pass_work& work);
// Pass 7. The chamber volume follows the rotor width.
pass_count scale_chamber_volume(model_lines& lines, pass_work& work);
// Pass 8. The drag torque of the pump. Source: docs/formulas/simulation_model.md, "Drag torque".
pass_count set_drag_torque(model_lines& lines, pass_work& work);
// Pass 9. The area under pressure follows the rotor width.
pass_count scale_pressure_area(model_lines& lines, pass_work& work);
// Pass 10. What the friction object GerotorFriction reads.
pass_count set_friction_inputs(model_lines& lines, pass_work& work);
// Pass 11. The parts of both gaps on the map.
pass_count add_gap_parts(model_lines& lines, pass_work& work);
// Pass 12. Their links to the volumes at inlet and outlet.
pass_count add_gap_links(model_lines& lines, pass_work& work);
// Pass 13. The plots of volumes, gaps and pump.
pass_count add_plot_groups(model_lines& lines, pass_work& work);
// Pass 14. Eighteen parameters, and a case for each speed and pressure of the run.
pass_count add_parameters_and_cases(model_lines& lines, pass_work& work);

/// "=[Rotor_Width]/THICK$$UNITS:Rotor_Width=3": 1 at the width of the design.
std::string width_factor(const pump_values& pump);

/// The formula of pass 8 as the model has it.
std::string drag_formula(const drag_constants& constants);

using model_pass = pass_count (*)(model_lines& lines, pass_work& work);

/// All passes in their order. A pass whose object is missing changes nothing; one whose anchor is
/// missing throws input_past_end.
std::span<const model_pass> model_passes();

/// Runs all passes on a text and answers what each did.
std::vector<pass_count> run_model_passes(model_text& text, const pump_values& pump);

}  // namespace kvt
