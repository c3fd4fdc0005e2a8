// Exact DXF files through an independent reader: no errors, nothing to fix, closed contours of the
// right size.
#include "exact/pump_contours.hpp"
#include "support/cnc_design.hpp"
#include "support/random_design.hpp"
#include "support/temporary_folder.hpp"

#include <cstdlib>
#include <gtest/gtest.h>
#include <sstream>

namespace kvt {
namespace {

/// What tests/output/read_exact_dxf.py prints about a file.
struct exact_drawing {
    int errors = -1, fixes = -1, unit = -1, contours = -1;
    double area = 0.0;
};

std::vector<exact_drawing> recovered(const std::string& paths, const temporary_folder& folder) {
    const std::string printed = folder.file("printed.txt");
    const std::string command =
        std::string(KVT_PYTHON) + " " + KVT_SCRIPT + paths + " > '" + printed + "'";
    EXPECT_EQ(std::system(command.c_str()), 0);
    std::istringstream lines(read_file(printed));
    std::vector<exact_drawing> drawings;
    exact_drawing drawing;
    while (lines >> drawing.errors >> drawing.fixes >> drawing.unit >> drawing.contours >>
           drawing.area) {
        drawings.push_back(drawing);
    }
    return drawings;
}

double area_of(const program& kavetta, std::string_view name) {
    double area = 0.0;
    for (const pump_contour& drawn :
         whole_pump_contours(kavetta.design_params, kavetta.port_params, kavetta.entries)) {
        const bool is_inner = drawn.part == pump_part::inner_rotor;
        const bool is_outer = drawn.part == pump_part::outer_rotor;
        const bool counts = name == "pair"
                                ? is_inner || is_outer
                                : name_of(drawn.part).starts_with(name.substr(0, 5)) ||
                                      (name == "groove" && drawn.part == pump_part::groove);
        area += counts && drawn.part != pump_part::rim ? enclosed_area(drawn.contour) : 0.0;
    }
    return area;
}

class exact_dxf_recover : public testing::TestWithParam<const char*> {};

TEST_P(exact_dxf_recover, finds_no_errors_and_closed_contours) {
    random_values random(20211103);
    const std::string name = GetParam();
    const program kavetta = name == "random" ? random_design(random) : design_with_ports(name);
    const temporary_folder folder;
    std::string paths;
    std::vector<std::string_view> names;
    for (const written_file& file : files_of(file_group::dxf_exact)) {
        if (is_there(file.needs, kavetta.port_params, kavetta.entries)) {
            const std::string path = folder.file(file_name(file));
            write_file(path, file_bytes(kavetta, file.group, file.name));
            paths += " '" + path + "'";
            names.push_back(file.name);
        }
    }
    const std::vector<exact_drawing> drawings = recovered(paths, folder);
    ASSERT_EQ(drawings.size(), names.size());
    const length_unit& unit = length_unit_of(kavetta.app_state);
    for (std::size_t i = 0; i < names.size(); ++i) {
        SCOPED_TRACE(std::string(names[i]));
        EXPECT_EQ(drawings[i].errors, 0);
        EXPECT_EQ(drawings[i].fixes, 0);
        EXPECT_EQ(drawings[i].unit, unit.system == unit_system::metric ? 4 : 1);
        EXPECT_EQ(drawings[i].contours, names[i] == "pair" ? 2 : 1);
        const double area = area_of(kavetta, names[i]);
        // The reader measures lines near arcs and splines.
        EXPECT_NEAR(drawings[i].area * unit.mm * unit.mm, area, 5e-4 * area);
    }
}

INSTANTIATE_TEST_SUITE_P(designs, exact_dxf_recover,
                         testing::Values("n03_transfer_sharp", "n04_fuel", "n07_engine_oil_groove",
                                         "n07_inch_hydraulic", "n09_crank_oil", "random"),
                         [](const auto& design) { return std::string(design.param); });

}  // namespace
}  // namespace kvt
