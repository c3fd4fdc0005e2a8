#include "ports/port_report.hpp"

#include "base/number_text.hpp"
#include "ports/port_fields.hpp"

namespace kvt {

namespace {

void add_centres(const port_fields& port, const port_params& ports,
                 std::vector<std::string>& lines) {
    for (const port_corner& corner : port.record(ports).corners) {
        const point2 c = corner.c;
        lines.push_back("X: " + number_text(c.x) +
                        "; Y: " + number_text(port.mirrored ? c.y * -1.0 : c.y));
    }
}

void add_port(const std::string& name, const port_fields& port, const port_params& ports,
              double ecc, std::vector<std::string>& lines) {
    lines.push_back(name + " Port Radii Centre Co-ordinates:");
    add_centres(port, ports, lines);
    lines.push_back(name + " Port Inner Radius: " + number_text(port.record(ports).inner_r) +
                    "; Centre, X: 0; Y: 0");
    lines.push_back(name + " Port Outer Radius: " + number_text(port.record(ports).outer_r) +
                    "; Centre, X: -" + number_text(ecc) + "; Y:0");
    lines.push_back("Port Corner Radii: " + number_text(ports.port_radius));
    lines.emplace_back();
}

}  // namespace

std::vector<std::string> port_report_lines(const port_params& ports, const design_params& design,
                                           const port_report_head& head) {
    std::vector<std::string> lines = {"Kavetta V" + head.version + " - Port Radius Co-ordinates",
                                      "Cartesian Co-ordinate Datum is centre of Inner Rotor. "
                                      "Alignment of Cartesian Axes are as drawn in KVT model "
                                      "window.",
                                      head.date, head.project_name, ""};
    add_port("Inlet", inlet_fields(), ports, design.ecc, lines);
    add_port("Outlet", outlet_fields(), ports, design.ecc, lines);
    lines.emplace_back("End of File");
    return lines;
}

}  // namespace kvt
