#include "kvt/json_report.hpp"

#include "app/files/port_report_file.hpp"
#include "app/program.hpp"
#include "base/number_text.hpp"
#include "kvt/json_charts.hpp"
#include "kvt/json_exact.hpp"
#include "kvt/json_fields.hpp"
#include "kvt/json_performance.hpp"
#include "kvt/json_view.hpp"
#include "performance/result_quantities.hpp"

#include <algorithm>
#include <string_view>
#include <utility>

namespace kvt {

namespace {

constexpr std::array DESIGN_FIELDS = {
    KVT_JSON_FIELD(design_params, numlobes),      KVT_JSON_FIELD(design_params, ecc),
    KVT_JSON_FIELD(design_params, radouter),      KVT_JSON_FIELD(design_params, radinnroot),
    KVT_JSON_FIELD(design_params, clearn_half),   KVT_JSON_FIELD(design_params, thick),
    KVT_JSON_FIELD(design_params, shaftdiameter), KVT_JSON_FIELD(design_params, minmaterial),
    KVT_JSON_FIELD(design_params, maxdiameter),   KVT_JSON_FIELD(design_params, axial_clear),
    KVT_JSON_FIELD(design_params, radial_clear),  KVT_JSON_FIELD(design_params, fillet),
    KVT_JSON_FIELD(design_params, outer_root),    KVT_JSON_FIELD(design_params, coarseness),
};

constexpr std::array ROTOR_FIELDS = {
    KVT_JSON_FIELD(rotor_profiles, profile_points),
    KVT_JSON_FIELD(rotor_profiles, base_radius),
    KVT_JSON_FIELD(rotor_profiles, roll_radius),
    KVT_JSON_FIELD(rotor_profiles, trochoid_r),
    KVT_JSON_FIELD(rotor_profiles, trochoid_ratio),
    KVT_JSON_FIELD(rotor_profiles, lobe_centre_offset),
    KVT_JSON_FIELD(rotor_profiles, inner_plot_len),
    KVT_JSON_FIELD(rotor_profiles, outer_xy_size),
    KVT_JSON_FIELD(rotor_profiles, outer_xy_last),
    KVT_JSON_FIELD(rotor_profiles, outer_last),
    KVT_JSON_FIELD(rotor_profiles, capacity),
    KVT_JSON_FIELD(rotor_profiles, capacity_cc),
    KVT_JSON_FIELD(rotor_profiles, max_chamber_inner_angle),
    KVT_JSON_FIELD(rotor_profiles, max_chamber_outer_angle),
    KVT_JSON_FIELD(rotor_profiles, min_chamber_inner_angle),
    KVT_JSON_FIELD(rotor_profiles, min_chamber_outer_angle),
};

/// Number of used elements when the last index is kept beside the array; 0 as long as nothing was
/// stored.
std::size_t count_of_last(std::int16_t last) {
    return last > 0 ? static_cast<std::size_t>(last) + 1 : 0;
}

std::size_t points(const rotor_profiles& rotors) {
    return static_cast<std::size_t>(rotors.profile_points);
}
std::size_t points_closed(const rotor_profiles& rotors) {
    return points(rotors) + 1;
}
std::size_t outer_xy_count(const rotor_profiles& rotors) {
    return count_of_last(rotors.outer_xy_last);
}
std::size_t outer_count(const rotor_profiles& rotors) {
    return count_of_last(rotors.outer_last);
}

constexpr std::array ROTOR_ARRAYS = {
    KVT_JSON_ARRAY(rotor_profiles, troch_x, points_closed),
    KVT_JSON_ARRAY(rotor_profiles, troch_y, points_closed),
    KVT_JSON_ARRAY(rotor_profiles, troch_angle, points),
    KVT_JSON_ARRAY(rotor_profiles, troch_slope, points),
    KVT_JSON_ARRAY(rotor_profiles, troch_xy, whole_array),
    KVT_JSON_ARRAY(rotor_profiles, inner_x, points),
    KVT_JSON_ARRAY(rotor_profiles, inner_y, points),
    KVT_JSON_ARRAY(rotor_profiles, inner_plot_xy, whole_array),
    KVT_JSON_ARRAY(rotor_profiles, outer_xy, outer_xy_count),
    KVT_JSON_ARRAY(rotor_profiles, outer_x, outer_count),
    KVT_JSON_ARRAY(rotor_profiles, outer_y, outer_count),
    KVT_JSON_ARRAY(rotor_profiles, fillet_x, whole_array),
    KVT_JSON_ARRAY(rotor_profiles, fillet_y, whole_array),
    KVT_JSON_ARRAY(rotor_profiles, fillet_r, whole_array),
};

bool is_input_form(std::string_view form) {
    return form == "Form1" || form == "portdes" || form == "Perffrm";
}

json json_entries(const entries& boxes) {
    json object = json::object();
    for (const entry_field& field : entry_fields()) {
        if (is_input_form(field.form)) {
            object[std::string(field.name)] = boxes.*field.member;
        }
    }
    return object;
}

json json_labels(const program& kavetta) {
    json object = json::object();
    for (const label_field& field : label_fields()) {
        const std::string& text = kavetta.labels.*field.member;
        // The result form has no labels before Calculate Performance has filled them.
        if (field.form != "perf_res" || !text.empty()) {
            object[std::string(field.name)] = text;
        }
    }
    object["rotated_angle"] = kavetta.entries.rotated_angle;
    return object;
}

using rotor_number = double rotor_profiles::*;

/// The numbers of the result labels of the Design form, under the names of the labels.
constexpr std::array ROTOR_NUMBERS = {
    std::pair<std::string_view, rotor_number>{"area_ratio", &rotor_profiles::area_ratio},
    std::pair<std::string_view, rotor_number>{"max_chamb_vol", &rotor_profiles::max_chamber_volume},
    std::pair<std::string_view, rotor_number>{"min_chamb_vol", &rotor_profiles::min_chamber_volume},
};

const std::string& label_text(const program& kavetta, std::string_view name) {
    return kavetta.labels.*find_named(label_fields(), name)->member;
}

/// The number behind every text of a result that stands: in the units of the records, the capacity
/// in the unit that its label has.
json json_numbers(const program& kavetta) {
    json object = json::object();
    object["capacity"] = val(kavetta.labels.capacity);
    for (const auto& [name, member] : ROTOR_NUMBERS) {
        if (!label_text(kavetta, name).empty()) {
            object[std::string(name)] = kavetta.rotor_profiles.*member;
        }
    }
    for (const used_result& result : results_at(result_place::numbers)) {
        const auto shown = result_at(result_place::perf_res, result.quantity->name);
        if (!label_text(kavetta, shown->use->name).empty()) {
            const double value = value_of(*result.quantity, kavetta.perf_results);
            object[std::string(result.use->name)] =
                shown_value(value, *result.use, unit_system::metric);
        }
    }
    return object;
}

json json_hints(const std::vector<hint>& hints) {
    json texts = json::array();
    for (const hint& row : hints) {
        texts.push_back(row.text);
    }
    return texts;
}

json json_rotors(const rotor_profiles& rotors, bool full) {
    json object = json_of_fields(rotors, std::span(ROTOR_FIELDS));
    if (full) {
        add_arrays(object, rotors, std::span(ROTOR_ARRAYS));
    }
    return object;
}

/// An outline is cut behind its last point; before it was ever built it is empty.
json json_ports(const port_params& ports, bool full) {
    json object = json::object();
    for (const auto& [name, value] : port_values(ports)) {
        object[name] = *value;
    }
    for (const auto& [name, index] : port_indexes(ports)) {
        object[name] = *index;
    }
    if (full) {
        for (const auto& [name, values, last] : port_arrays(ports)) {
            object[name] = used_part(*values, count_of_last(last));
        }
    }
    return object;
}

}  // namespace

std::string json_report(const program& kavetta, const std::vector<std::string>& messages,
                        const batch_result& result, bool full, bool exact) {
    json report = json::object();
    report["ended"] = batch_end_name(result.end);
    report["messages"] = messages;
    report["hints"] = json_hints(kavetta.hints);
    report["entries"] = json_entries(kavetta.entries);
    report["labels"] = json_labels(kavetta);
    report["numbers"] = json_numbers(kavetta);
    if (result.profiles_reached) {
        report["design_params"] = json_of_fields(kavetta.design_params, std::span(DESIGN_FIELDS));
        report["rotor_profiles"] = json_rotors(kavetta.rotor_profiles, full);
        if (full) {
            report["view"] = json_view(kavetta.design_view);
        }
    }
    if (result.ports_reached) {
        report["port_params"] = json_ports(kavetta.port_params, full);
        report["report_lines"] = port_report(kavetta);
    }
    if (result.performance_reached) {
        report["perf_results"] = json_performance(kavetta.perf_results, full);
        if (full) {
            report["charts"] = json_charts(kavetta.perf_results, kavetta.app_state.language,
                                           length_unit_of(kavetta.app_state).system);
        }
    }
    if (exact) {
        report["exact"] = json_exact(kavetta, result);
    }
    return json_text(report, full);
}

}  // namespace kvt
