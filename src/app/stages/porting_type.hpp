// The four check boxes of the porting type: what a click on one of them does to the others.
#pragma once

#include <string>
#include <string_view>

namespace kvt {

struct entries;
struct program;

/// The box metering_groove is ticked.
bool has_metering_groove(const program& kavetta);

/// Both double-sided boxes together untick and disable shadow_ports; any other combination enables
/// it.
void apply_shadow_rule(program& kavetta);

/// The groove entries can be used while metering_groove is ticked.
void open_groove_entries(program& kavetta);

/// The click on inlet_double_sided, outlet_double_sided, shadow_ports or metering_groove, after the
/// box changed: performance must be calculated anew; both double-sided boxes together untick and
/// disable shadow_ports; metering_groove decides whether the groove entries can be used.
void porting_type_clicked(program& kavetta);

/// Sets a check box from the program. A box whose state changes acts as if it had been clicked.
void set_porting_check(program& kavetta, std::string entries::*box, std::string_view state);

}  // namespace kvt
