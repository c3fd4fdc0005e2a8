// overlay_drawing: another design laid over the calculated pair, at the place, scale and turn that
// the Design view has.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "ports/port_params.hpp"
#include "views/design_view.hpp"
#include "views/view_state.hpp"

namespace kvt {

/// Which outlines of a design there are.
struct overlaid_outlines {
    bool rotors = false, inlet = false, outlet = false, groove = false;
};

/// The lines and arcs of a design in a view of its own, as the Design view draws its pair: as in
/// the first drawing of a calculation while the view is neither turned nor zoomed, else turned and
/// scaled as redraw_rotated does, with the design's own eccentricity and number of lobes. Ports do
/// not turn. Throws run_time_error as those do.
design_view overlay_drawing(const design_params& design, const rotor_profiles& rotors,
                            const port_params& ports, const overlaid_outlines& which,
                            view_state state);

}  // namespace kvt
