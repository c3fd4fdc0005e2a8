#include "app/trial/kept_design.hpp"

#include "app/program.hpp"
#include "app/stages/performance_labels.hpp"
#include "app/stages/rotor_labels.hpp"
#include "base/number_text.hpp"
#include "base/run_time_error.hpp"
#include "core/capacity_unit.hpp"
#include "views/port_lines.hpp"
#include "views/zoom.hpp"

#include <utility>

namespace kvt {

namespace {

overlaid_outlines outlines_of(const design_view& view) {
    return {has_rotors(view), shows_outline(view.inlet_portline),
            shows_outline(view.outlet_portline), shows_outline(view.metering_groove_portline)};
}

std::string capacity_text(const kept_design& kept, std::int16_t unit) {
    const double factor = capacity_unit_factor(kept.capacity_unit, unit);
    return commas_to_points(fixed4::from(kept.rotor_profiles.capacity.value() * factor).text());
}

}  // namespace

kept_design kept_design_of(program kavetta) {
    kept_design kept;
    kept.design_params = kavetta.design_params;
    kept.rotor_profiles = std::move(kavetta.rotor_profiles);
    kept.port_params = std::move(kavetta.port_params);
    kept.perf_results = std::move(kavetta.perf_results);
    kept.outlines = outlines_of(kavetta.design_view);
    kept.has_performance = kavetta.enabling.create_charts;
    kept.capacity_unit = kavetta.app_state.capacity_unit;
    return kept;
}

view_state overlay_place(const program& kavetta, const kept_design& kept) {
    view_state place = kavetta.view_state;
    if (!has_rotors(kavetta.design_view)) {
        set_plot_scale(kept.design_params, place);
        place.view_cx = place.view_cy = place.view_size / 2.0;
        place.view_zoom = 1.0;
        place.rotation_angle = 0.0;
    }
    return place;
}

design_view overlay_of(const kept_design& kept, const overlaid_outlines& which,
                       const view_state& place) {
    try {
        return overlay_drawing(kept.design_params, kept.rotor_profiles, kept.port_params, which,
                               place);
    } catch (const run_time_error&) {
        return {};
    }
}

labels labels_of(const kept_design& kept, const app_state& state) {
    labels texts;
    texts.capacity.clear();
    if (kept.outlines.rotors) {
        texts.capacity = capacity_text(kept, state.capacity_unit);
        set_area_ratio_label(kept.rotor_profiles, texts);
        set_max_chamber_label(kept.rotor_profiles, texts);
        set_min_chamber_label(kept.rotor_profiles, texts);
    }
    if (kept.has_performance) {
        for (const perf_step after :
             {perf_step::speed_limits, perf_step::contact, perf_step::ripple}) {
            set_performance_labels(kept.perf_results, after, state, texts);
        }
    }
    return texts;
}

}  // namespace kvt
