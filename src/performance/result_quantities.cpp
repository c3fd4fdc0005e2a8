// The table of the performance results, and the numbers and texts that its rows make.
#include "performance/result_quantities.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "base/number_text.hpp"
#include "performance/perf_units.hpp"

#include <algorithm>
#include <array>

namespace kvt {

namespace {

using enum result_place;
using enum last_digit;
using enum json_part;

constexpr std::size_t TOP = GRID_SIZE - 1;

double side_load_at_top(const perf_results& results) {
    return results.side_load[TOP][TOP];
}

double side_load_angle_at_top(const perf_results& results) {
    return results.side_load_angle[TOP][TOP];
}

/// The largest stress over a turn.
perf_grid largest_stress(const perf_results& results) {
    perf_grid largest{};
    for (std::size_t speed = 0; speed < GRID_SIZE; ++speed) {
        for (std::size_t pressure = 0; pressure < GRID_SIZE; ++pressure) {
            largest[speed][pressure] = std::ranges::max(results.hertz_stress[speed][pressure]);
        }
    }
    return largest;
}

/// A number of a summary table: three decimals keep a flow of a millilitre a minute and a watt of
/// drive power apart from nothing.
constexpr shown_number in_table(double times, double over = 1.0, double then = 1.0) {
    return {.times = times, .over = over, .then = then, .digits = rounded, .steps = 1000.0};
}

constexpr shown_number NUMBER = {};
constexpr shown_number PERCENTAGE = in_table(100.0);

constexpr shown_number LITRES_MINUTE = {.times = LITRES_MINUTE_PER_M3S};
constexpr shown_number GALLONS_MINUTE = {.times = LITRES_MINUTE_PER_M3S,
                                         .then = US_GALLONS_PER_LITRE};
constexpr shown_number HORSEPOWER = {.over = WATTS_PER_HORSEPOWER};
constexpr shown_number KSI = {.times = PSI_PER_MPA, .over = PSI_PER_KSI};
constexpr shown_number BAR = {.over = BAR_PA};
constexpr shown_number PSI = {.over = BAR_PA, .then = PSI_PER_BAR};
constexpr shown_number PER_CENT = {.times = 100.0};

/// A number of the design sheet, with its unit behind it.
constexpr shown_number on_sheet(const shown_number& number, std::string_view unit, double steps) {
    shown_number shown = number;
    shown.digits = rounded;
    shown.steps = steps;
    shown.unit = unit;
    return shown;
}
constexpr shown_number SHEET_PERCENTAGE = on_sheet(PER_CENT, " %", 10.0);

// The uses, a list a result.
constexpr std::array PRESSURES = {
    result_use{summary, 0, "grid_axes", in_table(1.0, BAR_PA), in_table(1.0, BAR_PA, PSI_PER_BAR)},
    result_use{chart, 0, "pressure", BAR, PSI},
    // Kept: the files multiply first; that reaches the last digit. Here stands the pascal, not the
    // bar; result_quantities_test holds both.
    result_use{data, 2, "pressure", NUMBER, {.times = PSI_PER_BAR, .over = BAR_PA}}};
constexpr std::array SPEEDS = {result_use{summary, 0, "grid_axes", in_table(1.0)},
                               result_use{chart, 0, "speed", NUMBER},
                               result_use{data, 1, "speed", NUMBER}};
constexpr std::array FLOW = {result_use{summary, 1, "flow", in_table(LITRES_MINUTE_PER_M3S),
                                        in_table(LITRES_MINUTE_PER_M3S* US_GALLONS_PER_LITRE)},
                             result_use{chart, 1, "flow", LITRES_MINUTE, GALLONS_MINUTE},
                             result_use{data, 3, "flow", LITRES_MINUTE, GALLONS_MINUTE}};
constexpr std::array VOL_EFF = {result_use{summary, 2, "vol_eff", PERCENTAGE},
                                result_use{chart, 5, "ve", NUMBER},
                                result_use{data, 6, "vol_eff", PER_CENT}};
constexpr std::array MECH_EFF = {result_use{summary, 3, "mech_eff", PERCENTAGE},
                                 result_use{chart, 6, "mech", NUMBER},
                                 result_use{data, 7, "mech_eff", PER_CENT}};
constexpr std::array OVERALL_EFF = {result_use{summary, 4, "overall_eff", PERCENTAGE},
                                    result_use{chart, 7, "overall", NUMBER},
                                    result_use{data, 8, "overall_eff", PER_CENT}};
constexpr std::array DRIVE_POWER = {
    result_use{summary, 5, "drive_power", in_table(1.0 / WATTS_PER_KILOWATT),
               in_table(1.0, WATTS_PER_HORSEPOWER)},
    result_use{chart, 2, "power", {.over = WATTS_PER_KILOWATT}, HORSEPOWER},
    result_use{data, 5, "power", NUMBER, HORSEPOWER}};
constexpr std::array DRIVE_TORQUE = {
    result_use{data, 4, "torque", NUMBER, {.times = FOOT_POUNDS_PER_NM}}};
constexpr std::array LARGEST_STRESS = {
    result_use{summary, 6, "hertz_stress", in_table(1.0), in_table(1.0 / KSI_MPA)}};
constexpr std::array STRESS = {
    result_use{chart, 3, "stress", NUMBER, KSI},
    // Kept: the files have one factor, the charts two steps; result_quantities_test holds both.
    result_use{data, 13, "stress", NUMBER, {.times = PSI_PER_MPA / PSI_PER_KSI}}};
constexpr std::array CONTACT_FORCE = {
    result_use{data, 12, "force", NUMBER, {.times = SIDE_LOAD_POUNDS, .over = SIDE_LOAD_NEWTONS}}};
constexpr std::array SLIDING = {
    result_use{data, 11, "sliding", {.over = MM_PER_METRE}, {.over = MM_PER_FOOT}}};
constexpr std::array CHAMBER_RATE = {
    result_use{data,
               9,
               "rate",
               {.times = LITRES_DEGREE_PER_M3_STEP},
               {.times = LITRES_DEGREE_PER_M3_STEP, .then = US_GALLONS_PER_LITRE}}};
constexpr std::array RIPPLE = {result_use{chart, 4, "ripple", BAR, PSI},
                               result_use{data, 10, "ripple", BAR, PSI}};
constexpr std::array SIDE_LOAD = {result_use{summary, 7, "side_load", in_table(1.0),
                                             in_table(SIDE_LOAD_POUNDS / SIDE_LOAD_NEWTONS)}};
constexpr std::array MAX_SPEED = {
    result_use{.place = perf_res,
               .rank = 1,
               .name = "max_speed",
               .metric = {.digits = cut, .unit = " RPM", .leading_blank = true}},
    result_use{numbers, 1, "max_speed", NUMBER}};
constexpr std::array MAX_SIDE_LOAD = {
    result_use{.place = perf_res,
               .rank = 2,
               .name = "max_shaft_side_load",
               .metric = {.digits = cut, .steps = 100.0, .unit = " N"},
               .imperial = {.times = SIDE_LOAD_POUNDS,
                            .over = SIDE_LOAD_NEWTONS,
                            .digits = cut,
                            .steps = 10.0,
                            .unit = " lbsf"},
               .after = perf_step::contact},
    result_use{numbers, 2, "max_shaft_side_load", NUMBER}};
// Kept: half of the angle in degrees; result_quantities_test holds it.
constexpr std::array SIDE_LOAD_DIRECTION = {
    result_use{
        .place = perf_res,
        .rank = 3,
        .name = "side_load_direction",
        .metric = {.times = 180.0, .over = TWO_PI_P, .digits = cut, .steps = 100.0, .unit = " °"},
        .after = perf_step::contact},
    result_use{
        numbers, 3, "side_load_direction", {.times = 180.0, .over = TWO_PI_P, .unit = "deg"}}};
constexpr std::array MAX_CUTTER = {result_use{.place = perf_res,
                                              .rank = 4,
                                              .name = "max_cutter_inner",
                                              .metric = {.times = -2.0},
                                              .is_length = true,
                                              .after = perf_step::contact},
                                   result_use{numbers, 4, "max_cutter_inner", {.times = -2.0}}};
constexpr std::array RIPPLE_PERCENT = {result_use{.place = perf_res,
                                                  .rank = 5,
                                                  .name = "Label1",
                                                  .metric = {.unit = " %", .leading_blank = true},
                                                  .after = perf_step::ripple,
                                                  .lead_in = message::pressure_ripple},
                                       result_use{numbers, 5, "ripple_percent", NUMBER}};

// The extremes of the grid on the design sheet.
constexpr shown_number SHEET_FLOW = on_sheet(LITRES_MINUTE, " Lit/min", 1000.0);
constexpr shown_number SHEET_GALLONS = on_sheet(GALLONS_MINUTE, " USGall/min", 1000.0);
constexpr std::array FLOW_MAX = {result_use{sheet, 1, "flow_max", SHEET_FLOW, SHEET_GALLONS}};
constexpr std::array FLOW_MIN = {result_use{sheet, 2, "flow_min", SHEET_FLOW, SHEET_GALLONS}};
constexpr std::array POWER_MAX = {result_use{sheet, 3, "power_max",
                                             on_sheet({.over = WATTS_PER_KILOWATT}, " kW", 1000.0),
                                             on_sheet(HORSEPOWER, " hp", 1000.0)}};
constexpr std::array VOL_EFF_MAX = {result_use{sheet, 4, "vol_eff_max", SHEET_PERCENTAGE}};
constexpr std::array VOL_EFF_MIN = {result_use{sheet, 5, "vol_eff_min", SHEET_PERCENTAGE}};
constexpr std::array MECH_EFF_MAX = {result_use{sheet, 6, "mech_eff_max", SHEET_PERCENTAGE}};
constexpr std::array MECH_EFF_MIN = {result_use{sheet, 7, "mech_eff_min", SHEET_PERCENTAGE}};
constexpr std::array OVERALL_EFF_MAX = {result_use{sheet, 8, "overall_eff_max", SHEET_PERCENTAGE}};
constexpr std::array OVERALL_EFF_MIN = {result_use{sheet, 9, "overall_eff_min", SHEET_PERCENTAGE}};
constexpr std::array HERTZ_MAX = {result_use{sheet, 10, "hertz_max", on_sheet(NUMBER, " MPa", 10.0),
                                             on_sheet(KSI, " ksi", 10.0)}};

constexpr std::size_t WHOLE_TURN = ANGLE_ARRAY_LAST + 1;
constexpr std::size_t CONTACT_ANGLES = CONTACT_ANGLE_LAST + 1;
constexpr std::size_t STEPS_OF_A_TURN = RIPPLE_STEPS;

/// A field under its own name.
#define KVT_RESULT(field, source, part, unit, ...)                                   \
    result_quantity {                                                                \
#field, source{&perf_results::field }, unit, part __VA_OPT__(, ) __VA_ARGS__ \
    }
#define KVT_ANGLE_ARRAY(field, used_count, unit, ...)                 \
    result_quantity {                                                 \
#field, angle_array{&perf_results::field, used_count }, unit, \
                            full __VA_OPT__(, ) __VA_ARGS__           \
    }

constexpr result_quantity QUANTITIES[] = {
    KVT_RESULT(dyn_visc, result_value, brief, "Pa s"),
    KVT_RESULT(tip_radius, result_value, brief, "mm"),
    KVT_RESULT(flow_max, result_value, brief, "m3/s", FLOW_MAX),
    KVT_RESULT(flow_min, result_value, brief, "m3/s", FLOW_MIN),
    KVT_RESULT(vol_eff_max, result_value, brief, "", VOL_EFF_MAX),
    KVT_RESULT(vol_eff_min, result_value, brief, "", VOL_EFF_MIN),
    KVT_RESULT(power_max, result_value, brief, "W", POWER_MAX),
    KVT_RESULT(power_min, result_value, brief, "W"),
    KVT_RESULT(mech_eff_max, result_value, brief, "", MECH_EFF_MAX),
    KVT_RESULT(mech_eff_min, result_value, brief, "", MECH_EFF_MIN),
    KVT_RESULT(overall_eff_max, result_value, brief, "", OVERALL_EFF_MAX),
    KVT_RESULT(overall_eff_min, result_value, brief, "", OVERALL_EFF_MIN),
    KVT_RESULT(hertz_max, result_value, brief, "MPa", HERTZ_MAX),
    KVT_RESULT(ripple_max, result_value, brief, "Pa"),
    KVT_RESULT(ripple_min, result_value, brief, "Pa"),
    KVT_RESULT(ripple_percent, result_value, brief, "%", RIPPLE_PERCENT),
    KVT_RESULT(effective_cc, result_value, brief, "cm3/rev"),
    KVT_RESULT(seal_len_a, result_value, brief, "m"),
    KVT_RESULT(seal_len_b, result_value, brief, "m"),
    KVT_RESULT(seal_len_c, result_value, brief, "m"),
    KVT_RESULT(tip_gap_r, result_value, brief, "m"),
    KVT_RESULT(inner_mean_r, result_value, brief, "mm"),
    KVT_RESULT(outer_mean_r, result_value, brief, "mm"),
    KVT_RESULT(face_area_inner, result_value, brief, "mm2"),
    KVT_RESULT(face_area_outer, result_value, brief, "mm2"),
    KVT_RESULT(combined_modulus, result_value, brief, "MPa"),
    KVT_RESULT(cutter_r, result_value, brief, "mm"),
    KVT_RESULT(port_edge_angle, result_value, brief, "rad"),
    KVT_RESULT(port_edge_r, result_value, brief, "mm"),
    KVT_RESULT(port_volume, result_value, brief, "m3"),
    KVT_RESULT(press_step_bar, result_value, brief, "bar"),
    KVT_RESULT(speed_step, result_value, brief, "rpm"),
    KVT_RESULT(fill_velocity, result_value, brief, "m/s"),
    KVT_RESULT(tip_speed_rpm, result_value, brief, "rpm"),
    KVT_RESULT(sector_outer, result_value, brief, "mm2"),
    KVT_RESULT(sector_inner, result_value, brief, "mm2"),
    KVT_RESULT(port_area, result_value, brief, "m2"),
    KVT_RESULT(port_equiv_r, result_value, brief, "m"),
    KVT_RESULT(port_velocity, result_value, brief, "m/s"),
    KVT_RESULT(port_flow, result_value, brief, "m3/s"),
    KVT_RESULT(port_speed_rpm, result_value, brief, "rpm"),
    KVT_RESULT(area_tip, result_value, brief, "mm2"),
    KVT_RESULT(area_root, result_value, brief, "mm2"),
    KVT_RESULT(area_shaft, result_value, brief, "mm2"),
    KVT_RESULT(area_max, result_value, brief, "mm2"),
    KVT_RESULT(area_outer_root, result_value, brief, "mm2"),
    KVT_RESULT(area_pitch, result_value, brief, "mm2"),
    KVT_RESULT(land_share_inner, result_value, brief, ""),
    KVT_RESULT(land_share_outer, result_value, brief, ""),
    KVT_RESULT(outlet_span_deg, result_value, brief, "deg"),
    KVT_RESULT(od_band, result_value, brief, "mm"),
    KVT_RESULT(n_ecc, result_value, brief, "mm"),
    KVT_RESULT(trochoid_ratio, result_value, brief, ""),
    KVT_RESULT(arm_base, result_value, brief, "mm"),
    KVT_RESULT(root_arc, result_value, brief, "mm2"),
    KVT_RESULT(ratio, result_value, brief, ""),
    KVT_RESULT(width_ecc, result_value, brief, "m2"),
    KVT_RESULT(ecc_n, result_value, brief, "m"),
    KVT_RESULT(rate_sum, result_value, brief, "m3"),
    KVT_RESULT(port_centre_x, result_value, brief, "mm"),
    KVT_RESULT(port_centre_y, result_value, brief, "mm"),
    KVT_RESULT(nose_angle, result_value, brief, "rad"),
    KVT_RESULT(trapped_volume, result_value, brief, "m3"),
    KVT_RESULT(recovery, result_value, brief, "Pa/step"),

    KVT_RESULT(press_pa, pressure_list, brief, "Pa", PRESSURES),
    KVT_RESULT(speed_rpm, speed_list, brief, "rpm", SPEEDS),
    KVT_RESULT(leak_tip, pressure_list, full, "m3/s"),
    KVT_RESULT(leak_face, pressure_list, full, "m3/s"),
    KVT_RESULT(tip_drag_power, speed_list, full, "W"),
    KVT_RESULT(face_load_inner, pressure_list, full, "N"),
    KVT_RESULT(face_load_outer, pressure_list, full, "N"),
    KVT_RESULT(friction_torque_inner, pressure_list, full, "N m"),
    KVT_RESULT(friction_torque_outer, pressure_list, full, "N m"),
    KVT_RESULT(face_shear_inner, speed_list, full, "N m"),
    KVT_RESULT(face_shear_outer, speed_list, full, "N m"),
    KVT_RESULT(face_power_inner, speed_list, full, "W"),
    KVT_RESULT(face_power_outer, speed_list, full, "W"),
    KVT_RESULT(od_shear, speed_list, full, "N m"),
    KVT_RESULT(od_power, speed_list, full, "W"),
    KVT_RESULT(sliding_max, speed_list, full, "mm/s"),
    KVT_RESULT(sliding_mean, speed_list, full, "mm/s"),
    KVT_RESULT(face_gradient, pressure_list, full, "Pa/m"),
    KVT_RESULT(face_velocity, pressure_list, full, "m/s"),
    KVT_RESULT(face_shear_inner_2, speed_list, full, "N m"),
    KVT_RESULT(face_shear_outer_2, speed_list, full, "N m"),

    KVT_RESULT(flow_m3s, result_grid, brief, "m3/s", FLOW),
    KVT_RESULT(vol_eff, result_grid, brief, "", VOL_EFF),
    KVT_RESULT(hyd_power, result_grid, brief, "W"),
    KVT_RESULT(hyd_torque, result_grid, brief, "N m"),
    KVT_RESULT(friction_power, result_grid, brief, "W"),
    KVT_RESULT(drive_power, result_grid, brief, "W", DRIVE_POWER),
    KVT_RESULT(drive_torque, result_grid, brief, "N m", DRIVE_TORQUE),
    KVT_RESULT(mech_eff, result_grid, brief, "", MECH_EFF),
    KVT_RESULT(overall_eff, result_grid, brief, "", OVERALL_EFF),
    KVT_RESULT(side_load, result_grid, brief, "N", SIDE_LOAD),
    KVT_RESULT(side_load_angle, result_grid, brief, "rad"),

    KVT_ANGLE_ARRAY(chamber_rate, STEPS_OF_A_TURN, "m3/step", CHAMBER_RATE),
    KVT_ANGLE_ARRAY(ripple_pressure, STEPS_OF_A_TURN, "Pa", RIPPLE),
    KVT_ANGLE_ARRAY(contact_dist, WHOLE_TURN, "mm"),
    KVT_ANGLE_ARRAY(pressure_angle, CONTACT_ANGLES, "rad"),
    KVT_ANGLE_ARRAY(troch_curv_r, CONTACT_ANGLES, "mm"),
    KVT_ANGLE_ARRAY(inner_curv_r, CONTACT_ANGLES, "mm"),
    KVT_ANGLE_ARRAY(equiv_r, CONTACT_ANGLES, "mm"),
    KVT_ANGLE_ARRAY(side_x, CONTACT_ANGLES, "N"),
    KVT_ANGLE_ARRAY(side_y, CONTACT_ANGLES, "N"),
    KVT_ANGLE_ARRAY(side_mag, CONTACT_ANGLES, "N"),
    KVT_ANGLE_ARRAY(side_dir, CONTACT_ANGLES, "rad"),
    KVT_RESULT(sliding_velocity, speed_angles, full, "mm/s", SLIDING),
    KVT_RESULT(contact_force, grid_angles, full, "N", CONTACT_FORCE),
    KVT_RESULT(hertz_stress, grid_angles, full, "MPa", STRESS),
    KVT_RESULT(hertz_sliding, grid_angles, full, "MPa mm"),

    // What the places of use show, worked out of the fields.
    {"max_speed", result_value{&perf_results::max_speed_rpm}, "rpm", none, MAX_SPEED},
    {"max_shaft_side_load", worked_out_value{side_load_at_top}, "N", none, MAX_SIDE_LOAD},
    {"side_load_direction", worked_out_value{side_load_angle_at_top}, "rad", none,
     SIDE_LOAD_DIRECTION},
    {"max_cutter_inner", result_value{&perf_results::cutter_r}, "mm", none, MAX_CUTTER},
    {"largest_stress", worked_out_grid{largest_stress}, "MPa", none, LARGEST_STRESS},
};

#undef KVT_RESULT
#undef KVT_ANGLE_ARRAY

// The number of a source at a point.

double number_at(result_value field, const perf_results& results, const result_point&) {
    return results.*field;
}
double number_at(worked_out_value work_out, const perf_results& results, const result_point&) {
    return work_out(results);
}
double number_at(speed_list list, const perf_results& results, const result_point& at) {
    return (results.*list.member)[at.speed];
}
double number_at(pressure_list list, const perf_results& results, const result_point& at) {
    return (results.*list.member)[at.pressure];
}
double number_at(result_grid grid, const perf_results& results, const result_point& at) {
    return (results.*grid)[at.speed][at.pressure];
}
double number_at(worked_out_grid work_out, const perf_results& results, const result_point& at) {
    return work_out(results)[at.speed][at.pressure];
}
double number_at(const angle_array& array, const perf_results& results, const result_point& at) {
    constexpr std::size_t STEPS_A_DEGREE = STEPS_OF_A_TURN / ANGLE_ARRAY_LAST;
    const bool is_of_steps = array.used_count == STEPS_OF_A_TURN;
    return (results.*array.member)[at.degree * (is_of_steps ? STEPS_A_DEGREE : 1)];
}
double number_at(speed_angles angles, const perf_results& results, const result_point& at) {
    return (results.*angles)[at.speed][at.degree];
}
double number_at(grid_angles angles, const perf_results& results, const result_point& at) {
    return (results.*angles)[at.speed][at.pressure][at.degree];
}

}  // namespace

std::span<const result_quantity> result_quantities() {
    return QUANTITIES;
}

std::vector<used_result> results_at(result_place place) {
    std::vector<used_result> found;
    for (const result_quantity& quantity : QUANTITIES) {
        for (const result_use& use : quantity.uses) {
            if (use.place == place) {
                found.push_back({&quantity, &use});
            }
        }
    }
    std::ranges::stable_sort(found, {}, [](const used_result& result) { return result.use->rank; });
    return found;
}

std::optional<used_result> result_at(result_place place, std::string_view quantity) {
    for (const used_result& result : results_at(place)) {
        if (result.quantity->name == quantity) {
            return result;
        }
    }
    return std::nullopt;
}

std::optional<used_result> result_named(result_place place, std::string_view name) {
    for (const used_result& result : results_at(place)) {
        if (result.use->name == name) {
            return result;
        }
    }
    return std::nullopt;
}

double value_at(const result_quantity& quantity, const perf_results& results,
                const result_point& at) {
    return std::visit([&](const auto& source) { return number_at(source, results, at); },
                      quantity.source);
}

double value_of(const result_quantity& quantity, const perf_results& results) {
    if (const auto* field = std::get_if<result_value>(&quantity.source)) {
        return results.*(*field);
    }
    return std::get<worked_out_value>(quantity.source)(results);
}

bool is_grid(const result_quantity& quantity) {
    return std::holds_alternative<result_grid>(quantity.source) ||
           std::holds_alternative<worked_out_grid>(quantity.source);
}

perf_grid grid_of(const result_quantity& quantity, const perf_results& results) {
    if (const auto* field = std::get_if<result_grid>(&quantity.source)) {
        return results.*(*field);
    }
    return std::get<worked_out_grid>(quantity.source)(results);
}

double shown_value(double value, const result_use& use, unit_system system) {
    const shown_number& as = system == unit_system::metric ? use.metric : use.imperial;
    switch (as.digits) {
        case last_digit::cut:
            return floor_to_int(value * as.times * as.steps / as.over * as.then) / as.steps;
        case last_digit::rounded:
            return round_half_even(value * as.times / as.over * as.then * as.steps) / as.steps;
        case last_digit::kept:
            break;
    }
    return value * as.times / as.over * as.then;
}

std::string shown_text(double value, const result_use& use, const length_unit& unit) {
    if (use.is_length) {
        const double millimetres = shown_value(value, use, unit_system::metric);
        return number_text(unit.cut_from_mm(millimetres)) + " " + std::string(unit.long_name);
    }
    const double shown = shown_value(value, use, unit.system);
    const shown_number& as = unit.system == unit_system::metric ? use.metric : use.imperial;
    return (as.leading_blank ? str(shown) : number_text(shown)) + std::string(as.unit);
}

}  // namespace kvt
