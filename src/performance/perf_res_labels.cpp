#include "performance/perf_res_labels.hpp"

#include "base/checked_math.hpp"
#include "base/constants.hpp"
#include "base/number_text.hpp"
#include "core/text_table.hpp"

#include <string>

namespace kvt {

namespace {

constexpr std::size_t TOP = GRID_SIZE - 1;

void set_speed(double speed_rpm, message limit, std::int16_t language, labels& texts) {
    texts.max_speed = str(floor_to_int(speed_rpm)) + " RPM";
    texts.Label5 = message_text(limit, language);
}

std::string side_load_text(double load, unit_system system) {
    if (system == unit_system::imperial) {
        return number_text(floor_to_int(load * 2.2 * 10.0 / 9.81) / 10.0) + " lbsf";
    }
    return number_text(floor_to_int(load * 100.0) / 100.0) + " N";
}

std::string cutter_text(double cutter_r, const length_unit& unit) {
    return number_text(unit.cut_from_mm(-2.0 * cutter_r)) + " " + std::string(unit.long_name);
}

}  // namespace

void set_speed_labels(const perf_results& results, std::int16_t language, labels& texts) {
    if (results.tip_speed_rpm < results.port_speed_rpm) {
        set_speed(results.tip_speed_rpm, message::speed_limited_by_tip, language, texts);
    } else if (results.tip_speed_rpm > results.port_speed_rpm) {
        set_speed(results.port_speed_rpm, message::speed_limited_by_port, language, texts);
    }
}

void set_load_labels(const perf_results& results, const length_unit& unit, labels& texts) {
    const double angle = results.side_load_angle[TOP][TOP];
    texts.max_shaft_side_load = side_load_text(results.side_load[TOP][TOP], unit.system);
    texts.side_load_direction =
        number_text(floor_to_int(angle * 180.0 * 100.0 / TWO_PI_P) / 100.0) + " °";
    texts.max_cutter_inner = cutter_text(results.cutter_r, unit);
}

void set_ripple_label(const perf_results& results, std::int16_t language, labels& texts) {
    texts.Label1 = std::string(message_text(message::pressure_ripple, language)) +
                   str(results.ripple_percent) + " %";
}

}  // namespace kvt
