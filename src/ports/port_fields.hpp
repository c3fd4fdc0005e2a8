// port_fields: what differs between the inlet and the outlet as a table: their entries, their
// fields, their messages.
// Source: docs/formulas/ports.md.
#pragma once

#include "core/entries.hpp"
#include "core/rotor_profiles.hpp"
#include "core/text_table.hpp"
#include "geometry/point2.hpp"
#include "ports/port_params.hpp"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace kvt {

/// The two fields of a point.
struct point_fields {
    double port_params::*x;
    double port_params::*y;

    point2 get(const port_params& ports) const { return {ports.*x, ports.*y}; }
    void set(port_params& ports, point2 point) const {
        ports.*x = point.x;
        ports.*y = point.y;
    }
};

/// A corner of a port: its fields, its angle entry, and the message when its search fails.
struct corner_fields {
    double port_params::*t_deg;
    point_fields c, s, r, p;
    double port_params::*angle_deg;
    std::string entries::*box;
    std::string_view control;
    message search_failure;
    /// The chamber angle whose value is the default, and whether the default is 180 minus it.
    double rotor_profiles::*default_angle;
    bool is_end;
};

struct port_fields {
    /// Corners 1 .. 4: start inner, end inner, end outer, start outer.
    std::array<corner_fields, 4> corners;
    double port_params::*inner_r;
    double port_params::*outer_r;
    std::string entries::*inner_radius_box;
    std::string entries::*outer_radius_box;
    zeroed_array port_params::*x;
    zeroed_array port_params::*y;
    std::int16_t port_params::*last;
    port_shape port_params::*built;
    std::array<std::int16_t port_params::*, 4> marks;  ///< a .. d
    message out_of_range;
    message radius_too_large;
    bool mirrored;                 ///< the finished outline gets negative y
    bool keeps_start_outer_angle;  ///< the start angle on the outer radius stays as entered after
                                   ///< its search
};

/// Indexes of port_fields::corners.
inline constexpr std::size_t START_INNER = 0, END_INNER = 1, END_OUTER = 2, START_OUTER = 3;

const port_fields& inlet_fields();
const port_fields& outlet_fields();

}  // namespace kvt
