#include "app/results/result_sections.hpp"

#include "app/program.hpp"
#include "app/stages/batch_run.hpp"
#include "base/number_text.hpp"
#include "performance/result_quantities.hpp"

#include <algorithm>
#include <array>
#include <utility>

namespace kvt {

namespace {

constexpr std::array SECTIONS = {
    result_section_row{result_section::entries, "entries", nullptr},
    result_section_row{result_section::labels, "labels", nullptr},
    result_section_row{result_section::numbers, "numbers", nullptr},
    result_section_row{result_section::design_params, "design_params",
                       &batch_result::profiles_reached},
    result_section_row{result_section::rotor_profiles, "rotor_profiles",
                       &batch_result::profiles_reached},
    result_section_row{result_section::port_params, "port_params", &batch_result::ports_reached},
    result_section_row{result_section::perf_results, "perf_results",
                       &batch_result::performance_reached},
};

constexpr std::array DESIGN_ROWS = {
    KVT_VALUE(design_params, numlobes),      KVT_VALUE(design_params, ecc),
    KVT_VALUE(design_params, radouter),      KVT_VALUE(design_params, radinnroot),
    KVT_VALUE(design_params, clearn_half),   KVT_VALUE(design_params, thick),
    KVT_VALUE(design_params, shaftdiameter), KVT_VALUE(design_params, minmaterial),
    KVT_VALUE(design_params, maxdiameter),   KVT_VALUE(design_params, axial_clear),
    KVT_VALUE(design_params, radial_clear),  KVT_VALUE(design_params, fillet),
    KVT_VALUE(design_params, outer_root),    KVT_VALUE(design_params, coarseness),
};

constexpr std::array ROTOR_ROWS = {
    KVT_VALUE(rotor_profiles, profile_points),
    KVT_VALUE(rotor_profiles, base_radius),
    KVT_VALUE(rotor_profiles, roll_radius),
    KVT_VALUE(rotor_profiles, trochoid_r),
    KVT_VALUE(rotor_profiles, trochoid_ratio),
    KVT_VALUE(rotor_profiles, lobe_centre_offset),
    KVT_VALUE(rotor_profiles, inner_plot_len),
    KVT_VALUE(rotor_profiles, outer_xy_size),
    KVT_VALUE(rotor_profiles, outer_xy_last),
    KVT_VALUE(rotor_profiles, outer_last),
    KVT_VALUE(rotor_profiles, capacity),
    KVT_VALUE(rotor_profiles, capacity_cc),
    KVT_VALUE(rotor_profiles, max_chamber_inner_angle),
    KVT_VALUE(rotor_profiles, max_chamber_outer_angle),
    KVT_VALUE(rotor_profiles, min_chamber_inner_angle),
    KVT_VALUE(rotor_profiles, min_chamber_outer_angle),
};

/// An array of the profiles with the number of its elements that are in use.
struct rotor_array {
    std::string_view name;
    zeroed_array rotor_profiles::*member;
    std::size_t (*used_count)(const rotor_profiles&);
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
/// For a growable array: all of its elements are in use.
std::size_t whole_array(const rotor_profiles&) {
    return static_cast<std::size_t>(-1);
}

constexpr std::array ROTOR_ARRAYS = {
    rotor_array{"troch_x", &rotor_profiles::troch_x, points_closed},
    rotor_array{"troch_y", &rotor_profiles::troch_y, points_closed},
    rotor_array{"troch_angle", &rotor_profiles::troch_angle, points},
    rotor_array{"troch_slope", &rotor_profiles::troch_slope, points},
    rotor_array{"troch_xy", &rotor_profiles::troch_xy, whole_array},
    rotor_array{"inner_x", &rotor_profiles::inner_x, points},
    rotor_array{"inner_y", &rotor_profiles::inner_y, points},
    rotor_array{"inner_plot_xy", &rotor_profiles::inner_plot_xy, whole_array},
    rotor_array{"outer_xy", &rotor_profiles::outer_xy, outer_xy_count},
    rotor_array{"outer_x", &rotor_profiles::outer_x, outer_count},
    rotor_array{"outer_y", &rotor_profiles::outer_y, outer_count},
    rotor_array{"fillet_x", &rotor_profiles::fillet_x, whole_array},
    rotor_array{"fillet_y", &rotor_profiles::fillet_y, whole_array},
    rotor_array{"fillet_r", &rotor_profiles::fillet_r, whole_array},
};

/// The first elements of an array, as many as are in use.
named_value array_value(std::string_view name, const zeroed_array& numbers, std::size_t used) {
    const std::span<const double> all(numbers.begin(), numbers.end());
    return {std::string(name), content_of(all.first(std::min(all.size(), used))), true};
}

bool is_input_form(std::string_view form) {
    return form == "Form1" || form == "portdes" || form == "Perffrm";
}

named_values entry_values(const entries& boxes) {
    named_values values;
    for (const entry_field& field : entry_fields()) {
        if (is_input_form(field.form)) {
            values.push_back({std::string(field.name), boxes.*field.member});
        }
    }
    return values;
}

named_values label_values(const program& kavetta) {
    named_values values;
    for (const label_field& field : label_fields()) {
        const std::string& text = kavetta.labels.*field.member;
        // The result form has no labels before Calculate Performance has filled them.
        if (field.form != "perf_res" || !text.empty()) {
            values.push_back({std::string(field.name), text});
        }
    }
    values.push_back({"rotated_angle", kavetta.entries.rotated_angle});
    return values;
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
named_values number_values(const program& kavetta) {
    named_values values = {{"capacity", val(kavetta.labels.capacity)}};
    for (const auto& [name, member] : ROTOR_NUMBERS) {
        if (!label_text(kavetta, name).empty()) {
            values.push_back({std::string(name), kavetta.rotor_profiles.*member});
        }
    }
    for (const used_result& result : results_at(result_place::numbers)) {
        const auto shown = result_at(result_place::perf_res, result.quantity->name);
        if (!label_text(kavetta, shown->use->name).empty()) {
            const double value = value_of(*result.quantity, kavetta.perf_results);
            values.push_back({std::string(result.use->name),
                              shown_value(value, *result.use, unit_system::metric)});
        }
    }
    return values;
}

named_values rotor_values(const rotor_profiles& rotors) {
    named_values values = values_of_rows(rotors, std::span(ROTOR_ROWS));
    for (const auto& [name, member, used_count] : ROTOR_ARRAYS) {
        values.push_back(array_value(name, rotors.*member, used_count(rotors)));
    }
    return values;
}

/// An outline is cut behind its last point; before it was ever built it is empty.
named_values values_of_ports(const port_params& ports) {
    named_values values;
    for (const auto& [name, value] : port_values(ports)) {
        values.push_back({name, *value});
    }
    for (const auto& [name, index] : port_indexes(ports)) {
        values.push_back({name, content_of(*index)});
    }
    for (const auto& [name, numbers, last] : port_arrays(ports)) {
        values.push_back(array_value(name, *numbers, count_of_last(last)));
    }
    return values;
}

}  // namespace

std::span<const result_section_row> result_sections() {
    return SECTIONS;
}

bool is_reached(const result_section_row& row, const batch_result& result) {
    return row.reached == nullptr || result.*row.reached;
}

named_values values_of(result_section section, const program& kavetta) {
    switch (section) {
        case result_section::entries:
            return entry_values(kavetta.entries);
        case result_section::labels:
            return label_values(kavetta);
        case result_section::numbers:
            return number_values(kavetta);
        case result_section::design_params:
            return values_of_rows(kavetta.design_params, std::span(DESIGN_ROWS));
        case result_section::rotor_profiles:
            return rotor_values(kavetta.rotor_profiles);
        case result_section::port_params:
            return values_of_ports(kavetta.port_params);
        case result_section::perf_results:
            break;
    }
    return performance_values(kavetta.perf_results);
}

}  // namespace kvt
