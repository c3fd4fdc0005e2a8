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

std::string side_load_text(double load, bool inches) {
    if (inches) {
        return number_text(floor_to_int(load * 2.2 * 10.0 / 9.81) / 10.0) + " lbsf";
    }
    return number_text(floor_to_int(load * 100.0) / 100.0) + " N";
}

std::string cutter_text(double cutter_r, bool inches) {
    if (inches) {
        return number_text(floor_to_int(-2.0 * cutter_r * 1000.0 / MM_PER_INCH) / 1000.0) +
               " inches";
    }
    return number_text(-2.0 * cutter_r) + " mm";
}

}  // namespace

void set_speed_labels(const perf_results& results, std::int16_t language, labels& texts) {
    if (results.tip_speed_rpm < results.port_speed_rpm) {
        set_speed(results.tip_speed_rpm, message::speed_limited_by_tip, language, texts);
    } else if (results.tip_speed_rpm > results.port_speed_rpm) {
        set_speed(results.port_speed_rpm, message::speed_limited_by_port, language, texts);
    }
}

void set_load_labels(const perf_results& results, bool inches, labels& texts) {
    const double angle = results.side_load_angle[TOP][TOP];
    texts.max_shaft_side_load = side_load_text(results.side_load[TOP][TOP], inches);
    texts.side_load_direction =
        number_text(floor_to_int(angle * 180.0 * 100.0 / TWO_PI_P) / 100.0) + " °";
    texts.max_cutter_inner = cutter_text(results.cutter_r, inches);
}

void set_ripple_label(const perf_results& results, std::int16_t language, labels& texts) {
    texts.Label1 = std::string(message_text(message::pressure_ripple, language)) +
                   str(results.ripple_percent) + " %";
}

}  // namespace kvt
