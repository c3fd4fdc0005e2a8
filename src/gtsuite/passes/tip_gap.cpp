#include "gtsuite/model_passes.hpp"

namespace kvt {

pass_count set_tip_gap(model_lines& lines, pass_work&) {
    const std::vector<object_value> values = {
        {331286, "[Tip_Clearance]", 6},
        {331337, "=max(1,1.5*(6.55-55.55*[Tip_Clearance]/1000))", 3}};
    return set_values_of(lines, "name", "gap", values);
}

}  // namespace kvt
