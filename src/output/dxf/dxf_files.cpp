#include "output/dxf/dxf_files.hpp"

#include "base/checked_math.hpp"
#include "base/fixed_number.hpp"
#include "base/number_text.hpp"
#include "output/dxf/dxf_polyline.hpp"
#include "output/outer_path.hpp"

#include <algorithm>
#include <span>
#include <string>
#include <vector>

namespace kvt {

namespace {

constexpr int DECIMALS = 6;
/// Factor of entries that are not converted.
constexpr double AS_TYPED = 1.0;

std::string length_number(double mm, const length_unit& unit) {
    return fixed_number(unit.from_mm(mm), DECIMALS);
}

std::string port_number(double mm, const length_unit& unit) {
    const std::string text = fixed_number(mm, DECIMALS);
    return unit.is_of_records() ? text : number_text(unit.from_mm(val(text)));
}

/// The first `count` points of an outline, then point 0.
void write_port_outline(text_lines& out, std::span<const double> x, std::span<const double> y,
                        std::int64_t count, const length_unit& unit) {
    dxf_polyline polyline(out, static_cast<std::size_t>(count) + 1);
    const auto vertex = [&](std::int64_t i) {
        polyline.vertex(port_number(checked_at(x, i), unit), port_number(checked_at(y, i), unit));
    };
    for (std::int64_t i = 0; i < count; ++i) {
        vertex(i);
    }
    vertex(0);
    polyline.end();
}

/// Number of points from 0 to last, ending before the first x of exactly 0.
std::int64_t count_up_to_zero(std::span<const double> x, std::int16_t last) {
    std::int64_t count = 0;
    while (count <= last && checked_at(x, count) != 0.0) {
        ++count;
    }
    return count;
}

}  // namespace

void write_dxf_inner_rotor(text_lines& out, const rotor_profiles& rotors, const length_unit& unit) {
    const std::int32_t point_count = to_int32(rotors.profile_points);
    dxf_polyline polyline(out, static_cast<std::size_t>(point_count) + 1);
    const auto vertex = [&](std::int64_t i) {
        polyline.vertex(length_number(checked_at(rotors.inner_x, i), unit),
                        length_number(checked_at(rotors.inner_y, i), unit));
    };
    for (std::int32_t i = 0; i < point_count; ++i) {
        vertex(i);
    }
    vertex(0);
    polyline.end();
}

void write_dxf_outer_rotor(text_lines& out, const entries& boxes) {
    constexpr std::size_t POINTS_PER_LOBE = 320;
    const design_params typed = outer_rotor_entries(boxes, AS_TYPED);
    dxf_polyline polyline(
        out, POINTS_PER_LOBE * static_cast<std::size_t>(std::clamp(typed.numlobes, 0, 100)));
    for (const point2& point : outer_path_points(outer_rotor_path(typed))) {
        polyline.vertex(fixed_number(point.x, DECIMALS), fixed_number(point.y, DECIMALS));
    }
    polyline.end();
}

void write_dxf_inlet_port(text_lines& out, const port_params& ports, const length_unit& unit) {
    write_port_outline(out, ports.inlet_port_x, ports.inlet_port_y,
                       count_up_to_zero(ports.inlet_port_x, ports.inlet_port_last), unit);
}

void write_dxf_outlet_port(text_lines& out, const port_params& ports, const length_unit& unit) {
    write_port_outline(out, ports.outlet_port_x, ports.outlet_port_y,
                       count_up_to_zero(ports.outlet_port_x, ports.outlet_port_last), unit);
}

void write_dxf_metering_groove(text_lines& out, const port_params& ports, const length_unit& unit) {
    write_port_outline(out, ports.groove_x, ports.groove_y, std::int64_t{ports.groove_last} + 1,
                       unit);
}

}  // namespace kvt
