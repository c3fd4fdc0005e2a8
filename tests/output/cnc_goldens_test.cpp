// The CNC files of whole designs, byte by byte: four decimals, cutters that fit the corners, every file.
#include "support/cnc_design.hpp"
#include "support/golden_files.hpp"

#include <gtest/gtest.h>

namespace kvt {

namespace {

struct golden_design {
    const char* name;
    double tool_diameter, groove_tool_diameter;
    const char* what;
};

constexpr golden_design DESIGNS[] = {
    {"n07_engine_oil_groove", 2.0, 1.0, "mm, odd, fillets, groove, shadow ports"},
    {"n04_fuel", 1.0, 0.0, "mm, even"},
    {"n03_transfer_sharp", 1.0, 0.0, "mm, no fillets, sharp ports"},
    {"n07_inch_hydraulic", 0.08, 0.0, "inches"},
};

program calculated(const golden_design& design) {
    program kavetta = design_with_ports(design.name);
    kavetta.cnc_choices = {4, design.tool_diameter, design.groove_tool_diameter};
    return kavetta;
}

class cnc_goldens : public testing::TestWithParam<golden_design> {};

}  // namespace

TEST_P(cnc_goldens, are_written_byte_by_byte) {
    const program kavetta = calculated(GetParam());
    for (const cnc_file& file : cnc_files()) {
        expect_golden(std::string(GetParam().name) + "/" + std::string(file.name) + ".cnc", cnc_bytes(kavetta, file.name));
    }
}

INSTANTIATE_TEST_SUITE_P(designs, cnc_goldens, testing::ValuesIn(DESIGNS),
                         [](const auto& design) { return std::string(design.param.name); });

}  // namespace kvt
