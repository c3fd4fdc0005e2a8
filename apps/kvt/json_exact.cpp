#include "kvt/json_exact.hpp"

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "base/run_time_error.hpp"
#include "exact/exact_figures.hpp"
#include "exact/port_timing.hpp"

#include <functional>
#include <numbers>
#include <string_view>

namespace kvt {

namespace {

constexpr double DEGREES_PER_RADIAN = 180.0 / std::numbers::pi;
constexpr double MM_PER_METRE = 1000.0;

double degrees(double radians) {
    return radians * DEGREES_PER_RADIAN;
}

json json_rotors(const exact_rotors& exact) {
    const chamber_extremes& chamber = exact.chamber;
    const flow_figures& flow = exact.flow;
    json object = json::object();
    object["swept_cc"] = exact.swept_cc;
    object["least_chamber"] = chamber.least;
    object["least_chamber_at"] = degrees(chamber.least_at);
    object["largest_chamber"] = chamber.largest;
    object["largest_chamber_at"] = degrees(chamber.largest_at);
    object["dead_volume"] = chamber.dead;
    object["flow_least"] = flow.least / flow.mean;
    object["flow_largest"] = flow.largest / flow.mean;
    object["irregularity"] = flow.irregularity;
    object["pulses"] = flow.pulses;
    object["harmonics"] = flow.harmonics;
    return object;
}

json json_gap(const gap_round_turn& turn) {
    json object = json::object();
    object["least"] = turn.least;
    object["least_at"] = degrees(turn.least_at);
    object["gap"] = turn.gap;
    return object;
}

json json_spans(const std::vector<life_span>& spans) {
    json list = json::array();
    for (const life_span& span : spans) {
        list.push_back({{"from", degrees(span.from)},
                        {"to", degrees(span.to)},
                        {"volume_change", span.volume_change}});
    }
    return list;
}

/// At both ends of the range of speeds.
json json_speed(const port_speed& speed, const perf_inputs& inputs) {
    const auto at_rpm = [&](double rpm) {
        return speed.speed * rpm * std::numbers::pi / 30.0 / MM_PER_METRE;
    };
    return {{"at", degrees(speed.at)},
            {"speed_lo", at_rpm(inputs.speed_lo)},
            {"speed_hi", at_rpm(inputs.speed_hi)}};
}

json json_life(const std::vector<chamber_opening>& life) {
    json list = json::array();
    for (const chamber_opening& opening : life) {
        list.push_back(json::array({degrees(opening.place), opening.volume, opening.rate,
                                    opening.inlet, opening.outlet, opening.groove}));
    }
    return list;
}

json json_timing(const port_timing& timing, const perf_inputs& inputs) {
    json object = json::object();
    object["inlet_open"] = json_spans(timing.inlet_open);
    object["outlet_open"] = json_spans(timing.outlet_open);
    object["both_open"] = json_spans(timing.both_open);
    object["trapped"] = json_spans(timing.trapped);
    object["trapped_change"] = timing.trapped_change;
    object["inlet_speed"] = json_speed(timing.inlet_speed, inputs);
    object["outlet_speed"] = json_speed(timing.outlet_speed, inputs);
    object["inlet_chamber_speed"] = json_speed(timing.inlet_chamber_speed, inputs);
    object["outlet_chamber_speed"] = json_speed(timing.outlet_chamber_speed, inputs);
    object["life"] = json_life(timing.life);
    return object;
}

json json_performance(const exact_performance& exact) {
    json pressures = json::array();
    for (const contact_maximum& contact : exact.contact) {
        pressures.push_back(contact.pressure);
    }
    json object = json::object();
    object["contact_pressure"] = pressures;
    object["flow_m3s"] = exact.flow.flow_m3s;
    object["vol_eff"] = exact.flow.vol_eff;
    return object;
}

timed_ports ports_of(const program& kavetta) {
    const port_params& ports = kavetta.port_params;
    return {ports.inlet.last > 0, ports.outlet.last > 0, ports.has_groove,
            is_ticked(kavetta.entries.inlet_double_sided),
            is_ticked(kavetta.entries.outlet_double_sided)};
}

void add_part(json& object, std::string_view name, const std::function<json()>& part) {
    try {
        object[std::string(name)] = part();
    } catch (const run_time_error&) {
        // The geometry has no such part.
    }
}

}  // namespace

json json_exact(const program& kavetta, const batch_result& result) {
    const design_params& design = kavetta.design_params;
    json object = json::object();
    if (result.end != batch_end::ok) {
        return object;
    }
    add_part(object, "rotors", [&] { return json_rotors(exact_rotors_of(design)); });
    add_part(object, "gap", [&] { return json_gap(gaps_round_turn(design)); });
    if (result.ports_reached) {
        add_part(object, "timing", [&] {
            return json_timing(time_ports(design, kavetta.port_params, ports_of(kavetta)),
                               kavetta.perf_inputs);
        });
    }
    if (result.performance_reached) {
        add_part(object, "performance", [&] {
            return json_performance(
                exact_performance_of(design, kavetta.perf_inputs, kavetta.perf_results));
        });
    }
    return object;
}

}  // namespace kvt
