#include "kvt/performance_summary.hpp"

#include "app/program.hpp"
#include "base/checked_math.hpp"
#include "kvt/aligned_lines.hpp"
#include "kvt/report_texts.hpp"
#include "performance/perf_units.hpp"

#include <algorithm>
#include <vector>

namespace kvt {

namespace {

constexpr double LIT_MIN_PER_M3S = 60000.0;
constexpr double US_GALLONS_PER_LITRE = 0.26417;
constexpr double WATTS_PER_KILOWATT = 1000.0;
constexpr double WATTS_PER_HORSEPOWER = 745.7;
/// The same pound that the label of the side load on perf_res uses.
constexpr double POUNDS_PER_NEWTON = 2.2 / 9.81;
constexpr double PERCENT = 100.0;

using grid_value = double (*)(const perf_results&, std::size_t speed, std::size_t pressure);

template <perf_grid perf_results::*grid>
double grid_element(const perf_results& results, std::size_t speed, std::size_t pressure) {
    return (results.*grid)[speed][pressure];
}

double largest_stress(const perf_results& results, std::size_t speed, std::size_t pressure) {
    return std::ranges::max(results.hertz_stress[speed][pressure]);
}

struct result_table {
    const char* caption;
    grid_value value;
    double metric_factor;
    double imperial_factor;
};

constexpr result_table TABLES[] = {
    {"flow", grid_element<&perf_results::flow_m3s>, LIT_MIN_PER_M3S,
     LIT_MIN_PER_M3S* US_GALLONS_PER_LITRE},
    {"vol_eff", grid_element<&perf_results::vol_eff>, PERCENT, PERCENT},
    {"mech_eff", grid_element<&perf_results::mech_eff>, PERCENT, PERCENT},
    {"overall_eff", grid_element<&perf_results::overall_eff>, PERCENT, PERCENT},
    {"drive_power", grid_element<&perf_results::drive_power>, 1.0 / WATTS_PER_KILOWATT,
     1.0 / WATTS_PER_HORSEPOWER},
    {"hertz_stress", largest_stress, 1.0, 1.0 / KSI_MPA},
    {"side_load", grid_element<&perf_results::side_load>, 1.0, POUNDS_PER_NEWTON},
};

/// Three decimals, which keep a flow of a millilitre a minute and a watt of drive power apart from
/// nothing.
std::string table_number(double value) {
    constexpr double DECIMALS = 1000.0;
    const double shown = round_half_even(value * DECIMALS) / DECIMALS;
    return rounded(shown);
}

std::string table_text(const program& kavetta, const result_table& table) {
    const app_state& state = kavetta.app_state;
    const unit_system system = length_unit_of(state).system;
    const bool imperial = system == unit_system::imperial;
    const perf_results& results = kavetta.perf_results;
    std::vector<std::vector<std::string>> rows = {{unit_caption_text("kvt", "grid_axes", state)}};
    for (const double pressure : results.press_pa) {
        rows.front().push_back(table_number(pressure / BAR_PA * factors_of(system).pressure));
    }
    for (std::size_t speed = 0; speed < GRID_SIZE; ++speed) {
        rows.push_back({table_number(results.speed_rpm[speed])});
        for (std::size_t pressure = 0; pressure < GRID_SIZE; ++pressure) {
            const double factor = imperial ? table.imperial_factor : table.metric_factor;
            rows.back().push_back(table_number(table.value(results, speed, pressure) * factor));
        }
    }
    return unit_caption_text("kvt", table.caption, state) + "\n" + aligned_table(rows);
}

std::string headlines(const program& kavetta) {
    const labels& shown = kavetta.labels;
    const std::int16_t language = kavetta.app_state.language;
    return aligned_lines(
               {{caption_text("kvt", "max_speed", language), shown.max_speed},
                {caption_text("kvt", "max_shaft_side_load", language), shown.max_shaft_side_load},
                {caption_text("kvt", "side_load_direction", language), shown.side_load_direction},
                {caption_text("kvt", "max_cutter_inner", language), shown.max_cutter_inner}}) +
           shown.Label5 + "\n" + shown.Label1 + "\n";
}

}  // namespace

std::string performance_summary(const program& kavetta) {
    std::string text = headlines(kavetta);
    for (const result_table& table : TABLES) {
        text += "\n" + table_text(kavetta, table);
    }
    return text;
}

}  // namespace kvt
