#include "kvt/json_exact.hpp"

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "core/text_table.hpp"
#include "exact/exact_results.hpp"
#include "views/exact/exact_table.hpp"

#include <array>
#include <numbers>
#include <string>
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
    object["max_cutter_inner"] = exact.cutter;
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
    object["max_speed_rpm"] = exact.max_speed_rpm;
    return object;
}

/// A sentence where the product's own figures need one.
void add_note(const exact_source& source, std::int16_t language, json& timing) {
    if (ends_at_180(source.ports)) {
        timing["note"] =
            row_text(*find_text(text_kind::tooltip, "exact_figures", "ends_at_180"), language);
    }
}

/// A part as the file has it. The curves are drawn only.
struct json_part {
    exact_part part;
    std::string_view name;
    json (*make)(const exact_source& source, const exact_results& exact, std::int16_t language);
};

const std::array PARTS_IN_FILE = {
    json_part{exact_part::rotors, "rotors",
              [](const exact_source&, const exact_results& exact, std::int16_t) {
                  return json_rotors(exact.rotors);
              }},
    json_part{exact_part::gap, "gap",
              [](const exact_source&, const exact_results& exact, std::int16_t) {
                  return json_gap(exact.gap);
              }},
    json_part{exact_part::timing, "timing",
              [](const exact_source& source, const exact_results& exact, std::int16_t language) {
                  json timing = json_timing(exact.timing, source.inputs);
                  add_note(source, language, timing);
                  return timing;
              }},
    json_part{exact_part::performance, "performance",
              [](const exact_source&, const exact_results& exact, std::int16_t) {
                  return json_performance(exact.performance);
              }},
};

}  // namespace

json json_exact(const program& kavetta, const batch_result& result) {
    json object = json::object();
    if (result.end != batch_end::ok) {
        return object;
    }
    const std::int16_t language = kavetta.app_state.language;
    const exact_source source = exact_source_of(kavetta, result);
    exact_results exact;
    for (const json_part& row : PARTS_IN_FILE) {
        const std::string name(row.name);
        work_out(row.part, source, exact);
        if (exact.has(row.part)) {
            object[name] = row.make(source, exact, language);
        } else {
            object["left_out"][name] = missing_reason(row.part, exact, language);
        }
    }
    return object;
}

}  // namespace kvt
