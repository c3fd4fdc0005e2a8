// result_quantities: the one table of the performance results: what each is called, how it is got
// from perf_results, and how every place of use shows it. Whatever shows, writes or draws results
// loops over it; a new place of use is an enumerator and a row a result. Source of
// factors and digits: docs/formulas/flow.md, "Results as they are shown".
#pragma once

#include "core/length_unit.hpp"
#include "core/text_table.hpp"
#include "performance/perf_results.hpp"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace kvt {

/// How a result is got from the record, and over what it is spread.
using result_value = double perf_results::*;
using worked_out_value = double (*)(const perf_results&);
using result_grid = perf_grid perf_results::*;  ///< [speed][pressure]
using worked_out_grid = perf_grid (*)(const perf_results&);
struct speed_list {
    perf_list perf_results::*member;  ///< [speed]
};
struct pressure_list {
    perf_list perf_results::*member;  ///< [pressure]
};
struct angle_array {
    perf_array perf_results::*member;  ///< [degree], or [0.1 degree]
    std::size_t used_count;            ///< elements in use
};
using speed_angles = perf_speed_angles perf_results::*;  ///< [speed][degree]
using grid_angles = perf_grid_angles perf_results::*;    ///< [speed][pressure][degree]

using result_source =
    std::variant<result_value, worked_out_value, speed_list, pressure_list, result_grid,
                 worked_out_grid, angle_array, speed_angles, grid_angles>;

/// Where results are used.
enum class result_place {
    summary,   ///< the tables of the batch program; the name is a caption with its unit
    perf_res,  ///< the result form; the name is that of the control
    numbers,   ///< the numbers of the JSON report, in the units of the records
    chart,     ///< the result charts; the name is that of the chart, of an axis or of a legend
    data,      ///< the data files, the workbook and the result tables; the name is the column's
    sheet      ///< the design sheet, with those of perf_res behind them; the name is a caption
};

/// What happens to the digits behind the last one that is shown.
enum class last_digit { kept, cut, rounded };

/// From a value of the record to the number that is shown:
///     kept     value times / over then
///     cut      Int(value times steps / over then) / steps
///     rounded  (value times / over then), the nearest multiple of 1 / steps, half to even
/// in this order of operations, so that each place keeps the digits of its own formula.
struct shown_number {
    double times = 1.0;
    double over = 1.0;
    double then = 1.0;
    last_digit digits = last_digit::kept;
    double steps = 1.0;  ///< 100 for two decimals
    std::string_view unit =
        {};  ///< behind the number, with its blank; empty where a caption has it
    bool leading_blank = false;  ///< in place of the sign of a number that is not negative
};

/// The step of Calculate Performance after which a number of perf_res stands.
enum class perf_step { speed_limits, contact, ripple };

/// One place of use of one result.
struct result_use {
    result_place place;
    int rank;               ///< where it stands among the results of that place, from 1 on
    std::string_view name;  ///< under which the place finds its texts
    shown_number metric;
    shown_number imperial = metric;
    bool is_length = false;  ///< mm after metric: shown in the unit of length, cut as its texts are
    perf_step after = perf_step::speed_limits;
    std::optional<message> lead_in = std::nullopt;  ///< stands before the number
};

/// Whether the JSON record perf_results holds a result: always, in the full form only, never.
enum class json_part { brief, full, none };

struct result_quantity {
    std::string_view name;  ///< of the field of perf_results; of the control where it is worked out
    result_source source;
    std::string_view unit;  ///< of the record; empty for a ratio
    json_part json;
    std::span<const result_use> uses = {};
};

/// The table: numbers, lists, grids, arrays over the angle, in the order of the JSON record.
std::span<const result_quantity> result_quantities();

/// A result at a place of use.
struct used_result {
    const result_quantity* quantity;
    const result_use* use;
};
/// Every result that a place shows, in its order.
std::vector<used_result> results_at(result_place place);
/// One of them, by the name of the result; nothing when the place does not show it.
std::optional<used_result> result_at(result_place place, std::string_view quantity);

/// One of the results of a place, by its name there; nothing when the place has none of that name.
std::optional<used_result> result_named(result_place place, std::string_view name);

/// Where a number of a result stands: speed and pressure 0 .. 5, whole degrees of the inner rotor.
/// What a result is not spread over does not count.
struct result_point {
    std::size_t speed = 0, pressure = 0, degree = 0;
};

/// The number of a result at a point, in the units of the record. An array over the steps of 0.1
/// degree gives its element 10 degree.
double value_at(const result_quantity& quantity, const perf_results& results,
                const result_point& at);
/// The one number of a result that is not spread over anything.
double value_of(const result_quantity& quantity, const perf_results& results);
/// Whether a result is a table over speeds and pressures, and that table.
bool is_grid(const result_quantity& quantity);
perf_grid grid_of(const result_quantity& quantity, const perf_results& results);

/// The number that a place shows in a system of units; for a length in millimetres.
double shown_value(double value, const result_use& use, unit_system system);
/// Its text with its unit, without the lead-in.
std::string shown_text(double value, const result_use& use, const length_unit& unit);

}  // namespace kvt
