#include "gtsuite/model_passes.hpp"

namespace kvt {

pass_count scale_pressure_area(model_lines& lines, pass_work& work) {
    const std::vector<object_value> values = {{876981, width_factor(work.pump), 0}};
    return set_values_of(lines, "name", "PresForceArea", values);
}

}  // namespace kvt
