// The drawing of the window explain: a rotor pair, seen along its axes and from the side, with the
// names of the Design form's dimensions.
#pragma once

#include "core/design_params.hpp"
#include "core/rotor_profiles.hpp"
#include "views/explanation.hpp"

namespace kvt {

/// The drawing of a calculated pair, to scale: every dimension line ends at what it measures. The
/// side view at the right shows thickness and axial clearance, the circle around the pair the
/// housing bore at the radial clearance. Clearances are drawn as they are, so a picture needs a
/// design with large ones.
explanation explain_rotors(const design_params& design, const rotor_profiles& rotors);

/// The two parts of it alone, of any calculated pair: each fills its own picture. Without fillets
/// their radius has no name.
explanation explain_pair(const design_params& design, const rotor_profiles& rotors);
explanation explain_side_view(const design_params& design, const rotor_profiles& rotors);

}  // namespace kvt
