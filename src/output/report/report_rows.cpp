#include "output/report/report_rows.hpp"

#include "base/checked_math.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"
#include "performance/perf_units.hpp"

#include <array>

namespace kvt {

namespace {

using source = report_source;

std::string own_text(std::string_view name, const source& from) {
    return std::string(form_text("report", name, from.state.language));
}

// Entries and what is chosen.

template <std::string entries::*box>
std::string typed(const source& from) {
    return from.boxes.*box;
}

std::string project_path(const source& from) {
    return from.state.project_path;
}

std::string project_name(const source& from) {
    return from.state.project_name;
}

std::string drawing_units(const source& from) {
    return own_text(from.state.drawing_units == MILLIMETRES ? "millimetres" : "inches", from);
}

std::string capacity_unit_text(const source& from) {
    return from.shown.unittype;
}

/// Kept: the English row of the axial clearance holds the radial one; report_rows_test holds it.
std::string axial_clearance(const source& from) {
    return from.state.language == ENGLISH ? from.boxes.radial_clear : from.boxes.axial_clear;
}

template <std::string entries::*double_sided>
std::string porting_type(const source& from) {
    if (is_ticked(from.boxes.*double_sided)) {
        return own_text("double_sided", from);
    }
    return own_text(is_ticked(from.boxes.shadow_ports) ? "shadow_port" : "single_sided", from);
}

bool has_groove(const source& from) {
    return is_ticked(from.boxes.metering_groove);
}

std::string groove_answer(const source& from) {
    return own_text(has_groove(from) ? "yes" : "no", from);
}

// Results. Those of another project, or of none, say nothing.

std::string capacity(const source& from) {
    return from.has_results ? from.shown.capacity : "";
}

/// A label of perf_res: empty while that form is not loaded.
template <std::string labels::*label>
std::string result_label(const source& from) {
    return from.has_results && from.shows_results ? from.shown.*label : "";
}

/// Int(number) / divisor.
std::string cut_number(const source& from, double number, double divisor = 1.0) {
    return from.has_results ? str(floor_to_int(number) / divisor) : "";
}

std::string power_hp(const source& from) {
    return cut_number(from, from.results.power_max * 10.0 / WATTS_PER_HORSEPOWER, 10.0);
}

/// Kept: MPa times 145.04 is psi, so the number is a thousand times the ksi that its label says;
/// report_rows_test holds it.
std::string stress_ksi(const source& from) {
    return cut_number(from, from.results.hertz_max * PSI_PER_MPA);
}

std::string power_w(const source& from) {
    return cut_number(from, from.results.power_max * 100.0, 100.0);
}

std::string stress_mpa(const source& from) {
    return cut_number(from, from.results.hertz_max);
}

template <double perf_results::*efficiency>
std::string percent(const source& from) {
    return cut_number(from, from.results.*efficiency * 100.0);
}

bool is_in_inches(const source& from) {
    return from.state.drawing_units == INCHES;
}

bool is_not_in_inches(const source& from) {
    return !is_in_inches(from);
}

// Rows.

constexpr report_row port_row(std::string_view box, std::string_view label, report_text value) {
    return {box, value, nullptr, report_label::own_with_caption_in_german, "portdes", label};
}

constexpr report_row perf_row(std::string_view label, report_text value,
                              std::string_view suffix = {}) {
    return {suffix, value, nullptr, report_label::caption_then_own, "Perffrm", label};
}

constexpr report_row line_alone(report_text value) {
    return {.name = {}, .value = value, .label = report_label::none};
}

constexpr report_row row_where(bool (*is_printed)(const source&), std::string_view name,
                               report_text value) {
    return {.name = name, .value = value, .is_printed = is_printed};
}

constexpr std::array REPORT_ROWS = {
    report_row{"design_heading"},
    report_row{"project_path", project_path},
    report_row{"project_name", project_name},
    report_row{"drawing_units", drawing_units},
    report_row{"volumereqd", typed<&entries::volumereqd>, capacity_unit_text},
    report_row{"shaftdiameter", typed<&entries::shaftdiameter>},
    report_row{"maxdiameter", typed<&entries::maxdiameter>},
    report_row{"thick", typed<&entries::thick>},
    report_row{"numlobes", typed<&entries::numlobes>},
    report_row{"minmaterial", typed<&entries::minmaterial>},
    report_row{"clearn", typed<&entries::clearn>},
    report_row{"axial_clear", axial_clearance},
    report_row{"radial_clear", typed<&entries::radial_clear>},
    report_row{"fillet", typed<&entries::fillet>},
    report_row{"ecc", typed<&entries::ecc>},
    report_row{"radinnroot", typed<&entries::radinnroot>},
    report_row{"radouter", typed<&entries::radouter>},
    report_row{"outer_root", typed<&entries::outer_root>},
    report_row{"capacity", capacity, capacity_unit_text},

    report_row{"port_heading"},
    port_row("inlet_start_inner", "Label2", typed<&entries::inlet_start_inner>),
    port_row("inlet_start_outer", "Label3", typed<&entries::inlet_start_outer>),
    port_row("inlet_end_inner", "Label4", typed<&entries::inlet_end_inner>),
    port_row("inlet_end_outer", "Label5", typed<&entries::inlet_end_outer>),
    port_row("inlet_inner_radius", "Label15", typed<&entries::inlet_inner_radius>),
    port_row("inlet_outer_radius", "Label14", typed<&entries::inlet_outer_radius>),
    port_row("outlet_start_inner", "Label9", typed<&entries::outlet_start_inner>),
    port_row("outlet_start_outer", "Label8", typed<&entries::outlet_start_outer>),
    port_row("outlet_end_inner", "Label7", typed<&entries::outlet_end_inner>),
    port_row("outlet_end_outer", "Label6", typed<&entries::outlet_end_outer>),
    port_row("Outlet_inner_radius", "Label13", typed<&entries::Outlet_inner_radius>),
    port_row("Outlet_outer_radius", "Label16", typed<&entries::Outlet_outer_radius>),
    report_row{"port_radii", typed<&entries::port_radii>},
    report_row{"porting_inner", porting_type<&entries::inlet_double_sided>},
    report_row{"porting_outer", porting_type<&entries::outlet_double_sided>},
    report_row{"metering_groove", groove_answer},
    row_where(has_groove, "groove_length", typed<&entries::groove_length>),
    row_where(has_groove, "groove_width", typed<&entries::groove_width>),

    report_row{"performance_heading"},
    perf_row("Label3", typed<&entries::fluid_density>),
    perf_row("Label1", typed<&entries::kin_visc>),
    perf_row("Label2", typed<&entries::vap_press>),
    perf_row("Label4", typed<&entries::bulk_mod_text>),
    perf_row("Label10", typed<&entries::young_inner>, "inner_suffix"),
    perf_row("Label10", typed<&entries::young_outer>, "outer_suffix"),
    perf_row("Label11", typed<&entries::poissons_inner>, "inner_suffix"),
    perf_row("Label11", typed<&entries::poissons_outer>, "outer_suffix"),
    perf_row("Label14", typed<&entries::friction>),
    perf_row("Label6", typed<&entries::speed_lo>, "lower_suffix"),
    perf_row("Label6", typed<&entries::speed_hi>, "higher_suffix"),
    perf_row("Label7", typed<&entries::pressure_lo>, "lower_suffix"),
    perf_row("Label7", typed<&entries::pressure_hi>, "higher_suffix"),
    report_row{"max_cutter_inner", result_label<&labels::max_cutter_inner>},
    report_row{"max_speed", result_label<&labels::max_speed>},
    line_alone(result_label<&labels::Label5>),
    report_row{"max_shaft_side_load", result_label<&labels::max_shaft_side_load>},
    report_row{"side_load_direction", result_label<&labels::side_load_direction>},
    line_alone(result_label<&labels::Label1>),
    row_where(is_in_inches, "max_power_hp", power_hp),
    row_where(is_in_inches, "max_stress_ksi", stress_ksi),
    row_where(is_not_in_inches, "max_power_w", power_w),
    row_where(is_not_in_inches, "max_stress_mpa", stress_mpa),
    report_row{"vol_eff_max", percent<&perf_results::vol_eff_max>},
    report_row{"vol_eff_min", percent<&perf_results::vol_eff_min>},
    report_row{"mech_eff_max", percent<&perf_results::mech_eff_max>},
    report_row{"mech_eff_min", percent<&perf_results::mech_eff_min>},
    report_row{"overall_eff_max", percent<&perf_results::overall_eff_max>},
    report_row{"overall_eff_min", percent<&perf_results::overall_eff_min>},
};

}  // namespace

std::span<const report_row> report_rows() {
    return REPORT_ROWS;
}

std::string label_text(const report_row& row, const report_source& source) {
    const std::string own = row.name.empty() ? "" : own_text(row.name, source);
    const std::string caption(source.captions.of(row.form, row.caption));
    switch (row.label) {
        case report_label::own_with_caption_in_german:
            return source.state.language == GERMAN ? own + caption : own;
        case report_label::caption_then_own:
            return caption + own;
        case report_label::own:
        case report_label::none:
            break;
    }
    return own;
}

}  // namespace kvt
