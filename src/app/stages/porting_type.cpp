#include "app/stages/porting_type.hpp"

#include "app/desk/enabling_chain.hpp"
#include "app/program.hpp"

namespace kvt {

bool has_metering_groove(const program& kavetta) {
    return is_ticked(kavetta.entries.metering_groove);
}

void apply_shadow_rule(program& kavetta) {
    entries& boxes = kavetta.entries;
    const bool both_double_sided =
        is_ticked(boxes.inlet_double_sided) && is_ticked(boxes.outlet_double_sided);
    kavetta.enabling.shadow_ports = !both_double_sided;
    if (both_double_sided) {
        boxes.shadow_ports = "0";
    }
}

void open_groove_entries(program& kavetta) {
    const bool groove = has_metering_groove(kavetta);
    kavetta.enabling.groove_length = groove;
    kavetta.enabling.groove_width = groove;
    kavetta.enabling.groove_depth = groove;
}

void porting_type_clicked(program& kavetta) {
    apply_chain(kavetta.enabling, chain_event::porting_type_changed);
    open_groove_entries(kavetta);
    apply_shadow_rule(kavetta);
}

void set_porting_check(program& kavetta, std::string entries::*box, std::string_view state) {
    if (kavetta.entries.*box != state) {
        kavetta.entries.*box = state;
        porting_type_clicked(kavetta);
    }
}

}  // namespace kvt
