// port_fields: what differs between the inlet and the outlet as a table: their entries, their
// messages, and which way they lie.
// Source: docs/formulas/ports.md.
#pragma once

#include "core/entries.hpp"
#include "core/rotor_profiles.hpp"
#include "core/text_table.hpp"
#include "ports/port_params.hpp"

#include <array>
#include <string>
#include <string_view>

namespace kvt {

/// A corner of a port: its angle entry, and the message when its search fails.
struct corner_fields {
    std::string entries::*box;
    std::string_view control;
    message search_failure;
    /// The chamber angle whose value is the default, and whether the default is 180 minus it.
    double rotor_profiles::*default_angle;
    bool is_end;
};

struct port_fields {
    port_side side;
    std::array<corner_fields, 4> corners;  ///< by START_INNER .. START_OUTER
    std::string entries::*inner_radius_box;
    std::string entries::*outer_radius_box;
    message out_of_range;
    message radius_too_large;
    bool mirrored;                 ///< the finished outline gets negative y
    bool keeps_start_outer_angle;  ///< the start angle on the outer radius stays as entered after
                                   ///< its search

    port_record& record(port_params& ports) const { return ports.of(side); }
    const port_record& record(const port_params& ports) const { return ports.of(side); }
};

const port_fields& inlet_fields();
const port_fields& outlet_fields();
const port_fields& fields_of(port_side side);

}  // namespace kvt
