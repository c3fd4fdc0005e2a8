// Tests of the exact DXF files: structure, handles, units, layers, areas with bulges.
#include "output/dxf/exact_dxf_files.hpp"

#include "exact/pump_contours.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

namespace kvt {
namespace {

std::string exact_bytes(const program& kavetta, std::string_view name) {
    return file_bytes(kavetta, file_group::dxf_exact, name);
}

struct dxf_group {
    int code;
    std::string value;
};

std::vector<dxf_group> groups_of(const std::string& bytes) {
    const std::vector<std::string> lines = split_lines(bytes);
    std::vector<dxf_group> groups;
    for (std::size_t i = 0; i + 1 < lines.size(); i += 2) {
        groups.push_back({std::stoi(lines[i]), lines[i + 1]});
    }
    EXPECT_EQ(lines.size() % 2, 0U);
    return groups;
}

/// The value behind a variable of the head.
std::string variable(const std::vector<dxf_group>& groups, std::string_view name) {
    for (std::size_t i = 0; i + 1 < groups.size(); ++i) {
        if (groups[i].code == 9 && groups[i].value == name) {
            return groups[i + 1].value;
        }
    }
    return "";
}

/// The signed area of the only polyline on a layer, with the segments of its bulges: a chord c with
/// the bulge b adds r^2 (w - sin w) / 2, w = 4 arctan b, r = c / (2 sin(w / 2)).
double polyline_area(const std::vector<dxf_group>& groups, std::string_view layer) {
    struct vertex {
        double x = 0.0, y = 0.0, bulge = 0.0;
    };
    std::vector<vertex> vertices;
    bool is_inside = false;
    std::string type;
    for (const auto& [code, value] : groups) {
        if (code == 0) {
            type = value;
            is_inside = false;
        } else if (code == 8) {
            is_inside = type == "LWPOLYLINE" && value == layer;
        } else if (is_inside && code == 10) {
            vertices.push_back({std::stod(value)});
        } else if (is_inside && code == 20) {
            vertices.back().y = std::stod(value);
        } else if (is_inside && code == 42) {
            vertices.back().bulge = std::stod(value);
        }
    }
    double area = 0.0;
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const vertex& a = vertices[i];
        const vertex& b = vertices[(i + 1) % vertices.size()];
        area += 0.5 * (a.x * b.y - b.x * a.y);
        if (a.bulge != 0.0) {
            const double w = 4.0 * std::atan(a.bulge);
            const double r = std::hypot(b.x - a.x, b.y - a.y) / (2.0 * std::sin(w / 2.0));
            area += 0.5 * r * r * (w - std::sin(w));
        }
    }
    return area;
}

TEST(exact_dxf_files, begin_with_version_and_unit) {
    const program kavetta = design_with_ports("n04_fuel");
    const std::string bytes = exact_bytes(kavetta, "inner");
    EXPECT_TRUE(bytes.starts_with(
        "  0\r\nSECTION\r\n  2\r\nHEADER\r\n  9\r\n$ACADVER\r\n  1\r\nAC1015\r\n"));
    EXPECT_TRUE(bytes.ends_with("  0\r\nEOF\r\n"));
    EXPECT_EQ(variable(groups_of(bytes), "$INSUNITS"), "4");
    EXPECT_EQ(variable(groups_of(exact_bytes(design_with_ports("n07_inch_hydraulic"), "outer")),
                       "$INSUNITS"),
              "1");
}

TEST(exact_dxf_files, have_handles_of_their_own_below_the_seed) {
    const program kavetta = design_with_ports("n07_engine_oil_groove");
    for (const written_file& file : files_of(file_group::dxf_exact)) {
        std::set<std::string> handles;
        const auto groups = groups_of(exact_bytes(kavetta, file.name));
        const int seed = std::stoi(variable(groups, "$HANDSEED"), nullptr, 16);
        bool is_behind_header = false;
        for (const auto& [code, value] : groups) {
            is_behind_header = is_behind_header || value == "TABLES";
            if (code == 5 && is_behind_header) {
                EXPECT_TRUE(handles.insert(value).second) << value;
                EXPECT_LT(std::stoi(value, nullptr, 16), seed);
            }
        }
        EXPECT_EQ(static_cast<int>(handles.size()), seed - 1);
    }
}

TEST(exact_dxf_files, have_the_exact_areas) {
    random_values random;
    for (int i = 0; i < property_count(60); ++i) {
        SCOPED_TRACE(i);
        const program kavetta = random_design(random);
        const double square =
            length_unit_of(kavetta.app_state).mm * length_unit_of(kavetta.app_state).mm;
        const auto expect_area = [&](const char* file, const char* layer, double area) {
            const double drawn = polyline_area(groups_of(exact_bytes(kavetta, file)), layer);
            EXPECT_NEAR(drawn * square, area, 1e-9 * area) << file;
        };
        expect_area("outer", "OUTER_ROTOR", enclosed_area(outer_rotor_arcs(kavetta.design_params)));
        expect_area("pair", "OUTER_ROTOR", enclosed_area(outer_rotor_arcs(kavetta.design_params)));
        expect_area("inlet", "INLET_PORT",
                    enclosed_area(port_arcs(kavetta.port_params.inlet.built, true)));
        expect_area("outlet", "OUTLET_PORT",
                    enclosed_area(port_arcs(kavetta.port_params.outlet.built, false)));
        if (kavetta.port_params.has_groove) {
            expect_area("groove", "METERING_GROOVE",
                        enclosed_area(groove_arcs(kavetta.port_params.groove_built)));
        }
    }
}

TEST(exact_dxf_files, have_the_inner_rotor_as_lines_within_a_micrometre) {
    const program kavetta = design_with_ports("n09_crank_oil");
    const exact_contour spline = inner_rotor_arcs(kavetta.design_params);
    const double area = enclosed_area(spline);
    const double drawn =
        polyline_area(groups_of(exact_bytes(kavetta, "inner_polyline")), "INNER_ROTOR");
    EXPECT_NEAR(drawn, area, 1e-3 * 2.0 * 3.15 * kavetta.design_params.outer_root);
    EXPECT_NE(drawn, area);
}

TEST(exact_dxf_files, have_one_closed_spline_with_double_knots_between_lobes) {
    const program kavetta = design_with_ports("n04_fuel");
    std::vector<double> knots;
    int controls = 0, splines = 0;
    std::string type;
    for (const auto& [code, value] : groups_of(exact_bytes(kavetta, "inner"))) {
        type = code == 0 ? value : type;
        splines += code == 0 && value == "SPLINE" ? 1 : 0;
        if (type == "SPLINE" && code == 40) {
            knots.push_back(std::stod(value));
        }
        controls += type == "SPLINE" && code == 10 ? 1 : 0;
    }
    EXPECT_EQ(splines, 1);
    EXPECT_EQ(static_cast<int>(knots.size()), controls + 4);
    EXPECT_TRUE(std::ranges::is_sorted(knots));
    int doubles = 0;
    for (std::size_t i = 4; i + 5 < knots.size(); ++i) {
        doubles += knots[i] == knots[i + 1] ? 1 : 0;
    }
    EXPECT_EQ(doubles, kavetta.design_params.numlobes - 2);
}

TEST(exact_dxf_files, mark_both_axes_of_the_pair) {
    const program kavetta = design_with_ports("n04_fuel");
    const std::string bytes = exact_bytes(kavetta, "pair");
    int points = 0, lines = 0;
    for (const auto& [code, value] : groups_of(bytes)) {
        points += code == 0 && value == "POINT" ? 1 : 0;
        lines += code == 0 && value == "LINE" ? 1 : 0;
    }
    EXPECT_EQ(points, 2);
    EXPECT_EQ(lines, 4);
}

}  // namespace
}  // namespace kvt
