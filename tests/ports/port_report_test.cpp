// The report of the corner centres, whole.
#include "ports/port_report.hpp"

#include <gtest/gtest.h>

namespace kvt {
namespace {

TEST(port_report, has_24_lines_with_the_inlet_below_the_axis) {
    port_params ports;
    design_params design;
    design.ecc = 2.85;
    ports.port_radius = 1.5;
    ports.inlet.inner_r = 14.5;
    ports.inlet.outer_r = 22.4;
    ports.outlet.inner_r = 14.6;
    ports.outlet.outer_r = 1.0 / 3.0;
    ports.inlet.corners[START_INNER].c.x = 1.0;
    ports.inlet.corners[START_INNER].c.y = 2.0;
    ports.inlet.corners[END_INNER].c.x = -3.5;
    ports.inlet.corners[END_INNER].c.y = 4.0;
    ports.inlet.corners[START_OUTER].c.y = 1e-5;
    ports.outlet.corners[START_INNER].c.x = 5.0;
    ports.outlet.corners[START_INNER].c.y = 6.0;
    ports.outlet.corners[START_OUTER].c.y = 0.1 + 0.2;
    const std::vector<std::string> expected = {
        "Kavetta V2021.1.1 - Port Radius Co-ordinates",
        "Cartesian Co-ordinate Datum is centre of Inner Rotor. Alignment of Cartesian Axes are as "
        "drawn in KVT model "
        "window.",
        "03.11.21",
        "pump",
        "",
        "Inlet Port Radii Centre Co-ordinates:",
        "X: 1; Y: -2",
        "X: -3.5; Y: -4",
        "X: 0; Y: 0",
        "X: 0; Y: -1E-05",
        "Inlet Port Inner Radius: 14.5; Centre, X: 0; Y: 0",
        "Inlet Port Outer Radius: 22.4; Centre, X: -2.85; Y:0",
        "Port Corner Radii: 1.5",
        "",
        "Outlet Port Radii Centre Co-ordinates:",
        "X: 5; Y: 6",
        "X: 0; Y: 0",
        "X: 0; Y: 0",
        "X: 0; Y: 0.3",
        "Outlet Port Inner Radius: 14.6; Centre, X: 0; Y: 0",
        "Outlet Port Outer Radius: 0.333333333333333; Centre, X: -2.85; Y:0",
        "Port Corner Radii: 1.5",
        "",
        "End of File"};
    EXPECT_EQ(port_report_lines(ports, design, {"2021.1.1", "03.11.21", "pump"}), expected);
}

}  // namespace
}  // namespace kvt
