#include "output/dxf/dxf_files.hpp"

#include "base/checked_math.hpp"
#include "base/fixed_number.hpp"
#include "base/number_text.hpp"
#include "geometry/outer_path.hpp"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>
#include <string>
#include <vector>

namespace kvt {

namespace {

struct dxf_layer {
    std::string_view name, colour;
};

/// Only LINELAYER is used; drawing programs that know the set find the others empty.
constexpr auto LAYERS = std::to_array<dxf_layer>({{"0", "7"},
                                                  {"POINTLAYER", "30"},
                                                  {"LINELAYER", "30"},
                                                  {"CODELAYER", "30"},
                                                  {"DESCSLAYER", "30"},
                                                  {"COORDSLAYER", "30"}});

constexpr std::string_view ZERO = "0.000000";

// About so long are the lines around the vertices, and those of one vertex.
constexpr std::size_t HEAD_BYTES = 1000;
constexpr std::size_t BYTES_PER_VERTEX = 80;

void write_lines(text_lines& out, std::initializer_list<std::string_view> lines) {
    for (const std::string_view line : lines) {
        out.raw_line(line);
    }
}

// A group code keeps its one leading blank; its value is the next line.

void write_layer_table(text_lines& out) {
    write_lines(out, {" 0", "SECTION", " 2", "TABLES", " 0", "TABLE", " 2", "LAYER", " 70", "6"});
    for (const dxf_layer& layer : LAYERS) {
        write_lines(out, {" 0", "LAYER", " 2", layer.name, " 70", "64", " 62", layer.colour, " 6",
                          "CONTINUOUS"});
    }
    write_lines(out, {" 0", "ENDTAB", " 0", "ENDSEC"});
}

/// Writes the file's lines as its vertices come: the head at once, a vertex a call, the end when
/// told.
class dxf_polyline {
  public:
    /// vertex_count is a hint of how much text will come.
    dxf_polyline(text_lines& out, std::size_t vertex_count);
    /// One vertex; x and y are the texts of its numbers.
    void vertex(std::string_view x, std::string_view y);
    void end();

  private:
    text_lines& out_;
};

dxf_polyline::dxf_polyline(text_lines& out, std::size_t vertex_count) : out_(out) {
    out.reserve(out.bytes().size() + HEAD_BYTES + BYTES_PER_VERTEX * vertex_count);
    write_lines(out, {" 0", "SECTION", " 2", "HEADER", " 0", "ENDSEC"});
    write_layer_table(out);
    write_lines(out, {" 0", "SECTION", " 2", "BLOCKS", " 0", "ENDSEC"});
    write_lines(out, {" 0", "SECTION", " 2", "ENTITIES"});
    write_lines(out, {" 0", "POLYLINE", " 8", "LINELAYER"});
    write_lines(out, {" 70", "0"});  // open
    write_lines(out, {" 66", "1"});  // vertices follow
    write_lines(out, {" 10", ZERO, " 20", ZERO, " 30", ZERO, " 0"});
}

void dxf_polyline::vertex(std::string_view x, std::string_view y) {
    out_.raw_block("VERTEX\r\n 8\r\nLINELAYER\r\n 10\r\n");
    out_.raw_line(x);
    out_.raw_block(" 20\r\n");
    out_.raw_line(y);
    // The " 0" behind a vertex begins the next one, or the end of the sequence.
    out_.raw_block(" 30\r\n0.000000\r\n 0\r\n");
}

void dxf_polyline::end() {
    write_lines(out_, {"SEQEND", " 0", "ENDSEC", " 0", "EOF"});
}

constexpr int DECIMALS = 6;

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

void write_dxf_outer_rotor(text_lines& out, const entries& boxes, double scale) {
    constexpr std::size_t POINTS_PER_LOBE = 320;
    const design_params typed = outer_rotor_entries(boxes, scale);
    dxf_polyline polyline(
        out, POINTS_PER_LOBE * static_cast<std::size_t>(std::clamp(typed.numlobes, 0, 100)));
    for (const point2& point : outer_path_points(outer_rotor_path(typed))) {
        polyline.vertex(fixed_number(point.x, DECIMALS), fixed_number(point.y, DECIMALS));
    }
    polyline.end();
}

void write_dxf_inlet_port(text_lines& out, const port_params& ports, const length_unit& unit) {
    write_port_outline(out, ports.inlet.x, ports.inlet.y,
                       count_up_to_zero(ports.inlet.x, ports.inlet.last), unit);
}

void write_dxf_outlet_port(text_lines& out, const port_params& ports, const length_unit& unit) {
    write_port_outline(out, ports.outlet.x, ports.outlet.y,
                       count_up_to_zero(ports.outlet.x, ports.outlet.last), unit);
}

void write_dxf_metering_groove(text_lines& out, const port_params& ports, const length_unit& unit) {
    write_port_outline(out, ports.groove_x, ports.groove_y, std::int64_t{ports.groove_last} + 1,
                       unit);
}

}  // namespace kvt
