#include "base/number_text.hpp"
#include "gtsuite/model_passes.hpp"

namespace kvt {

std::string width_factor(const pump_values& pump) {
    return "=[Rotor_Width]/" + number_text(pump.thick) + "$$UNITS:Rotor_Width=3";
}

pass_count scale_chamber_volume(model_lines& lines, pass_work& work) {
    const std::vector<object_value> values = {{876981, width_factor(work.pump), 0}};
    return set_values_of(lines, "id", "o60015", values);
}

}  // namespace kvt
