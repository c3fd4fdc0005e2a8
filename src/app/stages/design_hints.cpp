#include "app/stages/design_hints.hpp"

#include "app/program.hpp"
#include "base/fixed_number.hpp"
#include "base/run_time_error.hpp"
#include "core/text_table.hpp"
#include "geometry/contour_crossing.hpp"
#include "geometry/outer_flank.hpp"
#include "geometry/outer_path.hpp"
#include "output/cnc/tool_contour.hpp"
#include "ports/groove_check.hpp"

#include <cstddef>
#include <string>

namespace kvt {

namespace {

std::string text_of(const program& kavetta, message id) {
    return std::string(message_text(id, kavetta.app_state.language));
}

/// Points 0 .. last of a profile.
std::vector<point2> profile_points(const zeroed_array& x, const zeroed_array& y, std::size_t last) {
    std::vector<point2> points;
    points.reserve(last + 1);
    for (std::size_t i = 0; i <= last; ++i) {
        points.push_back({x[i], y[i]});
    }
    return points;
}

void note_joints(program& kavetta) {
    const design_params& design = kavetta.design_params;
    if (fillets_stand_beyond_lobes(design, lobe_centre_radius(design, kavetta.rotor_profiles))) {
        add_hint(kavetta.hints, text_of(kavetta, message::hint_fillets_beyond_lobes));
    }
    const double gap = largest_gap(outer_rotor_path(design));
    if (gap > CONTOUR_TOLERANCE_MM) {
        add_hint(kavetta.hints, text_of(kavetta, message::hint_arcs_apart) + fixed_number(gap, 3));
    }
}

void note_crossings(program& kavetta) {
    const rotor_profiles& rotors = kavetta.rotor_profiles;
    const auto inner_last = static_cast<std::size_t>(rotors.profile_points) - 1;
    if (crosses_itself(profile_points(rotors.inner_x, rotors.inner_y, inner_last))) {
        add_hint(kavetta.hints, text_of(kavetta, message::hint_inner_crosses));
    }
    const auto outer_last = static_cast<std::size_t>(rotors.outer_last);
    if (crosses_itself(profile_points(rotors.outer_x, rotors.outer_y, outer_last))) {
        add_hint(kavetta.hints, text_of(kavetta, message::hint_outer_crosses));
    }
}

}  // namespace

void note_profile_faults(program& kavetta) {
    try {
        note_joints(kavetta);
        note_crossings(kavetta);
    } catch (const run_time_error&) {
        // A path that has no points has no gap to tell; its files end there and say so.
    }
}

void note_groove_faults(program& kavetta, hint_weight weight) {
    if (!kavetta.port_params.has_groove) {
        return;
    }
    const groove_faults faults = faults_of_groove(kavetta.port_params.groove_built);
    if (faults.wrong_side) {
        add_hint(kavetta.hints, text_of(kavetta, message::hint_groove_wrong_side), weight);
    }
    if (faults.crosses_itself) {
        add_hint(kavetta.hints, text_of(kavetta, message::hint_groove_crosses), weight);
    }
}

}  // namespace kvt
