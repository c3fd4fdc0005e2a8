#include "views/sheet/sheet_rows.hpp"

#include "base/number_text.hpp"
#include "performance/maximum_speed.hpp"
#include "performance/result_quantities.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace kvt {

namespace {

enum class entry_unit { none, length, degrees };

/// An entry under the caption of its label. The prefix stands before it on the drawing only.
struct entry_row {
    std::string_view form, label;
    std::string entries::*box;
    entry_unit unit = entry_unit::none;
    std::string_view prefix = {};
};

constexpr std::string_view DIAMETER = "Ø ";
constexpr std::string_view RADIUS = "R ";
constexpr auto LENGTH = entry_unit::length;
constexpr auto DEGREES = entry_unit::degrees;

constexpr std::array ROTOR_ENTRIES = {
    entry_row{"Form1", "Label7", &entries::numlobes},
    entry_row{"Form1", "Label3", &entries::ecc, LENGTH},
    entry_row{"Form1", "Label10", &entries::radinnroot, LENGTH, RADIUS},
    entry_row{"Form1", "Label5", &entries::radouter, LENGTH, RADIUS},
    entry_row{"Form1", "Label6", &entries::fillet, LENGTH, RADIUS},
    entry_row{"Form1", "Label20", &entries::outer_root, LENGTH, RADIUS},
    entry_row{"Form1", "Label9", &entries::maxdiameter, LENGTH, DIAMETER},
    entry_row{"Form1", "Label2", &entries::shaftdiameter, LENGTH, DIAMETER},
    entry_row{"Form1", "Label8", &entries::thick, LENGTH},
    entry_row{"Form1", "Label12", &entries::minmaterial, LENGTH},
    entry_row{"Form1", "Label4", &entries::clearn, LENGTH},
    entry_row{"Form1", "Label15", &entries::axial_clear, LENGTH},
    entry_row{"Form1", "Label21", &entries::radial_clear, LENGTH},
};

/// An entry of both ports.
struct port_entry_row {
    entry_row inlet, outlet;
};

constexpr std::string_view PORTS = "portdes";

constexpr std::array PORT_ENTRIES = {
    port_entry_row{{PORTS, "Label2", &entries::inlet_start_inner, DEGREES},
                   {PORTS, "Label9", &entries::outlet_start_inner, DEGREES}},
    port_entry_row{{PORTS, "Label3", &entries::inlet_start_outer, DEGREES},
                   {PORTS, "Label8", &entries::outlet_start_outer, DEGREES}},
    port_entry_row{{PORTS, "Label4", &entries::inlet_end_inner, DEGREES},
                   {PORTS, "Label7", &entries::outlet_end_inner, DEGREES}},
    port_entry_row{{PORTS, "Label5", &entries::inlet_end_outer, DEGREES},
                   {PORTS, "Label6", &entries::outlet_end_outer, DEGREES}},
    port_entry_row{{PORTS, "Label13", &entries::inlet_inner_radius, LENGTH, RADIUS},
                   {PORTS, "Label15", &entries::Outlet_inner_radius, LENGTH, RADIUS}},
    port_entry_row{{PORTS, "Label14", &entries::inlet_outer_radius, LENGTH, RADIUS},
                   {PORTS, "Label16", &entries::Outlet_outer_radius, LENGTH, RADIUS}},
};

constexpr entry_row PORT_RADIUS = {PORTS, "Label1", &entries::port_radii, LENGTH, RADIUS};

/// Their captions hold the unit.
constexpr std::array GROOVE_ENTRIES = {
    entry_row{PORTS, "Label10", &entries::groove_length},
    entry_row{PORTS, "Label11", &entries::groove_width},
    entry_row{PORTS, "Label12", &entries::groove_depth},
};

/// One value, or two that stand in one line.
struct performance_row {
    std::string_view label;
    std::string entries::*box;
    std::string entries::*second = nullptr;
    std::string_view between = {};
    std::string_view behind = {};  ///< the unit that no caption holds
};

constexpr std::string_view INNER_AND_OUTER = " / ";
constexpr std::string_view FROM_TO = " – ";
constexpr std::string_view PERCENT = " %";

/// Their captions hold the unit.
constexpr std::array PERFORMANCE_ENTRIES = {
    performance_row{"Label3", &entries::fluid_density},
    performance_row{"Label1", &entries::kin_visc},
    performance_row{"Label2", &entries::vap_press},
    performance_row{"Label4", &entries::bulk_mod_text},
    performance_row{"Label10", &entries::young_inner, &entries::young_outer, INNER_AND_OUTER},
    performance_row{"Label11", &entries::poissons_inner, &entries::poissons_outer, INNER_AND_OUTER},
    performance_row{"Label14", &entries::friction},
    performance_row{"Face_area_label", &entries::Face_area_value, nullptr, {}, PERCENT},
    performance_row{"OD_area_label", &entries::OD_area_value, nullptr, {}, PERCENT},
    performance_row{"Label6", &entries::speed_lo, &entries::speed_hi, FROM_TO},
    performance_row{"Label7", &entries::pressure_lo, &entries::pressure_hi, FROM_TO},
};

std::string caption(std::string_view form, std::string_view name, const sheet_source& source) {
    return std::string(form_text(form, name, source.language, source.unit.system));
}

std::string unit_text(entry_unit unit, const sheet_source& source) {
    switch (unit) {
        case entry_unit::length:
            return " " + std::string(message_text(source.unit.short_name, source.language));
        case entry_unit::degrees:
            return "°";
        case entry_unit::none:
            break;
    }
    return "";
}

/// Nothing for an empty box.
std::string value_of(const entry_row& row, const entries& boxes, const sheet_source& source) {
    const std::string& typed = boxes.*row.box;
    return typed.empty() ? "" : typed + unit_text(row.unit, source);
}

page_row single_row(const entry_row& row, const entries& boxes, const sheet_source& source) {
    return {caption(row.form, row.label, source), value_of(row, boxes, source)};
}

/// Four decimals at most.
std::string rounded(double value) {
    constexpr double STEPS = 10000.0;
    return number_text(std::nearbyint(value * STEPS) / STEPS);
}

std::string length_text(double millimetres, const sheet_source& source) {
    return rounded(source.unit.from_mm(millimetres)) + unit_text(entry_unit::length, source);
}

// Finding the entry of a dimension.

bool is_named(const entry_row& row, const explained_parameter& parameter) {
    return row.form == parameter.form && row.label == parameter.label;
}

const entry_row* find_row(std::span<const entry_row> rows, const explained_parameter& parameter) {
    const auto found =
        std::ranges::find_if(rows, [&](const auto& row) { return is_named(row, parameter); });
    return found == rows.end() ? nullptr : &*found;
}

const entry_row* find_port_row(const explained_parameter& parameter) {
    for (const port_entry_row& row : PORT_ENTRIES) {
        if (is_named(row.inlet, parameter)) {
            return &row.inlet;
        }
        if (is_named(row.outlet, parameter)) {
            return &row.outlet;
        }
    }
    return is_named(PORT_RADIUS, parameter) ? &PORT_RADIUS : find_row(GROOVE_ENTRIES, parameter);
}

/// The entry, with the boxes of its stage.
struct found_entry {
    const entry_row* row = nullptr;
    const entries* boxes = nullptr;
};

found_entry entry_of(const explained_parameter& parameter, const sheet_source& source) {
    if (parameter.form == PORTS) {
        return {find_port_row(parameter), source.of_ports ? &source.of_ports->boxes : nullptr};
    }
    return {find_row(ROTOR_ENTRIES, parameter), &source.of_profiles.boxes};
}

// Results.

/// " 7403 RPM": texts of the forms stand behind the blank of a number.
std::string without_leading_blank(std::string text) {
    return text.starts_with(' ') ? text.substr(1) : text;
}

std::string result_text(const used_result& result, const sheet_source& source) {
    return without_leading_blank(
        shown_text(value_of(*result.quantity, source.results), *result.use, source.unit));
}

void add_speed_limit(std::vector<page_row>& rows, const sheet_source& source) {
    if (const std::optional<speed_limit> limit = limit_of_speed(source.results)) {
        rows.push_back({std::string(message_text(*limit == speed_limit::tip_velocity
                                                     ? message::speed_limited_by_tip
                                                     : message::speed_limited_by_port,
                                                 source.language))});
    }
}

std::string porting_type(std::string entries::*double_sided, const sheet_source& source) {
    const entries& boxes = source.of_ports->boxes;
    if (is_ticked(boxes.*double_sided)) {
        return sheet_text_of("double_sided", source);
    }
    return sheet_text_of(is_ticked(boxes.shadow_ports) ? "shadow_port" : "single_sided", source);
}

}  // namespace

std::string sheet_text_of(std::string_view name, const sheet_source& source) {
    return caption("sheet", name, source);
}

std::vector<page_row> rotor_entry_rows(const sheet_source& source) {
    std::vector<page_row> rows;
    for (const entry_row& row : ROTOR_ENTRIES) {
        rows.push_back(single_row(row, source.of_profiles.boxes, source));
    }
    rows.push_back({caption("Form1", "Label13", source),
                    source.of_profiles.boxes.volumereqd + " " + source.shown.unittype});
    return rows;
}

std::vector<page_row> rotor_result_rows(const sheet_source& source) {
    const rotor_profiles& rotors = source.rotors;
    return {
        {caption("Form1", "Label11", source),
         source.shown.capacity + " " + source.shown.units_label},
        {caption("Form1", "Label17", source), source.shown.area_ratio},
        {caption("Form1", "Label18", source), source.shown.max_chamb_vol},
        {caption("Form1", "Label19", source), source.shown.min_chamb_vol},
        {caption("kvt", "trochoid_ratio", source), rounded(rotors.trochoid_ratio)},
        {caption("kvt", "base_radius", source), length_text(rotors.base_radius, source)},
        {caption("kvt", "roll_radius", source), length_text(rotors.roll_radius, source)},
    };
}

std::vector<page_row> port_rows(const sheet_source& source) {
    const entries& boxes = source.of_ports->boxes;
    std::vector<page_row> rows = {
        {"", caption(PORTS, "Frame2", source), caption(PORTS, "Frame3", source)}};
    for (const port_entry_row& row : PORT_ENTRIES) {
        rows.push_back({caption(PORTS, row.inlet.label, source), value_of(row.inlet, boxes, source),
                        value_of(row.outlet, boxes, source)});
    }
    rows.push_back({caption(PORTS, "Frame1", source),
                    porting_type(&entries::inlet_double_sided, source),
                    porting_type(&entries::outlet_double_sided, source)});
    rows.push_back({caption(PORTS, PORT_RADIUS.label, source), value_of(PORT_RADIUS, boxes, source),
                    value_of(PORT_RADIUS, boxes, source)});
    if (source.outlines.groove) {
        rows.push_back({caption(PORTS, "metering_groove", source)});
        for (const entry_row& row : GROOVE_ENTRIES) {
            rows.push_back({caption(PORTS, row.label, source), "", value_of(row, boxes, source)});
        }
    }
    return rows;
}

std::vector<page_row> performance_entry_rows(const sheet_source& source) {
    const entries& boxes = source.of_performance->boxes;
    std::vector<page_row> rows;
    for (const performance_row& row : PERFORMANCE_ENTRIES) {
        std::string value = boxes.*row.box;
        if (row.second != nullptr) {
            value += std::string(row.between) + boxes.*row.second;
        }
        rows.push_back({caption("Perffrm", row.label, source), value + std::string(row.behind)});
    }
    return rows;
}

std::vector<page_row> performance_result_rows(const sheet_source& source) {
    std::vector<page_row> rows;
    for (const used_result& result : results_at(result_place::sheet)) {
        rows.push_back({sheet_text_of(result.use->name, source), result_text(result, source)});
    }
    for (const used_result& result : results_at(result_place::perf_res)) {
        const std::string_view name = result.use->lead_in ? "ripple" : result.use->name;
        rows.push_back({sheet_text_of(name, source), result_text(result, source)});
    }
    add_speed_limit(rows, source);
    return rows;
}

dimension_text dimension_of(const explained_parameter& parameter, const sheet_source& source) {
    dimension_text text{caption(parameter.form, parameter.label, source), {}};
    if (find_row(GROOVE_ENTRIES, parameter) != nullptr) {
        text.name = caption(PORTS, "metering_groove", source) + ": " + text.name;
    }
    const auto [row, boxes] = entry_of(parameter, source);
    if (row != nullptr && boxes != nullptr) {
        const std::string value = value_of(*row, *boxes, source);
        text.value = value.empty() ? "" : std::string(row->prefix) + value;
    }
    return text;
}

}  // namespace kvt
