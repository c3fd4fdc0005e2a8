// The drawing of the window port_explain: both ports and the metering groove with the names of the
// Port Design form.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "ports/port_params.hpp"
#include "views/explanation.hpp"

namespace kvt {

/// The drawing of designed ports over their rotors, to scale. Angles stand at the corners without
/// fillets that the entries describe: those of the inner radius about the inner rotor axis, those
/// of the outer radius about the outer one, all from the positive x axis, the inlet's downwards. A
/// section at the right shows the groove's width and depth.
explanation explain_ports(const design_params& design, const rotor_profiles& rotors,
                          const port_params& ports);

/// Which outlines a drawing shows.
struct drawn_ports {
    bool inlet = true, outlet = true, groove = true;
};

/// The face of the housing alone, of any design whose ports were finished: what is not drawn has no
/// names either, nor has the radius of sharp corners.
explanation explain_face(const design_params& design, const rotor_profiles& rotors,
                         const port_params& ports, const drawn_ports& drawn);

}  // namespace kvt
