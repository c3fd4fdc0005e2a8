// enabling: which buttons, menus and entries can be used. Commands set it; forms show it.
#pragma once

#include "base/named_fields.hpp"

#include <span>
#include <string_view>

namespace kvt {

/// At start everything downstream of the inputs is off, as after a project reset.
struct enabling {
    bool mnumodel = false, mnumodelporting = false;
    bool mnustep = false;
    bool mnudxf = false, mnudxfinletport = false, mnudxfoutletport = false, mnudxfmetering = false;
    bool mnudata = false, mnudataperf = false;
    bool design_ports = false;
    bool shadow_ports = true;
    bool groove_length = false, groove_width = false,
         groove_depth = false;  ///< with Label10, Label11, Label12
    bool calc_perf = false, GT_Sim_Button = false, GT_combo = false, GT_fluid = false;
    bool create_charts = false, export_excel = false;
    bool rotate_rotors_ccw = false, rotate_rotors_cw = false;

    friend bool operator==(const enabling&, const enabling&) = default;
};

using enabling_field = named_field<enabling, bool>;

std::span<const enabling_field> enabling_fields();

}  // namespace kvt
