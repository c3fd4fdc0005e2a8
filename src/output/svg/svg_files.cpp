#include "output/svg/svg_files.hpp"

#include "exact/pump_contours.hpp"
#include "output/svg/svg_path.hpp"

#include <cmath>
#include <string>
#include <vector>

namespace kvt {

namespace {

/// White around the drawing.
constexpr double MARGIN_MM = 1.0;

/// Cutters follow the lines; the colours of their classes tell parts apart. A page that prefers
/// dark gets the second set.
constexpr std::string_view STYLE =
    "<style>\r\n"
    ".inner-rotor{stroke:#1b6e3c}\r\n"
    ".outer-rotor,.outer-rim{stroke:#7a4d0b}\r\n"
    ".inlet-port{stroke:#1d4fa3}\r\n"
    ".outlet-port,.metering-groove{stroke:#a3221d}\r\n"
    "@media (prefers-color-scheme:dark){\r\n"
    ".contour{stroke:#e8e8e8}\r\n"
    ".inner-rotor{stroke:#6fd197}\r\n"
    ".outer-rotor,.outer-rim{stroke:#e0b060}\r\n"
    ".inlet-port{stroke:#7fb0ff}\r\n"
    ".outlet-port,.metering-groove{stroke:#ff8d86}\r\n"
    "}\r\n"
    "</style>\r\n";

/// The box around the drawing in the page's axes, whole millimetres wide and high.
struct svg_box {
    double left, top, width, height;
};

svg_box box_around(const std::vector<pump_contour>& contours) {
    const auto [low, high] = extents_of(contours);
    const double left = std::floor(low.x - MARGIN_MM);
    const double top = std::floor(-high.y - MARGIN_MM);
    return {left, top, std::ceil(high.x + MARGIN_MM) - left, std::ceil(-low.y + MARGIN_MM) - top};
}

void write_svg(std::string_view title, const std::vector<pump_contour>& contours, text_lines& out) {
    check_that_there_are(contours);
    const svg_box box = box_around(contours);
    const std::string width = svg_number(box.width);
    const std::string height = svg_number(box.height);
    out.raw_line("<?xml version=\"1.0\" encoding=\"UTF-8\"?>");
    out.raw_line("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + width + "mm\" height=\"" +
                 height + "mm\" viewBox=\"" + svg_number(box.left) + " " + svg_number(box.top) +
                 " " + width + " " + height + "\">");
    out.raw_line("<title>" + std::string(title) + "</title>");
    out.raw_block(STYLE);
    // Programs that read no style sheet find lines without a filling, too.
    out.raw_line(
        "<g fill=\"none\" stroke=\"#202020\" stroke-width=\".1\" stroke-linejoin=\"round\">");
    for (const pump_contour& drawn : contours) {
        const std::string name(name_of(drawn.part));
        out.raw_part(R"(<path id=")");
        out.raw_part(name);
        out.raw_part(R"(" class="contour )");
        out.raw_part(name);
        out.raw_part(R"(" d=")");
        out.raw_part(svg_path(drawn.contour));
        out.raw_line(R"("/>)");
    }
    out.raw_line("</g>");
    out.raw_line("</svg>");
}

}  // namespace

void write_svg_inner(const file_source& source, text_lines& out) {
    write_svg("Inner rotor", inner_rotor_contours(source.design), out);
}

void write_svg_outer(const file_source& source, text_lines& out) {
    write_svg("Outer rotor", outer_rotor_contours(source.design), out);
}

void write_svg_inlet(const file_source& source, text_lines& out) {
    write_svg("Inlet port", port_contours(source.ports, port_side::inlet), out);
}

void write_svg_outlet(const file_source& source, text_lines& out) {
    write_svg("Outlet port", port_contours(source.ports, port_side::outlet), out);
}

void write_svg_groove(const file_source& source, text_lines& out) {
    write_svg("Metering groove", groove_contours(source.ports, source.boxes), out);
}

void write_svg_pair(const file_source& source, text_lines& out) {
    write_svg("Rotors", pair_contours(source.design), out);
}

void write_svg_ports(const file_source& source, text_lines& out) {
    write_svg("Ports over the rotors",
              whole_pump_contours(source.design, source.ports, source.boxes), out);
}

}  // namespace kvt
