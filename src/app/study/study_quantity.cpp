#include "app/study/study_quantity.hpp"

#include "app/program.hpp"
#include "app/stages/near_names.hpp"
#include "app/study/study_problem.hpp"
#include "base/number_text.hpp"
#include "core/entry_numbers.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <set>
#include <utility>

namespace kvt {

namespace {

using value_function =
    std::function<std::optional<double>(const finished_design&, const result_point&)>;

constexpr double DEGREES_PER_RADIAN = 180.0 / std::numbers::pi;
constexpr double MM_PER_METRE = 1000.0;

// A run that broke off in a stage leaves its numbers half done.

bool has_rotors(const finished_design& design) {
    return design.result.end == batch_end::ok;
}
bool has_ports(const finished_design& design) {
    return has_rotors(design) && design.result.ports_reached;
}
bool has_performance(const finished_design& design) {
    return has_rotors(design) && design.result.performance_reached;
}

// The numbers behind the result labels.

std::optional<double> capacity_of(const finished_design& design, const result_point&) {
    if (!has_rotors(design)) {
        return std::nullopt;
    }
    return val(design.kavetta.labels.capacity);
}

value_function of_rotors(double rotor_profiles::*member) {
    return [member](const finished_design& design, const result_point&) {
        return has_rotors(design) ? std::optional(design.kavetta.rotor_profiles.*member)
                                  : std::nullopt;
    };
}

/// The least diameter that the outer rotor needs, 2 (outer_root + minmaterial), mm.
std::optional<double> outer_diameter(const finished_design& design, const result_point&) {
    if (!has_rotors(design)) {
        return std::nullopt;
    }
    const design_params& params = design.kavetta.design_params;
    return 2.0 * (params.outer_root + params.minmaterial);
}

std::string unit_of_number(const used_result& number) {
    return std::string(number.use->metric.unit.empty() ? number.quantity->unit
                                                       : number.use->metric.unit);
}

value_function of_number(const used_result& number) {
    return [number](const finished_design& design, const result_point&) -> std::optional<double> {
        if (!has_performance(design)) {
            return std::nullopt;
        }
        return shown_value(value_of(*number.quantity, design.kavetta.perf_results), *number.use,
                           unit_system::metric);
    };
}

struct rotor_row {
    const char* name;
    const char* unit;
    double rotor_profiles::*member;
};
/// The first three under the names of their labels.
constexpr std::array ROTOR_ROWS = {
    rotor_row{"area_ratio", "%", &rotor_profiles::area_ratio},
    rotor_row{"max_chamb_vol", "mm3", &rotor_profiles::max_chamber_volume},
    rotor_row{"min_chamb_vol", "mm3", &rotor_profiles::min_chamber_volume},
    rotor_row{"capacity_cc", "cm3/rev", &rotor_profiles::capacity_cc},
    rotor_row{"base_radius", "mm", &rotor_profiles::base_radius},
    rotor_row{"roll_radius", "mm", &rotor_profiles::roll_radius},
    rotor_row{"trochoid_r", "mm", &rotor_profiles::trochoid_r},
    rotor_row{"trochoid_ratio", "", &rotor_profiles::trochoid_ratio},
    rotor_row{"lobe_centre_offset", "mm", &rotor_profiles::lobe_centre_offset},
    rotor_row{"inner_area", "mm2", &rotor_profiles::inner_area},
    rotor_row{"outer_area", "mm2", &rotor_profiles::outer_area},
    rotor_row{"max_chamber_area", "mm2", &rotor_profiles::max_chamber_area},
    rotor_row{"min_chamber_area", "mm2", &rotor_profiles::min_chamber_area},
    rotor_row{"max_chamber_inner_angle", "deg", &rotor_profiles::max_chamber_inner_angle},
    rotor_row{"max_chamber_outer_angle", "deg", &rotor_profiles::max_chamber_outer_angle},
    rotor_row{"min_chamber_inner_angle", "deg", &rotor_profiles::min_chamber_inner_angle},
    rotor_row{"min_chamber_outer_angle", "deg", &rotor_profiles::min_chamber_outer_angle},
};

// The results of the performance.

quantity_spread spread_of(const result_source& source) {
    if (std::holds_alternative<speed_list>(source)) {
        return quantity_spread::speeds;
    }
    if (std::holds_alternative<pressure_list>(source)) {
        return quantity_spread::pressures;
    }
    return std::holds_alternative<result_grid>(source) ||
                   std::holds_alternative<worked_out_grid>(source)
               ? quantity_spread::speeds_and_pressures
               : quantity_spread::nothing;
}

bool is_over_angles(const result_source& source) {
    return std::holds_alternative<angle_array>(source) ||
           std::holds_alternative<speed_angles>(source) ||
           std::holds_alternative<grid_angles>(source);
}

value_function of_result(const result_quantity& quantity) {
    return [&quantity](const finished_design& design,
                       const result_point& at) -> std::optional<double> {
        if (!has_performance(design)) {
            return std::nullopt;
        }
        return value_at(quantity, design.kavetta.perf_results, at);
    };
}

/// The least and the largest number of what a result is spread over.
struct extremes {
    double least = HUGE_VAL, largest = -HUGE_VAL;

    void take(double value) {
        least = std::min(least, value);
        largest = std::max(largest, value);
    }
    void take(const perf_list& list) {
        for (const double value : list) {
            take(value);
        }
    }
    void take(const perf_grid& grid) {
        for (const perf_list& row : grid) {
            take(row);
        }
    }
    void take_angles(const perf_array& array, std::size_t first, std::size_t count) {
        for (std::size_t i = first; i < count; ++i) {
            take(array[i]);
        }
    }
};

/// Contact results begin at 1 degree.
constexpr std::size_t FIRST_CONTACT = 1;
constexpr std::size_t CONTACT_END = CONTACT_ANGLE_LAST + 1;

struct extremes_of_source {
    const perf_results& results;
    extremes& found;

    void operator()(result_value field) const { found.take(results.*field); }
    void operator()(worked_out_value work_out) const { found.take(work_out(results)); }
    void operator()(speed_list list) const { found.take(results.*list.member); }
    void operator()(pressure_list list) const { found.take(results.*list.member); }
    void operator()(result_grid grid) const { found.take(results.*grid); }
    void operator()(worked_out_grid work_out) const { found.take(work_out(results)); }
    void operator()(const angle_array& array) const {
        const bool is_of_steps = array.used_count > ANGLE_ARRAY_LAST + 1;
        found.take_angles(results.*array.member, is_of_steps ? 0 : FIRST_CONTACT, array.used_count);
    }
    void operator()(speed_angles angles) const {
        for (const perf_array& array : results.*angles) {
            found.take_angles(array, FIRST_CONTACT, ANGLE_ARRAY_LAST + 1);
        }
    }
    void operator()(grid_angles angles) const {
        for (const auto& speed : results.*angles) {
            for (const perf_array& array : speed) {
                found.take_angles(array, FIRST_CONTACT, CONTACT_END);
            }
        }
    }
};

value_function of_extreme(const result_quantity& quantity, double extremes::*which) {
    return [&quantity, which](const finished_design& design,
                              const result_point&) -> std::optional<double> {
        if (!has_performance(design)) {
            return std::nullopt;
        }
        extremes found;
        std::visit(extremes_of_source{design.kavetta.perf_results, found}, quantity.source);
        return found.*which;
    };
}

// The exact figures.

using exact_value = double (*)(const finished_design& design, const result_point& at);

/// At the highest speed.
double at_top_speed(const port_speed& speed, const finished_design& design) {
    return speed.speed * design.kavetta.perf_inputs.speed_hi * std::numbers::pi / 30.0 /
           MM_PER_METRE;
}

struct exact_figure {
    const char* name;
    const char* unit;
    exact_part part;
    quantity_spread spread;
    exact_value value;
};

#define KVT_EXACT(name, unit, part, spread, figure)                               \
    exact_figure {                                                                \
        "exact_" #name, unit, exact_part::part, quantity_spread::spread,          \
            [](const finished_design& design, const result_point& at) -> double { \
                const exact_results& exact = design.exact;                        \
                static_cast<void>(at);                                            \
                return figure;                                                    \
            }                                                                     \
    }

constexpr std::array EXACT_FIGURES = {
    KVT_EXACT(swept_cc, "cm3/rev", rotors, nothing, exact.rotors.swept_cc),
    KVT_EXACT(largest_chamber, "mm3", rotors, nothing, exact.rotors.chamber.largest),
    KVT_EXACT(least_chamber, "mm3", rotors, nothing, exact.rotors.chamber.least),
    KVT_EXACT(dead_volume, "mm3", rotors, nothing, exact.rotors.chamber.dead),
    KVT_EXACT(irregularity, "", rotors, nothing, exact.rotors.flow.irregularity),
    KVT_EXACT(pulses, "", rotors, nothing, exact.rotors.flow.pulses),
    KVT_EXACT(max_cutter_inner, "mm", rotors, nothing, exact.rotors.cutter),
    KVT_EXACT(least_gap, "mm", gap, nothing, exact.gap.least),
    KVT_EXACT(least_gap_at, "deg", gap, nothing, exact.gap.least_at* DEGREES_PER_RADIAN),
    KVT_EXACT(trapped_change, "mm3", timing, nothing, exact.timing.trapped_change),
    KVT_EXACT(inlet_speed, "m/s", timing, nothing, at_top_speed(exact.timing.inlet_speed, design)),
    KVT_EXACT(outlet_speed, "m/s", timing, nothing,
              at_top_speed(exact.timing.outlet_speed, design)),
    KVT_EXACT(inlet_chamber_speed, "m/s", timing, nothing,
              at_top_speed(exact.timing.inlet_chamber_speed, design)),
    KVT_EXACT(outlet_chamber_speed, "m/s", timing, nothing,
              at_top_speed(exact.timing.outlet_chamber_speed, design)),
    KVT_EXACT(max_speed_rpm, "rpm", performance, nothing, exact.performance.max_speed_rpm),
    KVT_EXACT(contact_pressure, "MPa", performance, pressures,
              exact.performance.contact[at.pressure].pressure),
    KVT_EXACT(flow_m3s, "m3/s", performance, speeds_and_pressures,
              exact.performance.flow.flow_m3s[at.speed][at.pressure]),
    KVT_EXACT(vol_eff, "", performance, speeds_and_pressures,
              exact.performance.flow.vol_eff[at.speed][at.pressure]),
};

#undef KVT_EXACT

value_function of_exact(const exact_figure& figure) {
    return [part = figure.part, value = figure.value](
               const finished_design& design, const result_point& at) -> std::optional<double> {
        return design.exact.has(part) ? std::optional(value(design, at)) : std::nullopt;
    };
}

// Ports and entries.

/// All but the angles are lengths.
std::string unit_of_port_value(std::string_view name) {
    return name.ends_with("_deg") ? "deg" : name.starts_with("side_angle") ? "rad" : "mm";
}

value_function of_port(std::size_t index) {
    return [index](const finished_design& design, const result_point&) -> std::optional<double> {
        if (!has_ports(design)) {
            return std::nullopt;
        }
        return *port_values(design.kavetta.port_params)[index].held;
    };
}

value_function of_entry(std::string entries::*member) {
    return [member](const finished_design& design, const result_point&) -> std::optional<double> {
        const std::string& text = design.kavetta.entries.*member;
        if (text.empty()) {
            return std::nullopt;
        }
        return val(commas_to_points(text));
    };
}

/// Adds quantities whose names are not taken yet.
class quantity_list {
  public:
    void add(study_quantity quantity) {
        if (names_.insert(quantity.name).second) {
            quantities_.push_back(std::move(quantity));
        }
    }
    void add(std::string name, std::string unit, value_function value) {
        add({std::move(name), std::move(unit), quantity_spread::nothing, {}, std::move(value)});
    }
    std::vector<study_quantity> all() && { return std::move(quantities_); }

  private:
    std::vector<study_quantity> quantities_;
    std::set<std::string> names_;
};

void add_numbers(const program& base, quantity_list& list) {
    list.add("capacity", base.labels.units_label, capacity_of);
    for (const used_result& number : results_at(result_place::numbers)) {
        list.add(std::string(number.use->name), unit_of_number(number), of_number(number));
    }
    list.add("ripple", "%", of_number(*result_named(result_place::numbers, "ripple_percent")));
    list.add("outer_diameter", "mm", outer_diameter);
    for (const rotor_row& row : ROTOR_ROWS) {
        list.add(row.name, row.unit, of_rotors(row.member));
    }
}

void add_results(quantity_list& list) {
    for (const result_quantity& result : result_quantities()) {
        if (!is_over_angles(result.source)) {
            list.add({std::string(result.name),
                      std::string(result.unit),
                      spread_of(result.source),
                      {},
                      of_result(result)});
        }
    }
    for (const result_quantity& result : result_quantities()) {
        const bool is_number =
            !is_over_angles(result.source) && spread_of(result.source) == quantity_spread::nothing;
        if (!is_number) {
            const std::string name(result.name);
            const std::string unit(result.unit);
            list.add(name + "_max", unit, of_extreme(result, &extremes::largest));
            list.add(name + "_min", unit, of_extreme(result, &extremes::least));
        }
    }
}

void add_ports(const program& base, quantity_list& list) {
    const auto values = port_values(base.port_params);
    for (std::size_t i = 0; i < values.size(); ++i) {
        list.add(values[i].name, unit_of_port_value(values[i].name), of_port(i));
    }
}

void add_exact(quantity_list& list) {
    for (const exact_figure& figure : EXACT_FIGURES) {
        list.add({figure.name, figure.unit, figure.spread, figure.part, of_exact(figure)});
    }
}

bool is_of_stages(const entry_field& entry) {
    return entry.form == "Form1" || entry.form == "portdes" || entry.form == "Perffrm";
}

void add_entries(const program& base, quantity_list& list) {
    for (const entry_field& entry : entry_fields()) {
        if (entry.kind == entry_kind::text && is_of_stages(entry)) {
            list.add(std::string(entry.name), entry_unit(entry, base.captions, base.app_state),
                     of_entry(entry.member));
        }
    }
}

// Names with indexes.

[[noreturn]] void tell_unknown(const std::vector<study_quantity>& quantities,
                               const std::string& name) {
    std::vector<std::string_view> names;
    names.reserve(quantities.size());
    for (const study_quantity& quantity : quantities) {
        names.push_back(quantity.name);
    }
    std::string near;
    for (const std::string_view similar : near_names(name, names)) {
        near += (near.empty() ? "" : ", ") + std::string(similar);
    }
    if (near.empty()) {
        throw study_problem("no_quantity", {name});
    }
    throw study_problem("near_quantities", {name, near});
}

/// "[0][5]" as {0, 5}. Nothing for anything else.
std::optional<std::vector<std::size_t>> indexes_of(std::string_view text) {
    constexpr std::size_t LENGTH = 3;
    std::vector<std::size_t> indexes;
    for (; !text.empty(); text.remove_prefix(LENGTH)) {
        const bool is_index = text.size() >= LENGTH && text[0] == '[' && text[2] == ']' &&
                              text[1] >= '0' && text[1] < '0' + static_cast<char>(GRID_SIZE);
        if (!is_index) {
            return std::nullopt;
        }
        indexes.push_back(static_cast<std::size_t>(text[1] - '0'));
    }
    return indexes;
}

std::optional<result_point> point_of(quantity_spread spread,
                                     const std::vector<std::size_t>& indexes) {
    switch (spread) {
        case quantity_spread::nothing:
            return indexes.empty() ? std::optional(result_point{}) : std::nullopt;
        case quantity_spread::speeds:
            return indexes.size() == 1 ? std::optional(result_point{.speed = indexes[0]})
                                       : std::nullopt;
        case quantity_spread::pressures:
            return indexes.size() == 1 ? std::optional(result_point{.pressure = indexes[0]})
                                       : std::nullopt;
        case quantity_spread::speeds_and_pressures:
            break;
    }
    return indexes.size() == 2
               ? std::optional(result_point{.speed = indexes[0], .pressure = indexes[1]})
               : std::nullopt;
}

}  // namespace

std::string index_form(quantity_spread spread) {
    switch (spread) {
        case quantity_spread::speeds:
            return "[SPEED]";
        case quantity_spread::pressures:
            return "[PRESSURE]";
        case quantity_spread::speeds_and_pressures:
            return "[SPEED][PRESSURE]";
        case quantity_spread::nothing:
            break;
    }
    return "";
}

std::vector<study_quantity> study_quantities(const program& base) {
    quantity_list list;
    add_numbers(base, list);
    add_results(list);
    add_ports(base, list);
    add_exact(list);
    add_entries(base, list);
    return std::move(list).all();
}

std::optional<double> chosen_quantity::value_of(const finished_design& design) const {
    const std::optional<double> value = quantity.value(design, at);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::string chosen_quantity::heading() const {
    return quantity.unit.empty() ? name : name + " [" + quantity.unit + "]";
}

chosen_quantity chosen_quantity_of(const std::vector<study_quantity>& quantities,
                                   std::string_view text) {
    const std::string name(text.substr(0, text.find('[')));
    const auto found = std::ranges::find(quantities, name, &study_quantity::name);
    if (found == quantities.end()) {
        tell_unknown(quantities, name);
    }
    const auto indexes = indexes_of(text.substr(name.size()));
    const auto at = indexes ? point_of(found->spread, *indexes) : std::nullopt;
    if (!at) {
        throw study_problem("no_indexes", {std::string(text), name + index_form(found->spread)});
    }
    return {std::string(text), *found, *at};
}

}  // namespace kvt
